#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQmlIntegration>

namespace brimlight {

/// The outline of the panel: a line along it, or all that it holds.
class NotchOutline : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(bool filled READ isFilled WRITE setFilled NOTIFY filledChanged)

public:
    explicit NotchOutline(QQuickItem *parent = nullptr)
        : QQuickPaintedItem(parent)
    {
    }

    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    /// False at first.
    bool isFilled() const { return m_filled; }
    void setFilled(bool filled);
    void paint(QPainter *painter) override;

Q_SIGNALS:
    void colorChanged();
    void filledChanged();

private:
    QColor m_color;
    bool m_filled = false;
};

} // namespace brimlight
