#pragma once

#include "platform/Folders.h"

namespace brimlight {

/// The folders of the XDG base directories.
class XdgFolders : public Folders
{
public:
    std::optional<QString> applicationSupport() const override;
    QString temporary() const override;

    /// The file of the user defaults, in the folder "Brimlight" of the configuration home.
    QString userDefaultsFile() const;
    /// Where the desktop looks for what it starts at login; empty for a user without a home.
    QString autostartFolder() const;
};

} // namespace brimlight
