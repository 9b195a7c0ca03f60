#include "core/DebugFlags.h"

#include <QtGlobal>

namespace brimlight {

DebugFlags DebugFlags::fromValue(const std::optional<QByteArray> &value)
{
    return {.enabled = value == "1"};
}

DebugFlags DebugFlags::fromEnvironment()
{
    if (!qEnvironmentVariableIsSet(variable))
        return fromValue(std::nullopt);
    return fromValue(qgetenv(variable));
}

} // namespace brimlight
