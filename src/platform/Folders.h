#pragma once

#include <QString>

#include <optional>

namespace brimlight {

/// Where the user's files lie.
class Folders
{
public:
    virtual ~Folders() = default;

    /// The folder for application data, absent when the system names none.
    virtual std::optional<QString> applicationSupport() const = 0;
    /// A folder for files that need not outlive the session; always there.
    virtual QString temporary() const = 0;
};

} // namespace brimlight
