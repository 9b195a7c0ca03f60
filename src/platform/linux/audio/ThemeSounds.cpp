#include "platform/linux/audio/ThemeSounds.h"

#include <QHash>
#include <QThreadPool>

#include <canberra.h>
#include <dlfcn.h>

#include <mutex>

namespace brimlight {
namespace {

/// The names that sound themes use.
QByteArray eventId(const QString &name)
{
    static const QHash<QString, QByteArray> ids{{QStringLiteral("Trash"), "trash-empty"}};
    return ids.value(name);
}

} // namespace

class ThemeSounds::Player
{
public:
    ~Player()
    {
        if (m_context)
            m_destroy(m_context);
    }

    void play(const QByteArray &event)
    {
        const std::scoped_lock lock(m_mutex);
        if (!m_context)
            open();
        if (m_context)
            m_play(m_context, 0, CA_PROP_EVENT_ID, event.constData(), nullptr);
    }

private:
    void open()
    {
        void *const library = dlopen("libcanberra.so.0", RTLD_NOW | RTLD_LOCAL);
        if (!library)
            return;
        const auto create =
            reinterpret_cast<decltype(&ca_context_create)>(dlsym(library, "ca_context_create"));
        m_play = reinterpret_cast<decltype(m_play)>(dlsym(library, "ca_context_play"));
        m_destroy = reinterpret_cast<decltype(m_destroy)>(dlsym(library, "ca_context_destroy"));
        if (create && m_play && m_destroy && create(&m_context) != CA_SUCCESS)
            m_context = nullptr;
    }

    std::mutex m_mutex;
    ca_context *m_context = nullptr;
    decltype(&ca_context_play) m_play = nullptr;
    decltype(&ca_context_destroy) m_destroy = nullptr;
};

ThemeSounds::ThemeSounds()
    : m_player(std::make_shared<Player>())
{
}

ThemeSounds::~ThemeSounds() = default;

void ThemeSounds::play(const QString &name)
{
    const QByteArray event = eventId(name);
    if (!event.isEmpty())
        QThreadPool::globalInstance()->start([player = m_player, event] { player->play(event); });
}

} // namespace brimlight
