#include "platform/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

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

bool WholeFile::write(const QByteArray &content)
{
    if (m_unusable && !keepAside())
        return false;
    if (!QDir().mkpath(QFileInfo(m_path).absolutePath()))
        return false;
    QSaveFile file(m_path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
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
