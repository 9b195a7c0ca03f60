#pragma once

#include "core/UiTranslator.h"
#include "notch/NotchController.h"

#include <QQmlEngine>
#include <QQuickView>

#include <memory>

namespace brimlight {

/// Builds the surface for a window that has not been shown yet.
using SurfaceFactory = std::function<std::unique_ptr<OverlaySurface>(QWindow &)>;

/// The window that carries the view tree.
class NotchWindow : public QObject, public NotchHosting
{
public:
    explicit NotchWindow(const SurfaceFactory &makeSurface);
    ~NotchWindow() override;

    OverlaySurface &surface() override { return *m_surface; }
    void host(NotchController &controller) override;
    void unhost() override;
    QQuickView &view() { return m_view; }

private:
    void followFocus();
    void leaveControl();

    QQmlEngine m_engine;
    std::unique_ptr<UiTranslator> m_translator;
    QQuickView m_view;
    std::unique_ptr<OverlaySurface> m_surface;
};

} // namespace brimlight
