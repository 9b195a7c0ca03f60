#include "platform/linux/dbus/StatusNotifierItem.h"

#include <QDBusMessage>
#include <QDBusMetaType>

namespace brimlight {
QDBusArgument &operator<<(QDBusArgument &argument, const StatusPixmap &pixmap)
{
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.argb;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, StatusPixmap &pixmap)
{
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.argb;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const StatusToolTip &toolTip)
{
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.icon << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, StatusToolTip &toolTip)
{
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.icon >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}

namespace {

QString watcherService()
{
    return QStringLiteral("org.kde.StatusNotifierWatcher");
}

} // namespace

QDBusConnection statusItemBus()
{
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("status item"));
}

StatusNotifierItem::StatusNotifierItem(Scheduler &scheduler, std::function<QDBusConnection()> bus)
    : m_scheduler(scheduler)
    , m_openBus(std::move(bus))
    , m_menu(scheduler)
{
    qDBusRegisterMetaType<StatusPixmap>();
    qDBusRegisterMetaType<StatusPixmaps>();
    qDBusRegisterMetaType<StatusToolTip>();
}

void StatusNotifierItem::setImage(StatusImage image)
{
    m_image = std::move(image);
    m_pixmaps.clear();
    Q_EMIT NewIcon();
    Q_EMIT NewTitle();
    Q_EMIT NewToolTip();
}

void StatusNotifierItem::setMenu(std::vector<StatusMenuEntry> entries, std::function<void()> willOpen)
{
    m_menu.setEntries(std::move(entries), std::move(willOpen));
    if (m_start)
        return;
    m_start = m_scheduler.after(startDelay, [this] {
        openBus(*this, m_openBus, [this](const QDBusConnection &opened) { appearOn(opened); });
    });
}

StatusPixmaps StatusNotifierItem::iconPixmap()
{
    if (m_pixmaps.isEmpty() && m_image.draw) {
        for (const int side : sides) {
            const StatusPicture picture = m_image.draw(side);
            m_pixmaps.append({picture.side, picture.side, picture.argb});
        }
    }
    return m_pixmaps;
}

QDBusObjectPath StatusNotifierItem::menu()
{
    return QDBusObjectPath(QStringLiteral("/MenuBar"));
}

void StatusNotifierItem::Activate(int, int)
{
    if (m_action)
        m_scheduler.post(*this, m_action);
}

void StatusNotifierItem::ContextMenu(int x, int y)
{
    Activate(x, y);
}

void StatusNotifierItem::appearOn(QDBusConnection bus)
{
    if (!bus.isConnected())
        return;
    m_bus = bus;
    bus.registerObject(QStringLiteral("/StatusNotifierItem"), this,
                       QDBusConnection::ExportScriptableContents);
    bus.registerObject(menu().path(), &m_menu, QDBusConnection::ExportScriptableContents);
    // No sender is named: Qt would ask the bus for its owner and wait for the answer.
    bus.connect({}, QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
                QStringLiteral("NameOwnerChanged"), {watcherService()}, QStringLiteral("sss"), this,
                SLOT(ownerChanged(QString, QString, QString)));
    registerWithWatcher();
}

void StatusNotifierItem::ownerChanged(const QString &, const QString &, const QString &now)
{
    if (!now.isEmpty())
        registerWithWatcher();
}

void StatusNotifierItem::registerWithWatcher()
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(watcherService(), QStringLiteral("/StatusNotifierWatcher"),
                                       watcherService(), QStringLiteral("RegisterStatusNotifierItem"));
    // The name that the connection has anyway: taking another would mean to wait for the bus.
    call << m_bus->baseService();
    call.setAutoStartService(false);
    m_bus->send(call);
}

} // namespace brimlight
