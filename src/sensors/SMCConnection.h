#pragma once

#include "platform/SmcTransport.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <unordered_map>

namespace brimlight {

/// Speaks the controller's protocol: keys have four characters, a value has a size and a type. Closes its
/// connection when it is destroyed. A failed transaction shows only as an absent answer.
class SMCConnection
{
public:
    struct KeyInfo
    {
        uint32_t dataSize = 0;
        uint32_t dataType = 0;
        uint8_t attributes = 0;
        bool operator==(const KeyInfo &) const = default;
    };
    struct Value
    {
        KeyInfo info;
        /// At most 32 bytes, whatever the info says.
        QByteArray data;
    };

    /// Nothing when the controller is not there.
    static std::unique_ptr<SMCConnection> open(SmcTransport &transport);
    ~SMCConnection();
    SMCConnection(const SMCConnection &) = delete;
    SMCConnection &operator=(const SMCConnection &) = delete;

    /// The key's UTF-8 bytes folded into a number, the first the most significant.
    static uint32_t keyCode(const QString &key);

    /// One transaction; absent unless the controller reports success in a record that holds a result.
    std::optional<SmcRecord> callSMC(const SmcRecord &request);
    /// Asked of the controller until it has answered once, so that a steady read costs one transaction.
    std::optional<KeyInfo> readKeyInfo(uint32_t code);
    std::optional<Value> readValue(const QString &key);
    /// How many keys there are; absent when the controller does not tell.
    std::optional<uint32_t> keyCount();
    /// Absent when the read fails or the key is not ASCII.
    std::optional<QString> keyAt(uint32_t index);

private:
    SMCConnection(SmcTransport &transport, uint32_t connection);

    SmcTransport &m_transport;
    uint32_t m_connection;
    std::unordered_map<uint32_t, KeyInfo> m_keyInfoCache;
};

} // namespace brimlight
