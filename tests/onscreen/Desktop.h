#pragma once

#include <gtest/gtest.h>

#include <ostream>

namespace brimlight::onscreen {

/// What runs beside the program.
struct Desktop
{
    /// The name of the executable; null for none.
    const char *windowManager = nullptr;
    bool isComposited = false;
    /// The server has real input devices: a touchpad, see TouchpadDevice.
    bool hasTouchpad = false;
};

std::ostream &operator<<(std::ostream &stream, const Desktop &desktop);
/// As the last part of a test's name.
std::string nameOf(const testing::TestParamInfo<Desktop> &info);

/// For what neither a window manager nor a compositor has a say in.
inline constexpr Desktop anyDesktop[] = {{.windowManager = "openbox"}};
/// For stacking, focus, the keyboard, full-screen windows and workspaces.
inline constexpr Desktop windowManagers[] = {{.windowManager = "openbox"}, {.windowManager = "icewm"}};
/// For what is seen, and where a click goes.
inline constexpr Desktop withAndWithoutCompositor[] = {{.windowManager = "openbox"},
                                                       {.windowManager = "openbox", .isComposited = true}};

} // namespace brimlight::onscreen
