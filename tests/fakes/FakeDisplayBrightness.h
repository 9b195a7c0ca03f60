#pragma once

#include "platform/DisplayBrightness.h"

namespace brimlight::test {

class FakeDisplayBrightness : public DisplayBrightness
{
public:
    std::optional<double> linearBrightness() override
    {
        ++reads;
        return brightness;
    }

    std::optional<double> brightness;
    int reads = 0;
};

} // namespace brimlight::test
