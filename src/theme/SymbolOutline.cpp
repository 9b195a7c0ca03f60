#include "theme/SymbolOutline.h"

#include <QTransform>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace brimlight {
namespace {

/// Reads path data from the front: commands, numbers in SVG's terse spelling ("1.5.5-2"), flags without
/// separators.
class PathReader
{
public:
    explicit PathReader(QByteArrayView data)
        : m_data(data)
    {
    }

    bool atEnd()
    {
        skipSeparators();
        return m_at >= m_data.size();
    }

    std::optional<char> command()
    {
        if (atEnd() || !std::isalpha(static_cast<unsigned char>(m_data[m_at])))
            return {};
        return m_data[m_at++];
    }

    std::optional<double> number()
    {
        skipSeparators();
        const qsizetype start = m_at;
        if (peekOneOf("+-"))
            ++m_at;
        skipDigits();
        if (peekOneOf(".")) {
            ++m_at;
            skipDigits();
        }
        if (peekOneOf("eE")) {
            ++m_at;
            if (peekOneOf("+-"))
                ++m_at;
            skipDigits();
        }
        bool ok = false;
        const double value = m_data.sliced(start, m_at - start).toByteArray().toDouble(&ok);
        return ok ? std::optional(value) : std::nullopt;
    }

    std::optional<bool> flag()
    {
        skipSeparators();
        if (!peekOneOf("01"))
            return {};
        return m_data[m_at++] == '1';
    }

private:
    bool peekOneOf(std::string_view characters) const
    {
        return m_at < m_data.size() && characters.find(m_data[m_at]) != std::string_view::npos;
    }
    void skipSeparators()
    {
        while (peekOneOf(" ,\t\r\n"))
            ++m_at;
    }
    void skipDigits()
    {
        while (peekOneOf("0123456789"))
            ++m_at;
    }

    QByteArrayView m_data;
    qsizetype m_at = 0;
};

/// An elliptical arc by its end points, after the conversion to a centre that the SVG implementation notes
/// give.
void arcTo(QPainterPath &path, QPointF radii, double turnDegrees, bool large, bool sweep, QPointF end)
{
    const QPointF start = path.currentPosition();
    double rx = std::abs(radii.x());
    double ry = std::abs(radii.y());
    if (start == end)
        return;
    if (rx == 0 || ry == 0) {
        path.lineTo(end);
        return;
    }
    const QTransform turn = QTransform().rotate(turnDegrees);
    const QPointF half = turn.inverted().map((start - end) / 2);
    const double reach = half.x() * half.x() / (rx * rx) + half.y() * half.y() / (ry * ry);
    if (reach > 1) {
        rx *= std::sqrt(reach);
        ry *= std::sqrt(reach);
    }
    const double offset =
        std::sqrt(std::max(0.0, 1 / std::max(reach, 1e-12) - 1)) * (large == sweep ? -1 : 1);
    const QPointF centred = offset * QPointF(rx * half.y() / ry, -ry * half.x() / rx);
    const QPointF centre = turn.map(centred) + (start + end) / 2;

    const auto angle = [&](QPointF point) { return std::atan2(point.y() / ry, point.x() / rx); };
    const double from = angle(half - centred);
    double span = angle(-half - centred) - from;
    if (sweep && span < 0)
        span += 2 * std::numbers::pi;
    if (!sweep && span > 0)
        span -= 2 * std::numbers::pi;

    const int pieces =
        std::max(1, static_cast<int>(std::ceil(std::abs(span) / (std::numbers::pi / 2) - 1e-9)));
    const double step = span / pieces;
    const double handle = 4.0 / 3 * std::tan(step / 4);
    for (int i = 0; i < pieces; ++i) {
        const double a = from + i * step;
        const double b = a + step;
        const auto at = [&](double x, double y) { return turn.map(QPointF(rx * x, ry * y)) + centre; };
        path.cubicTo(at(std::cos(a) - handle * std::sin(a), std::sin(a) + handle * std::cos(a)),
                     at(std::cos(b) + handle * std::sin(b), std::sin(b) - handle * std::cos(b)),
                     i + 1 == pieces ? end : at(std::cos(b), std::sin(b)));
    }
}

/// Draws one command after the other and remembers what the smooth curve and the close command refer to.
class PathBuilder
{
public:
    explicit PathBuilder(QByteArrayView data)
        : m_reader(data)
    {
    }

