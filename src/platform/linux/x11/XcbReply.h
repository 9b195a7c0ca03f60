#pragma once

#include <cstdlib>
#include <memory>

namespace brimlight {

struct FreeReply
{
    void operator()(void *reply) const { std::free(reply); }
};

/// What an xcb reply function returns; null when the request failed.
template<typename T>
using XcbReply = std::unique_ptr<T, FreeReply>;

template<typename T>
XcbReply<T> adopt(T *reply)
{
    return XcbReply<T>(reply);
}

} // namespace brimlight
