#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace brimlight {

/// What a file of the kernel says in one line. Empty without the file.
inline QString sysfsText(const std::optional<QByteArray> &content)
{
    return content ? QString::fromUtf8(content->trimmed()) : QString();
}

/// The whole number that a file of the kernel holds; absent when it holds anything else.
inline std::optional<qint64> sysfsNumber(const std::optional<QByteArray> &content)
{
    bool isNumber = false;
    const qint64 number = content ? content->trimmed().toLongLong(&isNumber) : 0;
    return isNumber ? std::optional(number) : std::nullopt;
}

} // namespace brimlight
