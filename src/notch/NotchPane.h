#pragma once

#include <QQuickPaintedItem>
#include <QtQmlIntegration>

namespace brimlight {

/// A filled panel outline.
class NotchPane : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)
    Q_PROPERTY(QColor rim READ rim WRITE setRim NOTIFY changed)
    Q_PROPERTY(double bottomRadius READ bottomRadius WRITE setBottomRadius NOTIFY changed)

public:
    explicit NotchPane(QQuickItem *parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    /// A hairline just inside of the outline.
    QColor rim() const { return m_rim; }
    void setRim(const QColor &rim);
    double bottomRadius() const { return m_bottomRadius; }
    void setBottomRadius(double radius);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void changed();

private:
    QColor m_color;
    QColor m_rim;
    double m_bottomRadius = 0;
};

} // namespace brimlight
