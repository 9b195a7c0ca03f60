#pragma once

#include <QQuickItem>
#include <QtQmlIntegration>

class QPainter;

namespace brimlight {

class GaugeCanvas;

/// What gauges share: they honour reduced motion, notice when they appear, and may draw beyond their own
/// edges.
class GaugeItem : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(GaugeItem)
    QML_UNCREATABLE("a base")
    /// The user asked for less motion: every change is drawn at once.
    Q_PROPERTY(bool reduceMotion READ reduceMotion WRITE setReduceMotion NOTIFY reduceMotionChanged)

public:
    bool reduceMotion() const { return m_reduceMotion; }
    void setReduceMotion(bool reduce);

    /// How far the drawing may stand out at each edge, in points.
    virtual double overhang() const = 0;
    /// Draws in the item's own coordinates.
    virtual void draw(QPainter &painter, double devicePixelRatio) = 0;

Q_SIGNALS:
    void reduceMotionChanged();

protected:
    explicit GaugeItem(QQuickItem *parent);

    /// Whether a change made now should be seen moving: the item has appeared, is visible, and motion is
    /// wanted.
    bool animates() const;
    void redraw();
    /// After a change of `overhang()`.
    void fitCanvas();

    /// The item is visible for the first time.
    virtual void appeared() = 0;
    /// End every movement: the item is hidden, or motion no longer wanted.
    virtual void settle() = 0;

    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &to, const QRectF &from) override;

private:
    void noticeAppearance();

    GaugeCanvas *m_canvas;
    bool m_reduceMotion = false;
    bool m_appeared = false;
};

} // namespace brimlight
