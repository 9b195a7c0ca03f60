#include "platform/linux/files/XdgFolders.h"

#include <QDir>
#include <QStandardPaths>

namespace brimlight {
namespace {

/// A user without a home directory has no folders of his own; Qt would answer with the root directory.
std::optional<QString> writable(QStandardPaths::StandardLocation location, const char *variable)
{
    if (qEnvironmentVariableIsEmpty(variable) && qEnvironmentVariableIsEmpty("HOME"))
        return std::nullopt;
    const QString path = QStandardPaths::writableLocation(location);
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

} // namespace

std::optional<QString> XdgFolders::applicationSupport() const
{
    return writable(QStandardPaths::GenericDataLocation, "XDG_DATA_HOME");
}

QString XdgFolders::temporary() const
{
    return QDir::tempPath();
}

QString XdgFolders::userDefaultsFile() const
{
    const QString base =
        writable(QStandardPaths::GenericConfigLocation, "XDG_CONFIG_HOME").value_or(temporary());
    return base + QStringLiteral("/Brimlight/defaults.json");
}

QString XdgFolders::autostartFolder() const
{
    const auto base = writable(QStandardPaths::GenericConfigLocation, "XDG_CONFIG_HOME");
    return base ? *base + QStringLiteral("/autostart") : QString();
}

} // namespace brimlight
