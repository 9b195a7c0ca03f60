#include "grid/WidgetSession.h"

#include "grid/WidgetLogic.h"
#include "widgets/WidgetFixture.h"

#include <QCoreApplication>

namespace brimlight::test {
namespace {

class Counter : public WidgetLogic
{
public:
    Counter(WidgetContext &context, int &made)
        : WidgetLogic(context)
    {
        ++made;
    }

    int appearances = 0;
    int ticks = 0;

protected:
    void appear() override { ++appearances; }
    void tick() override { ++ticks; }
};

const QString counterKind = QStringLiteral("counter");

class Sessions : public WidgetTest
{
protected:
    Sessions()
        : WidgetTest({{.metadata = {.kind = counterKind}, .makeLogic = makes<Counter>(made)}})
    {
        grid.setLayout({.instances = {instance}});
    }
    std::shared_ptr<WidgetSession> session() { return sessions.session(instance, registry.all().front()); }

    int made = 0;
    const WidgetInstance instance{.kind = counterKind, .size = WidgetSize::wide, .col = 0, .row = 0};
    WidgetSessions sessions{environment};
};

} // namespace

TEST_F(Sessions, TheSidesOfATileShareOneLogic)
{
    const auto front = session();
    const auto back = session();
    EXPECT_EQ(front->logic(), back->logic());
    EXPECT_EQ(made, 1);
    EXPECT_EQ(front->context().size(), WidgetSize::wide);
}

TEST_F(Sessions, AWidgetIsLiveWhileAnySideIsSeen)
{
    const auto tile = session();
    auto &logic = static_cast<Counter &>(*tile->logic());
    const QObject front;
    const QObject back;
    tile->setSeen(front, true);
    tile->setSeen(back, true);
    tile->setSeen(front, false);
    EXPECT_TRUE(tile->context().isLive());
    tile->setSeen(back, false);
    EXPECT_FALSE(tile->context().isLive());
    EXPECT_EQ(logic.appearances, 1);
}

TEST_F(Sessions, LogicTicksOnlyWhileItIsSeen)
{
    const auto tile = session();
    auto &logic = static_cast<Counter &>(*tile->logic());
    const QObject front;
    ticker.setActive(true);
    scheduler.advance(std::chrono::seconds(1));
    EXPECT_EQ(logic.ticks, 0);
    tile->setSeen(front, true);
    scheduler.advance(std::chrono::seconds(1));
    EXPECT_EQ(logic.ticks, 1);
}

TEST_F(Sessions, LogicLivesAsLongAsItsInstance)
{
    QPointer<WidgetLogic> logic = session()->logic();
    EXPECT_TRUE(logic) << "with nobody looking";
    WidgetInstance moved = instance;
    moved.col = 3;
    grid.update(moved);
    QCoreApplication::processEvents();
    EXPECT_TRUE(logic);
    grid.remove(instance.id);
    QCoreApplication::processEvents();
    EXPECT_FALSE(logic);
}

TEST_F(Sessions, AViewThatIsStillSeenOffKeepsTheLogicOfARemovedInstance)
{
    auto seen = session();
    const QPointer<WidgetLogic> logic = seen->logic();
    grid.remove(instance.id);
    QCoreApplication::processEvents();
    EXPECT_TRUE(logic);
    seen.reset();
    EXPECT_FALSE(logic);
}

} // namespace brimlight::test
