#include "settings/ColorDraft.h"

#include <QRegularExpression>

#include <algorithm>

namespace brimlight {

QColor ColorDraft::color() const
{
    const auto part = [](double value) { return static_cast<float>(value); };
    return QColor::fromHsvF(part(m_hue), part(m_saturation), part(m_brightness), part(m_opacity));
}

void ColorDraft::setColor(const QColor &color)
{
    if (color.rgba() != this->color().rgba())
        take(color);
}

QString ColorDraft::hex() const
{
    return color().name(QColor::HexRgb).toUpper();
}

void ColorDraft::pickHex(const QString &text)
{
    static const QRegularExpression wanted(QStringLiteral("^#?([0-9a-f]{6})([0-9a-f]{2})?$"),
                                           QRegularExpression::CaseInsensitiveOption);
    const auto match = wanted.match(text.trimmed());
    if (!match.hasMatch())
        return;
    QColor color(u'#' + match.captured(1));
    color.setAlphaF(static_cast<float>(m_opacity));
    if (match.hasCaptured(2))
        color.setAlpha(match.captured(2).toInt(nullptr, 16));
    take(color);
    Q_EMIT picked(this->color());
}

void ColorDraft::pick(double &part, double value)
{
    part = std::clamp(value, 0.0, 1.0);
    Q_EMIT changed();
    Q_EMIT picked(color());
}

void ColorDraft::take(const QColor &color)
{
    const QColor hsv = color.toHsv();
    if (hsv.hueF() >= 0)
        m_hue = hsv.hueF();
    if (hsv.valueF() > 0)
        m_saturation = hsv.hsvSaturationF();
    m_brightness = hsv.valueF();
    m_opacity = hsv.alphaF();
    Q_EMIT changed();
}

} // namespace brimlight
