#include "platform/linux/dbus/DBusCall.h"

#include "platform/linux/process/Aside.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

namespace brimlight {

QDBusConnection sessionBus()
{
    return QDBusConnection::sessionBus();
}

QDBusConnection systemBus()
{
    return QDBusConnection::systemBus();
}

void openBus(QObject &context, std::function<QDBusConnection()> open,
             std::function<void(QDBusConnection)> opened)
{
    runAside<QDBusConnection>(context, std::move(open), std::move(opened));
}

void callDBus(const QDBusConnection &bus, const QDBusMessage &call, QObject &context,
              std::function<void(std::optional<QVariantList>)> done)
{
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), &context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &context,
                     [watcher, done = std::move(done)] {
                         watcher->deleteLater();
                         const QDBusMessage reply = watcher->reply();
                         if (reply.type() == QDBusMessage::ReplyMessage)
                             done(reply.arguments());
                         else
                             done(std::nullopt);
                     });
}

} // namespace brimlight
