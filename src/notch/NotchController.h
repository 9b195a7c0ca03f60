#pragma once

#include "core/TraceLog.h"
#include "notch/Dismissal.h"
#include "notch/HoverWatch.h"
#include "notch/NotchContainer.h"
#include "notch/NotchPanel.h"
#include "notch/NotchViewModel.h"
#include "notch/Placement.h"
#include "platform/Pointer.h"
#include "platform/Scheduler.h"
#include "platform/Screens.h"
#include "platform/WorkItem.h"

#include <QObject>
#include <QUrl>
#include <QtQmlIntegration>

#include <optional>

namespace brimlight {

class AppSettings;
class GridStore;
class ThemeStore;
class TickCoordinator;

/// What opens, closes and fills the panel, borrowed.
struct NotchParts
{
    Scheduler &scheduler;
    Screens &screens;
    Pointer &pointer;
    const TraceLog &log;
    NotchViewModel &viewModel;
    GridStore &grid;
    TickCoordinator &ticker;
    const AppSettings &appSettings;
    const ThemeStore &theme;
};

/// The heart of the program: decides when the panel opens, closes and stays pinned. The state is `isExpanded`
/// and `isPinned` of the view model and which of the two delayed works is pending. Views never move the
/// panel: they change the view model or call the operations below.
class NotchController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("created by the process")

public:
    /// A point this far outside of the panel still counts as inside.
    static constexpr double hoverMargin = 6.0;
    /// From the moment the pointer is out to the collapse.
    static constexpr std::chrono::milliseconds collapseDelay{120};

    NotchController(const NotchParts &parts, OverlaySurface &surface);

    /// Places the panel and orders it front; called once. From now on the panel is only ever resized.
    void show();
    /// The only writer of `viewModel().isExpanded`. Leaves pin and settings alone.
    void setExpanded(bool expanded);
    void tapTogglePin();
    /// Clamped to the pages there are.
    void setPage(int index);

    /// The callbacks of the root view; the status menu uses the same.
    Q_INVOKABLE void openSettings();
    Q_INVOKABLE void togglePin() { tapTogglePin(); }
    Q_INVOKABLE void filesDropped(const QList<QUrl> &urls);
    Q_INVOKABLE void requestClose();
    /// Whether any of what is dragged is a local file; nothing else is taken.
    Q_INVOKABLE bool takesDrop(const QList<QUrl> &urls) const;
    /// The panel must not close while the gallery is open; closing it restores the pin.
    Q_INVOKABLE void openGallery();
    Q_INVOKABLE void closeGallery();
    /// To the current page, where there is room.
    Q_INVOKABLE void addWidget(const QString &kind);
    /// Opens and pins.
    void open();
    /// A tap on the bare surface or on the collapsed strip.
    Q_INVOKABLE void tap();
    /// Opens and pins, and asks the view for the status menu where the pointer is.
    void openStatusMenu();

    NotchPanel &panel() { return m_panel; }
    bool isExpandPending() const { return m_expandWork.isPending(); }
    bool isCollapsePending() const { return m_collapseWork.isPending(); }

Q_SIGNALS:
    /// The place is in the surface's coordinates.
    void statusMenuRequested(const QPointF &place);

private:
    void wireContainer();
    void subscribe();
    /// Runs `work` one turn after every notification of `signal`.
    template<typename Sender, typename Signal, typename Work>
    void onNextTurn(Sender *sender, Signal signal, Work work)
    {
        connect(sender, signal, this, [this, work] { m_scheduler.post(*this, work); });
    }

    void handleEnter();
    void handleExit();
    void evaluateHover();
    bool wantsToCollapse() const;
    bool isCursorOverOurUI(double margin) const;
    void leftReleased();

    void reposition();
    Rect frameFor(bool expanded, const Screen &screen) const;
    void resizeIfExpanded();
    int pageCount() const;
    void clampCurrentPage();
    /// A tile that has left the layout has no back to show.
    void clearLostFlip();

    Scheduler &m_scheduler;
    Screens &m_screens;
    Pointer &m_pointer;
    const TraceLog &m_log;
    NotchViewModel &m_viewModel;
    GridStore &m_grid;
    TickCoordinator &m_ticker;
    const AppSettings &m_appSettings;
    const ThemeStore &m_theme;

    NotchPanel m_panel;
    Dismissal m_dismissal;
    NotchContainer m_container;
    HoverWatch m_hoverWatch;

    std::optional<Screen> m_currentScreen;
    /// Whether the panel was pinned when the gallery opened.
    bool m_wasPinned = false;
    WorkItem m_collapseWork;
    WorkItem m_expandWork;
    std::unique_ptr<EventMonitor> m_leftRelease;
};

} // namespace brimlight