    std::optional<QPainterPath> build()
    {
        char command = 0;
        while (!m_reader.atEnd()) {
            if (const auto next = m_reader.command())
                command = *next;
            else if (command == 0 || command == 'z' || command == 'Z')
                return {};
            if (!draw(command))
                return {};
            // Further pairs after a move are lines.
            if (command == 'm')
                command = 'l';
            else if (command == 'M')
                command = 'L';
        }
        return m_path;
    }

private:
    bool draw(char command)
    {
        const bool relative = command >= 'a';
        const QPointF origin = relative ? m_path.currentPosition() : QPointF();
        const QPointF reflected = 2 * m_path.currentPosition() - m_control.value_or(m_path.currentPosition());
        m_control.reset();
        switch (relative ? static_cast<char>(command - 'a' + 'A') : command) {
        case 'M': {
            const auto to = point(origin);
            if (to)
                m_path.moveTo(*to);
            return to.has_value();
        }
        case 'L': {
            const auto to = point(origin);
            if (to)
                m_path.lineTo(*to);
            return to.has_value();
        }
        case 'H': {
            const auto x = m_reader.number();
            if (x)
                m_path.lineTo(origin.x() + *x, m_path.currentPosition().y());
            return x.has_value();
        }
        case 'V': {
            const auto y = m_reader.number();
            if (y)
                m_path.lineTo(m_path.currentPosition().x(), origin.y() + *y);
            return y.has_value();
        }
        case 'C':
            return curve(point(origin), origin);
        case 'S':
            return curve(reflected, origin);
        case 'A':
            return arc(origin);
        case 'Z':
            m_path.closeSubpath();
            return true;
        default:
            return false;
        }
    }

    bool curve(std::optional<QPointF> first, QPointF origin)
    {
        const auto second = point(origin);
        const auto end = point(origin);
        if (!first || !second || !end)
            return false;
        m_path.cubicTo(*first, *second, *end);
        m_control = second;
        return true;
    }

    bool arc(QPointF origin)
    {
        const auto radii = point({});
        const auto turn = m_reader.number();
        const auto large = m_reader.flag();
        const auto sweep = m_reader.flag();
        const auto end = point(origin);
        if (!radii || !turn || !large || !sweep || !end)
            return false;
        arcTo(m_path, *radii, *turn, *large, *sweep, *end);
        return true;
    }

    std::optional<QPointF> point(QPointF origin)
    {
        const auto x = m_reader.number();
        const auto y = m_reader.number();
        if (!x || !y)
            return {};
        return origin + QPointF(*x, *y);
    }

    PathReader m_reader;
    QPainterPath m_path;
    std::optional<QPointF> m_control;
};

} // namespace

std::optional<QPainterPath> svgPath(QByteArrayView data)
{
    return PathBuilder(data).build();
}

std::vector<QPainterPath> symbolOutline(const QByteArray &svg)
{
    std::vector<QPainterPath> shapes;
    QXmlStreamReader xml(svg);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        const auto number = [&](QLatin1StringView name) { return attributes.value(name).toDouble(); };
        QPainterPath shape;
        if (xml.name() == QLatin1StringView("path")) {
            const auto path = svgPath(attributes.value(QLatin1StringView("d")).toLatin1());
            if (!path)
                return {};
            shape = *path;
        } else if (xml.name() == QLatin1StringView("circle")) {
            const double radius = number(QLatin1StringView("r"));
            shape.addEllipse(QPointF(number(QLatin1StringView("cx")), number(QLatin1StringView("cy"))),
                             radius, radius);
        } else if (xml.name() == QLatin1StringView("rect")) {
            const double radius = number(QLatin1StringView("rx"));
            shape.addRoundedRect(QRectF(number(QLatin1StringView("x")), number(QLatin1StringView("y")),
                                        number(QLatin1StringView("width")),
                                        number(QLatin1StringView("height"))),
                                 radius, radius);
        } else {
            continue;
        }
        const bool evenOdd = attributes.value(QLatin1StringView("fill-rule")) == QLatin1StringView("evenodd");
        shape.setFillRule(evenOdd ? Qt::OddEvenFill : Qt::WindingFill);
        shapes.push_back(shape);
    }
    return xml.hasError() ? std::vector<QPainterPath>() : shapes;
}

} // namespace brimlight
