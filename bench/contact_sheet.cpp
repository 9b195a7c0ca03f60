// Draws the widgets of the machine at all their sizes, on four recorded machines, into one picture.
//
//   contact_sheet docs/system-widgets.png
//
// Nothing of this machine shows in it, so it can be kept and compared.

#include "RecordedMachine.h"
#include "app/WidgetRenderer.h"
#include "theme/Fonts.h"

#include <QGuiApplication>
#include <QImageWriter>
#include <QPainter>

#include <cstdio>

namespace brimlight::bench {
namespace {

constexpr double scale = WidgetRenderer::scale;
constexpr double margin = 20;
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
              .down = 900,
              .up = 120,
              .volume = {.total = 64'000'000'000, .available = 10'200'000'000},
              .uptime = 2'520}},
            {QStringLiteral("A virtual machine"),
             {.kind = test::MachineKind::virtualMachine,
              .load = 0.74,
              .memory = 0.41,
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
        const QSizeF picture = WidgetRenderer::pictureSize(size);
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

/// The last bits of the gradients, which nobody sees, are most of the file.
void coarsen(QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] &= 0xfffcfcfc;
    }
}

/// One column of the sheet.
bool drawMachine(QPainter &painter, double left, const State &state)
{
    RecordedMachine machine(state.fare);
    WidgetRenderer renderer(machine.catalog, machine.theme);
    drawLabel(painter, {left + WidgetRenderer::margin, margin + 14}, state.title, 15, Qt::white);
    double top = margin + 24;
    for (const QString &kind : kinds) {
        const std::vector<Tile> tiles = placed(machine.registry.definition(kind)->metadata.allowedSizes);
        for (const Tile &tile : tiles) {
            const QImage image = renderer.render(kind, tile.size, [&machine] {
                for (int n = 0; n < RecordedMachine::period; ++n)
                    machine.second();
            });
            if (image.isNull())
                return false;
            const QPointF at = tile.place.topLeft() + QPointF(left, top);
            painter.drawImage(at, image);
            drawLabel(painter, at + QPointF(WidgetRenderer::margin + 2, 4),
                      kind + QStringLiteral(" · ") + rawValue(tile.size), 9, QColor(140, 150, 170));
        }
        top += heightOf(tiles) + rowGap;
    }
    return true;
}

bool draw(const QString &file)
{
    const WidgetRegistry registry(allWidgets());
    double height = 2 * margin + 24;
    for (const QString &kind : kinds)
        height += heightOf(placed(registry.definition(kind)->metadata.allowedSizes)) + rowGap;
    const std::vector<State> all = states();
    const QSizeF size(2 * margin + columnWidth * static_cast<double>(all.size()), height);
    QImage sheet((size * scale).toSize(), QImage::Format_RGB32);
    sheet.setDevicePixelRatio(scale);
    sheet.fill(WidgetRenderer::background);
    QPainter painter(&sheet);
    double left = margin;
    for (const State &state : all) {
        if (!drawMachine(painter, left, state))
            return false;
        left += columnWidth;
    }
    painter.end();
    coarsen(sheet);
    QImageWriter writer(file, "png");
    writer.setCompression(100);
    return writer.write(sheet);
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
