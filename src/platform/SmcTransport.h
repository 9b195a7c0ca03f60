#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace brimlight {

/// The one record of the system management controller's protocol, the same layout both ways. Integers are
/// little-endian.
using SmcRecord = std::array<uint8_t, 80>;

struct SmcReply
{
    /// Zero for success.
    int returnCode = 0;
    SmcRecord record{};
    /// How many bytes of the record were returned.
    size_t size = 0;
};

/// Carries records to the system management controller and back.
class SmcTransport
{
public:
    virtual ~SmcTransport() = default;
    /// A connection to the controller's endpoint for keys; absent without one.
    virtual std::optional<uint32_t> open() = 0;
    virtual void close(uint32_t connection) = 0;
    virtual SmcReply call(uint32_t connection, const SmcRecord &request) = 0;
};

} // namespace brimlight
