#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQmlIntegration>

namespace brimlight {

/// The outline of the panel, stroked: the sign that files can be dropped.
class NotchOutline : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit NotchOutline(QQuickItem *parent = nullptr)
        : QQuickPaintedItem(parent)
    {
    }

    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    void paint(QPainter *painter) override;

Q_SIGNALS:
    void colorChanged();

private:
    QColor m_color;
};

} // namespace brimlight
