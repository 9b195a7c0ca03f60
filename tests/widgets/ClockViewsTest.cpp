#include "fakes/Scene.h"
#include "theme/Motion.h"
#include "widgets/ClockFace.h"
#include "widgets/WidgetFixture.h"
#include "widgets/WorldClockFace.h"

#include <QCoreApplication>
#include <QQmlEngine>
#include <QQuickView>

namespace brimlight::test {

namespace {

/// One clock alone in a window.
class ClockViews : public WidgetTest
{
protected:
    template<typename Face>
    void show(const char *name, WidgetSize size)
    {
        context.setSize(size);
        // Views go before what they show.
        view.setSource({});
        face = std::make_unique<Face>(context);
        motion.installOn(*view.engine());
        view.engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
        view.setInitialProperties({{QStringLiteral("context"), QVariant::fromValue(&context)},
                                   {QStringLiteral("face"), QVariant::fromValue(face.get())}});
        view.setResizeMode(QQuickView::SizeRootObjectToView);
        view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Widgets/%1.qml").arg(QLatin1String(name))));
        view.resize(140, 140);
        view.show();
        context.setLive(true);
        QCoreApplication::processEvents();
    }
    QList<QQuickItem *> numbers() const
    {
        QList<QQuickItem *> found = scene.items();
        found.removeIf([](const QQuickItem *item) { return !item->inherits("brimlight::RollingNumber"); });
        return found;
    }
    QStringList numberTexts() const
    {
        QStringList texts;
        for (const QQuickItem *item : numbers())
            texts.append(item->property("text").toString());
        return texts;
    }

    std::unique_ptr<WidgetLogic> face;
    FakeAppearance appearance;
    Motion motion{&appearance};
    QQuickView view;
    Scene scene{view};
};

} // namespace

TEST_F(ClockViews, NoDigitRollsUnderReducedMotion)
{
    const auto expectNone = [this](const char *name) {
        ASSERT_FALSE(numbers().isEmpty()) << name;
        for (const bool reduced : {true, false}) {
            appearance.set(reduced, false);
            for (const QQuickItem *number : numbers())
                EXPECT_EQ(number->property("reduceMotion"), QVariant(reduced)) << name;
        }
    };
    show<ClockFace>("ClockView", WidgetSize::large);
    expectNone("ClockView");
    show<WorldClockFace>("WorldClockView", WidgetSize::large);
    expectNone("WorldClockView");
}

TEST_F(ClockViews, A24HourClockDrawsNoMarker)
{
    show<ClockFace>("ClockView", WidgetSize::wide);
    const auto drawsMarker = [this] { return scene.texts().contains(QStringLiteral("AM")); };
    EXPECT_FALSE(drawsMarker());
    settings.setClock24h(false);
    EXPECT_TRUE(drawsMarker());
}

TEST_F(ClockViews, ASmallClockDrawsNoSeconds)
{
    show<ClockFace>("ClockView", WidgetSize::small);
    EXPECT_EQ(numberTexts(), QStringList(QStringLiteral("09:26")));
    context.setSize(WidgetSize::wide);
    EXPECT_EQ(numberTexts(), (QStringList{QStringLiteral("09:26"), QStringLiteral("53")}));
}

TEST_F(ClockViews, AWorldClockThatShrinksLeavesItsLastPlacesOut)
{
    show<WorldClockFace>("WorldClockView", WidgetSize::large);
    EXPECT_EQ(numbers().size(), 4);
    context.setSize(WidgetSize::wide);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(numbers().size(), 2);
}

} // namespace brimlight::test
