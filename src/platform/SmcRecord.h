#pragma once

#include <QtEndian>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace brimlight {

/// The one record of the system management controller's protocol, the same layout both ways. A request is
/// zero but for the fields that its command needs.
using SmcRecord = std::array<uint8_t, 80>;

/// Where the fields are, and what goes into them. Integers are little-endian, value bytes are in the
/// controller's own order.
namespace SmcLayout {

constexpr size_t key = 0;
constexpr size_t dataSize = 28;
constexpr size_t dataType = 32;
/// One byte, as are `result` and `command`.
constexpr size_t attributes = 36;
/// Zero for success.
constexpr size_t result = 40;
constexpr size_t command = 42;
constexpr size_t index = 44;
constexpr size_t bytes = 48;
constexpr size_t bytesWidth = 32;

/// Needs key, size, type and attributes; gives the bytes.
constexpr uint8_t readValue = 5;
/// Needs the index; gives the key.
constexpr uint8_t readIndex = 8;
/// Needs the key; gives size, type and attributes.
constexpr uint8_t readInfo = 9;

/// The code of a key or a type: its text's bytes, the first the most significant.
constexpr uint32_t code(std::string_view text)
{
    uint32_t folded = 0;
    for (const char byte : text)
        folded = folded << 8 | static_cast<uint8_t>(byte);
    return folded;
}

inline void store(SmcRecord &record, uint32_t value, size_t offset)
{
    qToLittleEndian(value, record.data() + offset);
}

inline uint32_t load(const SmcRecord &record, size_t offset)
{
    return qFromLittleEndian<uint32_t>(record.data() + offset);
}

} // namespace SmcLayout
} // namespace brimlight
