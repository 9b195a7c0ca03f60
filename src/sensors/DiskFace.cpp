#include "sensors/DiskFace.h"

#include "theme/SignalColors.h"

namespace brimlight {
namespace {

constexpr double watchFrom = 0.8;
constexpr double redFrom = 0.92;

} // namespace

QColor diskTint(double usedFraction, const QColor &accent)
{
    return signalColors::byLevel(usedFraction, watchFrom, redFrom, accent);
}

QString diskStatus(double usedFraction)
{
    return usedFraction < watchFrom ? QStringLiteral("Healthy") : QStringLiteral("Watch");
}

DiskFace::DiskFace(WidgetContext &context, DiskSampler &disk)
    : WidgetLogic(context)
    , m_disk(disk, [this](const DiskSnapshot &snapshot) { take(snapshot); })
{
    m_disk.takeLatest();
}

void DiskFace::take(const DiskSnapshot &snapshot)
{
    m_snapshot = snapshot;
    Q_EMIT changed();
}

QString DiskFace::percent() const
{
    return formats::percent(m_snapshot.usedFraction);
}

} // namespace brimlight
