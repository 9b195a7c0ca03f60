#include "app/WidgetRenderer.h"

#include "grid/GridMetrics.h"

#include <QCoreApplication>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickRenderTarget>

namespace brimlight {

WidgetRenderer::WidgetRenderer(WidgetCatalog &catalog, ThemeStore &theme)
    : WidgetRenderer(catalog, theme, Surroundings{})
{
}

WidgetRenderer::WidgetRenderer(WidgetCatalog &catalog, ThemeStore &theme, const Surroundings &surroundings)
    : m_catalog(catalog)
    , m_theme(theme)
    , m_margin(surroundings.margin)
{
    m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    m_window.setColor(surroundings.color);
    m_motion.installOn(m_engine);
}

WidgetRenderer::~WidgetRenderer() = default;

QImage WidgetRenderer::render(const QString &kind, WidgetSize size, const std::function<void()> &live)
{
    const QSizeF tile = gridMetrics::rectangle(size);
    const QSizeF whole = tile + QSizeF(2 * m_margin, 2 * m_margin);
    QQmlComponent &component =
        m_catalog.component(m_engine, QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Grid/RenderedTile.qml")));
    const std::unique_ptr<QObject> made(
        component.createWithInitialProperties({{QStringLiteral("catalog"), QVariant::fromValue(&m_catalog)},
                                               {QStringLiteral("theme"), QVariant::fromValue(&m_theme)},
                                               {QStringLiteral("kind"), kind},
                                               {QStringLiteral("size"), rawValue(size)}}));
    auto *item = qobject_cast<QQuickItem *>(made.get());
    if (!item) {
        qWarning("%s", qPrintable(component.errorString()));
        return {};
    }
    if (item->property("isBroken").toBool())
        return {};
    item->setSize(tile);
    item->setPosition({m_margin, m_margin});
    item->setParentItem(m_window.contentItem());
    m_window.setGeometry(0, 0, static_cast<int>(whole.width()), static_cast<int>(whole.height()));
    m_window.contentItem()->setSize(whole);

    QImage image((whole * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(m_window.color());
    QQuickRenderTarget target = QQuickRenderTarget::fromPaintDevice(&image);
    target.setDevicePixelRatio(scale);
    m_window.setRenderTarget(target);
    live();
    // Zero-length animations and posted work end within a turn.
    QCoreApplication::processEvents();
    m_control.polishItems();
    m_control.beginFrame();
    m_control.sync();
    m_control.render();
    m_control.endFrame();
    return image;
}

} // namespace brimlight
