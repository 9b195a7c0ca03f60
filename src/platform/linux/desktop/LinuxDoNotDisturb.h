#pragma once

#include "platform/DoNotDisturb.h"
#include "platform/linux/dbus/NotificationInhibition.h"
#include "platform/linux/desktop/GnomeBanners.h"

#include <optional>

namespace brimlight {

/// Both values are kept current by signals of the session.
class LinuxDoNotDisturb : public DoNotDisturb
{
public:
    /// Elsewhere than on GNOME its setting may be left over from another session and means nothing.
    explicit LinuxDoNotDisturb(Scheduler &scheduler,
                               const QString &desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP"))
        : m_inhibition(scheduler)
    {
        if (desktops.split(u':').contains(QStringLiteral("GNOME")))
            m_banners.emplace(scheduler);
    }

    bool isInhibited() const override { return m_inhibition.isInhibited(); }
    bool hidesBanners() const override { return m_banners && m_banners->areHidden(); }

private:
    NotificationInhibition m_inhibition;
    std::optional<GnomeBanners> m_banners;
};

} // namespace brimlight
