#pragma once

#include "grid/WidgetCatalog.h"
#include "platform/Appearance.h"
#include "theme/Motion.h"
#include "theme/ThemeStore.h"

#include <QImage>
#include <QQmlEngine>
#include <QQuickRenderControl>
#include <QQuickWindow>

namespace brimlight {

/// Draws single widgets, as grid tiles, into images. Nothing moves in them: animations are at their end.
class WidgetRenderer
{
public:
    static constexpr double scale = 2;

    WidgetRenderer(WidgetCatalog &catalog, ThemeStore &theme);
    ~WidgetRenderer();

    /// Null when the view cannot be drawn.
    QImage render(const QString &kind, WidgetSize size);

private:
    /// Pictures stand still.
    class Still : public Appearance
    {
    public:
        bool reducesMotion() const override { return true; }
        bool reducesTransparency() const override { return false; }
        void observeChanges(std::function<void()>) override {}
    };

    WidgetCatalog &m_catalog;
    ThemeStore &m_theme;
    Still m_still;
    QQmlEngine m_engine;
    Motion m_motion{&m_still};
    QQuickRenderControl m_control;
    QQuickWindow m_window{&m_control};
};

} // namespace brimlight
