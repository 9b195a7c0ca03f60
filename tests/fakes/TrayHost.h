#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QVariantMap>

#include <vector>

namespace brimlight::test {

/// One entry of a menu as the host is told of it.
struct TrayEntry
{
    int id = 0;
    QVariantMap properties;

    QString label() const { return properties.value(QStringLiteral("label")).toString(); }
    bool isSeparator() const
    {
        return properties.value(QStringLiteral("type")) == QLatin1String("separator");
    }
    /// "Control+Q"; empty without one.
    QString shortcut() const;
    /// -1 for an entry without a check mark.
    int toggleState() const { return properties.value(QStringLiteral("toggle-state"), -1).toInt(); }
};

/// The part of a panel that shows status items, reduced to what can be asked of one: keeps the list, reads
/// menus and clicks. It is on a bus by itself and needs an event loop.
class TrayHost : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")

public:
    explicit TrayHost(const QString &address);

    /// From now on it can be found; by nobody before.
    void appear();
    /// As when the panel crashes: it forgets all items.
    void vanish();
    /// The services of the items, in the order of their coming.
    const QStringList &items() const { return m_items; }
    bool waitForItem();

    /// All that the last item says of itself.
    QVariantMap itemProperties();
    /// Opens the menu and reads it.
    std::vector<TrayEntry> openMenu();
    /// The entry with this label; one with the number -1 when there is none.
    TrayEntry entry(const QString &label);
    void click(const QString &label);
    void activate();

    /// The reply of the last item; an error when it cannot be had.
    QDBusMessage ask(const QString &path, const QString &interface, const QString &method,
                     const QVariantList &arguments = {});
    QDBusMessage askMenu(const QString &method, const QVariantList &arguments = {});

    /// Signals of menus, in the order of their coming.
    QList<QDBusMessage> menuSignals;

    Q_SCRIPTABLE Q_SLOT void RegisterStatusNotifierItem(const QString &service);

private:
    Q_SLOT void menuSignal(const QDBusMessage &message) { menuSignals.append(message); }

    QDBusConnection m_connection;
    QStringList m_items;
};

/// The revision aside, what an answer about the layout holds: the entry itself first, then what is below.
std::vector<TrayEntry> trayEntries(const QDBusMessage &layout);

} // namespace brimlight::test
