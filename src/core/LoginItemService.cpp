#include "core/LoginItemService.h"

#include "platform/Log.h"
#include "platform/LoginItem.h"

namespace brimlight {

LoginItemService::LoginItemService(LoginItem &item, Log &log, QObject *parent)
    : QObject(parent)
    , m_item(item)
    , m_log(log)
    , m_isEnabled(item.isEnabled())
{
}

void LoginItemService::setEnabled(bool enabled)
{
    std::optional<QString> error;
    if (!enabled)
        error = m_item.disable();
    else if (!m_item.isEnabled())
        error = m_item.enable();
    if (error)
        m_log.write(LogLevel::error, QStringLiteral("LoginItem"),
                    QStringLiteral("Login item %1 failed: %2")
                        .arg(enabled ? QStringLiteral("register") : QStringLiteral("unregister"), *error));
    refresh();
}

void LoginItemService::refresh()
{
    m_isEnabled = m_item.isEnabled();
    Q_EMIT isEnabledChanged();
}

} // namespace brimlight
