// Draws the widgets of the machine at all their sizes, on four recorded machines, into one picture.
//
//   contact_sheet docs/system-widgets.png
//
// Nothing of this machine shows in it, so it can be kept and compared.

#include "RecordedMachine.h"
#include "app/WidgetRenderer.h"
#include "grid/GridMetrics.h"
#include "theme/Fonts.h"

#include <QGuiApplication>
#include <QHash>
#include <QImageWriter>
#include <QPainter>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdio>
#include <span>

namespace brimlight::bench {
namespace {

constexpr double scale = WidgetRenderer::scale;
constexpr double margin = 20;
/// Around each tile, for its shadow.
constexpr double tileMargin = 12;
constexpr QColor background(10, 15, 28);
constexpr double labelHeight = 16;
constexpr double columnWidth = 600;
constexpr double rowGap = 8;

const QStringList kinds{QStringLiteral("battery"),    QStringLiteral("batteryhealth"),
                        QStringLiteral("disk"),       QStringLiteral("network"),
                        QStringLiteral("system"),     QStringLiteral("sysinfo"),
                        QStringLiteral("usagegraph"), QStringLiteral("temperature")};

struct State
{
    QString title;
    Fare fare;
};

std::vector<State> states()
{
    const QString battery = QStringLiteral("sys/class/power_supply/BAT0/");
    const QString other = QStringLiteral("sys/class/power_supply/BAT1/");
    const QString package = QStringLiteral("sys/devices/platform/coretemp.0/hwmon/hwmon3/temp1_input");
    const QString processor = QStringLiteral("sys/devices/pci0000:00/0000:00:18.3/hwmon/hwmon2/temp1_input");
    return {{QStringLiteral("A laptop at work, charging"),
             {.kind = test::MachineKind::laptopIntel,
              .load = 0.46,
              .memory = 0.63,
              .uptime = 13'829,
              .files = {{QStringLiteral("sys/class/power_supply/AC/online"), "1\n"},
                        {battery + QStringLiteral("status"), "Charging\n"},
                        {package, "61000\n"}}}},
            {QStringLiteral("A laptop under load with a worn battery, 15 %"),
             {.kind = test::MachineKind::laptopAmd,
              .load = 0.93,
              .memory = 0.87,
              .memoryTotal = 32'257'400,
              .down = 118e6,
              .up = 92e6,
              .volume = {.total = 2'000'000'000'000, .available = 99'960'000'000},
              .uptime = 936'000,
              .files = {{QStringLiteral("sys/class/power_supply/ACAD/online"), "0\n"},
                        {other + QStringLiteral("status"), "Discharging\n"},
                        {other + QStringLiteral("energy_full"), "33060000\n"},
                        {other + QStringLiteral("energy_now"), "4959000\n"},
                        {other + QStringLiteral("capacity"), "15\n"},
                        {other + QStringLiteral("cycle_count"), "1241\n"},
                        {processor, "86125\n"}}}},
            {QStringLiteral("A board"),
             {.kind = test::MachineKind::boardArm,
              .load = 0.12,
              .memory = 0.24,
              .memoryTotal = 3'885'396,
              .down = 900,
              .up = 120,
              .volume = {.total = 64'000'000'000, .available = 10'200'000'000},
              .uptime = 2'520}},
            {QStringLiteral("A virtual machine"),
             {.kind = test::MachineKind::virtualMachine,
              .load = 0.74,
              .memory = 0.41,
              .memoryTotal = 2'014'032,
              .down = 52e3,
              .up = 9e3,
              .volume = {.total = 20'000'000'000, .available = 12'000'000'000},
              .uptime = 280'800}}};
}

struct Tile
{
    WidgetSize size = WidgetSize::small;
    /// The place of its picture within the cell of its kind.
    QRectF place;
};

/// Next to each other as long as there is room, with space for a label above each.
std::vector<Tile> placed(const QList<WidgetSize> &sizes)
{
    std::vector<Tile> tiles;
    QPointF at;
    double below = 0;
    for (const WidgetSize size : sizes) {
        const QSizeF picture = gridMetrics::rectangle(size) + QSizeF(2 * tileMargin, 2 * tileMargin);
        if (at.x() + picture.width() > columnWidth)
            at = {0, below};
        tiles.push_back({size, QRectF(at + QPointF(0, labelHeight), picture)});
        at.rx() += picture.width();
        below = std::max(below, tiles.back().place.bottom());
    }
    return tiles;
}

double heightOf(const std::vector<Tile> &tiles)
{
    double height = 0;
    for (const Tile &tile : tiles)
        height = std::max(height, tile.place.bottom());
    return height;
}

void drawLabel(QPainter &painter, QPointF at, const QString &text, int pixels, const QColor &color)
{
    QFont font(Fonts().rounded());
    font.setPixelSize(pixels);
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(at, text);
}

using Colors = std::span<QRgb>;

int channel(QRgb color, int n)
{
    return static_cast<int>(color >> (8 * n) & 0xff);
}

/// The channel in which the colours differ most, and by how much.
std::pair<int, int> widestChannel(Colors colors)
{
    std::pair<int, int> widest;
    for (int n = 0; n < 3; ++n) {
        const auto [low, high] = std::ranges::minmax(colors, {}, [n](QRgb c) { return channel(c, n); });
        if (const int range = channel(high, n) - channel(low, n); range > widest.second)
            widest = {n, range};
    }
    return widest;
}

QRgb mean(Colors colors)
{
    std::array<int, 3> sum{};
    for (const QRgb color : colors) {
        for (int n = 0; n < 3; ++n)
            sum.at(n) += channel(color, n);
    }
    const auto count = static_cast<int>(colors.size());
    return qRgb(sum[2] / count, sum[1] / count, sum[0] / count);
}

/// In few colours, so that the file is small: the set of colours is halved where it is widest, again and
/// again.
QImage reduced(const QImage &image)
{
    constexpr size_t few = 128;
    constexpr QRgb noticeable = 0xfffcfcfc;
    QHash<QRgb, int> indices;
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x)
            ++indices[line[x] & noticeable];
    }
    // What covers more counts more, but not so much that the few pixels of a bright line go down.
    QList<QRgb> all;
    for (const auto [color, count] : indices.asKeyValueRange())
        all.append(QList<QRgb>(std::bit_width(static_cast<unsigned>(count)), color));
    // The order of a hash differs from run to run.
    std::ranges::sort(all);
    std::vector<Colors> boxes{all};
    while (boxes.size() < std::min(few, static_cast<size_t>(all.size()))) {
        Colors &box = *std::ranges::max_element(
            boxes, {}, [](Colors c) { return widestChannel(c).second * static_cast<double>(c.size()); });
        const int widest = widestChannel(box).first;
        const size_t half = box.size() / 2;
        std::ranges::nth_element(box, box.begin() + half, {},
                                 [widest](QRgb c) { return channel(c, widest); });
        const Colors rest = box.subspan(half);
        box = box.first(half);
        boxes.push_back(rest);
    }
    QList<QRgb> table;
    for (const Colors box : boxes) {
        for (const QRgb color : box)
            indices[color] = static_cast<int>(table.size());
        table.append(mean(box));
    }
    QImage result(image.size(), QImage::Format_Indexed8);
    result.setColorTable(table);
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x)
            result.scanLine(y)[x] = static_cast<uchar>(indices.value(line[x] & noticeable));
    }
    return result;
}

/// One column of the sheet.
bool drawMachine(QPainter &painter, double left, const State &state)
{
    RecordedMachine machine(state.fare);
    WidgetRenderer renderer(machine.catalog, machine.stores.theme,
                            {.margin = tileMargin, .color = background});
    drawLabel(painter, {left + tileMargin, margin + 14}, state.title, 15, Qt::white);
    double top = margin + 24;
    for (const QString &kind : kinds) {
        const std::vector<Tile> tiles =
            placed(machine.stores.registry.definition(kind)->metadata.allowedSizes);
        for (const Tile &tile : tiles) {
            const QImage image = renderer.render(kind, tile.size, [&machine] {
                for (int n = 0; n < RecordedMachine::period; ++n)
                    machine.second();
            });
            if (image.isNull())
                return false;
            const QPointF at = tile.place.topLeft() + QPointF(left, top);
            painter.drawImage(at, image);
            drawLabel(painter, at + QPointF(tileMargin + 2, 4),
                      kind + QStringLiteral(" · ") + rawValue(tile.size), 9, QColor(140, 150, 170));
        }
        top += heightOf(tiles) + rowGap;
    }
    return true;
}

bool draw(const QString &file)
{
    const test::FakePlatform machine;
    const Stores stores(machine.platform, machine.log);
    const WidgetRegistry &registry = stores.registry;
    double height = 2 * margin + 24;
    for (const QString &kind : kinds)
        height += heightOf(placed(registry.definition(kind)->metadata.allowedSizes)) + rowGap;
    const std::vector<State> all = states();
    const QSizeF size(2 * margin + columnWidth * static_cast<double>(all.size()), height);
    QImage sheet((size * scale).toSize(), QImage::Format_RGB32);
    sheet.setDevicePixelRatio(scale);
    sheet.fill(background);
    QPainter painter(&sheet);
    double left = margin;
    for (const State &state : all) {
        if (!drawMachine(painter, left, state))
            return false;
        left += columnWidth;
    }
    painter.end();
    QImageWriter writer(file, "png");
    writer.setCompression(100);
    return writer.write(reduced(sheet));
}

} // namespace
} // namespace brimlight::bench

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: contact_sheet FILE.png\n");
        return 2;
    }
    const QString file = QString::fromLocal8Bit(argv[1]);
    if (brimlight::bench::draw(file))
        return 0;
    std::fprintf(stderr, "cannot draw %s\n", qPrintable(file));
    return 1;
}
