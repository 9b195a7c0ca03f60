#include "platform/linux/desktop/GnomeBanners.h"

#include "platform/linux/process/Aside.h"

namespace brimlight {

GnomeBanners::GnomeBanners(Scheduler &scheduler, const QString &schema)
{
    m_start = scheduler.after(startDelay, [this, schema] {
        const auto open = [schema] { return GnomeSetting::open(schema, QStringLiteral("show-banners")); };
        // What takes time is the first opening; told of changes is the thread of the last.
        runAside<bool>(
            *this, [open] { return open() != nullptr; },
            [this, open](bool isKnown) {
                if (isKnown)
                    follow(open());
            });
    });
}

void GnomeBanners::follow(std::unique_ptr<GnomeSetting> setting)
{
    m_setting = std::move(setting);
    const auto read = [this] { m_areHidden = !m_setting->boolean(); };
    m_setting->observe(read);
    read();
}

} // namespace brimlight
