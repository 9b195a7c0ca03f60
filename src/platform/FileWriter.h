#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

namespace brimlight {

class WholeFile;

/// What the log says when a file cannot be written; the reason follows `message`.
struct FailureWords
{
    QString category;
    QString message;
};

/// Replaces whole files without making the caller wait for the disk.
///
/// A content is on its way when `write` returns: nothing else has to happen in the process for it to reach
/// its file. A file is never torn: whenever the process ends it holds an old content or a new one.
class FileWriter
{
public:
    virtual ~FileWriter() = default;

    /// Of contents given while an earlier one of the file is being written only the newest is. A failure
    /// leaves the file as it was and is logged, once until a write of the file succeeds again. From the first
    /// call on the file belongs to the writer.
    virtual void write(const std::shared_ptr<WholeFile> &file, const QByteArray &content,
                       const FailureWords &words) = 0;
};

} // namespace brimlight
