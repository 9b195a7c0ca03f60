#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace brimlight {

/// A file that is read once, whole, and replaced whole. It never destroys what it could not make sense of: a
/// file that was there but unusable is moved aside under a name of its own before the first write takes its
/// place.
class WholeFile
{
public:
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
    /// cannot be moved aside; the file then is what it was.
    bool write(const QByteArray &content);
    /// Why the last `write()` failed, for the log.
    const QString &errorString() const { return m_error; }

private:
    bool keepAside();

    QString m_path;
    QString m_error;
    bool m_unusable = false;
};

} // namespace brimlight
