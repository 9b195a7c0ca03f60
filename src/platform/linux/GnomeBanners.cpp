#include "platform/linux/GnomeBanners.h"

#include "platform/linux/Aside.h"

namespace brimlight {

GnomeBanners::GnomeBanners(Scheduler &scheduler, const QString &schema)
{
    m_start = scheduler.after(startDelay, [this, schema] {
        runAside<std::shared_ptr<GnomeSetting>>(
            *this, [schema] { return GnomeSetting::open(schema, QStringLiteral("show-banners")); },
            [this](const std::shared_ptr<GnomeSetting> &setting) { follow(setting); });
    });
}

void GnomeBanners::follow(const std::shared_ptr<GnomeSetting> &setting)
{
    m_setting = setting;
    if (!m_setting)
        return;
    const auto read = [this] { m_areHidden = !m_setting->boolean(); };
    m_setting->observe(read);
    read();
}

} // namespace brimlight
