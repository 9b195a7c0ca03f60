#pragma once

#include "platform/Scheduler.h"
#include "platform/StatusItem.h"
#include "platform/linux/dbus/DBusCall.h"
#include "platform/linux/dbus/DBusMenu.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QObject>

namespace brimlight {

/// A picture as the protocol has it: (iiay).
struct StatusPixmap
{
    int width = 0;
    int height = 0;
    QByteArray argb;
};
using StatusPixmaps = QList<StatusPixmap>;

/// What is shown of an item that the pointer rests on: (sa(iiay)ss).
struct StatusToolTip
{
    QString iconName;
    StatusPixmaps icon;
    QString title;
    QString text;
};

QDBusArgument &operator<<(QDBusArgument &argument, const StatusPixmap &value);
const QDBusArgument &operator>>(const QDBusArgument &argument, StatusPixmap &value);
QDBusArgument &operator<<(QDBusArgument &argument, const StatusToolTip &value);
const QDBusArgument &operator>>(const QDBusArgument &argument, StatusToolTip &value);

/// The session bus over a connection that nobody else uses: an item is known by its connection.
QDBusConnection statusItemBus();

/// The status item as a tray host shows it: the interface org.kde.StatusNotifierItem, with its menu beside
/// it. Without a bus or a host there is no item; a host that comes later or again is told then.
///
/// The bus is opened a little after the item has its menu: nothing that is drawn first depends on it. An item
/// without a menu never appears.
class StatusNotifierItem : public QObject, public StatusItem
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QString Id READ id CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QString Title READ title SCRIPTABLE true)
    Q_PROPERTY(QString Status READ status CONSTANT SCRIPTABLE true)
    Q_PROPERTY(int WindowId READ windowId CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QString IconName READ noName CONSTANT SCRIPTABLE true)
    Q_PROPERTY(brimlight::StatusPixmaps IconPixmap READ iconPixmap SCRIPTABLE true)
    Q_PROPERTY(QString IconAccessibleDesc READ title SCRIPTABLE true)
    Q_PROPERTY(QString OverlayIconName READ noName CONSTANT SCRIPTABLE true)
    Q_PROPERTY(brimlight::StatusPixmaps OverlayIconPixmap READ noPixmap CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QString AttentionIconName READ noName CONSTANT SCRIPTABLE true)
    Q_PROPERTY(brimlight::StatusPixmaps AttentionIconPixmap READ noPixmap CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QString AttentionMovieName READ noName CONSTANT SCRIPTABLE true)
    Q_PROPERTY(brimlight::StatusToolTip ToolTip READ toolTip SCRIPTABLE true)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT SCRIPTABLE true)

public:
    static constexpr std::chrono::milliseconds startDelay{400};
    /// The sides of the pictures on offer, in pixels: panels of the usual heights, plain and dense.
    static constexpr int sides[] = {16, 22, 24, 32, 44, 48};

    explicit StatusNotifierItem(Scheduler &scheduler, std::function<QDBusConnection()> bus = statusItemBus);

    void setImage(StatusImage image) override;
    void setAction(std::function<void()> action) override { m_action = std::move(action); }
    void setMenu(std::vector<StatusMenuEntry> entries, std::function<void()> willOpen) override;
    void setChecked(int index, bool isOn) override { m_menu.setChecked(index, isOn); }

    static QString category() { return QStringLiteral("ApplicationStatus"); }
    static QString id() { return QStringLiteral("brimlight"); }
    QString title() const { return m_image.accessibilityDescription; }
    static QString status() { return QStringLiteral("Active"); }
    static int windowId() { return 0; }
    static QString noName() { return {}; }
    static StatusPixmaps noPixmap() { return {}; }
    StatusPixmaps iconPixmap();
    StatusToolTip toolTip() const { return {.title = title()}; }
    static bool itemIsMenu() { return true; }
    static QDBusObjectPath menu();

    // From here on the names are those of the protocol.
    Q_SCRIPTABLE Q_SLOT void Activate(int x, int y);
    /// From a host that cannot show the menu: what the program has to say stands in the panel as well.
    Q_SCRIPTABLE Q_SLOT void ContextMenu(int x, int y);

Q_SIGNALS:
    Q_SCRIPTABLE void NewTitle();
    Q_SCRIPTABLE void NewIcon();
    Q_SCRIPTABLE void NewToolTip();

private:
    Q_SLOT void ownerChanged(const QString &name, const QString &before, const QString &now);

    void appearOn(QDBusConnection bus);
    void registerWithWatcher();

    Scheduler &m_scheduler;
    std::function<QDBusConnection()> m_openBus;
    StatusImage m_image;
    /// Empty until a host has asked.
    StatusPixmaps m_pixmaps;
    std::function<void()> m_action;
    DBusMenu m_menu;
    std::optional<QDBusConnection> m_bus;
    std::unique_ptr<Scheduled> m_start;
};

} // namespace brimlight

Q_DECLARE_METATYPE(brimlight::StatusPixmap)
Q_DECLARE_METATYPE(brimlight::StatusToolTip)
