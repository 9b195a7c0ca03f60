#include "notch/NotchController.h"

#include "core/AppSettings.h"
#include "core/TickCoordinator.h"
#include "grid/GridStore.h"
#include "theme/ThemeStore.h"

#include <algorithm>
#include <limits>

namespace brimlight {
namespace {

QString boolText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QStringList localFiles(const QList<QUrl> &urls)
{
    QStringList paths;
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return paths;
}

} // namespace

NotchController::NotchController(const NotchParts &parts, OverlaySurface &surface)
    : m_scheduler(parts.scheduler)
    , m_screens(parts.screens)
    , m_pointer(parts.pointer)
    , m_log(parts.log)
    , m_viewModel(parts.viewModel)
    , m_grid(parts.grid)
    , m_ticker(parts.ticker)
    , m_appSettings(parts.appSettings)
    , m_theme(parts.theme)
    , m_panel(surface)
    , m_dismissal(parts.viewModel, m_panel, surface)
    , m_container(surface)
    , m_hoverWatch(parts.pointer, parts.scheduler, [this] { evaluateHover(); })
{
    wireContainer();
    m_screens.observeChanges([this] { m_scheduler.post(*this, [this] { reposition(); }); });
    subscribe();
    m_leftRelease = m_pointer.monitorLeftRelease([this] { leftReleased(); });
}

void NotchController::wireContainer()
{
    const auto unlessOptionsOpen = [this](auto swipe) {
        return [this, swipe] {
            if (!m_viewModel.optionsOpen())
                swipe();
        };
    };
    m_container.setCallbacks(
        {.onEnter = [this] { handleEnter(); },
         .onExit = [this] { handleExit(); },
         .onSwipeLeft = unlessOptionsOpen([this] { setPage(m_viewModel.currentPage() + 1); }),
         .onSwipeRight = unlessOptionsOpen([this] { setPage(m_viewModel.currentPage() - 1); }),
         .onSwipeDown = unlessOptionsOpen([this] { open(); }),
         .onSwipeUp = unlessOptionsOpen([this] { requestClose(); }),
         .onTap = [this] { tap(); },
         .onMenu = [this] { openStatusMenu(); },
         .onEscape = [this] { m_viewModel.dismiss(); },
         .onBackdropChanged = [this] { Q_EMIT m_panel.backdropChanged(); }});
}

void NotchController::subscribe()
{
    onNextTurn(&m_grid, &GridStore::layoutChanged, [this] {
        clampCurrentPage();
        clearLostFlip();
        resizeIfExpanded();
    });
    const auto resize = [this] { resizeIfExpanded(); };
    onNextTurn(&m_viewModel, &NotchViewModel::currentPageChanged, resize);
    const auto applyRefreshRate = [this] { m_ticker.setInterval(interval(m_appSettings.refreshRate())); };
    onNextTurn(&m_appSettings, &AppSettings::refreshRateChanged, applyRefreshRate);
    m_scheduler.post(*this, applyRefreshRate);
    onNextTurn(&m_viewModel, &NotchViewModel::showSettingsChanged, resize);
    onNextTurn(&m_viewModel, &NotchViewModel::hudTypeChanged, resize);
    onNextTurn(&m_viewModel, &NotchViewModel::onboardingCompletedChanged, resize);
}

void NotchController::show()
{
    reposition();
    m_panel.orderFront();
    m_log.trace(QStringLiteral("Notch panel ordered front (theme=%1, widgets=%2, pages=%3)")
                    .arg(m_theme.current().name)
                    .arg(m_grid.layout().instances.size())
                    .arg(pageCount()));
}

void NotchController::setExpanded(bool expanded)
{
    m_expandWork.cancel();
    if (expanded == m_viewModel.isExpanded())
        return;
    const std::optional<Screen> screen =
        m_currentScreen ? m_currentScreen : placement::chooseScreen(m_screens);
    if (!screen) {
        m_viewModel.setExpanded(expanded);
        return;
    }
    m_currentScreen = screen;
    m_panel.setContentVisible(expanded);
    m_viewModel.setExpanded(expanded);
    if (expanded) {
        m_hoverWatch.start();
    } else {
        m_hoverWatch.stop();
        m_collapseWork.cancel();
    }
    m_ticker.setActive(expanded);
    const Rect frame = frameFor(expanded, *screen);
    m_panel.setFrame(frame, true);
    m_log.trace(QStringLiteral("Notch %1 frame=%2")
                    .arg(expanded ? QStringLiteral("EXPANDED") : QStringLiteral("COLLAPSED"),
                         placement::rectString(frame)));
}

void NotchController::tapTogglePin()
{
    m_viewModel.setPinned(!m_viewModel.isPinned());
    setExpanded(m_viewModel.isPinned());
    m_log.trace(QStringLiteral("Tap toggle pin -> pinned=%1").arg(boolText(m_viewModel.isPinned())));
}

void NotchController::setPage(int index)
{
    const int last = pageCount() - 1;
    const int page = std::clamp(index, 0, last);
    if (page == m_viewModel.currentPage())
        return;
    m_viewModel.setCurrentPage(page);
    m_log.trace(QStringLiteral("Page -> %1/%2").arg(page).arg(last));
}

void NotchController::openSettings()
{
    open();
    m_viewModel.setShowSettings(true);
}

void NotchController::filesDropped(const QList<QUrl> &urls)
{
    const QStringList paths = localFiles(urls);
    if (paths.isEmpty())
        return;
    open();
    m_log.trace(QStringLiteral("Files dropped on notch -> shelf (%1 items)").arg(paths.size()));
}

bool NotchController::takesDrop(const QList<QUrl> &urls) const
{
    return !localFiles(urls).isEmpty();
}

void NotchController::requestClose()
{
    m_viewModel.setPinned(false);
    setExpanded(false);
}

void NotchController::openGallery()
{
    m_wasPinned = m_viewModel.isPinned();
    m_viewModel.setPinned(true);
    m_viewModel.setOptionsOpen(true);
}

void NotchController::closeGallery()
{
    m_viewModel.setPinned(m_wasPinned);
    m_viewModel.setOptionsOpen(false);
}

void NotchController::addWidget(const QString &kind)
{
    m_grid.add(kind, m_viewModel.currentPage());
}

void NotchController::open()
{
    m_viewModel.setPinned(true);
    setExpanded(true);
}

void NotchController::tap()
{
    if (m_viewModel.isExpanded())
        requestClose();
    else
        tapTogglePin();
}

void NotchController::openStatusMenu()
{
    const std::optional<Point> place = m_pointer.location();
    open();
    if (place)
        Q_EMIT statusMenuRequested(m_panel.inSurface(*place));
}

void NotchController::handleEnter()
{
    m_collapseWork.cancel();
    if (m_viewModel.isExpanded())
        return;
    m_expandWork.cancel();
    const double delay = m_appSettings.hoverDelay();
    if (delay <= 0) {
        setExpanded(true);
        return;
    }
    // A stored delay can be any number; beyond a day it is as good as never.
    constexpr double day = 86400;
    const auto wait =
        std::chrono::ceil<std::chrono::milliseconds>(std::chrono::duration<double>(std::min(delay, day)));
    m_expandWork.schedule(m_scheduler, wait, [this] {
        if (!m_viewModel.isExpanded() && isCursorOverOurUI(hoverMargin))
            setExpanded(true);
    });
}

void NotchController::handleExit()
{
    m_expandWork.cancel();
    evaluateHover();
}

void NotchController::evaluateHover()
{
    // A drag that ended without a release reaching us must not hold the panel open.
    if (m_viewModel.isDragging() && !m_pointer.isAnyButtonPressed())
        m_viewModel.setDragging(false);
    if (!wantsToCollapse()) {
        m_collapseWork.cancel();
        return;
    }
    if (m_collapseWork.isPending())
        return;
    m_collapseWork.schedule(m_scheduler, collapseDelay, [this] {
        if (wantsToCollapse())
            setExpanded(false);
    });
}

bool NotchController::wantsToCollapse() const
{
    return m_viewModel.isExpanded() && !m_viewModel.isPinned() && !m_viewModel.isDragging() &&
           !isCursorOverOurUI(hoverMargin);
}

bool NotchController::isCursorOverOurUI(double margin) const
{
    const std::optional<Point> location = m_pointer.location();
    return location && m_panel.contains(*location, margin);
}

void NotchController::leftReleased()
{
    if (!m_viewModel.isDragging())
        return;
    m_scheduler.post(*this, [this] {
        m_viewModel.setDragging(false);
        evaluateHover();
    });
}

void NotchController::reposition()
{
    const std::optional<Screen> screen = placement::chooseScreen(m_screens);
    if (!screen) {
        m_log.trace(QStringLiteral("No screen available — skipping placement"));
        return;
    }
    m_currentScreen = screen;
    m_viewModel.setGeometry(NotchGeometry::forScreen(screen));
    const Rect frame = frameFor(m_viewModel.isExpanded(), *screen);
    m_panel.setContentVisible(m_viewModel.isExpanded());
    m_panel.setOverHousing(m_viewModel.geometry().hasNotch);
    m_panel.setFrame(frame, false);
    const NotchGeometry &geometry = m_viewModel.geometry();
    m_log.trace(QStringLiteral("Repositioned on \"%1\": hasNotch=%2 collapsed=%3x%4 frame=%5")
                    .arg(screen->localizedName, boolText(geometry.hasNotch))
                    .arg(static_cast<qint64>(geometry.collapsedWidth))
                    .arg(static_cast<qint64>(geometry.collapsedHeight))
                    .arg(placement::rectString(frame)));
}

Rect NotchController::frameFor(bool expanded, const Screen &screen) const
{
    const placement::Content content{.showSettings = m_viewModel.showSettings(),
                                     .onboardingCompleted = m_viewModel.onboardingCompleted(),
                                     .isExpanded = m_viewModel.isExpanded(),
                                     .rows = m_grid.displayRows(m_viewModel.currentPage()),
                                     .showsHud = m_viewModel.hudType().has_value()};
    const NotchGeometry &geometry = m_viewModel.geometry();
    return placement::frame(expanded, placement::expandedHeight(content, geometry, screen), geometry, screen);
}

void NotchController::resizeIfExpanded()
{
    if (!m_viewModel.isExpanded() || !m_currentScreen)
        return;
    const Rect frame = frameFor(true, *m_currentScreen);
    if (frame != m_panel.frame())
        m_panel.setFrame(frame, true);
}

int NotchController::pageCount() const
{
    // A stored layout can have more pages than anybody turns.
    constexpr qint64 most = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp<qint64>(m_grid.layout().pageCount, 1, most));
}

void NotchController::clearLostFlip()
{
    const std::optional<QUuid> &flipped = m_viewModel.flippedWidgetID();
    if (flipped && !m_grid.instance(*flipped))
        m_viewModel.clearFlip();
}

void NotchController::clampCurrentPage()
{
    if (m_viewModel.currentPage() >= pageCount())
        m_viewModel.setCurrentPage(pageCount() - 1);
}

} // namespace brimlight
