#include "theme/Symbol.h"

#include "theme/SymbolColors.h"
#include "theme/SymbolImage.h"
#include "theme/SymbolOutline.h"
#include "theme/SymbolTable.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace brimlight {
namespace {

/// A symbol stands a little taller than the capitals beside it.
constexpr double boxPerTextSize = 1.15;
/// What bold adds to the width of a line, in units of the grid.
constexpr double boldExtra = 0.8;
constexpr int regularWeight = 400;
constexpr int boldWeight = 700;

} // namespace

Symbol::Symbol(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setSize(m_size);
}

void Symbol::setName(const QString &name)
{
    m_name = name;
    m_outline.clear();
    Q_EMIT nameChanged();
    update();
}

void Symbol::setColor(const QColor &color)
{
    m_color = color;
    Q_EMIT colorChanged();
    update();
}

void Symbol::setSize(double size)
{
    m_size = size;
    const double box = std::round(size * boxPerTextSize);
    setImplicitSize(box, box);
    Q_EMIT sizeChanged();
    update();
}

void Symbol::setWeight(int weight)
{
    m_weight = weight;
    Q_EMIT weightChanged();
    update();
}

void Symbol::setMulticolor(bool multicolor)
{
    m_multicolor = multicolor;
    Q_EMIT multicolorChanged();
    update();
}

double Symbol::extraWidth() const
{
    // Thickening a filled picture would close what is cut out of it.
    if (symbolPicture(m_name).ends_with("-fill"))
        return 0;
    const int steps = std::clamp(m_weight, regularWeight, boldWeight) - regularWeight;
    return boldExtra * steps / (boldWeight - regularWeight);
}

void Symbol::paint(QPainter *painter)
{
    if (m_outline.empty())
        m_outline = outlineOfSymbol(m_name);

    const double thicker = extraWidth();
    const double box = std::min({implicitWidth(), width(), height()});
    // On whole pixels, or every straight edge blurs.
    const double ratio = painter->deviceTransform().m11();
    const auto snapped = [ratio](double value) { return std::floor(value * ratio) / ratio; };
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(snapped((width() - box) / 2), snapped((height() - box) / 2));
    painter->scale(box / (symbolGrid + thicker), box / (symbolGrid + thicker));
    painter->translate(thicker / 2, thicker / 2);

    const auto draw = [&](const QPainterPath &shape, const QColor &color) {
        if (thicker == 0) {
            painter->fillPath(shape, color);
            return;
        }
        // One operation for fill and outline, so that a translucent colour does not show where they overlap.
        QPainterPathStroker stroker(QPen(color, thicker, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->fillPath(shape.united(stroker.createStroke(shape)), color);
    };
    if (m_multicolor) {
        for (const SymbolPart &part : weatherParts(m_name, m_outline, m_color))
            draw(part.shape, part.color);
    } else {
        for (const QPainterPath &shape : m_outline)
            draw(shape, m_color);
    }
}

} // namespace brimlight
