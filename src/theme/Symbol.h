#pragma once

#include <QColor>
#include <QPainterPath>
#include <QQuickPaintedItem>
#include <QtQmlIntegration>

#include <vector>

namespace brimlight {

/// A symbol of the interface, drawn in one colour.
///
/// Its natural size is the square that a symbol beside text of `size` takes. In a larger item it is drawn in
/// the middle at its natural size; a smaller item shrinks it. It keeps nothing but its outline, so colours
/// may change at will.
class Symbol : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// A name of the symbol table. Any other name, the empty one too, shows a question mark in a circle.
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    /// The size in points of the text that the symbol belongs to; above 0.
    Q_PROPERTY(double size READ size WRITE setSize NOTIFY sizeChanged)
    /// As of fonts: Font.Normal (400) draws the picture as it is, more thickens its lines, up to Font.Bold
    /// (700).
    Q_PROPERTY(int weight READ weight WRITE setWeight NOTIFY weightChanged)
    /// Draws a weather symbol in the colours of what it shows, `color` for the cloud; no effect on other
    /// symbols.
    Q_PROPERTY(bool multicolor READ multicolor WRITE setMulticolor NOTIFY multicolorChanged)

public:
    explicit Symbol(QQuickItem *parent = nullptr);

    QString name() const { return m_name; }
    void setName(const QString &name);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    double size() const { return m_size; }
    void setSize(double size);
    int weight() const { return m_weight; }
    void setWeight(int weight);
    bool multicolor() const { return m_multicolor; }
    void setMulticolor(bool multicolor);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void nameChanged();
    void colorChanged();
    void sizeChanged();
    void weightChanged();
    void multicolorChanged();

private:
    /// What the weight adds to the width of a line, in units of the picture's grid.
    double extraWidth() const;

    QString m_name;
    QColor m_color = Qt::white;
    double m_size = 12;
    int m_weight = 400;
    bool m_multicolor = false;
    /// Read at the first painting of a name.
    std::vector<QPainterPath> m_outline;
};

} // namespace brimlight
