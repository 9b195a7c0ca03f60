#pragma once

#include "platform/SystemSounds.h"

#include <memory>

namespace brimlight {

/// Plays the sounds of the desktop's sound theme. The library that finds and decodes them is loaded with the
/// first sound, on a thread of its own: connecting to the audio server takes its time.
class ThemeSounds : public SystemSounds
{
public:
    ThemeSounds();
    ~ThemeSounds() override;

    void play(const QString &name) override;

private:
    class Player;
    /// Shared with the threads, which may outlive this object.
    std::shared_ptr<Player> m_player;
};

} // namespace brimlight
