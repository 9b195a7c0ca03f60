#pragma once

#include "core/AppSettings.h"
#include "core/LoginItemService.h"
#include "grid/GridDrag.h"
#include "grid/GridStore.h"
#include "grid/TileModel.h"
#include "grid/WidgetCatalog.h"
#include "notch/HUDFace.h"
#include "notch/NotchPanel.h"
#include "notch/NotchViewModel.h"
#include "notch/PageControls.h"
#include "notch/PanelMenu.h"
#include "notch/SystemStatusMonitor.h"
#include "theme/ThemeStore.h"
#include "update/UpdateService.h"

#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

class Motion;

/// The stores that the view tree shows, borrowed.
struct NotchSceneStores
{
    NotchViewModel &viewModel;
    const WidgetEnvironment &widgets;
    LoginItemService &loginItem;
    UpdateService &updater;
    SystemStatusMonitor &statusMonitor;
    Motion &motion;
};

/// All that the view tree shows: the stores, the panel, and the models and faces that only views need. What
/// views do with the panel goes to the controller.
class NotchScene : public QObject
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
    Q_PROPERTY(brimlight::SystemStatusMonitor *statusMonitor READ statusMonitor CONSTANT)
    Q_PROPERTY(brimlight::GridStore *grid READ grid CONSTANT)
    Q_PROPERTY(brimlight::TileModel *tiles READ tiles CONSTANT)
    Q_PROPERTY(brimlight::GridDrag *gridDrag READ gridDrag CONSTANT)
    Q_PROPERTY(brimlight::WidgetCatalog *catalog READ catalog CONSTANT)
    Q_PROPERTY(brimlight::HUDFace *hud READ hud CONSTANT)
    Q_PROPERTY(brimlight::PageControls *pageControls READ pageControls CONSTANT)
    Q_PROPERTY(brimlight::PanelMenu *statusMenu READ statusMenu CONSTANT)

public:
    NotchScene(const NotchSceneStores &stores, NotchPanel &panel);

    NotchViewModel *viewModel() { return &m_stores.viewModel; }
    NotchPanel *panel() { return &m_panel; }
    ThemeStore *theme() { return &m_stores.widgets.theme; }
    AppSettings *appSettings() { return &m_stores.widgets.settings; }
    LoginItemService *loginItem() { return &m_stores.loginItem; }
    UpdateService *updater() { return &m_stores.updater; }
    SystemStatusMonitor *statusMonitor() { return &m_stores.statusMonitor; }
    GridStore *grid() { return &m_stores.widgets.grid; }
    TileModel *tiles() { return &m_tiles; }
    GridDrag *gridDrag() { return &m_gridDrag; }
    WidgetCatalog *catalog() { return &m_catalog; }
    HUDFace *hud() { return &m_hud; }
    PageControls *pageControls() { return &m_pageControls; }
    PanelMenu *statusMenu() { return &m_statusMenu; }
    Motion &motion() { return m_stores.motion; }

private:
    NotchSceneStores m_stores;
    NotchPanel &m_panel;
    TileModel m_tiles;
    GridDrag m_gridDrag;
    WidgetCatalog m_catalog;
    PageControls m_pageControls;
    PanelMenu m_statusMenu;
    HUDFace m_hud;
};

} // namespace brimlight
