#include "platform/linux/dbus/DBusMenu.h"

#include <QDBusMetaType>

namespace brimlight {
QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuProperties &item)
{
    argument.beginStructure();
    argument << item.id << item.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuProperties &item)
{
    argument.beginStructure();
    argument >> item.id >> item.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuRemoved &item)
{
    argument.beginStructure();
    argument << item.id << item.names;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuRemoved &item)
{
    argument.beginStructure();
    argument >> item.id >> item.names;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuEvent &event)
{
    argument.beginStructure();
    argument << event.id << event.name << event.data << event.timestamp;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuEvent &event)
{
    argument.beginStructure();
    argument >> event.id >> event.name >> event.data >> event.timestamp;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuLayout &layout)
{
    argument.beginStructure();
    argument << layout.id << layout.properties;
    argument.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const DBusMenuLayout &child : layout.children)
        argument << QDBusVariant(QVariant::fromValue(child));
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuLayout &layout)
{
    argument.beginStructure();
    argument >> layout.id >> layout.properties;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        layout.children.append(qdbus_cast<DBusMenuLayout>(child.variant()));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

namespace {

void registerTypes()
{
    qDBusRegisterMetaType<DBusMenuLayout>();
    qDBusRegisterMetaType<DBusMenuProperties>();
    qDBusRegisterMetaType<QList<DBusMenuProperties>>();
    qDBusRegisterMetaType<DBusMenuRemoved>();
    qDBusRegisterMetaType<QList<DBusMenuRemoved>>();
    qDBusRegisterMetaType<DBusMenuEvent>();
    qDBusRegisterMetaType<QList<DBusMenuEvent>>();
    qDBusRegisterMetaType<QList<QStringList>>();
}

/// An underscore would mark the letter after it.
QString label(QString title)
{
    return title.replace(u'_', QStringLiteral("__"));
}

} // namespace

DBusMenu::DBusMenu(Scheduler &scheduler)
    : m_scheduler(scheduler)
{
    registerTypes();
}

void DBusMenu::setEntries(std::vector<StatusMenuEntry> entries, std::function<void()> willOpen)
{
    m_entries = std::move(entries);
    m_checked.clear();
    m_willOpen = std::move(willOpen);
    Q_EMIT LayoutUpdated(++m_revision, root);
}

void DBusMenu::setChecked(int index, bool isOn)
{
    const int id = index + 1;
    const bool changes = isOn ? m_checked.insert(id).second : m_checked.erase(id) > 0;
    if (!changes)
        return;
    ++m_changes;
    const QString name = QStringLiteral("toggle-state");
    Q_EMIT ItemsPropertiesUpdated({{id, {{name, properties(id).value(name)}}}}, {});
}

QVariantMap DBusMenu::properties(int id, const QStringList &names) const
{
    QVariantMap all;
    if (id == root) {
        all.insert(QStringLiteral("children-display"), QStringLiteral("submenu"));
    } else if (const StatusMenuEntry &entry = m_entries[static_cast<size_t>(id - 1)]; entry.title.isEmpty()) {
        all.insert(QStringLiteral("type"), QStringLiteral("separator"));
    } else {
        all.insert(QStringLiteral("label"), label(entry.title));
        if (!entry.keyEquivalent.isEmpty())
            all.insert(QStringLiteral("shortcut"),
                       QVariant::fromValue(
                           QList<QStringList>{{QStringLiteral("Control"), entry.keyEquivalent.toUpper()}}));
        if (entry.isCheckable) {
            all.insert(QStringLiteral("toggle-type"), QStringLiteral("checkmark"));
            all.insert(QStringLiteral("toggle-state"), m_checked.contains(id) ? 1 : 0);
        }
    }
    if (!names.isEmpty())
        all.removeIf([&names](const auto &property) { return !names.contains(property.key()); });
    return all;
}

uint DBusMenu::GetLayout(int parent, int depth, const QStringList &names, DBusMenuLayout &layout)
{
    if (!exists(parent)) {
        refuse(parent);
        return m_revision;
    }
    layout = {parent, properties(parent, names), {}};
    if (parent == root && depth != 0) {
        for (int id = 1; exists(id); ++id)
            layout.children.append({id, properties(id, names), {}});
    }
    return m_revision;
}

QList<DBusMenuProperties> DBusMenu::GetGroupProperties(const QList<int> &ids, const QStringList &names)
{
    QList<int> wanted = ids;
    for (int id = root; ids.isEmpty() && exists(id); ++id)
        wanted.append(id);
    QList<DBusMenuProperties> found;
    for (const int id : wanted) {
        if (exists(id))
            found.append({id, properties(id, names)});
    }
    return found;
}

QDBusVariant DBusMenu::GetProperty(int id, const QString &name)
{
    const QVariant value = exists(id) ? properties(id).value(name) : QVariant();
    if (!value.isValid())
        refuse(id);
    return QDBusVariant(value);
}

void DBusMenu::Event(int id, const QString &name, const QDBusVariant &, uint)
{
    if (exists(id))
        react(id, name);
    else
        refuse(id);
}

QList<int> DBusMenu::EventGroup(const QList<DBusMenuEvent> &events)
{
    QList<int> unknown;
    for (const DBusMenuEvent &event : events) {
        if (exists(event.id))
            react(event.id, event.name);
        else
            unknown.append(event.id);
    }
    return unknown;
}

bool DBusMenu::AboutToShow(int id)
{
    if (!exists(id))
        refuse(id);
    return id == root && open();
}

QList<int> DBusMenu::AboutToShowGroup(const QList<int> &ids, QList<int> &unknown)
{
    QList<int> changed;
    for (const int id : ids) {
        if (!exists(id))
            unknown.append(id);
        else if (id == root && open())
            changed.append(id);
    }
    return changed;
}

void DBusMenu::refuse(int id)
{
    sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("no such entry or property: %1").arg(id));
}

bool DBusMenu::open()
{
    const uint before = m_changes;
    if (m_willOpen)
        m_willOpen();
    return m_changes != before;
}

void DBusMenu::react(int id, const QString &event)
{
    if (id == root) {
        if (event == QLatin1StringView("opened"))
            open();
    } else if (const auto &action = m_entries[static_cast<size_t>(id - 1)].action;
               action && event == QLatin1StringView("clicked")) {
        m_scheduler.post(*this, action);
    }
}

} // namespace brimlight
