#include "settings/UpdateStatus.h"

#include "fakes/Fakes.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace brimlight::test {
namespace {

class UpdateStatusTest : public testing::Test
{
protected:
    using State = UpdateService::State;

    UpdateStatusTest()
    {
        status.setUpdater(&updater);
        status.setSettings(&settings);
    }

    MemoryDefaults defaults;
    AppSettings settings{defaults};
    UpdateService updater{defaults};
    UpdateStatus status;
};

} // namespace

TEST_F(UpdateStatusTest, IdleAndCheckingSayNothingMore)
{
    for (const State state : {State::idle, State::checking}) {
        updater.setState(state);
        EXPECT_EQ(status.message(), QString());
        EXPECT_EQ(status.detail(), QString());
        EXPECT_EQ(status.symbol(), QString());
        EXPECT_EQ(status.isChecking(), state == State::checking);
    }
}

TEST_F(UpdateStatusTest, UpToDateHasItsSymbol)
{
    updater.setState(State::upToDate);
    EXPECT_EQ(status.symbol(), QStringLiteral("checkmark.circle.fill"));
    EXPECT_EQ(status.message(), QStringLiteral("Brimlight is up to date."));
}

TEST_F(UpdateStatusTest, AvailableNamesTheVersionAndTheNotes)
{
    updater.setLatestVersion(QStringLiteral("2.4.1"));
    updater.setReleaseNotes(QStringLiteral("- Faster %@\n"));
    updater.setState(State::available);
    EXPECT_TRUE(status.isAvailable());
    EXPECT_EQ(status.message(), QStringLiteral("New version 2.4.1 is available!"));
    EXPECT_EQ(status.detail(), QStringLiteral("- Faster %@"));
    EXPECT_EQ(status.symbol(), QString());
}

TEST_F(UpdateStatusTest, DownloadingShowsAWholePercentage)
{
    updater.setState(State::downloading);
    updater.setDownloadProgress(0.426);
    EXPECT_TRUE(status.isDownloading());
    EXPECT_EQ(status.message(), QStringLiteral("Downloading update..."));
    EXPECT_EQ(status.progressText(), QStringLiteral("43%"));
    updater.setDownloadProgress(1.7);
    EXPECT_EQ(status.progress(), 1);
    EXPECT_EQ(status.progressText(), QStringLiteral("100%"));
}

TEST_F(UpdateStatusTest, InstallingIsShownFromTheEndOfTheDownload)
{
    for (const State state : {State::readyToInstall, State::installing}) {
        updater.setState(state);
        EXPECT_TRUE(status.isInstalling());
        EXPECT_EQ(status.message(), QStringLiteral("Installing update. The app will restart shortly..."));
    }
}

TEST_F(UpdateStatusTest, AnErrorShowsItsText)
{
    updater.setState(State::error, QStringLiteral("Invalid response"));
    EXPECT_TRUE(status.isError());
    EXPECT_EQ(status.symbol(), QStringLiteral("exclamationmark.triangle.fill"));
    EXPECT_EQ(status.message(), QStringLiteral("Update Error"));
    EXPECT_EQ(status.detail(), QStringLiteral("Invalid response"));
}

TEST_F(UpdateStatusTest, VersionAndLastCheckAreAppendedToTheirLabels)
{
    EXPECT_EQ(status.versionText(), QStringLiteral("Current Version: ") + UpdateService::currentVersion());
    EXPECT_EQ(status.lastCheckedText(), QString());
    updater.setLastChecked(QDateTime(QDate(2026, 3, 9), QTime(17, 5)));
    EXPECT_EQ(status.lastCheckedText(), QStringLiteral("Last checked: 3/9/2026 17:05"));
    settings.setLanguage(AppLanguage::german);
    EXPECT_EQ(status.lastCheckedText(), QStringLiteral("Zuletzt geprüft: 09.03.2026 17:05"));
}

TEST_F(UpdateStatusTest, EveryChangeIsTold)
{
    const std::function<void()> changes[] = {
        [this] { updater.setState(State::checking); },
        [this] { updater.setLatestVersion(QStringLiteral("1")); },
        [this] { updater.setReleaseNotes(QStringLiteral("x")); },
        [this] { updater.setDownloadProgress(0.5); },
        [this] { updater.setLastChecked(QDateTime::currentDateTime()); },
        [this] { settings.setLanguage(AppLanguage::italian); },
        [this] { settings.setClock24h(false); },
    };
    for (const auto &change : changes) {
        QSignalSpy changed(&status, &UpdateStatus::changed);
        change();
        EXPECT_EQ(changed.size(), 1);
    }
}

} // namespace brimlight::test
