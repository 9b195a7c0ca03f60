#pragma once

#include "platform/FileWriter.h"

#include <optional>

namespace brimlight {

/// A file that is read once, when its store is made, and from then on replaced whole by a `FileWriter`. What
/// could not be made sense of is moved aside before it is replaced.
class SavedFile
{
public:
    SavedFile(const QString &path, FileWriter &writer);

    const QString &path() const;
    /// The content; absent when there is no file or it cannot be read. Not after the first `write`.
    std::optional<QByteArray> read();
    /// To be called when the content does not decode.
    void markUnusable();
    /// Instead of "NAME cannot be saved: REASON" in the category "Files".
    void setFailureWords(const FailureWords &words) { m_words = words; }
    /// Returns at once.
    void write(const QByteArray &content);

private:
    std::shared_ptr<WholeFile> m_file;
    FileWriter *m_writer;
    FailureWords m_words;
};

} // namespace brimlight
