#pragma once

#include <QString>

namespace brimlight {

class SystemSounds
{
public:
    virtual ~SystemSounds() = default;

    /// Plays a sound of the system by its name, "Trash" for one. Never waits; one that is not known, or that
    /// nothing can play, stays silent.
    virtual void play(const QString &name) = 0;
};

} // namespace brimlight
