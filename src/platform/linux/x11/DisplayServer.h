#pragma once

#include <QString>

#include <optional>

namespace brimlight {

/// Makes sure that Qt will find an X11 display, since Qt ends the process when it finds none. In a Wayland
/// session that is XWayland. Answers the reason, one line, when there is no display; a platform plugin that
/// the user chose is left alone.
///
/// To be called before the application object exists.
std::optional<QString> prepareDisplay();

} // namespace brimlight
