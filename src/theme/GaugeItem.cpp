#include "theme/GaugeItem.h"

#include <QPainter>
#include <QQuickPaintedItem>

namespace brimlight {

/// A painted item cannot draw outside of itself, so the gauge paints through a larger one.
class GaugeCanvas : public QQuickPaintedItem
{
public:
    explicit GaugeCanvas(GaugeItem &gauge)
        : QQuickPaintedItem(&gauge)
        , m_gauge(gauge)
    {
    }

    void paint(QPainter *painter) override
    {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(-x(), -y());
        // The scene scales the painter; its device does not know.
        m_gauge.draw(*painter, painter->deviceTransform().m11());
    }

private:
    GaugeItem &m_gauge;
};

GaugeItem::GaugeItem(QQuickItem *parent)
    : QQuickItem(parent)
    , m_canvas(new GaugeCanvas(*this))
{
}

void GaugeItem::setReduceMotion(bool reduce)
{
    m_reduceMotion = reduce;
    if (reduce)
        settle();
    Q_EMIT reduceMotionChanged();
}

bool GaugeItem::animates() const
{
    return m_appeared && !m_reduceMotion && isVisible() && window() != nullptr;
}

void GaugeItem::redraw()
{
    m_canvas->update();
}

void GaugeItem::fitCanvas()
{
    const double margin = overhang();
    m_canvas->setPosition({-margin, -margin});
    m_canvas->setSize({width() + 2 * margin, height() + 2 * margin});
    redraw();
}

void GaugeItem::componentComplete()
{
    QQuickItem::componentComplete();
    fitCanvas();
    noticeAppearance();
}

void GaugeItem::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange || change == ItemVisibleHasChanged) {
        if (isVisible())
            noticeAppearance();
        else
            settle();
    }
}

void GaugeItem::geometryChange(const QRectF &to, const QRectF &from)
{
    QQuickItem::geometryChange(to, from);
    if (to.size() != from.size())
        fitCanvas();
}

void GaugeItem::noticeAppearance()
{
    if (m_appeared || !isComponentComplete() || window() == nullptr || !isVisible())
        return;
    m_appeared = true;
    appeared();
}

} // namespace brimlight
