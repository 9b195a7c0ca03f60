#pragma once

#include "core/AppSettings.h"
#include "update/UpdateService.h"

#include <QPointer>

namespace brimlight {

/// What the settings panel shows of the update service, in the user's language.
class UpdateStatus : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(brimlight::UpdateService *updater READ updater WRITE setUpdater NOTIFY changed REQUIRED)
    Q_PROPERTY(brimlight::AppSettings *settings READ settings WRITE setSettings NOTIFY changed REQUIRED)
    Q_PROPERTY(QString versionText READ versionText NOTIFY changed)
    Q_PROPERTY(QString lastCheckedText READ lastCheckedText NOTIFY changed)
    Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
    Q_PROPERTY(QString message READ message NOTIFY changed)
    Q_PROPERTY(QString detail READ detail NOTIFY changed)
    Q_PROPERTY(QString progressText READ progressText NOTIFY changed)
    Q_PROPERTY(double progress READ progress NOTIFY changed)
    Q_PROPERTY(bool isChecking READ isChecking NOTIFY changed)
    Q_PROPERTY(bool isAvailable READ isAvailable NOTIFY changed)
    Q_PROPERTY(bool isDownloading READ isDownloading NOTIFY changed)
    Q_PROPERTY(bool isInstalling READ isInstalling NOTIFY changed)
    Q_PROPERTY(bool isError READ isError NOTIFY changed)

public:
    using State = UpdateService::State;

    using QObject::QObject;

    UpdateService *updater() const { return m_updater; }
    void setUpdater(UpdateService *updater);
    AppSettings *settings() const { return m_settings; }
    void setSettings(AppSettings *settings);

    QString versionText() const;
    /// Empty before the first check.
    QString lastCheckedText() const;
    /// Beside the message; empty where there is none.
    QString symbol() const;
    /// One line about the state; empty where there is nothing to say.
    QString message() const;
    /// Below the message: the release notes or what went wrong.
    QString detail() const;
    /// "42%".
    QString progressText() const;
    /// 0 to 1.
    double progress() const;

    bool isChecking() const { return isIn(State::checking); }
    bool isAvailable() const { return isIn(State::available); }
    bool isDownloading() const { return isIn(State::downloading); }
    /// The short while in which a finished download lies ready counts as well.
    bool isInstalling() const { return isIn(State::installing) || isIn(State::readyToInstall); }
    bool isError() const { return isIn(State::error); }

Q_SIGNALS:
    void changed();

private:
    bool isIn(State state) const { return m_updater && m_updater->state() == state; }
    QString localized(const char *key) const;

    QPointer<UpdateService> m_updater;
    QPointer<AppSettings> m_settings;
};

} // namespace brimlight
