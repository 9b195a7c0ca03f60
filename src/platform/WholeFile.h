#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

namespace brimlight {

/// A file that is read once, whole, and replaced whole. It never destroys what it could not make sense of: a
/// file that was there but unusable is moved aside under a name of its own before the first write takes its
/// place.
class WholeFile
{
public:
    /// Waits until what was written to the descriptor is on the disk, or gives up waiting.
    using Sync = std::function<void(int descriptor)>;

    explicit WholeFile(QString path)
        : m_path(std::move(path))
    {
    }

    const QString &path() const { return m_path; }

    /// The content, absent when there is no file or it cannot be read. In the second case it is marked
    /// unusable.
    std::optional<QByteArray> read();

    /// To be called when the content that `read()` gave does not decode.
    void markUnusable() { m_unusable = true; }

    /// Replaces the file atomically, creating its folder. False when that fails, or when an unusable file
    /// cannot be moved aside; the file then is what it was. A link stays one, permissions stay what they
    /// were; a new file is the user's alone. The new content takes the old one's place after `sync`: a disk
    /// that loses its power then has one of the two.
    bool write(const QByteArray &content, const Sync &sync = untilOnDisk);
    /// Why the last `write()` failed, for the log.
    const QString &errorString() const { return m_error; }

    /// Takes as long as the disk does.
    static void untilOnDisk(int descriptor);

private:
    bool keepAside();
    bool replace(const QByteArray &content, const Sync &sync);

    QString m_path;
    QString m_error;
    bool m_unusable = false;
};

} // namespace brimlight
