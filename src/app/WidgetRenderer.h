#pragma once

#include "grid/WidgetCatalog.h"
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
    WidgetCatalog &m_catalog;
    ThemeStore &m_theme;
    QQmlEngine m_engine;
    QQuickRenderControl m_control;
    QQuickWindow m_window{&m_control};
};

} // namespace brimlight
