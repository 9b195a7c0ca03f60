#include "settings/UpdateStatus.h"

#include "core/Formats.h"

#include <QLocale>

#include <algorithm>

namespace brimlight {
namespace {

/// In the short form of the language, with all digits of the year.
QString dateText(const QDate &date, AppLanguage language)
{
    const QLocale locale(rawValue(language));
    QString format = locale.dateFormat(QLocale::ShortFormat);
    if (!format.contains(QLatin1String("yyyy")))
        format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    return locale.toString(date, format);
}

} // namespace

void UpdateStatus::setUpdater(UpdateService *updater)
{
    m_updater = updater;
    connect(updater, &UpdateService::stateChanged, this, &UpdateStatus::changed);
    connect(updater, &UpdateService::latestVersionChanged, this, &UpdateStatus::changed);
    connect(updater, &UpdateService::releaseNotesChanged, this, &UpdateStatus::changed);
    connect(updater, &UpdateService::downloadProgressChanged, this, &UpdateStatus::changed);
    connect(updater, &UpdateService::lastCheckedChanged, this, &UpdateStatus::changed);
    Q_EMIT changed();
}

void UpdateStatus::setSettings(AppSettings *settings)
{
    m_settings = settings;
    connect(settings, &AppSettings::languageChanged, this, &UpdateStatus::changed);
    connect(settings, &AppSettings::clock24hChanged, this, &UpdateStatus::changed);
    Q_EMIT changed();
}

QString UpdateStatus::versionText() const
{
    return localized("Current Version: ") + UpdateService::currentVersion();
}

QString UpdateStatus::lastCheckedText() const
{
    if (!m_updater || !m_settings || !m_updater->lastChecked().isValid())
        return {};
    const QDateTime date = m_updater->lastChecked().toLocalTime();
    const QString time = m_settings->hourMinute(date) + u' ' + m_settings->meridiem(date);
    return localized("Last checked: ") + dateText(date.date(), m_settings->language()) + u' ' +
           time.trimmed();
}

QString UpdateStatus::symbol() const
{
    if (isIn(State::upToDate))
        return QStringLiteral("checkmark.circle.fill");
    return isError() ? QStringLiteral("exclamationmark.triangle.fill") : QString();
}

QString UpdateStatus::message() const
{
    if (isIn(State::upToDate))
        return localized("Brimlight is up to date.");
    if (isAvailable())
        return localized("New version %@ is available!")
            .replace(QLatin1String("%@"), m_updater->latestVersion());
    if (isDownloading())
        return localized("Downloading update...");
    if (isInstalling())
        return localized("Installing update. The app will restart shortly...");
    return isError() ? localized("Update Error") : QString();
}

QString UpdateStatus::detail() const
{
    if (isAvailable())
        return m_updater->releaseNotes().trimmed();
    return isError() ? m_updater->errorText() : QString();
}

QString UpdateStatus::progressText() const
{
    return formats::percent(progress());
}

double UpdateStatus::progress() const
{
    return m_updater ? std::clamp(m_updater->downloadProgress(), 0.0, 1.0) : 0;
}

QString UpdateStatus::localized(const char *key) const
{
    const QString text = QLatin1String(key);
    return m_settings ? m_settings->localized(text) : text;
}

} // namespace brimlight
