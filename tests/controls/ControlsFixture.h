#pragma once

#include "fakes/Fakes.h"
#include "fakes/HandDriver.h"
#include "fakes/Scene.h"
#include "theme/InputModality.h"
#include "theme/Motion.h"
#include "theme/Theme.h"

#include <gtest/gtest.h>

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickView>

namespace brimlight::test {

/// Controls in a window, with real clicks and keys. `root` is what they stand in, with the theme as
/// `root.colors`; above them is a layer for popovers.
class ControlsTest : public testing::Test
{
protected:
    ControlsTest()
    {
        motion.installOn(*view.engine());
        view.engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
        view.resize(400, 400);
    }
    void show(const QByteArray &body)
    {
        component = std::make_unique<QQmlComponent>(view.engine());
        component->setData("pragma ComponentBehavior: Bound\nimport QtQuick\nimport "
                           "Brimlight.Controls\nimport Brimlight.Theme\n"
                           "Item { id: root; required property theme colors; property int presses: 0\n"
                           "property string last\n" +
                               body +
                               "\nPopoverLayer { id: layer; objectName: \"layer\"; anchors.fill: parent; "
                               "rest: root } }",
                           QUrl());
        QObject *made =
            component->createWithInitialProperties({{QStringLiteral("colors"), QVariant::fromValue(colors)}});
        ASSERT_TRUE(made) << qPrintable(component->errorString());
        view.setResizeMode(QQuickView::SizeRootObjectToView);
        view.setContent(QUrl(), component.get(), made);
        view.show();
        view.requestActivate();
        modality().watch(view);
        settle();
    }
    void settle()
    {
        time.advanceBy(std::chrono::milliseconds(0));
        time.advanceBy(std::chrono::seconds(3));
        // Lays out what has grown.
        view.grabWindow();
    }
    /// By its objectName.
    QQuickItem *item(const char *name) const
    {
        QQuickItem *found = nullptr;
        for (QQuickItem *known : scene.items()) {
            if (known->objectName() == QLatin1String(name))
                found = known;
        }
        EXPECT_TRUE(found) << name << " is not to be seen";
        return found;
    }
    void click(const char *name)
    {
        if (const QQuickItem *found = item(name))
            scene.click(*found);
        settle();
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&view, key, modifiers);
        settle();
    }
    void type(const char *text)
    {
        for (const char *at = text; *at; ++at)
            QTest::keyClick(&view, *at);
        settle();
    }
    void focus(const char *name)
    {
        if (QQuickItem *found = item(name))
            found->forceActiveFocus(Qt::TabFocusReason);
        settle();
    }
    QAccessibleInterface *known(const char *name) const
    {
        QQuickItem *found = item(name);
        return found ? QAccessible::queryAccessibleInterface(found) : nullptr;
    }
    int presses() const { return view.rootObject()->property("presses").toInt(); }
    QString last() const { return view.rootObject()->property("last").toString(); }
    InputModality &modality()
    {
        const int id = qmlTypeId("Brimlight.Theme", 1, 0, "InputModality");
        return *view.engine()->singletonInstance<InputModality *>(id);
    }
    bool marks(const QQuickItem &control) const
    {
        for (const QQuickItem *ring : scene.ofType("FocusRing")) {
            if (ring->property("target").value<QQuickItem *>() == &control)
                return true;
        }
        return false;
    }

    HandDriver time;
    FakeAppearance appearance;
    Motion motion{&appearance};
    Theme colors = Theme::midnight();
    std::unique_ptr<QQmlComponent> component;
    QQuickView view;
    Scene scene{view};
};

} // namespace brimlight::test
