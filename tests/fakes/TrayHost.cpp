#include "fakes/TrayHost.h"

#include "fakes/PrivateBus.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

namespace brimlight::test {
namespace {

const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString itemName = QStringLiteral("org.kde.StatusNotifierItem");
const QString itemPath = QStringLiteral("/StatusNotifierItem");
const QString menuName = QStringLiteral("com.canonical.dbusmenu");

} // namespace

QString TrayEntry::shortcut() const
{
    const auto presses = qdbus_cast<QList<QStringList>>(properties.value(QStringLiteral("shortcut")));
    return presses.value(0).join(u'+');
}

TrayHost::TrayHost(const QString &address)
    : m_connection(newConnection(address))
{
    qDBusRegisterMetaType<QList<QStringList>>();
    m_connection.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                                QDBusConnection::ExportScriptableSlots);
    for (const char *name : {"LayoutUpdated", "ItemsPropertiesUpdated"})
        m_connection.connect({}, {}, menuName, QString::fromLatin1(name), this,
                             SLOT(menuSignal(QDBusMessage)));
}

void TrayHost::appear()
{
    m_connection.registerService(watcherName);
}

void TrayHost::vanish()
{
    m_connection.unregisterService(watcherName);
    m_items.clear();
}

void TrayHost::RegisterStatusNotifierItem(const QString &service)
{
    if (!m_items.contains(service))
        m_items.append(service);
}

bool TrayHost::waitForItem()
{
    return waitFor([this] { return !m_items.isEmpty(); });
}

QDBusMessage TrayHost::ask(const QString &path, const QString &interface, const QString &method,
                           const QVariantList &arguments)
{
    if (m_items.isEmpty())
        return {};
    QDBusMessage call = QDBusMessage::createMethodCall(m_items.last(), path, interface, method);
    call.setArguments(arguments);
    const QDBusPendingCallWatcher watcher(m_connection.asyncCall(call));
    waitFor([&watcher] { return watcher.isFinished(); });
    return watcher.isFinished() ? watcher.reply() : QDBusMessage();
}

QDBusMessage TrayHost::askMenu(const QString &method, const QVariantList &arguments)
{
    const auto path = itemProperties().value(QStringLiteral("Menu")).value<QDBusObjectPath>();
    return ask(path.path(), menuName, method, arguments);
}

QVariantMap TrayHost::itemProperties()
{
    const QDBusMessage reply = ask(itemPath, QStringLiteral("org.freedesktop.DBus.Properties"),
                                   QStringLiteral("GetAll"), {itemName});
    return qdbus_cast<QVariantMap>(reply.arguments().value(0));
}

std::vector<TrayEntry> TrayHost::openMenu()
{
    askMenu(QStringLiteral("AboutToShow"), {0});
    std::vector<TrayEntry> all = trayEntries(askMenu(QStringLiteral("GetLayout"), {0, -1, QStringList()}));
    if (!all.empty())
        all.erase(all.begin());
    return all;
}

TrayEntry TrayHost::entry(const QString &label)
{
    for (const TrayEntry &entry : openMenu()) {
        if (entry.label() == label)
            return entry;
    }
    return {.id = -1};
}

void TrayHost::click(const QString &label)
{
    const QVariant nothing = QVariant::fromValue(QDBusVariant(0));
    askMenu(QStringLiteral("Event"), {entry(label).id, QStringLiteral("clicked"), nothing, 0U});
}

void TrayHost::activate()
{
    ask(itemPath, itemName, QStringLiteral("Activate"), {100, 10});
}

std::vector<TrayEntry> trayEntries(const QDBusMessage &layout)
{
    if (layout.type() != QDBusMessage::ReplyMessage || layout.signature() != QLatin1String("u(ia{sv}av)"))
        return {};
    std::vector<TrayEntry> found;
    const auto read = [&found](const QDBusArgument &argument, const auto &self) -> void {
        TrayEntry entry;
        argument.beginStructure();
        argument >> entry.id >> entry.properties;
        found.push_back(entry);
        argument.beginArray();
        while (!argument.atEnd()) {
            QDBusVariant child;
            argument >> child;
            self(child.variant().value<QDBusArgument>(), self);
        }
        argument.endArray();
        argument.endStructure();
    };
    read(layout.arguments().at(1).value<QDBusArgument>(), read);
    return found;
}

} // namespace brimlight::test
