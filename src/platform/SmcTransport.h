#pragma once

#include "platform/SmcRecord.h"

#include <optional>

namespace brimlight {

struct SmcReply
{
    /// Zero for success.
    int returnCode = 0;
    SmcRecord record{};
    /// How many bytes of the record were returned.
    size_t size = 0;
};

/// Carries records to the system management controller and back. A call takes as long as the controller does.
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
