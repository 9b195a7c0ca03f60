#include "XSession.h"

#include "Waiting.h"

#include <QDir>
#include <QFile>

#include <stdexcept>

namespace brimlight::onscreen {

using namespace Qt::StringLiterals;

XSession::XSession(const Desktop &desktop, QSize size)
{
    makeHome();
    startServer(desktop, size);
    if (desktop.windowManager)
        startWindowManager(QString::fromLatin1(desktop.windowManager));
    m_x->paintWallpaper();
    if (desktop.isComposited)
        startCompositor();
}

void XSession::makeHome()
{
    const QDir home(m_home.path());
    const QProcessEnvironment ours = QProcessEnvironment::systemEnvironment();
    for (const auto &variable : {u"PATH"_s, u"LD_LIBRARY_PATH"_s, u"ASAN_OPTIONS"_s, u"UBSAN_OPTIONS"_s}) {
        if (ours.contains(variable))
            m_environment.insert(variable, ours.value(variable));
    }
    m_environment.insert(u"LANG"_s, u"C.UTF-8"_s);
    m_environment.insert(u"HOME"_s, home.path());
    const std::pair<QString, QString> folders[] = {{u"XDG_CONFIG_HOME"_s, u"config"_s},
                                                   {u"XDG_DATA_HOME"_s, u"data"_s},
                                                   {u"XDG_CACHE_HOME"_s, u"cache"_s},
                                                   {u"XDG_STATE_HOME"_s, u"state"_s},
                                                   {u"XDG_RUNTIME_DIR"_s, u"run"_s}};
    for (const auto &[variable, name] : folders) {
        home.mkdir(name);
        QFile::setPermissions(home.filePath(name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        m_environment.insert(variable, home.filePath(name));
    }
    m_environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path="_s + home.filePath(u"run/no-bus"_s));
}

void XSession::startServer(const Desktop &desktop, QSize size)
{
    QStringList arguments{u"-displayfd"_s, u"1"_s, u"-nolisten"_s, u"tcp"_s, u"-noreset"_s};
    const QString screen = u"%1x%2x24"_s.arg(size.width()).arg(size.height());
    arguments += desktop.hasTouchpad ? serverWithTouchpad(size) : QStringList{u"-screen"_s, u"0"_s, screen};
    const QString name = desktop.hasTouchpad ? u"Xorg"_s : u"Xvfb"_s;
    m_server = std::make_unique<ChildProcess>(name, arguments, m_environment);
    QByteArray number;
    waitUntil([&] {
        m_server->waitForReadyRead(50);
        number += m_server->readAllStandardOutput();
        return number.endsWith('\n') || m_server->state() == QProcess::NotRunning;
    });
    if (!number.endsWith('\n'))
        throw std::runtime_error(name.toStdString() +
                                 " did not start: " + m_server->readAllStandardError().toStdString());
    m_display = ':' + number.trimmed();
    m_environment.insert(u"DISPLAY"_s, QString::fromLatin1(m_display));
    m_x = std::make_unique<XClient>(m_display);
}

QStringList XSession::serverWithTouchpad(QSize size) const
{
    const QByteArray configuration = R"(
Section "ServerFlags"
    Option "AutoAddDevices" "false"
EndSection
Section "InputDevice"
    Identifier "touchpad"
    Driver "inputtest"
    Option "DeviceType" "Pointer"
    Option "SocketPath" "%SOCKET%"
    Option "CorePointer" "true"
EndSection
Section "Device"
    Identifier "memory"
    Driver "dummy"
    VideoRam 32768
EndSection
Section "Monitor"
    Identifier "monitor"
    HorizSync 5-1000
    VertRefresh 5-200
    Modeline "whole" 120 %W% %W1% %W2% %W3% %H% %H1% %H2% %H3%
EndSection
Section "Screen"
    Identifier "screen"
    Device "memory"
    Monitor "monitor"
    DefaultDepth 24
    SubSection "Display"
        Modes "whole"
        Virtual %W% %H%
    EndSubSection
EndSection
Section "ServerLayout"
    Identifier "layout"
    Screen "screen"
    InputDevice "touchpad"
EndSection
)";
    QByteArray filled = configuration;
    filled.replace("%SOCKET%", touchpadSocket().toUtf8());
    const std::pair<QByteArray, int> lengths[] = {{"W", size.width()}, {"H", size.height()}};
    for (const auto &[letter, length] : lengths) {
        filled.replace('%' + letter + '%', QByteArray::number(length));
        for (int i = 1; i <= 3; ++i)
            filled.replace('%' + letter + QByteArray::number(i) + '%', QByteArray::number(length + 40 * i));
    }
    writeConfigFile(u"xorg.conf"_s, filled);
    // It must not touch the console of whoever runs the test.
    return {u"-config"_s,   configFile(u"xorg.conf"_s), u"-logfile"_s, m_home.filePath(u"xorg.log"_s),
            u"-sharevts"_s, u"-novtswitch"_s,           u"-keeptty"_s};
}

void XSession::startWindowManager(const QString &name)
{
    // Its task bar would list windows that are of no interest here.
    writeConfigFile(u"icewm/preferences"_s, "ShowTaskBar=0\n");
    m_windowManager = std::make_unique<ChildProcess>(name, QStringList(), m_environment);
    if (!waitUntil([this] {
            return m_x->rootValue("_NET_SUPPORTING_WM_CHECK") && m_x->rootValue("_NET_CURRENT_DESKTOP");
        }))
        throw std::runtime_error(name.toStdString() + " did not start");
}

void XSession::startCompositor()
{
    const QStringList arguments{u"--backend"_s, u"xrender"_s, u"--no-vsync"_s, u"--config"_s, u"/dev/null"_s};
    m_compositor = std::make_unique<ChildProcess>(u"picom"_s, arguments, m_environment);
    if (!waitUntil([this] { return m_x->isComposited(); }))
        throw std::runtime_error("picom did not start: " +
                                 m_compositor->readAllStandardError().toStdString());
}

void XSession::stopCompositor()
{
    m_compositor.reset();
}

void XSession::setVariable(const char *name, const char *value)
{
    m_environment.insert(QString::fromLatin1(name), QString::fromLatin1(value));
}

QString XSession::configFile(const QString &name) const
{
    return m_environment.value(u"XDG_CONFIG_HOME"_s) + u'/' + name;
}

void XSession::writeConfigFile(const QString &name, const QByteArray &content) const
{
    QFile file(configFile(name));
    QDir().mkpath(QFileInfo(file).path());
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        throw std::runtime_error("cannot write " + name.toStdString());
}

} // namespace brimlight::onscreen
