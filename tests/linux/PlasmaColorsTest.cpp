#include "platform/linux/desktop/PlasmaColors.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace brimlight::test {
namespace {

QByteArray windows(const QByteArray &color)
{
    return "[General]\nColorScheme=Ignored\n\n[Colors:View]\nBackgroundNormal=0,0,0\n\n[Colors:Window]\n"
           "BackgroundAlternate=1,2,3\nBackgroundNormal=" +
           color + "\n";
}

const QByteArray light = windows("239,240,241");
const QByteArray dark = windows("42,46,50");

/// A Plasma desktop: its configuration, the schemes that are installed, and tools that do what those of the
/// desktop do with both.
class PlasmaColorsTest : public testing::Test
{
protected:
    PlasmaColorsTest()
    {
        write(QStringLiteral("data/color-schemes/BreezeLight.colors"), light);
        write(QStringLiteral("data/color-schemes/BreezeDark.colors"), dark);
    }
    void write(const QString &name, const QByteArray &content)
    {
        const QString path = folder.filePath(name);
        EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    /// A shell script in the folder of programs, with the folder of the test as $home.
    void install(const QString &name, const QByteArray &body)
    {
        const QString path = QStringLiteral("bin/") + name;
        write(path, "#!/bin/sh\nhome='" + folder.path().toLocal8Bit() + "'\n" + body);
        EXPECT_TRUE(QFile::setPermissions(folder.filePath(path), QFile::ReadOwner | QFile::ExeOwner));
    }
    void installSchemeTool()
    {
        install(QStringLiteral("plasma-apply-colorscheme"),
                "scheme=\"$home/data/color-schemes/$1.colors\"\n"
                "[ -f \"$scheme\" ] || exit 255\n"
                "echo \"$1 $QT_QPA_PLATFORM\" >> \"$home/calls\"\n"
                "{ echo '[General]'; echo \"ColorScheme=$1\"; echo; sed '1,3d' \"$scheme\"; } > "
                "\"$home/user/kdeglobals\"\n");
        write(QStringLiteral("user/other"), {});
    }
    QStringList calls() const
    {
        QFile file(folder.filePath(QStringLiteral("calls")));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    }

    QTemporaryDir folder;
    PlasmaColors colors{{.configFolders = {folder.filePath(QStringLiteral("user")),
                                           folder.filePath(QStringLiteral("defaults"))},
                         .dataFolders = {folder.filePath(QStringLiteral("data"))},
                         .programFolders = {folder.filePath(QStringLiteral("bin"))}}};
};

} // namespace

TEST_F(PlasmaColorsTest, TurnsBetweenTheDesktopsOwnSchemes)
{
    installSchemeTool();
    EXPECT_EQ(colors.obstacle(), std::nullopt);
    EXPECT_EQ(colors.flip(), true) << "a desktop as it is installed is light";
    EXPECT_EQ(colors.flip(), false);
    EXPECT_EQ(colors.flip(), true);
    EXPECT_EQ(calls(), QStringList({QStringLiteral("BreezeDark "), QStringLiteral("BreezeLight "),
                                    QStringLiteral("BreezeDark ")}))
        << "and the tool chooses its own platform";
}

TEST_F(PlasmaColorsTest, ComesBackToTheSchemeThatTheUserHasChosen)
{
    installSchemeTool();
    write(QStringLiteral("data/color-schemes/Meadow.colors"), windows("250,240,200"));
    write(QStringLiteral("user/kdeglobals"), "[General]\nColorScheme=Meadow\n" + windows("250,240,200"));
    EXPECT_EQ(colors.flip(), true);
    EXPECT_EQ(colors.flip(), false);
    EXPECT_EQ(calls().last(), QStringLiteral("Meadow "));
}

TEST_F(PlasmaColorsTest, TakesTheOtherHalfOfAPairWhereItIsInstalled)
{
    installSchemeTool();
    write(QStringLiteral("data/color-schemes/MeadowLight.colors"), light);
    write(QStringLiteral("user/kdeglobals"), "[General]\nColorScheme=MeadowLight\n" + light);
    EXPECT_EQ(colors.flip(), true);
    EXPECT_EQ(calls().last(), QStringLiteral("BreezeDark "));
    EXPECT_EQ(colors.flip(), false);
    write(QStringLiteral("data/color-schemes/MeadowDark.colors"), dark);
    PlasmaColors later{{.configFolders = {folder.filePath(QStringLiteral("user"))},
                        .dataFolders = {folder.filePath(QStringLiteral("data"))},
                        .programFolders = {folder.filePath(QStringLiteral("bin"))}}};
    EXPECT_EQ(later.flip(), true);
    EXPECT_EQ(calls().last(), QStringLiteral("MeadowDark "));
}

TEST_F(PlasmaColorsTest, ADefaultOfTheChosenLookIsKnownByItsNameAlone)
{
    installSchemeTool();
    write(QStringLiteral("user/kdeglobals"), "[KDE]\nSingleClick=false\n");
    write(QStringLiteral("defaults/kdeglobals"), "[General]\nColorScheme=BreezeDark\n");
    EXPECT_EQ(colors.flip(), false);
    EXPECT_EQ(calls(), QStringList(QStringLiteral("BreezeLight ")));
}

TEST_F(PlasmaColorsTest, WithoutTheToolForColoursTheLookIsChanged)
{
    install(QStringLiteral("plasma-apply-lookandfeel"), "echo \"$*\" >> \"$home/calls\"\n");
    EXPECT_EQ(colors.obstacle(), std::nullopt);
    EXPECT_EQ(colors.flip(), true);
    EXPECT_EQ(calls(), QStringList(QStringLiteral("--apply org.kde.breezedark.desktop")));
}

TEST_F(PlasmaColorsTest, AToolThatFailsHasChangedNothing)
{
    install(QStringLiteral("plasma-apply-colorscheme"), "exit 1\n");
    EXPECT_EQ(colors.flip(), std::nullopt);
}

TEST_F(PlasmaColorsTest, WithoutToolsNothingCanBeChanged)
{
    write(QStringLiteral("bin/other"), {});
    EXPECT_EQ(colors.obstacle(), Obstacle::noColorSchemeTool);
    EXPECT_EQ(colors.flip(), std::nullopt);
}

TEST(PlasmaColors, AreThoseOfPlasmaAlone)
{
    EXPECT_NE(PlasmaColors::ofDesktop(QStringLiteral("KDE")), nullptr);
    EXPECT_NE(PlasmaColors::ofDesktop(QStringLiteral("vendor:KDE")), nullptr);
    for (const char *other : {"", "GNOME", "KDEish", "XFCE"})
        EXPECT_EQ(PlasmaColors::ofDesktop(QString::fromLatin1(other)), nullptr) << other;
}

TEST(PlasmaSetting, IsFoundInItsGroup)
{
    const QByteArray file = "key=before\n[One]\nkey = first \nother=x=y\n[Two][$i]\nkey[$e]=second\n";
    const struct
    {
        const char *group;
        const char *key;
        std::optional<QByteArray> value;
    } rows[] = {{"One", "key", "first"},        {"One", "other", "x=y"},        {"Two", "key", "second"},
                {"Two", "other", std::nullopt}, {"Three", "key", std::nullopt}, {"On", "key", std::nullopt},
                {"One", "ke", std::nullopt}};
    for (const auto &row : rows)
        EXPECT_EQ(plasmaSetting(file, row.group, row.key), row.value) << row.group << row.key;
    EXPECT_EQ(plasmaSetting({}, "One", "key"), std::nullopt);
}

TEST(PlasmaScheme, IsDarkByTheColourOfItsWindows)
{
    EXPECT_EQ(hasDarkWindows(dark), true);
    EXPECT_EQ(hasDarkWindows(light), false);
    EXPECT_EQ(hasDarkWindows(windows("0,0,255")), true) << "blue is no light";
    EXPECT_EQ(hasDarkWindows(windows("0,255,0")), false);
    EXPECT_EQ(hasDarkWindows("[Colors:Window]\nBackgroundNormal=1,2\n"), std::nullopt);
    EXPECT_EQ(hasDarkWindows({}), std::nullopt);
}

TEST(PlasmaScheme, PairsAreKnownByTheirNames)
{
    EXPECT_EQ(otherHalf(QStringLiteral("BreezeLight")), QStringLiteral("BreezeDark"));
    EXPECT_EQ(otherHalf(QStringLiteral("BreezeDark")), QStringLiteral("BreezeLight"));
    EXPECT_EQ(otherHalf(QStringLiteral("Meadow")), QString());
}

} // namespace brimlight::test
