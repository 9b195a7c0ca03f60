#include "platform/linux/kernel/SmallFile.h"

#include <QFile>

#include <algorithm>

#include <fcntl.h>
#include <unistd.h>

namespace brimlight {
namespace {

ssize_t readSome(int descriptor, char *to, size_t size)
{
    ssize_t count = 0;
    do
        count = ::read(descriptor, to, size);
    while (count < 0 && errno == EINTR);
    return count;
}

} // namespace

std::optional<QByteArray> smallFile(const QString &path, qsizetype limit)
{
    constexpr qsizetype step = 4096;
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0)
        return std::nullopt;
    QByteArray content;
    ssize_t count = 0;
    do {
        const qsizetype size = content.size();
        content.resize(std::min(size + step, limit));
        count = readSome(descriptor, content.data() + size, content.size() - size);
        content.resize(size + std::max<ssize_t>(count, 0));
    } while (count > 0 && content.size() < limit);
    ::close(descriptor);
    return count < 0 ? std::nullopt : std::optional(content);
}

} // namespace brimlight
