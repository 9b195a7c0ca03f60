#include "update/UpdateService.h"

#include "platform/UserDefaults.h"

namespace brimlight {
namespace {

const QString autoCheckKey = QStringLiteral("UpdateAutoCheck");
const QString lastCheckedKey = QStringLiteral("UpdateLastChecked");

QDateTime storedDate(const UserDefaults &defaults)
{
    const double seconds = defaults.read<double>(lastCheckedKey).value_or(0);
    return seconds > 0 ? QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(seconds * 1000)) : QDateTime();
}

} // namespace

UpdateService::UpdateService(UserDefaults &defaults, QObject *parent)
    : QObject(parent)
    , m_defaults(defaults)
    , m_autoCheckEnabled(defaults.read<bool>(autoCheckKey).value_or(true))
    , m_lastChecked(storedDate(defaults))
{
}

QString UpdateService::currentVersion()
{
    const QString version = QStringLiteral(BRIMLIGHT_VERSION);
    return version.isEmpty() ? QStringLiteral("0.0.0") : version;
}

void UpdateService::setState(State state, const QString &errorText)
{
    m_state = state;
    m_errorText = errorText;
    Q_EMIT stateChanged();
}

void UpdateService::setLatestVersion(const QString &version)
{
    m_latestVersion = version;
    Q_EMIT latestVersionChanged();
}

void UpdateService::setReleaseNotes(const QString &notes)
{
    m_releaseNotes = notes;
    Q_EMIT releaseNotesChanged();
}

void UpdateService::setDownloadProgress(double progress)
{
    m_downloadProgress = progress;
    Q_EMIT downloadProgressChanged();
}

void UpdateService::setAutoCheckEnabled(bool enabled)
{
    m_autoCheckEnabled = enabled;
    m_defaults.setValue(autoCheckKey, enabled);
    Q_EMIT autoCheckEnabledChanged();
}

void UpdateService::setLastChecked(const QDateTime &date)
{
    m_lastChecked = date;
    if (date.isValid())
        m_defaults.setValue(lastCheckedKey, static_cast<double>(date.toMSecsSinceEpoch()) / 1000);
    Q_EMIT lastCheckedChanged();
}

} // namespace brimlight
