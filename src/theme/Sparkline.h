#pragma once

#include "theme/GaugeItem.h"
#include "theme/GaugeProgress.h"

#include <QColor>
#include <QList>
#include <QPolygonF>

namespace brimlight {

/// Where samples stand in a space of that size: spread evenly over the whole width, 0 at the bottom, 1 at the
/// top, beyond that limited to the edges.
QPolygonF sparklinePoints(const QList<double> &samples, QSizeF size);

/// The first part of a line, by length; `fraction` 0 gives nothing, 1 the whole.
QPolygonF sparklineStart(const QPolygonF &line, double fraction);

/// The samples at `progress` (0 to 1) of the way between two histories; as many as `to` has. A shorter or
/// longer past is stretched over the same width first.
QList<double> sparklineBetween(const QList<double> &from, const QList<double> &to, double progress);

/// A short history as a line above a soft area. Fewer than two samples draw nothing.
///
/// The line uses the whole item, so half of its width stands out at an edge that it touches. It draws itself
/// from left to right when it first appears; the area is there at once.
class Sparkline : public brimlight::GaugeItem
{
    Q_OBJECT
    QML_ELEMENT
    /// Oldest first, 0 to 1. The chart does not scale to them.
    Q_PROPERTY(QList<double> values READ values WRITE setValues NOTIFY valuesChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit Sparkline(QQuickItem *parent = nullptr);

    QList<double> values() const { return m_values; }
    void setValues(const QList<double> &values);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);

    double overhang() const override;
    void draw(QPainter &painter, double devicePixelRatio) override;

Q_SIGNALS:
    void valuesChanged();
    void colorChanged();

protected:
    void appeared() override;
    void settle() override;

private:
    QList<double> shown() const;
    /// Draws a change anew once a sample has moved by more than what can be seen.
    void follow();
    /// Of any sample between two histories, in points.
    double longestWay(const QList<double> &from, const QList<double> &to) const;

    QList<double> m_values;
    QList<double> m_before;
    QColor m_color = Qt::white;
    double m_way = 0;
    GaugeProgress m_change;
    /// The progress of the change that the picture shows.
    double m_drawn = 1;
    GaugeProgress m_reveal;
};

} // namespace brimlight
