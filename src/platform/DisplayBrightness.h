#pragma once

#include <optional>

namespace brimlight {

class DisplayBrightness
{
public:
    virtual ~DisplayBrightness() = default;
    /// Of the built-in display, from 0 to 1; absent when there is none or it cannot be read. Cheap enough to
    /// be asked all the time.
    virtual std::optional<double> linearBrightness() = 0;
};

} // namespace brimlight
