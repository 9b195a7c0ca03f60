#pragma once

#include "theme/Theme.h"

#include <QByteArray>

#include <optional>

namespace brimlight {

/// The content of the theme file: one JSON object whose keys are the fields of `Theme` in their order, a
/// colour being an object of four numbers.

/// Absent when the bytes are no such object or a key is missing or of another type. Keys that are not known
/// are passed over.
std::optional<Theme> decodeTheme(const QByteArray &bytes);

/// Absent when a number is infinite or none, which JSON cannot say.
std::optional<QByteArray> encodeTheme(const Theme &theme);

} // namespace brimlight
