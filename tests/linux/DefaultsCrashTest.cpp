#include "platform/linux/files/JsonUserDefaults.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace brimlight::test {

using namespace std::chrono_literals;

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

ino_t fileNumber(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_ino : 0;
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
        // Another file takes the place of the last one with each write. Then moments spread over the next
        // writes, not aligned with any of them.
        const ino_t before = fileNumber(path);
        const QDeadlineTimer patience(10s);
        while (fileNumber(path) == before && !patience.hasExpired()) {
        }
        for (int looks = round * 53; looks > 0; --looks)
            fileNumber(path);
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
