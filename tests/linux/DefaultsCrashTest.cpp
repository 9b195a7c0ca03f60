#include "platform/linux/files/JsonUserDefaults.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace brimlight::test {
namespace {

/// Rewrites two keys that always hold the same text, for ever.
[[noreturn]] void writeForEver(const QString &path)
{
    JsonUserDefaults defaults(path);
    for (int i = 0;; ++i) {
        // Long enough that half a file would be seen.
        const QString text = QString::number(i) + QString(20000, QLatin1Char('x'));
        defaults.setValue(QStringLiteral("first"), text);
    }
}

} // namespace

TEST(DefaultsCrash, KilledAtAnyMomentTheFileIsTheOldOneOrTheNewOneWhole)
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("defaults.json"));
    JsonUserDefaults(path).setValue(QStringLiteral("first"), QStringLiteral("start"));
    int changed = 0;
    QByteArray last;
    for (int round = 0; round < 40; ++round) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0)
            writeForEver(path);
        // Moments spread over several writes, not aligned with any of them.
        usleep(static_cast<useconds_t>(1500 + round * 370));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        ASSERT_TRUE(QJsonDocument::fromJson(bytes).isObject()) << "round " << round;
        changed += bytes != last;
        last = bytes;
    }
    EXPECT_GT(changed, 1) << "no write was under way: the test proves nothing";
}

} // namespace brimlight::test
