#pragma once

#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

class Log;
class LoginItem;

/// Whether the program is started at login, as far as the system was last asked.
class LoginItemService : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the process")
    Q_PROPERTY(bool isEnabled READ isEnabled NOTIFY isEnabledChanged)

public:
    LoginItemService(LoginItem &item, Log &log, QObject *parent = nullptr);

    bool isEnabled() const { return m_isEnabled; }
    /// Takes what the system says afterwards; a failure is logged and no more.
    Q_INVOKABLE void setEnabled(bool enabled);
    /// Asks the system again.
    void refresh();

Q_SIGNALS:
    void isEnabledChanged();

private:
    LoginItem &m_item;
    Log &m_log;
    bool m_isEnabled;
};

} // namespace brimlight
