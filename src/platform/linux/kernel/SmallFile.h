#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace brimlight {

/// The whole content of a file, up to `limit` bytes of it; absent when it cannot be opened or read. Waits as
/// long as the file system or driver behind it does.
std::optional<QByteArray> smallFile(const QString &path, qsizetype limit = 1 << 20);

} // namespace brimlight
