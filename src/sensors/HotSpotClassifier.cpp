#include "sensors/HotSpotClassifier.h"

#include <algorithm>

namespace brimlight::HotSpotClassifier {

HotSpots classifyWithStats(const Peaks &peaks)
{
    constexpr qsizetype fewestPeaks = 4;
    constexpr qsizetype baselinePercentile = 40;
    constexpr qsizetype percent = 100;
    constexpr double hotSpotMargin = 12.0;

    if (peaks.size() < fewestPeaks)
        return {};
    QList<double> sorted = peaks.values();
    std::sort(sorted.begin(), sorted.end());
    const qsizetype rank = sorted.size() * baselinePercentile;
    HotSpots found;
    found.baseline = sorted.at(rank >= percent ? rank / percent - 1 : 0);
    found.cutoff = found.baseline + hotSpotMargin;
    for (auto peak = peaks.begin(); peak != peaks.end(); ++peak) {
        if (peak.value() >= found.cutoff)
            found.denylist.insert(peak.key());
    }
    return found;
}

QSet<QString> hardcodedHotSpotDenylist(const QString &chip)
{
    const auto names = [&chip](const char *text) { return chip.contains(QLatin1String(text)); };
    if (!names("Apple M3") || names("Pro") || names("Max"))
        return {};
    QSet<QString> keys;
    for (const char *key :
         {"Tp02", "Tp06", "Tp0A", "Tp0E", "Tp0I", "Tp0M", "Tp0Q", "Tp0U", "Tp0Y", "Tp0c", "Tp0g", "Tp0k",
          "Tp0o", "Tp0s", "Tp0w", "Tp10", "Tp14", "Tp18", "Tp1F", "Tp1I", "Tp1L", "Te06", "Te0M"})
        keys.insert(QLatin1String(key));
    return keys;
}

} // namespace brimlight::HotSpotClassifier
