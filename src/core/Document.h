#pragma once

#include "platform/SavedFile.h"

#include <utility>

namespace brimlight {

/// The file behind a store: a plain struct that is loaded once and saved whole at every change. `encode` and
/// `decode` are the free functions between the struct and its bytes; either may give nothing.
///
///     Document<encodeLayout, decodeLayout> m_document;
template<auto encode, auto decode>
class Document
{
public:
    using Content = typename decltype(decode(QByteArray()))::value_type;

    explicit Document(SavedFile file)
        : m_file(std::move(file))
    {
    }

    /// Absent when there is no file, or none that can be read and decoded; that one is kept aside before it
    /// is replaced.
    std::optional<Content> load()
    {
        const auto bytes = m_file.read();
        auto content = bytes ? decode(*bytes) : std::nullopt;
        if (bytes && !content)
            m_file.markUnusable();
        return content;
    }

    /// Returns at once; what the store holds is on its way to the file. False when it cannot be encoded.
    bool save(const Content &content)
    {
        const std::optional<QByteArray> bytes(encode(content));
        if (bytes)
            m_file.write(*bytes);
        return bytes.has_value();
    }

private:
    SavedFile m_file;
};

} // namespace brimlight
