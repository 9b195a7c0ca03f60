#include "platform/linux/dbus/DesktopAppearance.h"

#include <QDBusMessage>

namespace brimlight {
namespace {

QString portalService()
{
    return QStringLiteral("org.freedesktop.portal.Desktop");
}

QString portalPath()
{
    return QStringLiteral("/org/freedesktop/portal/desktop");
}

QString settingsInterface()
{
    return QStringLiteral("org.freedesktop.portal.Settings");
}

} // namespace

DesktopAppearance::DesktopAppearance(Scheduler &scheduler, std::function<QDBusConnection()> bus)
{
    m_start = scheduler.after(startDelay, [this, bus = std::move(bus)] {
        openBus(*this, bus, [this](const QDBusConnection &opened) { listen(opened); });
    });
}

void DesktopAppearance::listen(QDBusConnection bus)
{
    if (!bus.isConnected())
        return;
    m_bus = bus;
    // Qt looks the parameters of a slot up by name, and this type has its name once it is asked for.
    qRegisterMetaType<QDBusVariant>();
    // No sender is named: Qt would ask the bus for its owner and wait for the answer.
    bus.connect({}, portalPath(), settingsInterface(), QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    bus.connect({}, QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
                QStringLiteral("NameOwnerChanged"), {portalService()}, QStringLiteral("sss"), this,
                SLOT(ownerChanged(QString, QString, QString)));
    readAll();
}

void DesktopAppearance::readAll()
{
    QDBusMessage call = QDBusMessage::createMethodCall(portalService(), portalPath(), settingsInterface(),
                                                       QStringLiteral("ReadAll"));
    call << AppearanceWishes::groups();
    ++m_readings;
    callDBus(*m_bus, call, *this, [this](const std::optional<QVariantList> &reply) {
        --m_readings;
        if (const auto values = portalValues(reply.value_or(QVariantList()))) {
            AppearanceWishes wishes = AppearanceWishes::of(*values);
            for (const Change &change : m_overtaking)
                wishes.set(change.group, change.key, change.value);
            take(wishes);
        }
        if (m_readings == 0)
            m_overtaking.clear();
    });
}

void DesktopAppearance::settingChanged(const QString &group, const QString &key, const QDBusVariant &value)
{
    // Qt may deliver a change before the answer that was sent ahead of it: the answer must not undo it.
    if (m_readings > 0)
        m_overtaking.append({group, key, value.variant()});
    AppearanceWishes wishes = m_wishes;
    wishes.set(group, key, value.variant());
    take(wishes);
}

void DesktopAppearance::setDark(bool dark)
{
    settingChanged(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme"),
                   QDBusVariant(dark ? 1U : 0U));
}

void DesktopAppearance::ownerChanged(const QString &, const QString &, const QString &now)
{
    if (!now.isEmpty())
        readAll();
}

void DesktopAppearance::take(const AppearanceWishes &wishes)
{
    if (wishes == m_wishes)
        return;
    m_wishes = wishes;
    if (m_changed)
        m_changed();
}

} // namespace brimlight
