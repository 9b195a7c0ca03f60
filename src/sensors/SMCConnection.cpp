#include "sensors/SMCConnection.h"

#include <algorithm>

namespace brimlight {
namespace {

SmcRecord request(uint8_t command, uint32_t key = 0)
{
    SmcRecord record{};
    SmcLayout::store(record, key, SmcLayout::key);
    record[SmcLayout::command] = command;
    return record;
}

} // namespace

std::unique_ptr<SMCConnection> SMCConnection::open(SmcTransport &transport)
{
    const auto connection = transport.open();
    return std::unique_ptr<SMCConnection>(connection ? new SMCConnection(transport, *connection) : nullptr);
}

SMCConnection::SMCConnection(SmcTransport &transport, uint32_t connection)
    : m_transport(transport)
    , m_connection(connection)
{
}

SMCConnection::~SMCConnection()
{
    m_transport.close(m_connection);
}

uint32_t SMCConnection::keyCode(const QString &key)
{
    const QByteArray text = key.toUtf8();
    return SmcLayout::code({text.constData(), static_cast<size_t>(text.size())});
}

std::optional<SmcRecord> SMCConnection::callSMC(const SmcRecord &request)
{
    const SmcReply reply = m_transport.call(m_connection, request);
    if (reply.returnCode != 0 || reply.size < SmcLayout::bytes || reply.record[SmcLayout::result] != 0)
        return std::nullopt;
    return reply.record;
}

std::optional<SMCConnection::KeyInfo> SMCConnection::readKeyInfo(uint32_t code)
{
    if (const auto known = m_keyInfoCache.find(code); known != m_keyInfoCache.end())
        return known->second;
    const auto reply = callSMC(request(SmcLayout::readInfo, code));
    if (!reply)
        return std::nullopt;
    const KeyInfo info{SmcLayout::load(*reply, SmcLayout::dataSize),
                       SmcLayout::load(*reply, SmcLayout::dataType), (*reply)[SmcLayout::attributes]};
    m_keyInfoCache.emplace(code, info);
    return info;
}

std::optional<SMCConnection::Value> SMCConnection::readValue(const QString &key)
{
    const uint32_t code = keyCode(key);
    const auto info = readKeyInfo(code);
    if (!info)
        return std::nullopt;
    SmcRecord record = request(SmcLayout::readValue, code);
    SmcLayout::store(record, info->dataSize, SmcLayout::dataSize);
    SmcLayout::store(record, info->dataType, SmcLayout::dataType);
    record[SmcLayout::attributes] = info->attributes;
    const auto reply = callSMC(record);
    if (!reply)
        return std::nullopt;
    const auto size = static_cast<qsizetype>(std::min<size_t>(info->dataSize, SmcLayout::bytesWidth));
    return Value{*info, QByteArray(reinterpret_cast<const char *>(reply->data() + SmcLayout::bytes), size)};
}

std::optional<uint32_t> SMCConnection::keyCount()
{
    const auto value = readValue(QStringLiteral("#KEY"));
    if (!value || value->data.size() < static_cast<qsizetype>(sizeof(uint32_t)))
        return std::nullopt;
    return qFromBigEndian<uint32_t>(value->data.constData());
}

std::optional<QString> SMCConnection::keyAt(uint32_t index)
{
    SmcRecord record = request(SmcLayout::readIndex);
    SmcLayout::store(record, index, SmcLayout::index);
    const auto reply = callSMC(record);
    if (!reply)
        return std::nullopt;
    std::array<char, sizeof(uint32_t)> text{};
    qToBigEndian(SmcLayout::load(*reply, SmcLayout::key), text.data());
    const bool isAscii = std::all_of(text.begin(), text.end(), [](uint8_t c) { return c < 0x80; });
    return isAscii ? std::optional(QString::fromLatin1(text.data(), text.size())) : std::nullopt;
}

} // namespace brimlight
