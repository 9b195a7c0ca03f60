#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>

// What Qt's own test library sends mouse events with.
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow *window, const QPointF &local, const QPointF &global,
                                      Qt::MouseButtons state, Qt::MouseButton button, QEvent::Type type,
                                      Qt::KeyboardModifiers modifiers, int timestamp);

namespace brimlight::test {

namespace {

class TapTest : public testing::Test
{
protected:
    TapTest()
    {
        view.engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
        QQmlComponent component(view.engine());
        component.setData("import QtQuick; import Brimlight.Theme; Item { property int taps: 0;"
                          " width: 100; height: 100; Tap { onTapped: parent.taps++ } }",
                          QUrl(QStringLiteral("qrc:/tap.qml")));
        view.setContent(component.url(), &component, component.create());
        view.show();
    }

    void send(QEvent::Type type, QPointF at, int timestamp)
    {
        const bool moves = type == QEvent::MouseMove;
        qt_handleMouseEvent(&view, at, view.mapToGlobal(at),
                            type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                            moves ? Qt::NoButton : Qt::LeftButton, type, Qt::NoModifier, timestamp);
        QCoreApplication::processEvents();
    }
    void click(QPointF at, int pressed, int released)
    {
        send(QEvent::MouseMove, at, pressed);
        send(QEvent::MouseButtonPress, at, pressed);
        send(QEvent::MouseButtonRelease, at, released);
    }
    int taps() const { return view.rootObject()->property("taps").toInt(); }

    QQuickView view;
};

} // namespace

TEST_F(TapTest, AClickCountsHoweverLongItTakes)
{
    click({50, 50}, 1000, 1040);
    EXPECT_EQ(taps(), 1);
    click({50, 50}, 3000, 63000);
    EXPECT_EQ(taps(), 2);
}

TEST_F(TapTest, AReleaseElsewhereIsNoClick)
{
    send(QEvent::MouseButtonPress, {50, 50}, 1000);
    send(QEvent::MouseMove, {50, 150}, 1100);
    send(QEvent::MouseButtonRelease, {50, 150}, 1200);
    EXPECT_EQ(taps(), 0);
}

} // namespace brimlight::test
