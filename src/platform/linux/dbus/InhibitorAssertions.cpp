#include "platform/linux/dbus/InhibitorAssertions.h"

#include <QDBusMessage>
#include <QTimer>

namespace brimlight {
namespace {

const QString screenSaver = QStringLiteral("org.freedesktop.ScreenSaver");
const QString loginManager = QStringLiteral("org.freedesktop.login1");
const QString program = QStringLiteral("Brimlight");

QDBusMessage screenSaverCall(const QString &method)
{
    return QDBusMessage::createMethodCall(screenSaver, QStringLiteral("/org/freedesktop/ScreenSaver"),
                                          screenSaver, method);
}

} // namespace

InhibitorAssertions::InhibitorAssertions(Open session, Open system, std::chrono::milliseconds patience,
                                         ScreenTimers timers)
    : m_openSession(std::move(session))
    , m_openSystem(std::move(system))
    , m_patience(patience)
    , m_timers(std::move(timers))
{
}

uint32_t InhibitorAssertions::create(const QString &name, QObject &context, std::function<void()> failed)
{
    const uint32_t id = ++m_lastId;
    m_held.emplace(id, Held{name, &context, std::move(failed), std::nullopt, {}, false});
    if (m_session)
        askScreenSaver(id);
    else
        open(id);
    return id;
}

void InhibitorAssertions::release(uint32_t id)
{
    const auto released = m_held.extract(id);
    if (!released)
        return;
    holdTimers(released.mapped(), false);
    if (released.mapped().cookie)
        uninhibit(*released.mapped().cookie);
}

void InhibitorAssertions::check(QObject &context, ObstacleReply answered)
{
    // Whatever comes of it comes to a context that is still there.
    const auto tell = [guard = QPointer(&context), answered = std::move(answered)](bool works) {
        if (guard)
            answered(works ? std::nullopt : std::optional(Obstacle::nothingKeepsAwake));
    };
    if (m_timers.canBeHeld()) {
        QTimer::singleShot(0, this, [tell] { tell(true); });
        return;
    }
    const auto askSystem = [this, tell] {
        openBus(*this, m_openSystem,
                [this, tell](const QDBusConnection &bus) { findService(bus, loginManager, *this, tell); });
    };
    openBus(*this, m_openSession, [this, tell, askSystem](const QDBusConnection &bus) {
        findService(bus, screenSaver, *this, [tell, askSystem](bool isThere) {
            if (isThere)
                tell(true);
            else
                askSystem();
        });
    });
}

void InhibitorAssertions::open(uint32_t id)
{
    openBus(*this, m_openSession, [this, id](QDBusConnection bus) {
        if (!bus.isConnected()) {
            standIn(id);
            return;
        }
        if (!m_session)
            bus.connect({}, QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
                        QStringLiteral("NameOwnerChanged"), {screenSaver}, QStringLiteral("sss"), this,
                        SLOT(ownerChanged(QString, QString, QString)));
        m_session = bus;
        askScreenSaver(id);
    });
}

void InhibitorAssertions::askScreenSaver(uint32_t id)
{
    const auto asking = m_held.find(id);
    if (asking == m_held.end())
        return;
    ++asking->second.questions;
    QDBusMessage call = screenSaverCall(QStringLiteral("Inhibit"));
    call << program << asking->second.name;
    callDBus(*m_session, call, *this, [this, id](const std::optional<QVariantList> &reply) {
        const QVariant cookie = reply.value_or(QVariantList()).value(0);
        const auto held = m_held.find(id);
        if (cookie.typeId() != QMetaType::UInt) {
            standIn(id);
        } else if (held == m_held.end() || held->second.cookie) {
            // Released meanwhile, or asked twice because the call itself has started the service.
            uninhibit(cookie.toUInt());
        } else {
            held->second.cookie = cookie.toUInt();
            held->second.inhibitor = QDBusUnixFileDescriptor();
            holdTimers(held->second, false);
        }
        answered(id);
    });
}

void InhibitorAssertions::standIn(uint32_t id)
{
    const auto held = m_held.find(id);
    if (held == m_held.end())
        return;
    holdTimers(held->second, m_timers.canBeHeld());
    askLoginManager(id);
}

void InhibitorAssertions::holdTimers(Held &held, bool hold)
{
    if (held.holdsTimers == hold)
        return;
    held.holdsTimers = hold;
    m_timers.setHeld(hold);
}

void InhibitorAssertions::askLoginManager(uint32_t id)
{
    const auto asking = m_held.find(id);
    if (asking == m_held.end())
        return;
    ++asking->second.questions;
    openBus(*this, m_openSystem, [this, id](const QDBusConnection &bus) {
        const auto asked = m_held.find(id);
        if (asked == m_held.end())
            return;
        if (!bus.isConnected()) {
            answered(id);
            return;
        }
        QDBusMessage call = QDBusMessage::createMethodCall(
            loginManager, QStringLiteral("/org/freedesktop/login1"),
            QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("Inhibit"));
        call << QStringLiteral("idle") << program << asked->second.name << QStringLiteral("block");
        callDBus(bus, call, *this, [this, id](const std::optional<QVariantList> &reply) {
            const auto held = m_held.find(id);
            if (held != m_held.end() && !held->second.cookie)
                held->second.inhibitor =
                    reply.value_or(QVariantList()).value(0).value<QDBusUnixFileDescriptor>();
            answered(id);
        });
    });
}

void InhibitorAssertions::answered(uint32_t id)
{
    const auto held = m_held.find(id);
    if (held != m_held.end() && --held->second.questions == 0 && !held->second.cookie &&
        !held->second.holdsTimers && !held->second.inhibitor.isValid())
        fail(id);
}

void InhibitorAssertions::fail(uint32_t id)
{
    const auto failed = m_held.extract(id);
    if (failed && failed.mapped().context)
        failed.mapped().failed();
}

void InhibitorAssertions::uninhibit(uint cookie)
{
    QDBusMessage call = screenSaverCall(QStringLiteral("UnInhibit"));
    call << cookie;
    m_session->send(call);
}

void InhibitorAssertions::ownerChanged(const QString &, const QString &, const QString &now)
{
    for (auto &[id, held] : m_held) {
        // Cookies of a service that is gone mean nothing to the next one.
        held.cookie.reset();
        if (!now.isEmpty()) {
            askScreenSaver(id);
            continue;
        }
        standIn(id);
        // That the service comes back is a question, too.
        ++held.questions;
        QTimer::singleShot(m_patience, this, [this, asked = id] { answered(asked); });
    }
}

} // namespace brimlight
