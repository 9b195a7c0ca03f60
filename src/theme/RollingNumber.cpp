#include "theme/RollingNumber.h"

#include <QLinearGradient>
#include <QPainter>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <cmath>

namespace brimlight {
namespace {

constexpr double smallestScale = 0.7;
/// How far a character travels, and how much of that lies beyond the line's own edges, in heights of the
/// line.
constexpr double travel = 0.5;
constexpr double travelBeyond = 0.3;
/// The part of a turn that is not worth a frame: it lasts for most of the time and moves by a fraction of a
/// point.
constexpr double unseenTurn = 0.08;

} // namespace

std::vector<RollingCell> rollingCells(const QString &text, const QFontMetricsF &metrics)
{
    double digitWidth = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        digitWidth = std::max(digitWidth, metrics.horizontalAdvance(QChar(digit)));

    std::vector<RollingCell> cells;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype start = 0;
    double x = 0;
    while (finder.toNextBoundary() > 0) {
        const QString glyph = text.sliced(start, finder.position() - start);
        const double advance = metrics.horizontalAdvance(glyph);
        const double width = glyph.front().isDigit() ? digitWidth : advance;
        cells.push_back({glyph, x, width, advance});
        start = finder.position();
        x += width;
    }
    return cells;
}

double rollingWidth(const std::vector<RollingCell> &cells)
{
    return cells.empty() ? 0 : cells.back().x + cells.back().width;
}

double rollingScale(double natural, double available)
{
    return natural > 0 ? std::clamp(available / natural, smallestScale, 1.0) : 1;
}

std::vector<RollingColumn> rollingColumns(const std::vector<RollingCell> &from,
                                          const std::vector<RollingCell> &to)
{
    const std::size_t count = std::max(from.size(), to.size());
    std::vector<RollingColumn> columns(count);
    for (std::size_t i = 0; i < from.size(); ++i)
        columns[count - from.size() + i].from = from[i];
    for (std::size_t i = 0; i < to.size(); ++i)
        columns[count - to.size() + i].to = to[i];
    return columns;
}

RollingNumber::RollingNumber(QQuickItem *parent)
    : GaugeItem(parent)
    , m_roll(1, [this] {
        if (!m_roll.isRunning() || std::abs(m_roll.value() - m_drawn) >= unseenTurn)
            redraw();
        Q_EMIT rollingChanged();
    })
{
    layOut();
}

void RollingNumber::setText(const QString &text)
{
    if (text == m_text)
        return;
    const bool roll = animates() && !m_text.isEmpty();
    m_text = text;
    if (roll)
        m_before = m_cells;
    layOut();
    if (roll) {
        m_roll.jumpTo(0);
        m_roll.moveTo(1, m_motion);
    }
    Q_EMIT textChanged();
}

void RollingNumber::setFont(const QFont &font)
{
    if (font == m_font)
        return;
    m_font = font;
    m_roll.finish();
    layOut();
    Q_EMIT fontChanged();
}

void RollingNumber::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    Q_EMIT colorChanged();
    redraw();
}

void RollingNumber::setGradientEnd(const QColor &color)
{
    if (color == m_gradientEnd)
        return;
    m_gradientEnd = color;
    Q_EMIT gradientEndChanged();
    redraw();
}

void RollingNumber::setHorizontalAlignment(int alignment)
{
    if (alignment == m_alignment)
        return;
    m_alignment = alignment;
    Q_EMIT horizontalAlignmentChanged();
    redraw();
}

void RollingNumber::setDuration(int milliseconds)
{
    m_motion.duration = std::chrono::milliseconds(milliseconds);
    Q_EMIT motionChanged();
}

void RollingNumber::setEasing(const QEasingCurve &easing)
{
    m_motion.easing = easing;
    Q_EMIT motionChanged();
}

double RollingNumber::overhang() const
{
    return std::ceil(travelBeyond * QFontMetricsF(m_font).height());
}

void RollingNumber::settle()
{
    m_roll.finish();
}

void RollingNumber::geometryChange(const QRectF &to, const QRectF &from)
{
    GaugeItem::geometryChange(to, from);
    layOut();
}

void RollingNumber::layOut()
{
    const QFontMetricsF metrics(m_font);
    m_cells = rollingCells(m_text, metrics);
    setImplicitSize(std::ceil(rollingWidth(m_cells)), std::ceil(metrics.height()));
    setBaselineOffset((height() - metrics.height() * scaleFor(m_cells)) / 2 +
                      metrics.ascent() * scaleFor(m_cells));
    fitCanvas();
}

double RollingNumber::scaleFor(const std::vector<RollingCell> &cells) const
{
    return rollingScale(rollingWidth(cells), width());
}

double RollingNumber::originOf(const std::vector<RollingCell> &cells, double scale) const
{
    const double room = width() / scale - rollingWidth(cells);
    if (m_alignment & Qt::AlignHCenter)
        return std::max(0.0, room / 2);
    if (m_alignment & Qt::AlignRight)
        return std::max(0.0, room);
    return 0;
}

void RollingNumber::draw(QPainter &painter, double /*devicePixelRatio*/)
{
    const QFontMetricsF metrics(m_font);
    const double scale = scaleFor(m_cells);
    const double origin = originOf(m_cells, scale);
    const double height = metrics.height();
    painter.setFont(m_font);
    painter.translate(0, (this->height() - height * scale) / 2);
    painter.scale(scale, scale);
    QBrush fill = m_color;
    if (m_gradientEnd.isValid()) {
        QLinearGradient gradient(origin, 0, origin + rollingWidth(m_cells), height);
        gradient.setColorAt(0, m_color);
        gradient.setColorAt(1, m_gradientEnd);
        fill = gradient;
    }
    painter.setPen(QPen(fill, 1));

    const auto drawCell = [&](const RollingCell &cell, double x, double y) {
        // A narrow digit stands in the middle of its cell.
        const double inset = (cell.width - cell.advance) / 2;
        painter.drawText(QPointF(x + inset, y + metrics.ascent()), cell.glyph);
    };
    if (!m_roll.isRunning()) {
        for (const RollingCell &cell : m_cells)
            drawCell(cell, origin + cell.x, 0);
        return;
    }

    const double t = m_roll.value();
    m_drawn = t;
    const double opacity = std::clamp(t, 0.0, 1.0);
    const double before = originOf(m_before, scale);
    for (const RollingColumn &column : rollingColumns(m_before, m_cells)) {
        if (!column.rolls()) {
            drawCell(*column.to, std::lerp(before + column.from->x, origin + column.to->x, opacity), 0);
            continue;
        }
        if (column.from) {
            // Gone before it is half way out, so that the two are told apart.
            painter.setOpacity((1 - opacity) * (1 - opacity));
            drawCell(*column.from, before + column.from->x, -t * travel * height);
        }
        if (column.to) {
            painter.setOpacity(opacity);
            drawCell(*column.to, origin + column.to->x, (1 - t) * travel * height);
        }
        painter.setOpacity(1);
    }
}

} // namespace brimlight
