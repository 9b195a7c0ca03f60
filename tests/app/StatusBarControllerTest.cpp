#include "app/StatusBarController.h"

#include "notch/ControllerFixture.h"
#include "theme/SymbolImage.h"

#include <QImage>
#include <QSignalSpy>

namespace brimlight::test {
namespace {

const QString openTitle = QStringLiteral("Open Brimlight");
const QString settingsTitle = QStringLiteral("Settings…");
const QString updatesTitle = QStringLiteral("Check for Updates…");
const QString loginTitle = QStringLiteral("Launch at Login");
const QString quitTitle = QStringLiteral("Quit Brimlight");

class StatusBar : public ControllerTest
{
protected:
    void SetUp() override
    {
        start();
        pointer.where = farAway;
        statusBar.emplace(*controller, *notch->scene.statusMenu(), stores->loginItem, stores->updater,
                          statusItem, [this] { ++quits; });
    }

    QStringList titles() const
    {
        QStringList all;
        for (const StatusMenuEntry &entry : statusItem.entries)
            all.append(entry.title);
        return all;
    }
    bool isLoginChecked() const { return statusItem.checked.contains(4); }

    std::optional<StatusBarController> statusBar;
    int quits = 0;
};

} // namespace

TEST_F(StatusBar, MenuHasItsEntriesInTheirOrder)
{
    EXPECT_EQ(titles(), (QStringList{openTitle, settingsTitle, updatesTitle, QString(), loginTitle, QString(),
                                     quitTitle}));
    QMap<QString, QString> keys;
    QStringList checkable;
    for (const StatusMenuEntry &entry : statusItem.entries) {
        if (!entry.keyEquivalent.isEmpty())
            keys.insert(entry.title, entry.keyEquivalent);
        if (entry.isCheckable)
            checkable.append(entry.title);
    }
    EXPECT_EQ(keys, (QMap<QString, QString>{{settingsTitle, QStringLiteral(",")},
                                            {quitTitle, QStringLiteral("q")}}));
    EXPECT_EQ(checkable, QStringList{loginTitle});
}

TEST_F(StatusBar, MenuIsPlainEnglishInEveryLanguage)
{
    const QStringList english = titles();
    defaults.values.insert(QStringLiteral("brimlight.language"), QStringLiteral("de"));
    start();
    statusBar.emplace(*controller, *notch->scene.statusMenu(), stores->loginItem, stores->updater, statusItem,
                      [] {});
    EXPECT_EQ(titles(), english);
}

TEST_F(StatusBar, ImageIsTheSymbolWithItsDescription)
{
    EXPECT_EQ(statusItem.image.symbol, QStringLiteral("rectangle.topthird.inset.filled"));
    EXPECT_EQ(statusItem.image.accessibilityDescription, QStringLiteral("Brimlight"));
    for (const int side : {16, 22, 24, 32, 44, 48}) {
        const StatusPicture picture = statusItem.image.draw(side);
        EXPECT_EQ(picture.side, side);
        ASSERT_EQ(picture.argb.size(), 4 * side * side);
        // One colour, opaque in places and transparent in others.
        std::set<int> alphas;
        for (qsizetype at = 0; at < picture.argb.size(); at += 4) {
            const auto alpha = static_cast<uchar>(picture.argb[at]);
            alphas.insert(alpha);
            if (alpha == 255) {
                EXPECT_EQ(picture.argb.sliced(at + 1, 3), QByteArray("\x8a\x8a\x8a", 3)) << side;
            }
        }
        EXPECT_TRUE(alphas.contains(0)) << side;
        EXPECT_TRUE(alphas.contains(255)) << side;
    }
}

TEST_F(StatusBar, OpenPinsWhatItOpensSoThatItStaysOpen)
{
    statusItem.choose(openTitle);
    EXPECT_TRUE(isExpanded());
    EXPECT_TRUE(model().isPinned());
    EXPECT_FALSE(model().showSettings());
    scheduler.advance(10s);
    EXPECT_TRUE(isExpanded()) << "although the pointer is far away";
}

TEST_F(StatusBar, OpenOnlyPinsWhatIsOpenAlready)
{
    controller->setExpanded(true);
    lines();
    statusItem.choose(openTitle);
    EXPECT_TRUE(isExpanded());
    EXPECT_TRUE(model().isPinned());
    EXPECT_EQ(lines(), QStringList());
}

TEST_F(StatusBar, AClickOnTheItemOpens)
{
    statusItem.action();
    EXPECT_TRUE(isExpanded());
    EXPECT_TRUE(model().isPinned());
}

TEST_F(StatusBar, SettingsAreOpenedAndPinned)
{
    statusItem.choose(settingsTitle);
    EXPECT_TRUE(isExpanded());
    EXPECT_TRUE(model().isPinned());
    EXPECT_TRUE(model().showSettings());
}

TEST_F(StatusBar, UpdatesAreCheckedForOnce)
{
    QSignalSpy checks(&stores->updater, &UpdateService::checkForUpdates);
    statusItem.choose(updatesTitle);
    EXPECT_EQ(checks.size(), 1);
    EXPECT_FALSE(isExpanded());
}

TEST_F(StatusBar, LaunchAtLoginTogglesTheLoginItem)
{
    statusItem.choose(loginTitle);
    EXPECT_TRUE(loginItem.enabled);
    statusItem.willOpen();
    EXPECT_TRUE(isLoginChecked());
    statusItem.choose(loginTitle);
    EXPECT_FALSE(loginItem.enabled);
    statusItem.willOpen();
    EXPECT_FALSE(isLoginChecked());
}

TEST_F(StatusBar, TheCheckMarkIsRightAfterAChangeElsewhere)
{
    for (const bool enabled : {true, false, true}) {
        loginItem.enabled = enabled;
        statusItem.willOpen();
        EXPECT_EQ(isLoginChecked(), enabled);
        EXPECT_EQ(stores->loginItem.isEnabled(), enabled);
    }
}

TEST_F(StatusBar, WhileTheMenuStaysClosedIsEnabledCanBeOutOfDate)
{
    loginItem.enabled = true;
    scheduler.advance(10s);
    EXPECT_FALSE(stores->loginItem.isEnabled());
    EXPECT_FALSE(isLoginChecked());
}

TEST_F(StatusBar, AFailedRegistrationLeavesTheCheckMarkOff)
{
    loginItem.error = QStringLiteral("no room");
    statusItem.choose(loginTitle);
    statusItem.willOpen();
    EXPECT_FALSE(isLoginChecked());
}

TEST_F(StatusBar, QuitEndsTheProgram)
{
    statusItem.choose(quitTitle);
    EXPECT_EQ(quits, 1);
}

} // namespace brimlight::test
