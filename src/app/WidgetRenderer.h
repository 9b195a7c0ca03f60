#pragma once

#include "grid/WidgetCatalog.h"
#include "platform/Appearance.h"
#include "theme/Motion.h"
#include "theme/ThemeStore.h"

#include <QImage>
#include <QQmlEngine>
#include <QQuickRenderControl>
#include <QQuickWindow>

#include <functional>

namespace brimlight {

/// Draws single widgets, as grid tiles, into images. Nothing moves in them: animations are at their end.
class WidgetRenderer
{
public:
    static constexpr double scale = 2;

    /// What a picture shows beside the tile: nothing at first.
    struct Surroundings
    {
        /// Points around the tile.
        double margin = 0;
        QColor color = Qt::transparent;
    };

    WidgetRenderer(WidgetCatalog &catalog, ThemeStore &theme);
    WidgetRenderer(WidgetCatalog &catalog, ThemeStore &theme, const Surroundings &surroundings);
    ~WidgetRenderer();

    /// Null when the view cannot be drawn. `live` runs between the view's appearance and its drawing.
    QImage render(
        const QString &kind, WidgetSize size, const std::function<void()> &live = [] {});

private:
    /// Pictures stand still.
    class Still : public Appearance
    {
    public:
        bool reducesMotion() const override { return true; }
        bool reducesTransparency() const override { return false; }
        bool isDark() const override { return false; }
        void observeChanges(std::function<void()>) override {}
    };

    WidgetCatalog &m_catalog;
    ThemeStore &m_theme;
    double m_margin;
    Still m_still;
    QQmlEngine m_engine;
    Motion m_motion{&m_still};
    QQuickRenderControl m_control;
    QQuickWindow m_window{&m_control};
};

} // namespace brimlight
