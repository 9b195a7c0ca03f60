#include "theme/Symbol.h"
#include "theme/SymbolColors.h"
#include "theme/SymbolOutline.h"
#include "theme/SymbolTable.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <set>

namespace brimlight::test {
namespace {

/// Every name that a view shows, by where it is shown. Kept apart from the table on purpose.
const QStringList &shownNames()
{
    static const QStringList names =
        QStringLiteral(
            // header, status item, heads-up display, first steps
            "plus pin pin.fill gearshape chevron.left plus.circle.fill moon.fill "
            "mic.slash.fill rectangle.topthird.inset.filled sun.max.fill "
            "speaker.slash.fill speaker.wave.1.fill speaker.wave.2.fill "
            "speaker.wave.3.fill sparkles square.grid.2x2 paperplane gearshape.fill "
            // the widget kinds
            "clock clock.circle globe chart.pie.fill cloud.sun.fill sun.and.horizon.fill "
            "play.circle.fill battery.100 cross.case.fill cpu chart.xyaxis.line macbook "
            "thermometer.medium network internaldrive calendar calendar.badge.clock "
            "checklist chart.line.uptrend.xyaxis bitcoinsign.circle "
            "dollarsign.arrow.circlepath doc.on.clipboard waveform tray.full "
            "square.stack.3d.up timer stopwatch hourglass checkmark.seal.fill note.text "
            "key.fill calculator switch.2 macwindow.badge.plus wind eye drop.fill "
            "camera.fill die.face.5.fill arrow.left.arrow.right terminal "
            "questionmark.circle "
            // tiles, gallery, settings
            "xmark xmark.circle.fill paintpalette power character.bubble "
            "cursorarrow.motionlines gauge "
            "arrow.down.asymmetric.and.arrow.up.asymmetric checkmark.circle.fill "
            "exclamationmark.triangle.fill paintpalette.fill slider.horizontal.3 "
            // system toggles, microphone
            "cup.and.saucer.fill sun.max speaker.wave.2 trash trash.fill mic.fill "
            "stop.fill "
            // weather, sun and moon, markets
            "moon.stars.fill cloud.moon.fill cloud.fill cloud.fog.fill "
            "cloud.drizzle.fill cloud.rain.fill cloud.snow.fill cloud.heavyrain.fill "
            "cloud.bolt.fill cloud.bolt.rain.fill arrow.up arrow.down "
            "location.magnifyingglass sunrise.fill sunset.fill arrow.up.right "
            "arrow.down.right "
            // times, lists, files, media
            "pencil pause.fill play.fill arrow.counterclockwise circle circle.fill "
            "tray.and.arrow.down square.and.arrow.up music.note backward.fill "
            "forward.fill "
            // tools
            "ruler scalemass gauge.with.dots.needle.33percent chevron.down plus.square "
            "arrow.triangle.2.circlepath arrow.clockwise doc.on.doc brain.head.profile "
            "eye.fill eye.slash.fill minus.circle.fill minus bolt.fill cross.case "
            "lock.shield.fill "
            "arrow.left.and.right.righttriangle.left.righttriangle.right "
            "arrow.left.and.right.righttriangle.left.righttriangle.right.fill")
            .split(u' ');
    return names;
}

QString text(std::string_view latin)
{
    return QString::fromLatin1(latin.data(), static_cast<qsizetype>(latin.size()));
}

QByteArray picture(std::string_view name)
{
    QFile file(symbolResource(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QImage transparent(int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage drawn(Symbol &symbol, double scale = 2)
{
    symbol.setWidth(symbol.implicitWidth());
    symbol.setHeight(symbol.implicitHeight());
    QImage image = transparent(static_cast<int>(symbol.width() * scale));
    image.setDevicePixelRatio(scale);
    QPainter painter(&image);
    symbol.paint(&painter);
    return image;
}

QImage drawn(const QString &name, int weight = QFont::Normal)
{
    Symbol symbol;
    symbol.setName(name);
    symbol.setSize(14);
    symbol.setWeight(weight);
    return drawn(symbol);
}

/// The sum of how opaque the pixels are, in pixels.
double ink(const QImage &image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum += qAlpha(image.pixel(x, y)) / 255.0;
    }
    return sum;
}

} // namespace

TEST(Symbol, EveryNameThatAViewShowsHasAPicture)
{
    std::set<QString> known;
    for (const SymbolEntry &entry : symbolTable())
        known.insert(text(entry.name));
    for (const QString &name : shownNames()) {
        EXPECT_TRUE(known.contains(name)) << qPrintable(name);
        EXPECT_GT(ink(drawn(name)), 15) << qPrintable(name);
    }
}

TEST(Symbol, EveryPictureOfTheTableIsBuiltIn)
{
    for (const SymbolEntry &entry : symbolTable())
        EXPECT_FALSE(symbolOutline(picture(entry.picture)).empty()) << entry.name;
}

TEST(Symbol, StatesOfOneControlLookDifferent)
{
    const std::pair<const char *, const char *> states[] = {
        {"pin", "pin.fill"},
        {"play.fill", "pause.fill"},
        {"play.fill", "stop.fill"},
        {"mic.fill", "stop.fill"},
        {"circle", "checkmark.circle.fill"},
        {"eye.fill", "eye.slash.fill"},
        {"moon.fill", "sun.max"},
        {"speaker.slash.fill", "speaker.wave.2"},
        {"speaker.wave.1.fill", "speaker.wave.2.fill"},
        {"speaker.wave.2.fill", "speaker.wave.3.fill"},
        {"speaker.slash.fill", "speaker.wave.1.fill"},
        {"arrow.left.and.right.righttriangle.left.righttriangle.right",
         "arrow.left.and.right.righttriangle.left.righttriangle.right.fill"},
    };
    for (const auto &[one, other] : states)
        EXPECT_NE(drawn(QString::fromLatin1(one)), drawn(QString::fromLatin1(other))) << one << " " << other;
}

TEST(Symbol, UnknownNameShowsTheQuestionMark)
{
    const QImage question = drawn(QStringLiteral("questionmark.circle"));
    EXPECT_EQ(drawn(QStringLiteral("no.such.symbol")), question);
    EXPECT_EQ(drawn(QString()), question);
    EXPECT_EQ(drawn(QStringLiteral("arrow")), question) << "a prefix of a name is not the name";
    EXPECT_NE(drawn(QStringLiteral("plus")), question);
}

TEST(Symbol, OutlinesAreWhatAnSvgRendererDraws)
{
    for (const SymbolEntry &entry : symbolTable()) {
        const QByteArray svg = picture(entry.picture);
        QImage reference = transparent(64);
        QSvgRenderer renderer(svg);
        QPainter expected(&reference);
        renderer.render(&expected);

        QImage image = transparent(64);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(64 / symbolGrid, 64 / symbolGrid);
        for (const QPainterPath &shape : symbolOutline(svg))
            painter.fillPath(shape, Qt::black);

        int different = 0;
        for (int y = 0; y < 64; ++y) {
            for (int x = 0; x < 64; ++x)
                different += std::abs(qAlpha(image.pixel(x, y)) - qAlpha(reference.pixel(x, y))) > 40 ? 1 : 0;
        }
        EXPECT_LE(different, 8) << entry.picture;
    }
}

TEST(Symbol, TakesTheColorGivenAndItsOpacity)
{
    Symbol symbol;
    symbol.setName(QStringLiteral("circle.fill"));
    symbol.setSize(14);
    symbol.setColor(QColor(255, 0, 0, 128));
    const QImage image = drawn(symbol);
    const QColor middle = image.pixelColor(image.width() / 2, image.height() / 2);
    EXPECT_EQ(middle.red(), 255);
    EXPECT_EQ(middle.green(), 0);
    EXPECT_NEAR(middle.alpha(), 128, 1);
}

TEST(Symbol, BoldIsHeavierAndStaysInside)
{
    for (const char *name : {"plus", "xmark", "chevron.left", "gearshape", "clock"}) {
        const QString symbol = QString::fromLatin1(name);
        EXPECT_GT(ink(drawn(symbol, QFont::Bold)), 1.1 * ink(drawn(symbol))) << name;
        EXPECT_GT(ink(drawn(symbol, QFont::DemiBold)), ink(drawn(symbol))) << name;
        EXPECT_LT(ink(drawn(symbol, QFont::DemiBold)), ink(drawn(symbol, QFont::Bold))) << name;
    }
    const QString filled = QStringLiteral("checkmark.circle.fill");
    EXPECT_EQ(drawn(filled, QFont::Bold), drawn(filled)) << "what is cut out stays open";
}

TEST(Symbol, NaturalSizeFollowsTheTextInWholePoints)
{
    Symbol symbol;
    for (const double size : {7.0, 8.0, 9.0, 10.0, 11.0, 12.0, 14.0, 22.0, 36.0, 40.0}) {
        symbol.setSize(size);
        EXPECT_EQ(symbol.implicitWidth(), std::round(symbol.implicitWidth()));
        EXPECT_NEAR(symbol.implicitWidth(), size * 1.15, 0.5);
    }
}

TEST(SymbolColors, WeatherTakesTheColorsOfWhatItShows)
{
    const auto colors = [](const char *name) {
        std::set<QRgb> found;
        const QString symbol = QString::fromLatin1(name);
        for (const SymbolPart &part :
             weatherParts(symbol, symbolOutline(picture(symbolPicture(symbol))), Qt::gray))
            found.insert(part.color.rgb());
        return found;
    };
    const QRgb cloud = QColor(Qt::gray).rgb();
    EXPECT_EQ(colors("sun.max.fill").size(), 1U);
    EXPECT_FALSE(colors("sun.max.fill").contains(cloud));
    EXPECT_EQ(colors("cloud.fill"), std::set{cloud});
    EXPECT_EQ(colors("cloud.fog.fill"), std::set{cloud});
    EXPECT_EQ(colors("plus"), std::set{cloud});
    for (const char *two : {"cloud.sun.fill", "cloud.moon.fill", "cloud.rain.fill", "cloud.heavyrain.fill",
                            "cloud.drizzle.fill", "cloud.snow.fill", "cloud.bolt.fill"})
        EXPECT_EQ(colors(two).size(), 2U) << two;
    EXPECT_EQ(colors("cloud.bolt.rain.fill").size(), 3U);
}

TEST(SymbolOutline, ReadsTersePathData)
{
    const auto path = svgPath("M1.5.5-2-.5h3V1z");
    ASSERT_TRUE(path);
    ASSERT_GE(path->elementCount(), 4);
    EXPECT_EQ(QPointF(path->elementAt(0)), QPointF(1.5, 0.5));
    EXPECT_EQ(QPointF(path->elementAt(1)), QPointF(-2, -0.5)) << "further pairs after a move are lines";
    EXPECT_EQ(QPointF(path->elementAt(2)), QPointF(1, -0.5));
    EXPECT_EQ(QPointF(path->elementAt(3)), QPointF(1, 1));
}

TEST(SymbolOutline, ReadsArcFlagsWithoutSeparators)
{
    const auto path = svgPath("M0 0a5 5 0 0110 0");
    ASSERT_TRUE(path);
    EXPECT_EQ(path->currentPosition(), QPointF(10, 0));
    EXPECT_NEAR(path->boundingRect().top(), -5, 0.01);
}

TEST(SymbolOutline, RefusesMalformedData)
{
    for (const char *data : {"M1", "M1 2 L", "1 2", "M0 0 z 3", "M0 0 A1 1 0 2 0 3 3", "M0 0 X1 1", "M..5 1"})
        EXPECT_FALSE(svgPath(data)) << data;
    EXPECT_TRUE(symbolOutline("<svg><path d=\"M1\"/></svg>").empty());
    EXPECT_TRUE(symbolOutline("no picture").empty());
}

/// With BRIMLIGHT_PICTURES naming a folder, all symbols are left there on one sheet to look at.
TEST(SymbolSheet, ShowsEverySymbol)
{
    constexpr int columns = 9;
    constexpr QSize cell(168, 84);
    const auto table = symbolTable();
    const int rows = (static_cast<int>(table.size()) + columns - 1) / columns;
    QImage sheet(columns * cell.width(), rows * cell.height(), QImage::Format_ARGB32_Premultiplied);
    sheet.fill(QColor(24, 24, 30));
    QPainter painter(&sheet);
    for (int i = 0; i < static_cast<int>(table.size()); ++i) {
        const QPoint corner((i % columns) * cell.width(), (i / columns) * cell.height());
        const QString name = text(table[static_cast<std::size_t>(i)].name);
        int x = 8;
        for (const int size : {8, 10, 14, 22}) {
            Symbol symbol;
            symbol.setName(name);
            symbol.setSize(size);
            symbol.setWeight(size == 10 ? QFont::Bold : QFont::Normal);
            symbol.setMulticolor(size == 22);
            QImage image = drawn(symbol);
            EXPECT_GT(ink(image), 5) << qPrintable(name) << " " << size;
            image.setDevicePixelRatio(1);
            painter.drawImage(corner + QPoint(x, 6 + (50 - image.height()) / 2), image);
            x += image.width() + 6;
        }
        painter.setPen(Qt::lightGray);
        QFont font;
        font.setPixelSize(11);
        painter.setFont(font);
        painter.drawText(QRect(corner + QPoint(6, 60), QSize(cell.width() - 8, 20)), Qt::AlignLeft, name);
    }
    const QString folder = qEnvironmentVariable("BRIMLIGHT_PICTURES");
    if (!folder.isEmpty()) {
        EXPECT_TRUE(sheet.save(folder + QStringLiteral("/symbols.png")));
    }
}

} // namespace brimlight::test
