#include "ScreenReader.h"

#include "Waiting.h"
#include "XSession.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDir>
#include <QFile>

#include <stdexcept>

namespace brimlight::onscreen {

using namespace Qt::StringLiterals;

namespace {

constexpr const char *busConfig = R"(<busconfig>
  <type>session</type>
  <listen>unix:path=%1/bus</listen>
  <servicedir>%1/services</servicedir>
  <policy context="default">
    <allow send_destination="*"/>
    <allow receive_sender="*"/>
    <allow own="*"/>
  </policy>
</busconfig>)";

const QString accessible = u"org.a11y.atspi.Accessible"_s;
const QString action = u"org.a11y.atspi.Action"_s;
const QString component = u"org.a11y.atspi.Component"_s;
const QString properties = u"org.freedesktop.DBus.Properties"_s;
const QString rootPath = u"/org/a11y/atspi/accessible/root"_s;
const QString connectionName = u"screen reader"_s;

/// A reference to an object: the name of its program and its path.
struct Reference
{
    QString program;
    QString path;
};

std::vector<Reference> references(const QVariant &value)
{
    std::vector<Reference> found;
    const auto list = value.value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        Reference reference;
        QDBusObjectPath path;
        list.beginStructure();
        list >> reference.program >> path;
        list.endStructure();
        reference.path = path.path();
        found.push_back(reference);
    }
    list.endArray();
    return found;
}

quint64 states(const QVariant &value)
{
    const auto words = qdbus_cast<QList<quint32>>(value);
    return words.size() == 2 ? words[0] | quint64(words[1]) << 32 : 0;
}

QStringList actions(const QVariant &value)
{
    QStringList names;
    const auto list = value.value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        QString name;
        QString description;
        QString keys;
        list.beginStructure();
        list >> name >> description >> keys;
        list.endStructure();
        names.append(name);
    }
    list.endArray();
    return names;
}

} // namespace

ScreenReader::ScreenReader(XSession &session)
{
    // Nothing but the accessibility bus is to be had on it: the services of whoever runs the test stay away.
    const QDir folder(session.environment().value(u"XDG_RUNTIME_DIR"_s));
    folder.mkdir(u"services"_s);
    const QString service = u"org.a11y.Bus.service"_s;
    QFile::copy(u"/usr/share/dbus-1/services/"_s + service, folder.filePath(u"services/"_s + service));
    const QString configFile = u"accessibility/bus.conf"_s;
    session.writeConfigFile(configFile, QString::fromLatin1(busConfig).arg(folder.path()).toUtf8());
    // Else the switch below would be looked for among the desktop's stored settings.
    session.setVariable("GSETTINGS_BACKEND", "memory");
    m_daemon = std::make_unique<ChildProcess>(
        u"dbus-daemon"_s,
        QStringList{u"--nofork"_s, u"--print-address"_s, u"--config-file"_s, session.configFile(configFile)},
        session.environment());
    if (!m_daemon->waitForReadyRead(static_cast<int>(patience.count())))
        throw std::runtime_error("dbus-daemon did not start");
    const QString address = QString::fromUtf8(m_daemon->readAllStandardOutput().trimmed());
    session.setVariable("DBUS_SESSION_BUS_ADDRESS", address.toUtf8());

    m_bus = QDBusConnection::connectToBus(address, u"session"_s);
    const QVariantList enable{u"org.a11y.Status"_s, u"IsEnabled"_s, QVariant::fromValue(QDBusVariant(true))};
    call(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, properties, u"Set"_s, enable);
    const QString accessibilityBus =
        call(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s, u"GetAddress"_s)
            .arguments()
            .value(0)
            .toString();
    QDBusConnection::disconnectFromBus(u"session"_s);
    m_bus = QDBusConnection::connectToBus(accessibilityBus, connectionName);
    if (!m_bus.isConnected())
        throw std::runtime_error("no accessibility bus; is the package at-spi2-core installed?");
}

ScreenReader::~ScreenReader()
{
    QDBusConnection::disconnectFromBus(connectionName);
}

std::vector<AccessibleObject> ScreenReader::objects() const
{
    std::vector<AccessibleObject> found;
    if (!program().isEmpty())
        visit(rootPath, found);
    return found;
}

std::optional<AccessibleObject> ScreenReader::find(const QString &role, const QString &name) const
{
    for (const AccessibleObject &object : objects()) {
        if (object.role == role && object.name == name)
            return object;
    }
    return std::nullopt;
}

QString ScreenReader::name(const AccessibleObject &object) const
{
    return ask(object.path, properties, u"Get"_s, {accessible, u"Name"_s})
        .value(0)
        .value<QDBusVariant>()
        .variant()
        .toString();
}

QString ScreenReader::focus() const
{
    // A list has the focus together with its entry.
    QString focused;
    for (const AccessibleObject &object : objects()) {
        if (object.is(AccessibleObject::focused) && object.is(AccessibleObject::focusable))
            focused = object.role + u' ' + object.name;
    }
    return focused;
}

QRect ScreenReader::frame(const AccessibleObject &object) const
{
    constexpr quint32 onScreen = 0;
    const auto extents =
        ask(object.path, component, u"GetExtents"_s, {onScreen}).value(0).value<QDBusArgument>();
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    extents.beginStructure();
    extents >> x >> y >> width >> height;
    extents.endStructure();
    return {x, y, width, height};
}

void ScreenReader::grabFocus(const AccessibleObject &object) const
{
    ask(object.path, component, u"GrabFocus"_s);
}

bool ScreenReader::act(const AccessibleObject &object, const QString &name) const
{
    const auto index = static_cast<int>(object.actions.indexOf(name));
    return index >= 0 && ask(object.path, action, u"DoAction"_s, {index}).value(0).toBool();
}

QDBusMessage ScreenReader::call(const QString &service, const QString &path, const QString &interface,
                                const QString &method, const QVariantList &arguments) const
{
    auto message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    return m_bus.call(message, QDBus::Block, static_cast<int>(patience.count()));
}

QVariantList ScreenReader::ask(const QString &path, const QString &interface, const QString &method,
                               const QVariantList &arguments) const
{
    // An object that has gone meanwhile answers with an error.
    const QDBusMessage reply = call(program(), path, interface, method, arguments);
    return reply.type() == QDBusMessage::ReplyMessage ? reply.arguments() : QVariantList();
}

void ScreenReader::visit(const QString &path, std::vector<AccessibleObject> &found) const
{
    AccessibleObject object;
    object.path = path;
    object.role = ask(path, accessible, u"GetRoleName"_s).value(0).toString();
    object.states = states(ask(path, accessible, u"GetState"_s).value(0));
    object.name = name(object);
    const QStringList interfaces = ask(path, accessible, u"GetInterfaces"_s).value(0).toStringList();
    if (interfaces.contains(action))
        object.actions = actions(ask(path, action, u"GetActions"_s).value(0));
    const bool isShown = path == rootPath || object.is(AccessibleObject::visible);
    if (!isShown)
        return;
    found.push_back(object);
    for (const Reference &child : references(ask(path, accessible, u"GetChildren"_s).value(0)))
        visit(child.path, found);
}

QString ScreenReader::program() const
{
    if (!m_program.isEmpty())
        return m_program;
    const QDBusMessage reply = call(u"org.a11y.atspi.Registry"_s, rootPath, accessible, u"GetChildren"_s);
    const auto programs = references(reply.arguments().value(0));
    if (!programs.empty())
        m_program = programs.front().program;
    return m_program;
}

} // namespace brimlight::onscreen
