#pragma once

#include "core/AppPaths.h"
#include "core/AppSettings.h"
#include "core/LoginItemService.h"
#include "core/TickCoordinator.h"
#include "core/TraceLog.h"
#include "grid/GridDrag.h"
#include "grid/GridStore.h"
#include "grid/TileModel.h"
#include "grid/WidgetCatalog.h"
#include "notch/HUDFace.h"
#include "notch/HoverWatch.h"
#include "notch/NotchContainer.h"
#include "notch/NotchPanel.h"
#include "notch/NotchViewModel.h"
#include "notch/PageControls.h"
#include "notch/Placement.h"
#include "platform/Platform.h"
#include "platform/WorkItem.h"
#include "sensors/SensorStores.h"
#include "sensors/SystemBrightnessMonitor.h"
#include "sensors/SystemStatusMonitor.h"
#include "sensors/SystemVolumeMonitor.h"
#include "theme/Motion.h"
#include "theme/ThemeStore.h"
#include "update/UpdateService.h"

#include <QObject>
#include <QUrl>
#include <QtQmlIntegration>

namespace brimlight {

class NotchController;

/// Shows the view tree of a controller on the surface that the controller was given.
class NotchHosting
{
public:
    virtual ~NotchHosting() = default;
    virtual OverlaySurface &surface() = 0;
    virtual void host(NotchController &controller) = 0;
    /// The controller is about to go: nothing may stay bound to it.
    virtual void unhost() = 0;
};

/// The heart of the program: owns the stores and the panel and decides when the panel opens, closes and stays
/// pinned. The state is `isExpanded` and `isPinned` of the view model and which of the two delayed works is
/// pending. Views never move the panel: they change the view model or call the four operations below.
class NotchController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("created by the process")
    Q_PROPERTY(brimlight::NotchViewModel *viewModel READ viewModel CONSTANT)
    Q_PROPERTY(brimlight::NotchPanel *panel READ panel CONSTANT)
    Q_PROPERTY(brimlight::ThemeStore *theme READ theme CONSTANT)
    Q_PROPERTY(brimlight::AppSettings *appSettings READ appSettings CONSTANT)
    Q_PROPERTY(brimlight::LoginItemService *loginItem READ loginItem CONSTANT)
    Q_PROPERTY(brimlight::UpdateService *updater READ updater CONSTANT)
    Q_PROPERTY(brimlight::TickCoordinator *ticker READ ticker CONSTANT)
    Q_PROPERTY(brimlight::SystemStatusMonitor *statusMonitor READ statusMonitor CONSTANT)
    Q_PROPERTY(brimlight::GridStore *grid READ grid CONSTANT)
    Q_PROPERTY(brimlight::TileModel *tiles READ tiles CONSTANT)
    Q_PROPERTY(brimlight::GridDrag *gridDrag READ gridDrag CONSTANT)
    Q_PROPERTY(brimlight::WidgetCatalog *catalog READ catalog CONSTANT)
    Q_PROPERTY(brimlight::HUDFace *hud READ hud CONSTANT)
    Q_PROPERTY(brimlight::PageControls *pageControls READ pageControls CONSTANT)

public:
    /// A point this far outside of the panel still counts as inside.
    static constexpr double hoverMargin = 6.0;
    /// From the moment the pointer is out to the collapse.
    static constexpr std::chrono::milliseconds collapseDelay{120};
    /// From the last change to the end of the heads-up display.
    static constexpr std::chrono::milliseconds hudDuration{1500};

    NotchController(const Platform &platform, NotchHosting &hosting, const TraceLog &log,
                    const WidgetRegistry &widgets);
    ~NotchController() override;

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

    NotchViewModel *viewModel() { return &m_viewModel; }
    NotchPanel *panel() { return &m_panel; }
    ThemeStore *theme() { return &m_theme; }
    Motion &motion() { return m_motion; }
    GridStore *grid() { return &m_grid; }
    TileModel *tiles() { return &m_tiles; }
    GridDrag *gridDrag() { return &m_gridDrag; }
    WidgetCatalog *catalog() { return &m_catalog; }
    HUDFace *hud() { return &m_hud; }
    PageControls *pageControls() { return &m_pageControls; }
    AppSettings *appSettings() { return &m_appSettings; }
    LoginItemService *loginItem() { return &m_loginItem; }
    UpdateService *updater() { return &m_updater; }
    TickCoordinator *ticker() { return &m_ticker; }
    SensorStores &sensors() { return m_sensors; }
    SystemStatusMonitor *statusMonitor() { return &m_statusMonitor; }
    const SystemVolumeMonitor &volumeMonitor() const { return m_volumeMonitor; }
    const SystemBrightnessMonitor &brightnessMonitor() const { return m_brightnessMonitor; }
    bool isExpandPending() const { return m_expandWork.isPending(); }
    bool isCollapsePending() const { return m_collapseWork.isPending(); }

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

    /// Shows the heads-up display for a while, unless the panel is open.
    void triggerHUD(const HUDType &type);

    void reposition();
    Rect frameFor(bool expanded, const Screen &screen) const;
    void resizeIfExpanded();
    int pageCount() const;
    void clampCurrentPage();
    /// A tile that has left the layout has no back to show.
    void clearLostFlip();
    /// The usage graph needs its history at once when the panel opens; anything else is sampled for eyes
    /// only.
    void updateHistorySampling();

    NotchHosting &m_hosting;
    Scheduler &m_scheduler;
    Screens &m_screens;
    Pointer &m_pointer;
    const TraceLog &m_log;

    // In the order in which they come into being: later ones take the state of earlier ones.
    Motion m_motion;
    NotchViewModel m_viewModel;
    ThemeStore m_theme;
    GridStore m_grid;
    TickCoordinator m_ticker;
    LoginItemService m_loginItem;
    AppSettings m_appSettings;
    UpdateService m_updater;
    SensorStores m_sensors;
    SystemStatusMonitor m_statusMonitor;
    WidgetEnvironment m_environment;
    TileModel m_tiles;
    GridDrag m_gridDrag;
    WidgetCatalog m_catalog;
    PageControls m_pageControls;
    SystemVolumeMonitor m_volumeMonitor;
    SystemBrightnessMonitor m_brightnessMonitor;
    HUDFace m_hud;
    NotchPanel m_panel;
    NotchContainer m_container;
    HoverWatch m_hoverWatch;

    std::optional<Screen> m_currentScreen;
    /// Whether the panel was pinned when the gallery opened.
    bool m_wasPinned = false;
    WorkItem m_hudWorkItem;
    WorkItem m_collapseWork;
    WorkItem m_expandWork;
    std::unique_ptr<EventMonitor> m_leftRelease;
};

} // namespace brimlight
