#include "platform/linux/dbus/StatusNotifierItem.h"

#include "fakes/ManualScheduler.h"
#include "fakes/PrivateBus.h"
#include "fakes/TrayHost.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QThreadPool>

namespace brimlight::test {

using namespace std::chrono_literals;

namespace {

const QString openTitle = QStringLiteral("Open");
const QString loginTitle = QStringLiteral("At login");

bool isError(const QDBusMessage &reply)
{
    return reply.type() == QDBusMessage::ErrorMessage;
}

class StatusNotifierItemTest : public testing::Test
{
protected:
    StatusNotifierItemTest()
    {
        item.setImage({QStringLiteral("pin"), QStringLiteral("The Program"), [this](int side) {
                           ++drawn;
                           return StatusPicture{side, QByteArray(4 * side * side, '\x7f')};
                       }});
        item.setAction([this] { ++activations; });
        item.setMenu(
            {{.title = openTitle,
              .keyEquivalent = QStringLiteral("o"),
              .action = [this] { chosen.append(openTitle); }},
             {},
             {.title = loginTitle, .isCheckable = true, .action = [this] { chosen.append(loginTitle); }},
             {.title = QStringLiteral("snake_case")}},
            [this] {
                ++openings;
                item.setChecked(2, isChecked);
            });
    }

    void SetUp() override { ASSERT_FALSE(bus.address().isEmpty()) << "dbus-daemon does not start"; }

    void begin() { scheduler.advance(StatusNotifierItem::startDelay); }
    void beginOnHost()
    {
        host.appear();
        begin();
        ASSERT_TRUE(host.waitForItem());
    }

