#pragma once

#include <QString>

#include <optional>

namespace brimlight {

/// The entry by which the desktop starts the program at login. Its state is the system's: the user may change
/// it elsewhere at any time.
class LoginItem
{
public:
    virtual ~LoginItem() = default;
    virtual bool isEnabled() const = 0;
    /// The error in words, absent when it went well.
    virtual std::optional<QString> enable() = 0;
    /// An item that is not there cannot be removed: that is an error too.
    virtual std::optional<QString> disable() = 0;
};

} // namespace brimlight
