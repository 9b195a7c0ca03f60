#include "platform/linux/desktop/GnomeSetting.h"

#include <QByteArray>

#include <utility>

namespace brimlight {

std::unique_ptr<GnomeSetting> GnomeSetting::open(const QString &schema, const QString &key)
{
    const Gio *gio = Gio::library();
    GSettingsSchemaSource *source = gio ? gio->schemaSource() : nullptr;
    GSettingsSchema *known = source ? gio->lookup(source, schema.toUtf8().constData(), TRUE) : nullptr;
    if (!known)
        return nullptr;
    std::unique_ptr<GnomeSetting> setting;
    if (const QByteArray name = key.toUtf8(); gio->hasKey(known, name.constData()))
        setting.reset(new GnomeSetting(*gio, gio->newSettings(known, nullptr, nullptr), name));
    gio->unrefSchema(known);
    return setting;
}

GnomeSetting::GnomeSetting(const Gio &gio, GSettings *settings, QByteArray key)
    : m_gio(gio)
    , m_settings(settings)
    , m_key(std::move(key))
{
}

GnomeSetting::~GnomeSetting()
{
    if (m_handler)
        m_gio.disconnect(m_settings, m_handler);
    m_gio.unref(m_settings);
}

bool GnomeSetting::boolean() const
{
    return m_gio.boolean(m_settings, m_key.constData());
}

QString GnomeSetting::text() const
{
    char *const owned = m_gio.string(m_settings, m_key.constData());
    QString text = QString::fromUtf8(owned);
    m_gio.free(owned);
    return text;
}

bool GnomeSetting::setText(const QString &text)
{
    const bool written = m_gio.setString(m_settings, m_key.constData(), text.toUtf8().constData());
    m_gio.sync();
    return written;
}

bool GnomeSetting::isWritable() const
{
    return m_gio.isWritable(m_settings, m_key.constData());
}

void GnomeSetting::observe(std::function<void()> changed)
{
    m_changed = std::move(changed);
    const auto tell =
        +[](GSettings *, const char *, void *self) { static_cast<GnomeSetting *>(self)->m_changed(); };
    m_handler = m_gio.connect(m_settings, ("changed::" + m_key).constData(),
                              reinterpret_cast<GCallback>(tell), this, nullptr, GConnectFlags(0));
}

} // namespace brimlight
