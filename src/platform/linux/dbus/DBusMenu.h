#pragma once

#include "platform/Scheduler.h"
#include "platform/StatusItem.h"

#include <QDBusArgument>
#include <QDBusContext>
#include <QDBusVariant>
#include <QObject>
#include <QVariantMap>

#include <set>

namespace brimlight {

/// An entry and what stands below it: (ia{sv}av).
struct DBusMenuLayout
{
    int id = 0;
    QVariantMap properties;
    QList<DBusMenuLayout> children;
};

/// The properties of an entry: (ia{sv}).
struct DBusMenuProperties
{
    int id = 0;
    QVariantMap properties;
};

/// The names of properties that an entry no longer has: (ias).
struct DBusMenuRemoved
{
    int id = 0;
    QStringList names;
};

/// Something that the user did with an entry: (isvu).
struct DBusMenuEvent
{
    int id = 0;
    QString name;
    QDBusVariant data;
    uint timestamp = 0;
};

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuLayout &value);
const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuLayout &value);
QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuProperties &value);
const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuProperties &value);
QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuRemoved &value);
const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuRemoved &value);
QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuEvent &value);
const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuEvent &value);

/// A menu of one level that others draw: the interface com.canonical.dbusmenu. The root has the number 0,
/// the entries count from 1.
class DBusMenu : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QString Status READ status CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT SCRIPTABLE true)

public:
    /// What an entry does runs in a later turn of `scheduler`, so that whoever clicked has its answer before.
    explicit DBusMenu(Scheduler &scheduler);

    void setEntries(std::vector<StatusMenuEntry> entries, std::function<void()> willOpen);
    void setChecked(int index, bool isOn);

    static uint version() { return 3; }
    static QString textDirection() { return QStringLiteral("ltr"); }
    static QString status() { return QStringLiteral("normal"); }
    static QStringList iconThemePath() { return {}; }

    // From here on the names are those of the protocol.
    /// `depth` is how many levels below `parent` are wanted, -1 for all; no `names` stand for all properties.
    Q_SCRIPTABLE Q_SLOT uint GetLayout(int parent, int depth, const QStringList &names,
                                       brimlight::DBusMenuLayout &layout);
    /// No `ids` stand for all entries.
    Q_SCRIPTABLE Q_SLOT QList<brimlight::DBusMenuProperties> GetGroupProperties(const QList<int> &ids,
                                                                                const QStringList &names);
    Q_SCRIPTABLE Q_SLOT QDBusVariant GetProperty(int id, const QString &name);
    Q_SCRIPTABLE Q_SLOT void Event(int id, const QString &name, const QDBusVariant &data, uint timestamp);
    /// Answers the entries that do not exist.
    Q_SCRIPTABLE Q_SLOT QList<int> EventGroup(const QList<brimlight::DBusMenuEvent> &events);
    /// Whether the menu has changed by it.
    Q_SCRIPTABLE Q_SLOT bool AboutToShow(int id);
    Q_SCRIPTABLE Q_SLOT QList<int> AboutToShowGroup(const QList<int> &ids, QList<int> &unknown);

Q_SIGNALS:
    Q_SCRIPTABLE void LayoutUpdated(uint revision, int parent);
    Q_SCRIPTABLE void ItemsPropertiesUpdated(const QList<brimlight::DBusMenuProperties> &updated,
                                             const QList<brimlight::DBusMenuRemoved> &removed);

private:
    static constexpr int root = 0;

    bool exists(int id) const { return id >= root && id <= static_cast<int>(m_entries.size()); }
    QVariantMap properties(int id, const QStringList &names = {}) const;
    void refuse(int id);
    /// Tells of the opening; whether something has changed by it.
    bool open();
    void react(int id, const QString &event);

    Scheduler &m_scheduler;
    std::vector<StatusMenuEntry> m_entries;
    std::set<int> m_checked;
    std::function<void()> m_willOpen;
    uint m_revision = 1;
    /// Counts the changes of check marks.
    uint m_changes = 0;
};

} // namespace brimlight

Q_DECLARE_METATYPE(brimlight::DBusMenuLayout)
Q_DECLARE_METATYPE(brimlight::DBusMenuProperties)
Q_DECLARE_METATYPE(brimlight::DBusMenuRemoved)
Q_DECLARE_METATYPE(brimlight::DBusMenuEvent)
