#include "Desktop.h"

namespace brimlight::onscreen {

std::ostream &operator<<(std::ostream &stream, const Desktop &desktop)
{
    stream << (desktop.windowManager ? desktop.windowManager : "none");
    if (desktop.isComposited)
        stream << "_composited";
    if (desktop.hasTouchpad)
        stream << "_touchpad";
    return stream;
}

std::string nameOf(const testing::TestParamInfo<Desktop> &info)
{
    return testing::PrintToString(info.param);
}

} // namespace brimlight::onscreen
