#pragma once

#include <QDateTime>
#include <QObject>
#include <QtQmlIntegration>

#include <optional>

namespace brimlight {

class UserDefaults;

/// What is known of newer versions of the program, and how far getting one has come.
class UpdateService : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")
    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    Q_PROPERTY(QString errorText READ errorText NOTIFY stateChanged)
    Q_PROPERTY(QString latestVersion READ latestVersion NOTIFY latestVersionChanged)
    Q_PROPERTY(QString releaseNotes READ releaseNotes NOTIFY releaseNotesChanged)
    Q_PROPERTY(double downloadProgress READ downloadProgress NOTIFY downloadProgressChanged)
    Q_PROPERTY(
        bool autoCheckEnabled READ autoCheckEnabled WRITE setAutoCheckEnabled NOTIFY autoCheckEnabledChanged)
    Q_PROPERTY(QDateTime lastChecked READ lastChecked NOTIFY lastCheckedChanged)

public:
    enum class State { idle, checking, available, upToDate, downloading, readyToInstall, installing, error };
    Q_ENUM(State)

    explicit UpdateService(UserDefaults &defaults, QObject *parent = nullptr);

    /// The version that runs; "0.0.0" for a build without one.
    static QString currentVersion();

    State state() const { return m_state; }
    /// What the user is told; empty unless the state is `error`.
    const QString &errorText() const { return m_errorText; }
    void setState(State state, const QString &errorText = {});
    /// Without the leading letter; empty while unknown.
    const QString &latestVersion() const { return m_latestVersion; }
    void setLatestVersion(const QString &version);
    const QString &releaseNotes() const { return m_releaseNotes; }
    void setReleaseNotes(const QString &notes);
    /// 0 to 1.
    double downloadProgress() const { return m_downloadProgress; }
    void setDownloadProgress(double progress);
    /// Stored at every assignment.
    bool autoCheckEnabled() const { return m_autoCheckEnabled; }
    void setAutoCheckEnabled(bool enabled);
    /// Invalid before the first check. Stored when assigned.
    const QDateTime &lastChecked() const { return m_lastChecked; }
    void setLastChecked(const QDateTime &date);

Q_SIGNALS:
    void stateChanged();
    void latestVersionChanged();
    void releaseNotesChanged();
    void downloadProgressChanged();
    void autoCheckEnabledChanged();
    void lastCheckedChanged();
    /// What the user asks for in the settings and in the status menu.
    void checkForUpdates();
    void downloadAndInstall();
    void cancelDownload();

private:
    UserDefaults &m_defaults;
    State m_state = State::idle;
    QString m_errorText;
    QString m_latestVersion;
    QString m_releaseNotes;
    double m_downloadProgress = 0;
    bool m_autoCheckEnabled;
    QDateTime m_lastChecked;
};

} // namespace brimlight
