#pragma once

#include "platform/Scheduler.h"
#include "platform/linux/desktop/GnomeSetting.h"

#include <QObject>

namespace brimlight {

/// Whether GNOME's settings let notifications show banners. Asked a little after the start.
class GnomeBanners : public QObject
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds startDelay{400};

    explicit GnomeBanners(Scheduler &scheduler,
                          const QString &schema = QStringLiteral("org.gnome.desktop.notifications"));

    /// False while unknown.
    bool areHidden() const { return m_areHidden; }

private:
    void follow(std::unique_ptr<GnomeSetting> setting);

    std::unique_ptr<GnomeSetting> m_setting;
    bool m_areHidden = false;
    std::unique_ptr<Scheduled> m_start;
};

} // namespace brimlight
