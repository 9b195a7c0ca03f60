#pragma once

#include "platform/PowerAssertions.h"
#include "platform/linux/dbus/DBusCall.h"

#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QPointer>

#include <chrono>
#include <map>

namespace brimlight {

/// The timers by which the display server turns the screen off.
struct ScreenTimers
{
    /// They are in use here and can be held. Both are called on the main thread.
    std::function<bool()> canBeHeld = [] { return false; };
    /// Counted: each hold has its end.
    std::function<void(bool)> setHeld = [](bool) {};
};

/// Keeps the display awake through the session's screen saver service. Where there is none, the timers of the
/// display server are held and an inhibitor is taken from the login manager, which would put an idle machine
/// to sleep; one of the two is enough. All of them end what is held when the program ends. A service that is
/// restarted is asked again for everything that is held, and until then the others stand in.
class InhibitorAssertions : public QObject, public PowerAssertions
{
    Q_OBJECT

public:
    using Open = std::function<QDBusConnection()>;

    /// For a service that is restarted to come back.
    static constexpr std::chrono::milliseconds defaultPatience{5000};

    /// The buses are opened when they are first needed.
    explicit InhibitorAssertions(Open session = sessionBus, Open system = systemBus,
                                 std::chrono::milliseconds patience = defaultPatience,
                                 ScreenTimers timers = {});

    uint32_t create(const QString &name, QObject &context, std::function<void()> failed) override;
    void release(uint32_t id) override;
    void check(QObject &context, ObstacleReply answered) override;

private:
    struct Held
    {
        QString name;
        QPointer<QObject> context;
        std::function<void()> failed;
        /// Of the screen saver service.
        std::optional<uint> cookie;
        /// Of the login manager.
        QDBusUnixFileDescriptor inhibitor;
        bool holdsTimers = false;
        /// Questions that have not been answered yet.
        int questions = 0;
    };

    Q_SLOT void ownerChanged(const QString &name, const QString &before, const QString &now);

    void open(uint32_t id);
    void askScreenSaver(uint32_t id);
    /// In the place of the screen saver service.
    void standIn(uint32_t id);
    void askLoginManager(uint32_t id);
    void holdTimers(Held &held, bool hold);
    /// Fails when it was the last answer and nothing is held by then.
    void answered(uint32_t id);
    void fail(uint32_t id);
    void uninhibit(uint cookie);

    Open m_openSession;
    Open m_openSystem;
    std::chrono::milliseconds m_patience;
    ScreenTimers m_timers;
    /// Once they are connected.
    std::optional<QDBusConnection> m_session;
    std::map<uint32_t, Held> m_held;
    uint32_t m_lastId = 0;
};

} // namespace brimlight
