#include "notch/NotchScene.h"

#include "theme/Motion.h"

namespace brimlight {

NotchScene::NotchScene(const NotchSceneStores &stores, NotchPanel &panel)
    : m_stores(stores)
    , m_panel(panel)
    , m_tiles(stores.widgets.grid)
    , m_gridDrag(stores.widgets.grid, stores.viewModel)
    , m_catalog(stores.widgets)
    , m_pageControls(stores.widgets.grid, stores.viewModel)
    , m_hud(stores.viewModel)
{
    connect(&m_hud, &HUDFace::changed, this, [this] { m_panel.setHudShown(m_hud.isShown()); });
    // Without transparency there is nothing to see of a blurred desktop.
    const auto applyTransparency = [this] { m_panel.setBlursBehind(!m_stores.motion.isOpaque()); };
    connect(&stores.motion, &Motion::changed, this, applyTransparency);
    applyTransparency();
}

} // namespace brimlight
