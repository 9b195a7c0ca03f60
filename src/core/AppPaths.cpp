#include "core/AppPaths.h"

#include "platform/Folders.h"

#include <QDir>

namespace brimlight {

QString AppPaths::appSupportFile(const QString &name) const
{
    const QString base = m_folders.applicationSupport().value_or(m_folders.temporary());
    const QDir folder(base + QStringLiteral("/Brimlight"));
    folder.mkpath(QStringLiteral("."));
    return folder.filePath(name);
}

} // namespace brimlight
