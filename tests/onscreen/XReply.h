#pragma once

#include <cstdlib>
#include <memory>

namespace brimlight::onscreen {

struct Free
{
    void operator()(void *memory) const { std::free(memory); }
};

/// Owns what an xcb function has allocated.
template<typename T>
std::unique_ptr<T, Free> owned(T *reply)
{
    return std::unique_ptr<T, Free>(reply);
}

} // namespace brimlight::onscreen
