#include "platform/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <cerrno>
#include <cstdio>
#include <unistd.h>

namespace brimlight {

std::optional<QByteArray> WholeFile::read()
{
    QFile file(m_path);
    const QFileInfo info(m_path);
    if (!info.exists() && !info.isSymLink())
        return std::nullopt;
    // A named pipe would block the start for ever.
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)) {
        m_unusable = true;
        return std::nullopt;
    }
    QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        m_unusable = true;
        return std::nullopt;
    }
    return content;
}

bool WholeFile::write(const QByteArray &content, const Sync &sync)
{
    m_error.clear();
    if (m_unusable && !keepAside()) {
        m_error = QStringLiteral("what was there before cannot be moved aside");
        return false;
    }
    if (!QDir().mkpath(QFileInfo(m_path).absolutePath())) {
        m_error = QStringLiteral("the folder cannot be made");
        return false;
    }
    return replace(content, sync);
}

void WholeFile::untilOnDisk(int descriptor)
{
    ::fdatasync(descriptor);
}

bool WholeFile::replace(const QByteArray &content, const Sync &sync)
{
    const QString target = QFileInfo(m_path).canonicalFilePath();
    const QFileInfo old(target.isEmpty() ? m_path : target);
    // It has no name until it is asked for one, where the file system can do that: a process that is killed
    // while it writes leaves nothing behind.
    QTemporaryFile file(QStringLiteral("%1/.%2.XXXXXX").arg(old.absolutePath(), old.fileName()));
    if (!file.open() || file.write(content) != content.size() || !file.flush()) {
        m_error = file.errorString();
        return false;
    }
    if (old.exists())
        file.setPermissions(old.permissions());
    sync(file.handle());
    if (::rename(QFile::encodeName(file.fileName()).constData(),
                 QFile::encodeName(old.absoluteFilePath()).constData()) != 0) {
        m_error = qt_error_string(errno);
        return false;
    }
    file.setAutoRemove(false);
    return true;
}

bool WholeFile::keepAside()
{
    // rename(2) would replace an earlier file kept aside, QFile::rename refuses to: the first free number is
    // taken.
    const QFileInfo info(m_path);
    if (info.exists() || info.isSymLink()) {
        constexpr int attempts = 10000;
        bool moved = false;
        for (int n = 1; n <= attempts && !moved; ++n) {
            const QString aside = QStringLiteral("%1.unreadable-%2").arg(m_path).arg(n);
            const QFileInfo taken(aside);
            if (taken.exists() || taken.isSymLink())
                continue;
            if (!QDir().rename(m_path, aside))
                return false;
            moved = true;
        }
        if (!moved)
            return false;
    }
    m_unusable = false;
    return true;
}

} // namespace brimlight
