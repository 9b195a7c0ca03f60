#pragma once

#include <QDBusConnection>
#include <QVariantList>

#include <functional>
#include <optional>

class QDBusMessage;
class QObject;

namespace brimlight {

/// The two steps of D-Bus that would otherwise wait: connecting and calling. Neither ever blocks the caller,
/// and nothing is called back once `context` is gone.

/// The bus of the user's login session, shared by the whole process. Waits for the daemon when it is first
/// asked for, so not on the main thread: it is the `open` of `openBus`.
QDBusConnection sessionBus();

/// The bus of the machine, in the same way.
QDBusConnection systemBus();

/// Runs `open` on a thread of its own and `opened` on the main thread. A bus that cannot be reached gives a
/// connection that is not connected.
void openBus(QObject &context, std::function<QDBusConnection()> open,
             std::function<void(QDBusConnection)> opened);

/// Sends a method call and gives the arguments of its reply, absent after an error or without an answer in
/// time. To be called on the main thread.
void callDBus(const QDBusConnection &bus, const QDBusMessage &call, QObject &context,
              std::function<void(std::optional<QVariantList>)> done);

/// Whether a service is on the bus or would be started by a call to it; false without a bus. To be called on
/// the main thread.
void findService(const QDBusConnection &bus, const QString &name, QObject &context,
                 const std::function<void(bool)> &answered);

} // namespace brimlight
