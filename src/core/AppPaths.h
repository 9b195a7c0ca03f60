#pragma once

#include <QString>

namespace brimlight {

class Folders;

/// Where the program keeps its own files.
class AppPaths
{
public:
    explicit AppPaths(const Folders &folders)
        : m_folders(folders)
    {
    }

    /// The path of `name` in the folder "Brimlight" of the user's application support folder, or of the
    /// temporary folder when there is none. The folder is created; a failure to do so shows when the file is
    /// read or written. Touches the disk: stores ask once, when they are created.
    QString appSupportFile(const QString &name) const;

private:
    const Folders &m_folders;
};

} // namespace brimlight
