#include "theme/Fonts.h"

#include <QFontDatabase>

#include <algorithm>

namespace brimlight {

Fonts::Fonts(QObject *parent)
    : QObject(parent)
    , m_rounded(
          firstInstalled({QStringLiteral("Lato"), QStringLiteral("Roboto"), QStringLiteral("DejaVu Sans")},
                         QStringLiteral("sans-serif")))
    , m_monospaced(firstInstalled(
          {QStringLiteral("JetBrains Mono"), QStringLiteral("Fira Code"), QStringLiteral("DejaVu Sans Mono")},
          QStringLiteral("monospace")))
    , m_serif(firstInstalled(
          {QStringLiteral("Charis SIL"), QStringLiteral("Linux Libertine O"), QStringLiteral("DejaVu Serif")},
          QStringLiteral("serif")))
{
}

QFont Fonts::code() const
{
    return designed(label(), QStringLiteral("monospaced"));
}

QFont Fonts::struck(const QFont &style) const
{
    QFont font = style;
    font.setStrikeOut(true);
    return font;
}

QFont Fonts::sized(const QFont &style, double pixels) const
{
    QFont font = style;
    font.setPixelSize(std::max(1, qRound(pixels)));
    return font;
}

QFont Fonts::designed(const QFont &style, const QString &design) const
{
    QFont font = style;
    font.setFamily(design == QLatin1String("monospaced") ? m_monospaced
                   : design == QLatin1String("serif")    ? m_serif
                                                         : m_rounded);
    return font;
}

QFont Fonts::style(int pixels) const
{
    QFont font(m_rounded);
    font.setPixelSize(pixels);
    return font;
}

QFont Fonts::weighed(const QFont &style, QFont::Weight weight)
{
    QFont font = style;
    font.setWeight(weight);
    return font;
}

QString Fonts::firstInstalled(const QStringList &families, const QString &otherwise)
{
    const auto found = std::ranges::find_if(
        families, [](const QString &family) { return QFontDatabase::hasFamily(family); });
    return found == families.end() ? otherwise : *found;
}

} // namespace brimlight
