#include "Desktop.h"

namespace brimlight::onscreen {

std::ostream &operator<<(std::ostream &stream, const Desktop &desktop)
{
    stream << (desktop.windowManager ? desktop.windowManager : "none");
    return desktop.isComposited ? stream << "_composited" : stream;
}

std::string nameOf(const testing::TestParamInfo<Desktop> &info)
{
    return testing::PrintToString(info.param);
}

} // namespace brimlight::onscreen
