#pragma once

#include "core/AppSettings.h"

#include <QPointer>

namespace brimlight {

/// What the menus of the settings panel offer, in the user's language. An index is -1 where the stored value
/// is none of the options; it stays until the user chooses.
class SettingsChoices : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(brimlight::AppSettings *settings READ settings WRITE setSettings NOTIFY changed REQUIRED)
    Q_PROPERTY(QList<QString> languages READ languages CONSTANT)
    Q_PROPERTY(int language READ language NOTIFY changed)
    Q_PROPERTY(QList<QString> hoverDelays READ hoverDelays NOTIFY changed)
    Q_PROPERTY(int hoverDelay READ hoverDelay NOTIFY changed)
    Q_PROPERTY(QList<QString> refreshRates READ refreshRates NOTIFY changed)
    Q_PROPERTY(int refreshRate READ refreshRate NOTIFY changed)

public:
    using QObject::QObject;

    AppSettings *settings() const { return m_settings; }
    void setSettings(AppSettings *settings);

    /// Each in its own language.
    static QStringList languages();
    int language() const;
    Q_INVOKABLE void chooseLanguage(int index);

    QStringList hoverDelays() const;
    int hoverDelay() const;
    Q_INVOKABLE void chooseHoverDelay(int index);

    QStringList refreshRates() const;
    int refreshRate() const;
    Q_INVOKABLE void chooseRefreshRate(int index);

Q_SIGNALS:
    void changed();

private:
    QString localized(const QString &key) const { return m_settings ? m_settings->localized(key) : key; }

    QPointer<AppSettings> m_settings;
};

} // namespace brimlight
