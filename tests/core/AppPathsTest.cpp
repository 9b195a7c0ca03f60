#include "core/AppPaths.h"

#include "fakes/Fakes.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

namespace brimlight::test {

class AppPathsTest : public testing::Test
{
protected:
    QTemporaryDir dir;
    FakeFolders folders;
    AppPaths paths{folders};
};

TEST_F(AppPathsTest, CreatesTheFolderInTheSupportFolder)
{
    folders.support = dir.filePath(QStringLiteral("share"));
    EXPECT_EQ(paths.appSupportFile(QStringLiteral("grid.json")),
              dir.filePath(QStringLiteral("share/Brimlight/grid.json")));
    EXPECT_TRUE(QDir(dir.filePath(QStringLiteral("share/Brimlight"))).exists());
}

TEST_F(AppPathsTest, WithoutASupportFolderTheTemporaryOneServes)
{
    folders.temp = dir.path();
    EXPECT_EQ(paths.appSupportFile(QStringLiteral("grid.json")),
              dir.filePath(QStringLiteral("Brimlight/grid.json")));
}

TEST_F(AppPathsTest, AFolderThatCannotBeMadeStillGivesThePath)
{
    folders.support = QStringLiteral("/proc/nowhere");
    EXPECT_EQ(paths.appSupportFile(QStringLiteral("grid.json")),
              QStringLiteral("/proc/nowhere/Brimlight/grid.json"));
}

} // namespace brimlight::test
