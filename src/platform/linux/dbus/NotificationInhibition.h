#pragma once

#include "platform/Scheduler.h"
#include "platform/linux/dbus/DBusCall.h"

#include <QObject>
#include <QVariantMap>

namespace brimlight {

/// Whether the service that shows notifications says that they are inhibited. The service may come, go and be
/// replaced at any time; it is never started for the question. Asked a little after the start.
class NotificationInhibition : public QObject
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds startDelay{400};

    explicit NotificationInhibition(Scheduler &scheduler, std::function<QDBusConnection()> bus = sessionBus);

    /// False while unknown, and without a service that knows.
    bool isInhibited() const { return m_isInhibited; }

private:
    Q_SLOT void propertiesChanged(const QString &interface, const QVariantMap &values,
                                  const QStringList &names);
    Q_SLOT void ownerChanged(const QString &name, const QString &before, const QString &now);

    void listen(QDBusConnection bus);
    void read();

    std::optional<QDBusConnection> m_bus;
    bool m_isInhibited = false;
    std::unique_ptr<Scheduled> m_start;
};

} // namespace brimlight
