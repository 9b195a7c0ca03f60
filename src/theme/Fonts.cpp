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

QString Fonts::firstInstalled(const QStringList &families, const QString &otherwise)
{
    const auto found = std::ranges::find_if(
        families, [](const QString &family) { return QFontDatabase::hasFamily(family); });
    return found == families.end() ? otherwise : *found;
}

} // namespace brimlight
