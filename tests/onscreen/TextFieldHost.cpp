#include "notch/NotchWindow.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/x11/DisplayServer.h"

#include <QGuiApplication>
#include <QQmlComponent>

#include <csignal>
#include <cstdio>

namespace {

using brimlight::Rect;

constexpr const char *content = R"(
    import QtQuick

    Item {
        id: root

        // Takes the focus from the field, as bare surface does.
        Rectangle {
            id: rest
            anchors.fill: parent
            color: "#202020"
            TapHandler {
                onTapped: rest.forceActiveFocus()
            }
        }
        Rectangle {
            anchors.fill: field
            color: "white"
        }
        TextInput {
            id: field
            objectName: "field"
            x: 20
            y: 60
            width: 200
            height: 40
            font.pixelSize: 24
            onTextChanged: console.info("Field text=" + text)
        }
    }
)";

void say(const QString &line)
{
    std::fprintf(stderr, "%s\n", qPrintable(line));
}

} // namespace

/// A surface as the program's, open from the start until SIGUSR2, whose content is a text field.
int main(int argc, char **argv)
{
    brimlight::prepareDisplay();
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    qSetMessagePattern(QStringLiteral("%{message}"));
    QGuiApplication::setApplicationName(QStringLiteral("brimlight_textfield_host"));

    brimlight::LinuxPlatform platform;
    brimlight::NotchWindow window([&](QWindow &shown) { return platform.makeSurface(shown); });
    QQuickView &view = window.view();
    QQmlComponent component(view.engine());
    component.setData(content, QUrl());
    QObject *root = component.create();
    if (!root)
        qFatal("%s", qPrintable(component.errorString()));
    view.setContent(QUrl(), &component, root);

    window.surface().setEvents({});
    const brimlight::Screen screen = platform.ports().screens.mainScreen().value();
    const Rect frame{screen.frame.midX() - 200, screen.frame.maxY() - 200, 400, 200};
    window.surface().setExtent(frame);
    window.surface().setOutlines({{.frame = frame}});
    window.surface().setSensor({.strip = frame});
    window.surface().orderFront();
    platform.ports().unixSignals.install(SIGUSR2, [&] { window.surface().setOutlines({}); });
    say(QStringLiteral("Repositioned on \"host\": hasNotch=false collapsed=400x200 frame=(%1,%2 400x200)")
            .arg(frame.x)
            .arg(frame.y));
    return QGuiApplication::exec();
}
