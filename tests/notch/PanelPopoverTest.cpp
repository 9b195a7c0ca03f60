#include "notch/PanelViewFixture.h"

#include "controls/PopoverItem.h"

#include <QQmlComponent>
#include <QQmlEngine>

namespace brimlight::test {
namespace {

/// A popover of something at the lower edge of the open panel, taller than what is left of the pane there.
class PanelPopover : public PanelView
{
protected:
    void SetUp() override
    {
        start();
        open();
        const QList<QQuickItem *> contents = scene.ofType("NotchContent");
        ASSERT_EQ(contents.size(), 1);
        component.setData(
            "import QtQuick\nimport Brimlight.Controls\nimport Brimlight.Theme\n"
            "Item { id: root; required property theme colors; width: 40; height: 20\n"
            "Popover { label: \"Editor\"; colors: root.colors; Item { width: 10; height: 60 } } }",
            QUrl());
        anchor.reset(qobject_cast<QQuickItem *>(component.createWithInitialProperties(
            {{QStringLiteral("colors"), QVariant::fromValue(Theme::midnight())}})));
        ASSERT_TRUE(anchor) << qPrintable(component.errorString());
        anchor->setParentItem(contents.first());
        anchor->setPosition({250, contents.first()->height() - 24});
        popover = anchor->findChild<PopoverItem *>();
        ASSERT_TRUE(popover);
    }
    bool wantsKeyboard() { return static_cast<OffscreenSurface &>(window.surface()).wantsKeyboard; }
    /// A point of the popover that is not of the pane, as the controller sees it.
    Point beyondThePane() { return {panel().frame().x + panel().frame().width / 2, panel().frame().y - 20}; }

    QQmlComponent component{window.view().engine()};
    std::unique_ptr<QQuickItem> anchor;
    PopoverItem *popover = nullptr;
};

} // namespace

TEST_F(PanelPopover, BelongsToThePanelWhereItReachesBeyondIt)
{
    EXPECT_FALSE(panel().contains(beyondThePane(), 0));
    popover->setOpen(true);
    ASSERT_TRUE(popover->isOpen());
    EXPECT_TRUE(panel().contains(beyondThePane(), 0)) << "the pointer may go there";
    EXPECT_TRUE(wantsKeyboard());
    popover->setOpen(false);
    EXPECT_FALSE(panel().contains(beyondThePane(), 0));
}

TEST_F(PanelPopover, ClosesWithThePanel)
{
    popover->setOpen(true);
    ASSERT_TRUE(popover->isOpen());
    controller->requestClose();
    settle();
    EXPECT_FALSE(isExpanded());
    EXPECT_FALSE(popover->isOpen());
    EXPECT_FALSE(wantsKeyboard());
    popover->setOpen(true);
    EXPECT_FALSE(popover->isOpen()) << "nothing opens on a closed panel";
}

TEST_F(PanelPopover, ATileThatIsDestroyedTakesItsPopoverWithIt)
{
    popover->setOpen(true);
    ASSERT_TRUE(panel().contains(beyondThePane(), 0));
    anchor.reset();
    EXPECT_FALSE(panel().contains(beyondThePane(), 0));
}

} // namespace brimlight::test
