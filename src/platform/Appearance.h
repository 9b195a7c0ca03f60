#pragma once

#include <functional>

namespace brimlight {

/// How the user asks programs to look and move, in the settings of the desktop.
class Appearance
{
public:
    virtual ~Appearance() = default;

    /// Movement on the screen is unwanted. False while unknown.
    virtual bool reducesMotion() const = 0;
    /// What lies behind a surface must not shine through. False while unknown.
    virtual bool reducesTransparency() const = 0;
    /// Programs are to be dark. False while unknown.
    virtual bool isDark() const = 0;
    /// Calls back after any of them has changed, which may be some time after the start, when the desktop has
    /// answered. There is one observer; a new one replaces it, an empty one ends it.
    virtual void observeChanges(std::function<void()> changed) = 0;
};

} // namespace brimlight
