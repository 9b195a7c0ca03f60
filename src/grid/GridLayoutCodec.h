#pragma once

#include "grid/GridLayout.h"

#include <QByteArray>

#include <optional>

namespace brimlight {

/// The layout file: one JSON object with the keys `instances` and `pageCount`; each instance with `id`,
/// `kind`, `size`, `order`, `page`, `col`, `row` and, only when present, `settings`. Keys stand in this
/// order; no white space.
QByteArray encodeLayout(const GridLayout &layout);

/// The way back. `order` and `page` default to 0, `col` and `row` to -1, `pageCount` to 1; a missing required
/// key, a wrong type or an unknown size anywhere makes the whole document absent. A null counts as an absent
/// key. The result's `pageCount` is never below 1 nor below the largest page plus 1. Ranges and kinds are not
/// checked.
std::optional<GridLayout> decodeLayout(const QByteArray &bytes);

} // namespace brimlight