    PrivateBus bus;
    TrayHost host{bus.address()};
    ManualScheduler scheduler;
    std::atomic<int> opened = 0;
    StatusNotifierItem item{scheduler, [this] {
                                ++opened;
                                return newConnection(bus.address());
                            }};
    int drawn = 0;
    int activations = 0;
    int openings = 0;
    bool isChecked = false;
    QStringList chosen;
};

} // namespace

TEST_F(StatusNotifierItemTest, AppearsOnAHostThatIsThere)
{
    beginOnHost();
    EXPECT_EQ(host.items().size(), 1);
    const QVariantMap said = host.itemProperties();
    EXPECT_EQ(said.value(QStringLiteral("Category")), QStringLiteral("ApplicationStatus"));
    EXPECT_EQ(said.value(QStringLiteral("Id")), QStringLiteral("brimlight"));
    EXPECT_EQ(said.value(QStringLiteral("Title")), QStringLiteral("The Program"));
    EXPECT_EQ(said.value(QStringLiteral("IconAccessibleDesc")), QStringLiteral("The Program"));
    EXPECT_EQ(said.value(QStringLiteral("Status")), QStringLiteral("Active"));
    EXPECT_EQ(said.value(QStringLiteral("ItemIsMenu")), QVariant(true));
    EXPECT_EQ(said.value(QStringLiteral("ToolTip")).value<QDBusArgument>().currentSignature(),
              QStringLiteral("(sa(iiay)ss)"));
}

TEST_F(StatusNotifierItemTest, NothingIsOpenedOrDrawnAtTheStart)
{
    host.appear();
    scheduler.advance(StatusNotifierItem::startDelay - 1ms);
    QThreadPool::globalInstance()->waitForDone();
    EXPECT_EQ(opened, 0);
    scheduler.advance(1ms);
    ASSERT_TRUE(host.waitForItem());
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(drawn, 0) << "nobody has asked for the picture";
}

TEST_F(StatusNotifierItemTest, OffersItsPictureInEverySizeAndDrawsItOnce)
{
    beginOnHost();
    host.itemProperties();
    const auto pixmaps = host.itemProperties().value(QStringLiteral("IconPixmap")).value<QDBusArgument>();
    ASSERT_EQ(pixmaps.currentSignature(), QStringLiteral("a(iiay)"));
    QList<int> sides;
    pixmaps.beginArray();
    while (!pixmaps.atEnd()) {
        int width = 0;
        int height = 0;
        QByteArray argb;
        pixmaps.beginStructure();
        pixmaps >> width >> height >> argb;
        pixmaps.endStructure();
        EXPECT_EQ(width, height);
        EXPECT_EQ(argb, QByteArray(4 * width * height, '\x7f'));
        sides.append(width);
    }
    pixmaps.endArray();
    EXPECT_EQ(sides, (QList<int>{16, 22, 24, 32, 44, 48}));
    EXPECT_EQ(drawn, 6);
}

TEST_F(StatusNotifierItemTest, AppearsOnAHostThatComesLater)
{
    begin();
    ASSERT_TRUE(waitFor([this] { return opened == 1; }));
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    host.appear();
    EXPECT_TRUE(host.waitForItem());
}

TEST_F(StatusNotifierItemTest, AppearsAgainOnAHostThatRestarts)
{
    beginOnHost();
    const QStringList before = host.items();
    for (int restart = 0; restart < 3; ++restart) {
        host.vanish();
        EXPECT_TRUE(host.items().isEmpty());
        host.appear();
        ASSERT_TRUE(host.waitForItem());
        EXPECT_EQ(host.items(), before);
    }
    EXPECT_EQ(host.openMenu().size(), 4U);
}

TEST_F(StatusNotifierItemTest, AHostReadsTheMenu)
{
    beginOnHost();
    const auto menu = host.openMenu();
    ASSERT_EQ(menu.size(), 4U);
    EXPECT_EQ(menu[0].label(), openTitle);
    EXPECT_EQ(menu[0].shortcut(), QStringLiteral("Control+O"));
    EXPECT_EQ(menu[0].toggleState(), -1);
    EXPECT_TRUE(menu[1].isSeparator());
    EXPECT_EQ(menu[2].label(), loginTitle);
    EXPECT_EQ(menu[2].shortcut(), QString());
    EXPECT_EQ(menu[2].properties.value(QStringLiteral("toggle-type")), QStringLiteral("checkmark"));
    EXPECT_EQ(menu[2].toggleState(), 0);
    EXPECT_EQ(menu[3].label(), QStringLiteral("snake__case")) << "or the host would underline the c";
}

TEST_F(StatusNotifierItemTest, LayoutKeepsToDepthParentAndNames)
{
    beginOnHost();
    const QString method = QStringLiteral("GetLayout");
    EXPECT_EQ(trayEntries(host.askMenu(method, {0, 0, QStringList()})).size(), 1U);
    EXPECT_EQ(trayEntries(host.askMenu(method, {0, 1, QStringList()})).size(), 5U);
    const auto third = trayEntries(host.askMenu(method, {3, -1, QStringList{QStringLiteral("label")}}));
    ASSERT_EQ(third.size(), 1U);
    EXPECT_EQ(third[0].properties, (QVariantMap{{QStringLiteral("label"), loginTitle}}));
    EXPECT_TRUE(isError(host.askMenu(method, {5, -1, QStringList()})));
    EXPECT_TRUE(isError(host.askMenu(method, {-1, -1, QStringList()})));
}

TEST_F(StatusNotifierItemTest, PropertiesCanBeAskedFor)
{
    beginOnHost();
    const auto one = host.askMenu(QStringLiteral("GetProperty"), {1, QStringLiteral("label")});
    EXPECT_EQ(one.arguments().value(0).value<QDBusVariant>().variant(), openTitle);
    EXPECT_TRUE(isError(host.askMenu(QStringLiteral("GetProperty"), {1, QStringLiteral("flavour")})));
    EXPECT_TRUE(isError(host.askMenu(QStringLiteral("GetProperty"), {99, QStringLiteral("label")})));

    const auto ids = [this](const QList<int> &wanted) {
        const auto reply =
            host.askMenu(QStringLiteral("GetGroupProperties"), {QVariant::fromValue(wanted), QStringList()});
        EXPECT_EQ(reply.signature(), QStringLiteral("a(ia{sv})"));
        QList<int> found;
        for (const auto &entry : qdbus_cast<QList<DBusMenuProperties>>(reply.arguments().value(0)))
            found.append(entry.id);
        return found;
    };
    EXPECT_EQ(ids({3, 99, 1}), (QList<int>{3, 1}));
    EXPECT_EQ(ids({}), (QList<int>{0, 1, 2, 3, 4}));
}

TEST_F(StatusNotifierItemTest, AClickRunsTheActionAfterItsAnswer)
{
    beginOnHost();
    host.click(loginTitle);
    EXPECT_EQ(chosen, QStringList());
    scheduler.runPosted();
    EXPECT_EQ(chosen, QStringList{loginTitle});
}

TEST_F(StatusNotifierItemTest, OtherEventsAndSeparatorsRunNothing)
{
    beginOnHost();
    const QVariant nothing = QVariant::fromValue(QDBusVariant(0));
    host.askMenu(QStringLiteral("Event"), {1, QStringLiteral("hovered"), nothing, 0U});
    for (const int id : {0, 2, 4})
        host.askMenu(QStringLiteral("Event"), {id, QStringLiteral("clicked"), nothing, 0U});
    EXPECT_TRUE(isError(host.askMenu(QStringLiteral("Event"), {99, QStringLiteral("clicked"), nothing, 0U})));
    scheduler.runPosted();
    EXPECT_EQ(chosen, QStringList());
    EXPECT_EQ(openings, 0);
}

TEST_F(StatusNotifierItemTest, AGroupOfEventsIsWorkedOffAndStrangersAreNamed)
{
    beginOnHost();
    const QString clicked = QStringLiteral("clicked");
    const QList<DBusMenuEvent> events{{1, clicked, QDBusVariant(0), 0},
                                      {99, clicked, QDBusVariant(0), 0},
                                      {3, clicked, QDBusVariant(0), 0}};
    const auto reply = host.askMenu(QStringLiteral("EventGroup"), {QVariant::fromValue(events)});
    EXPECT_EQ(qdbus_cast<QList<int>>(reply.arguments().value(0)), QList<int>{99});
    scheduler.runPosted();
    EXPECT_EQ(chosen, (QStringList{openTitle, loginTitle}));
}

TEST_F(StatusNotifierItemTest, EveryWayOfOpeningTellsTheProgram)
{
    beginOnHost();
    host.askMenu(QStringLiteral("AboutToShow"), {0});
    EXPECT_EQ(openings, 1);
    host.askMenu(QStringLiteral("AboutToShowGroup"), {QVariant::fromValue(QList<int>{0, 1})});
    EXPECT_EQ(openings, 2);
    const QVariant nothing = QVariant::fromValue(QDBusVariant(0));
    host.askMenu(QStringLiteral("Event"), {0, QStringLiteral("opened"), nothing, 0U});
    EXPECT_EQ(openings, 3);
    host.askMenu(QStringLiteral("Event"), {0, QStringLiteral("closed"), nothing, 0U});
    EXPECT_EQ(openings, 3);
}

TEST_F(StatusNotifierItemTest, AChangeOfTheCheckMarkIsToldBeforeTheMenuShows)
{
    beginOnHost();
    host.menuSignals.clear();
    isChecked = true;
    EXPECT_EQ(host.askMenu(QStringLiteral("AboutToShow"), {0}).arguments(), QVariantList{true});
    ASSERT_TRUE(waitFor([this] { return !host.menuSignals.isEmpty(); }));
    ASSERT_EQ(host.menuSignals.size(), 1);
    const QDBusMessage signal = host.menuSignals.first();
    EXPECT_EQ(signal.signature(), QStringLiteral("a(ia{sv})a(ias)"));
    const auto updated = qdbus_cast<QList<DBusMenuProperties>>(signal.arguments().value(0));
    ASSERT_EQ(updated.size(), 1);
    EXPECT_EQ(updated[0].id, 3);
    EXPECT_EQ(updated[0].properties, (QVariantMap{{QStringLiteral("toggle-state"), 1}}));
    EXPECT_EQ(host.entry(loginTitle).toggleState(), 1);
    EXPECT_EQ(host.askMenu(QStringLiteral("AboutToShow"), {0}).arguments(), QVariantList{false});
    EXPECT_EQ(host.menuSignals.size(), 1) << "nothing has changed since";
}

TEST_F(StatusNotifierItemTest, ANewMenuIsToldWithANewRevision)
{
    beginOnHost();
    const uint before =
        host.askMenu(QStringLiteral("GetLayout"), {0, 0, QStringList()}).arguments()[0].toUInt();
    item.setMenu({{.title = QStringLiteral("Only")}}, {});
    ASSERT_TRUE(waitFor([this] { return !host.menuSignals.isEmpty(); }));
    EXPECT_EQ(host.menuSignals.last().arguments(), (QVariantList{before + 1, 0}));
    EXPECT_EQ(host.openMenu().size(), 1U);
}

TEST_F(StatusNotifierItemTest, AClickOnTheItemItselfRunsItsAction)
{
    beginOnHost();
    host.activate();
    scheduler.runPosted();
    EXPECT_EQ(activations, 1);
}

TEST_F(StatusNotifierItemTest, AnItemThatIsGoneIsNotCalledBack)
{
    host.appear();
    {
        StatusNotifierItem other(scheduler, [this] { return newConnection(bus.address()); });
        other.setMenu({}, {});
        begin();
    }
    ASSERT_TRUE(host.waitForItem());
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    EXPECT_EQ(host.items().size(), 1) << "only the one that lives";
}

TEST(StatusNotifierItem, WithoutAMenuItNeverAppears)
{
    ManualScheduler scheduler;
    const StatusNotifierItem item(scheduler, [] { return newConnection(QString()); });
    EXPECT_EQ(scheduler.pendingCount(), 0);
}

TEST(StatusNotifierItem, WithoutABusThereIsNone)
{
    ManualScheduler scheduler;
    bool tried = false;
    QObject context;
    const auto open = [] { return newConnection(QStringLiteral("unix:path=/nonexistent/bus")); };
    StatusNotifierItem item(scheduler, open);
    item.setMenu({{.title = loginTitle, .isCheckable = true}}, {});
    scheduler.advance(StatusNotifierItem::startDelay);
    openBus(context, open, [&](const QDBusConnection &opened) {
        EXPECT_FALSE(opened.isConnected());
        tried = true;
    });
    EXPECT_TRUE(waitFor([&] { return tried; }));
    item.setChecked(0, true);
}

} // namespace brimlight::test
