#pragma once

namespace brimlight {

/// What the brief heads-up display shows; `level` from 0 to 1.
struct HUDType
{
    enum class Kind { volume, brightness };

    Kind kind = Kind::volume;
    double level = 0;

    bool operator==(const HUDType &) const = default;

    static HUDType volume(double level) { return {Kind::volume, level}; }
    static HUDType brightness(double level) { return {Kind::brightness, level}; }
};

} // namespace brimlight
