#pragma once

#include "platform/LoginItem.h"

namespace brimlight {

/// The entry "brimlight.desktop" among those that the desktop starts at login. What the user has added to it
/// is kept; it counts as disabled where he or his desktop has marked it so.
class XdgAutostart : public LoginItem
{
public:
    /// `folder` need not exist; empty for a user without a home. `executable` is an absolute path.
    XdgAutostart(const QString &folder, QString executable);

    bool isEnabled() const override;
    std::optional<QString> enable() override;
    std::optional<QString> disable() override;

private:
    QString m_path;
    QString m_executable;
};

/// The path as the one argument of an Exec key.
QString execArgument(const QString &path);

} // namespace brimlight
