#include "theme/SymbolTable.h"

#include <QLatin1StringView>

#include <algorithm>
#include <array>

namespace brimlight {
namespace {

// Sorted by name. The build reads the pairs from here as well: one pair a line, both in quotes.
constexpr auto table = std::to_array<SymbolEntry>({
    {"arrow.clockwise", "arrow-clockwise"},
    {"arrow.counterclockwise", "arrow-counterclockwise"},
    {"arrow.down", "arrow-down"},
    {"arrow.down.asymmetric.and.arrow.up.asymmetric", "arrow-down-up"},
    {"arrow.down.right", "arrow-down-right"},
    {"arrow.left.and.right.righttriangle.left.righttriangle.right", "layout-split"},
    {"arrow.left.and.right.righttriangle.left.righttriangle.right.fill", "symmetry-vertical"},
    {"arrow.left.arrow.right", "arrow-left-right"},
    {"arrow.triangle.2.circlepath", "arrow-repeat"},
    {"arrow.up", "arrow-up"},
    {"arrow.up.right", "arrow-up-right"},
    {"backward.fill", "rewind-fill"},
    {"battery.100", "battery-full"},
    {"bitcoinsign.circle", "currency-bitcoin"},
    {"bolt.fill", "lightning-charge-fill"},
    {"brain.head.profile", "bullseye"},
    {"calculator", "calculator"},
    {"calendar", "calendar3"},
    {"calendar.badge.clock", "calendar-event"},
    {"camera.fill", "camera-fill"},
    {"character.bubble", "translate"},
    {"chart.line.uptrend.xyaxis", "graph-up-arrow"},
    {"chart.pie.fill", "pie-chart-fill"},
    {"chart.xyaxis.line", "graph-up"},
    {"checklist", "list-check"},
    {"checkmark", "check-lg"},
    {"checkmark.circle.fill", "check-circle-fill"},
    {"checkmark.seal.fill", "patch-check-fill"},
    {"chevron.down", "chevron-down"},
    {"chevron.left", "chevron-left"},
    {"chevron.right", "chevron-right"},
    {"circle", "circle"},
    {"circle.fill", "circle-fill"},
    {"clock", "clock"},
    {"clock.circle", "clock-fill"},
    {"cloud.bolt.fill", "cloud-lightning-fill"},
    {"cloud.bolt.rain.fill", "cloud-lightning-rain-fill"},
    {"cloud.drizzle.fill", "cloud-drizzle-fill"},
    {"cloud.fill", "cloud-fill"},
    {"cloud.fog.fill", "cloud-fog-fill"},
    {"cloud.heavyrain.fill", "cloud-rain-heavy-fill"},
    {"cloud.moon.fill", "cloud-moon-fill"},
    {"cloud.rain.fill", "cloud-rain-fill"},
    {"cloud.snow.fill", "cloud-snow-fill"},
    {"cloud.sun.fill", "cloud-sun-fill"},
    {"cpu", "cpu"},
    {"cross.case", "heart-pulse"},
    {"cross.case.fill", "heart-pulse-fill"},
    {"cup.and.saucer.fill", "cup-hot-fill"},
    {"cursorarrow.motionlines", "hand-index"},
    {"die.face.5.fill", "dice-5-fill"},
    {"doc.on.clipboard", "clipboard"},
    {"doc.on.doc", "files"},
    {"dollarsign.arrow.circlepath", "currency-exchange"},
    {"drop.fill", "droplet-fill"},
    {"exclamationmark.triangle.fill", "exclamation-triangle-fill"},
    {"eye", "eye"},
    {"eye.fill", "eye-fill"},
    {"eye.slash.fill", "eye-slash-fill"},
    {"forward.fill", "fast-forward-fill"},
    {"gauge", "speedometer2"},
    {"gauge.with.dots.needle.33percent", "speedometer"},
    {"gearshape", "gear"},
    {"gearshape.fill", "gear-fill"},
    {"globe", "globe"},
    {"hourglass", "hourglass-split"},
    {"internaldrive", "hdd"},
    {"key.fill", "key-fill"},
    {"location.magnifyingglass", "search"},
    {"lock.shield.fill", "shield-lock-fill"},
    {"macbook", "laptop"},
    {"macwindow.badge.plus", "window-plus"},
    {"mic.fill", "mic-fill"},
    {"mic.slash.fill", "mic-mute-fill"},
    {"minus", "dash-lg"},
    {"minus.circle.fill", "dash-circle-fill"},
    {"moon.fill", "moon-fill"},
    {"moon.stars.fill", "moon-stars-fill"},
    {"music.note", "music-note"},
    {"network", "diagram-3"},
    {"note.text", "sticky"},
    {"paintpalette", "palette"},
    {"paintpalette.fill", "palette-fill"},
    {"paperplane", "send"},
    {"pause.fill", "pause-fill"},
    {"pencil", "pencil"},
    {"pin", "pin-angle"},
    {"pin.fill", "pin-angle-fill"},
    {"play.circle.fill", "play-circle-fill"},
    {"play.fill", "play-fill"},
    {"plus", "plus-lg"},
    {"plus.circle.fill", "plus-circle-fill"},
    {"plus.square", "plus-square"},
    {"power", "power"},
    {"questionmark.circle", "question-circle"},
    {"rectangle.topthird.inset.filled", "window"},
    {"ruler", "rulers"},
    {"scalemass", "handbag-fill"},
    {"slider.horizontal.3", "sliders"},
    {"sparkles", "stars"},
    {"speaker.slash.fill", "volume-mute-fill"},
    {"speaker.wave.1.fill", "volume-off-fill"},
    {"speaker.wave.2", "volume-up"},
    {"speaker.wave.2.fill", "volume-down-fill"},
    {"speaker.wave.3.fill", "volume-up-fill"},
    {"square.and.arrow.up", "box-arrow-up"},
    {"square.grid.2x2", "grid"},
    {"square.stack.3d.up", "layers"},
    {"stop.fill", "stop-fill"},
    {"stopwatch", "stopwatch"},
    {"sun.and.horizon.fill", "brightness-alt-high-fill"},
    {"sun.max", "sun"},
    {"sun.max.fill", "sun-fill"},
    {"sunrise.fill", "sunrise-fill"},
    {"sunset.fill", "sunset-fill"},
    {"switch.2", "toggles"},
    {"terminal", "terminal"},
    {"thermometer.medium", "thermometer-half"},
    {"timer", "clock-history"},
    {"trash", "trash3"},
    {"trash.fill", "trash3-fill"},
    {"tray.and.arrow.down", "box-arrow-in-down"},
    {"tray.full", "inbox-fill"},
    {"waveform", "soundwave"},
    {"wind", "wind"},
    {"xmark", "x-lg"},
    {"xmark.circle.fill", "x-circle-fill"},
});

static_assert(std::ranges::is_sorted(table, {}, &SymbolEntry::name));

constexpr std::string_view unknown = "questionmark.circle";

const SymbolEntry &entry(std::string_view name)
{
    const auto found = std::ranges::lower_bound(table, name, {}, &SymbolEntry::name);
    if (found != table.end() && found->name == name)
        return *found;
    return *std::ranges::lower_bound(table, unknown, {}, &SymbolEntry::name);
}

} // namespace

std::span<const SymbolEntry> symbolTable()
{
    return table;
}

std::string_view symbolPicture(QStringView name)
{
    const QByteArray bytes = name.toUtf8();
    return entry(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size()))).picture;
}

QString symbolResource(std::string_view picture)
{
    return QStringLiteral(":/brimlight/symbols/") +
           QLatin1StringView(picture.data(), static_cast<qsizetype>(picture.size())) + QStringLiteral(".svg");
}

} // namespace brimlight
