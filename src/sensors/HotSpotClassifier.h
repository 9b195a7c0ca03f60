#pragma once

#include <QMap>
#include <QSet>
#include <QString>

namespace brimlight::HotSpotClassifier {

/// Peaks in degrees Celsius by key.
using Peaks = QMap<QString, double>;

struct HotSpots
{
    /// Keys whose peak is at the cutoff or above.
    QSet<QString> denylist;
    /// The peak at 40 percent of the way up; 0 when there were too few peaks to tell.
    double baseline = 0;
    /// 12 degrees above the baseline; 0 like that.
    double cutoff = 0;
};

/// Finds the sensors that stand clearly above the pack. Fewer than four peaks have none.
HotSpots classifyWithStats(const Peaks &peaks);

/// Sensors of a chip that are known to sit on hot spots, whether or not this machine has them.
QSet<QString> hardcodedHotSpotDenylist(const QString &chip);

} // namespace brimlight::HotSpotClassifier
