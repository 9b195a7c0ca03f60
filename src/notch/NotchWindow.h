#pragma once

#include "core/UiTranslator.h"
#include "notch/ScrollableContent.h"
#include "platform/OverlaySurface.h"

#include <QQmlEngine>
#include <QQuickView>

#include <functional>
#include <memory>

namespace brimlight {

/// Builds the surface for a window that has not been shown yet.
using SurfaceFactory = std::function<std::unique_ptr<OverlaySurface>(QWindow &)>;

class NotchController;
class NotchScene;

/// The window that carries the view tree.
class NotchWindow : public QObject
{
public:
    explicit NotchWindow(const SurfaceFactory &makeSurface);
    ~NotchWindow() override;

    OverlaySurface &surface() { return *m_surface; }
    /// Shows the view tree. Both must outlive it, which `unhost` ends.
    void host(NotchScene &scene, NotchController &controller);
    void unhost();
    QQuickView &view() { return m_view; }

private:
    void followFocus();
    /// Texts speak of a notch only where there is one.
    void followHousing(bool hasNotch);
    void leaveControl();

    QQmlEngine m_engine;
    std::unique_ptr<UiTranslator> m_translator;
    QQuickView m_view;
    ScrollableContent m_scrollable{*m_view.contentItem()};
    std::unique_ptr<OverlaySurface> m_surface;
};

} // namespace brimlight
