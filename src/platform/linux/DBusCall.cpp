#include "platform/linux/DBusCall.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QPointer>
#include <QThreadPool>

namespace brimlight {

QDBusConnection sessionBus()
{
    return QDBusConnection::sessionBus();
}

void openBus(QObject &context, std::function<QDBusConnection()> open,
             std::function<void(QDBusConnection)> opened)
{
    QThreadPool::globalInstance()->start([application = QCoreApplication::instance(),
                                          guard = QPointer(&context), open = std::move(open),
                                          opened = std::move(opened)] {
        const QDBusConnection bus = open();
        // Through the application object, which the program keeps until the pool is done, but is no longer
        // the `instance()` then. The context may go at any time and is looked at on its own thread alone.
        QMetaObject::invokeMethod(
            application,
            [guard, opened, bus] {
                if (guard)
                    opened(bus);
            },
            Qt::QueuedConnection);
    });
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
