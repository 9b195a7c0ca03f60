#include "platform/SavedFile.h"

#include "platform/WholeFile.h"

#include <QFileInfo>

namespace brimlight {

SavedFile::SavedFile(const QString &path, FileWriter &writer)
    : m_file(std::make_shared<WholeFile>(path))
    , m_writer(&writer)
    , m_words{QStringLiteral("Files"), QFileInfo(path).fileName() + QStringLiteral(" cannot be saved: ")}
{
}

const QString &SavedFile::path() const
{
    return m_file->path();
}

std::optional<QByteArray> SavedFile::read()
{
    return m_file->read();
}

void SavedFile::markUnusable()
{
    m_file->markUnusable();
}

void SavedFile::write(const QByteArray &content)
{
    m_writer->write(m_file, content, m_words);
}

} // namespace brimlight
