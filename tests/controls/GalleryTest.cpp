#include "controls/ControlsFixture.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace brimlight::test {
namespace {

const QString galleryFile = QStringLiteral(BRIMLIGHT_TESTS "/controls/Gallery.qml");

class Gallery : public ControlsTest
{
protected:
    QImage draw(const Theme &theme)
    {
        QQuickView picture(view.engine(), nullptr);
        picture.setInitialProperties({{QStringLiteral("colors"), QVariant::fromValue(theme)}});
        picture.setResizeMode(QQuickView::SizeRootObjectToView);
        picture.resize(900, 620);
        picture.setSource(QUrl::fromLocalFile(galleryFile));
        picture.show();
        picture.requestActivate();
        time.advanceBy(std::chrono::seconds(3));
        QMetaObject::invokeMethod(picture.rootObject(), "open");
        time.advanceBy(std::chrono::seconds(3));
        picture.grabWindow();
        return picture.grabWindow();
    }
};

} // namespace

// To look at them: BRIMLIGHT_PICTURES=folder build/asan/controls_tests --gtest_filter=Gallery.*
TEST_F(Gallery, IsDrawnInADarkAndInALightTheme)
{
    Theme light = Theme::midnight();
    light.surface = ThemeColor::fromHex(QStringLiteral("#F2F2F7"), 1);
    light.textPrimary = ThemeColor::fromHex(QStringLiteral("#1C1C1E"), 1);
    light.textSecondary = ThemeColor::fromHex(QStringLiteral("#6C6C70"), 1);
    const QMap<QString, Theme> themes{{QStringLiteral("dark"), Theme::midnight()},
                                      {QStringLiteral("light"), light}};
    for (auto theme = themes.begin(); theme != themes.end(); ++theme) {
        const QImage picture = draw(*theme);
        ASSERT_FALSE(picture.isNull());
        const QString folder = qEnvironmentVariable("BRIMLIGHT_PICTURES");
        if (!folder.isEmpty())
            picture.save(QDir(folder).filePath(QStringLiteral("controls-%1.png").arg(theme.key())));
    }
}

TEST_F(Gallery, ShowsEveryControl)
{
    QFile file(galleryFile);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    // Parts of others, and what has no look of its own.
    const QStringList parts{QStringLiteral("AbstractButton"),  QStringLiteral("DaySheet"),
                            QStringLiteral("EditMenu"),        QStringLiteral("FocusRing"),
                            QStringLiteral("MenuPopover"),     QStringLiteral("MenuSurface"),
                            QStringLiteral("MotionAnimation"), QStringLiteral("ScrollArea"),
                            QStringLiteral("ScrollMark"),      QStringLiteral("ToolTipLabel")};
    const QStringList files =
        QDir(QStringLiteral(":/qt/qml/Brimlight/Controls")).entryList({QStringLiteral("*.qml")});
    ASSERT_GT(files.size(), 25);
    for (const QString &name : files) {
        const QString type = name.chopped(4);
        if (parts.contains(type))
            continue;
        EXPECT_TRUE(text.contains(QRegularExpression(QStringLiteral("\\b%1 \\{").arg(type))))
            << qPrintable(type);
    }
}

} // namespace brimlight::test
