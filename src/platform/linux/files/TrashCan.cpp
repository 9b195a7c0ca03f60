#include "platform/linux/files/TrashCan.h"

#include <QFile>
#include <QStandardPaths>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>
#include <vector>

namespace brimlight {
namespace {

/// An open folder. Everything within is named relative to it, so that nobody can put a link in the way.
class Folder
{
public:
    explicit Folder(int descriptor)
        : m_descriptor(descriptor)
    {
    }
    Folder(Folder &&other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
    {
    }
    Folder &operator=(Folder &&) = delete;
    ~Folder()
    {
        if (m_descriptor >= 0)
            close(m_descriptor);
    }

    bool isOpen() const { return m_descriptor >= 0; }
    int descriptor() const { return m_descriptor; }
    struct stat status() const
    {
        struct stat status = {};
        fstat(m_descriptor, &status);
        return status;
    }
    /// A link is no folder.
    Folder folder(const char *name) const
    {
        return Folder(openat(m_descriptor, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    }
    bool contains(const char *name) const
    {
        struct stat status = {};
        return fstatat(m_descriptor, name, &status, AT_SYMLINK_NOFOLLOW) == 0;
    }
    bool unlink(const char *name, int flags = 0) const
    {
        return unlinkat(m_descriptor, name, flags) == 0 || errno == ENOENT;
    }
    QList<QByteArray> names() const
    {
        QList<QByteArray> names;
        DIR *const entries = fdopendir(fcntl(m_descriptor, F_DUPFD_CLOEXEC, 0));
        if (!entries)
            return names;
        rewinddir(entries);
        while (const dirent *entry = readdir(entries)) {
            const QByteArray name(entry->d_name);
            if (name != "." && name != "..")
                names.append(name);
        }
        closedir(entries);
        return names;
    }

private:
    int m_descriptor;
};

/// Opened so that what is in it can be removed.
Folder openedForRemoval(const Folder &parent, const char *name)
{
    Folder folder = parent.folder(name);
    if (!folder.isOpen() && errno == EACCES &&
        fchmodat(parent.descriptor(), name, S_IRWXU, AT_SYMLINK_NOFOLLOW) == 0)
        return parent.folder(name);
    if (folder.isOpen() && (folder.status().st_mode & S_IRWXU) != S_IRWXU)
        fchmod(folder.descriptor(), S_IRWXU);
    return folder;
}

// The depth is bounded by the descriptors that the process may open.
bool removeTree(const Folder &parent, const char *name) // NOLINT(misc-no-recursion)
{
    if (parent.unlink(name))
        return true;
    if (errno != EISDIR)
        return false;
    {
        const Folder folder = openedForRemoval(parent, name);
        if (!folder.isOpen() || folder.status().st_dev != parent.status().st_dev)
            return false;
        for (const QByteArray &entry : folder.names())
            removeTree(folder, entry.constData());
    }
    return parent.unlink(name, AT_REMOVEDIR);
}

bool emptyTrashFolder(const Folder &trash)
{
    const Folder files = openedForRemoval(trash, "files");
    // What is out of reach stays, and so do the descriptions by which it can be restored.
    if (!files.isOpen() && trash.contains("files"))
        return false;
    const Folder info = openedForRemoval(trash, "info");
    bool all = true;
    for (const QByteArray &name : files.names())
        all = removeTree(files, name.constData()) && all;
    const QByteArray ending = ".trashinfo";
    for (const QByteArray &name : info.names()) {
        const QByteArray described = name.endsWith(ending) ? name.chopped(ending.size()) : name;
        if (!files.contains(described.constData()))
            all = removeTree(info, name.constData()) && all;
    }
    // What file managers were about to remove, and the sizes they remember.
    const Folder expunged = openedForRemoval(trash, "expunged");
    for (const QByteArray &name : expunged.names())
        all = removeTree(expunged, name.constData()) && all;
    trash.unlink("directorysizes");
    return all;
}

Folder openedFolder(const QByteArray &path, int flags)
{
    return Folder(open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | flags));
}

/// The user's own folder within one that all users share: only where nobody can tamper with it.
Folder sharedTrash(const QByteArray &volume, unsigned user)
{
    const Folder shared = openedFolder(volume + "/.Trash", O_NOFOLLOW);
    if (!shared.isOpen() || !(shared.status().st_mode & S_ISVTX))
        return Folder(-1);
    return shared.folder(QByteArray::number(user).constData());
}

std::vector<Folder> trashFolders(const TrashCan &can)
{
    std::vector<Folder> folders;
    // The one at home may be a link of the user's to a larger disk.
    if (Folder home = openedFolder(can.homeTrash, 0); home.isOpen())
        folders.push_back(std::move(home));
    QFile mountinfo(QFile::decodeName(can.mounts));
    if (!mountinfo.open(QIODevice::ReadOnly))
        return folders;
    for (const QByteArray &volume : mountPoints(mountinfo.readAll())) {
        std::array both{openedFolder(volume + "/.Trash-" + QByteArray::number(can.user), O_NOFOLLOW),
                        sharedTrash(volume, can.user)};
        for (Folder &trash : both) {
            if (trash.isOpen() && trash.status().st_uid == can.user)
                folders.push_back(std::move(trash));
        }
    }
    return folders;
}

QByteArray unescaped(const QByteArray &field)
{
    QByteArray text;
    for (qsizetype i = 0; i < field.size(); ++i) {
        bool isOctal = false;
        const int code = field[i] == '\\' ? field.mid(i + 1, 3).toInt(&isOctal, 8) : 0;
        text.append(isOctal ? static_cast<char>(code) : field[i]);
        i += isOctal ? 3 : 0;
    }
    return text;
}

} // namespace

QList<QByteArray> mountPoints(const QByteArray &mountinfo)
{
    constexpr qsizetype place = 4;
    QList<QByteArray> points;
    for (const QByteArray &line : mountinfo.split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        const qsizetype separator = fields.indexOf("-");
        if (separator <= place || fields.value(separator + 1) == "autofs")
            continue;
        const QByteArray point = unescaped(fields[place]);
        if (!points.contains(point))
            points.append(point);
    }
    return points;
}

TrashCan TrashCan::ofUser()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return {
        .homeTrash = QFile::encodeName(data) + "/Trash", .mounts = "/proc/self/mountinfo", .user = geteuid()};
}

bool TrashCan::empty() const
{
    bool all = true;
    for (const Folder &trash : trashFolders(*this))
        all = emptyTrashFolder(trash) && all;
    return all;
}

bool TrashCan::exists() const
{
    return !trashFolders(*this).empty();
}

} // namespace brimlight
