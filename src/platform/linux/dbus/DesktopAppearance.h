#pragma once

#include "platform/Appearance.h"
#include "platform/Scheduler.h"
#include "platform/linux/dbus/DBusCall.h"
#include "platform/linux/dbus/PortalSettings.h"

#include <QDBusVariant>
#include <QList>
#include <QObject>

namespace brimlight {

/// The settings of the desktop as its portal tells them. Without a bus or a portal nothing is reduced; a
/// portal that comes later is asked then, and while one restarts its last word holds.
///
/// The bus is opened a little after the start: nothing that is drawn first depends on it.
class DesktopAppearance : public QObject, public Appearance
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds startDelay{400};

    explicit DesktopAppearance(Scheduler &scheduler, std::function<QDBusConnection()> bus = sessionBus);

    bool reducesMotion() const override { return m_wishes.lessMotion(); }
    bool reducesTransparency() const override { return m_wishes.lessTransparency(); }
    bool isDark() const override { return m_wishes.dark(); }
    void observeChanges(std::function<void()> changed) override { m_changed = std::move(changed); }

    /// The program itself has asked the desktop for this: it holds until the portal tells of it.
    void setDark(bool dark);

private:
    Q_SLOT void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);
    Q_SLOT void ownerChanged(const QString &name, const QString &before, const QString &now);

    void listen(QDBusConnection bus);
    void readAll();
    void take(const AppearanceWishes &wishes);

    std::optional<QDBusConnection> m_bus;
    AppearanceWishes m_wishes;
    struct Change
    {
        QString group;
        QString key;
        QVariant value;
    };
    /// Answers that are still to come, and what has changed meanwhile.
    int m_readings = 0;
    QList<Change> m_overtaking;
    std::function<void()> m_changed;
    std::unique_ptr<Scheduled> m_start;
};

} // namespace brimlight
