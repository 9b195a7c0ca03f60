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

void findService(const QDBusConnection &bus, const QString &name, QObject &context,
                 const std::function<void(bool)> &answered)
{
    if (!bus.isConnected()) {
        answered(false);
        return;
    }
    const auto ask = [](const QString &method) {
        return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
                                              QStringLiteral("/org/freedesktop/DBus"),
                                              QStringLiteral("org.freedesktop.DBus"), method);
    };
    QDBusMessage isOwned = ask(QStringLiteral("NameHasOwner"));
    isOwned << name;
    const QDBusMessage startable = ask(QStringLiteral("ListActivatableNames"));
    callDBus(bus, isOwned, context, [=, &context](const std::optional<QVariantList> &owned) {
        if (owned && owned->value(0).toBool()) {
            answered(true);
            return;
        }
        callDBus(bus, startable, context, [=](const std::optional<QVariantList> &names) {
            answered(names && names->value(0).toStringList().contains(name));
        });
    });
}

} // namespace brimlight
