#pragma once

#include <QByteArray>
#include <QList>

namespace brimlight {

/// Where the user's trash lies: one folder at home and one on each volume.
struct TrashCan
{
    /// The data folder of the user holds "Trash"; the mounts are in the format of /proc/self/mountinfo.
    static TrashCan ofUser();

    /// Removes everything, also what is write protected, and no more than that: no link is followed and no
    /// volume that is mounted within is entered. What cannot be removed stays with its description, and the
    /// answer is false. Takes as long as the file systems do.
    bool empty() const;
    /// Any of the folders is there: the first file that is thrown away makes one. Takes as long as the file
    /// systems do.
    bool exists() const;

    QByteArray homeTrash;
    QByteArray mounts;
    unsigned user = 0;
};

/// The places of all volumes, but for those that would only be mounted by looking.
QList<QByteArray> mountPoints(const QByteArray &mountinfo);

} // namespace brimlight
