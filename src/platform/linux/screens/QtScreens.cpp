#include "platform/linux/screens/QtScreens.h"

#include <QGuiApplication>

#include <cmath>

namespace brimlight {
namespace {

QRectF primaryFrame()
{
    const QScreen *primary = QGuiApplication::primaryScreen();
    return primary ? QRectF(primary->geometry()) : QRectF();
}

/// Qt keeps a nameless stand-in without an area while no output is connected.
bool isReal(const QScreen &screen)
{
    return !screen.geometry().isEmpty();
}

bool isBuiltIn(const QString &connector)
{
    return connector.startsWith(QLatin1String("eDP")) || connector.startsWith(QLatin1String("LVDS")) ||
           connector.startsWith(QLatin1String("DSI"));
}

} // namespace

Rect flipped(const QRectF &rect, const QRectF &primary)
{
    return {rect.x() - primary.x(), primary.y() + primary.height() - rect.y() - rect.height(), rect.width(),
            rect.height()};
}

QRectF unflipped(const Rect &rect, const QRectF &primary)
{
    return {rect.x + primary.x(), primary.y() + primary.height() - rect.y - rect.height, rect.width,
            rect.height};
}

void applyCutout(Screen &screen, const DisplayPanelData &panel, double devicePixelRatio)
{
    if (!panel.topCutout || devicePixelRatio <= 0)
        return;
    const bool sameSize = std::abs(screen.frame.width * devicePixelRatio - panel.width) < 2 &&
                          std::abs(screen.frame.height * devicePixelRatio - panel.height) < 2;
    if (!sameSize)
        return;
    const QRectF &cutout = *panel.topCutout;
    const double bottom = cutout.bottom() / devicePixelRatio;
    const double left = cutout.left() / devicePixelRatio;
    const double right = cutout.right() / devicePixelRatio;
    screen.safeAreaTop = bottom;
    const double y = screen.frame.maxY() - bottom;
    screen.auxiliaryTopLeftArea = Rect{screen.frame.x, y, left, bottom};
    screen.auxiliaryTopRightArea = Rect{screen.frame.x + right, y, screen.frame.width - right, bottom};
}

QtScreens::QtScreens(const std::optional<DisplayPanelData> &panel)
    : m_panel(panel)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (QScreen *screen : screens)
        watch(screen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen *screen) {
        watch(screen);
        changed();
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, [this] { changed(); });
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, [this] { changed(); });
}

std::vector<Screen> QtScreens::screens() const
{
    std::vector<Screen> described;
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens) {
        if (isReal(*screen))
            described.push_back(describe(*screen));
    }
    return described;
}

std::optional<Screen> QtScreens::mainScreen() const
{
    const QScreen *primary = QGuiApplication::primaryScreen();
    return primary && isReal(*primary) ? std::optional(describe(*primary)) : std::nullopt;
}

void QtScreens::observeChanges(std::function<void()> changed)
{
    m_changed = std::move(changed);
}

void QtScreens::workspaceChanged()
{
    changed();
}

void QtScreens::watch(QScreen *screen)
{
    connect(screen, &QScreen::geometryChanged, this, [this] { changed(); });
    connect(screen, &QScreen::availableGeometryChanged, this, [this] { changed(); });
    connect(screen, &QScreen::physicalDotsPerInchChanged, this, [this] { changed(); });
}

void QtScreens::changed()
{
    if (m_changed)
        m_changed();
}

Screen QtScreens::describe(const QScreen &screen) const
{
    const QRectF primary = primaryFrame();
    Screen described{.localizedName = screen.name(),
                     .frame = flipped(screen.geometry(), primary),
                     .visibleFrame = flipped(screen.availableGeometry(), primary)};
    if (m_panel && isBuiltIn(screen.name()))
        applyCutout(described, *m_panel, screen.devicePixelRatio());
    return described;
}

} // namespace brimlight
