#pragma once

#include "fakes/FakePowerSources.h"
#include "platform/MachineInfo.h"
#include "platform/SmcTransport.h"
#include "platform/ThermalServices.h"

#include <QStringList>

#include <algorithm>
#include <bit>
#include <map>
#include <vector>

namespace brimlight::test {

/// A controller that knows a reply for each whole record that it may be sent, and refuses every other.
class FakeSmc : public SmcTransport
{
public:
    FakeSmc() { recordValue("#KEY", "ui32", 4, 0, {0, 0, 0, 0}); }

    std::optional<uint32_t> open() override
    {
        ++opened;
        return isThere ? std::optional(connection) : std::nullopt;
    }
    void close(uint32_t closing) override { closed.push_back(closing); }
    SmcReply call(uint32_t onConnection, const SmcRecord &request) override
    {
        requests.push_back(request);
        const auto reply = replies.find(request);
        if (onConnection != connection || isBroken || reply == replies.end())
            return {.returnCode = -1};
        return reply->second;
    }

    /// Lists a key and records its info and value.
    void add(const char *key, float celsius, const char *type = "flt ", uint32_t size = 4)
    {
        const auto index = static_cast<uint32_t>(keys.size());
        SmcRecord request{};
        request[42] = 8;
        put(request, 44, index);
        SmcRecord answer{};
        put(answer, 0, code(key));
        replies[request] = {.record = answer, .size = 80};
        keys.append(QLatin1String(key));
        const auto count = static_cast<uint8_t>(keys.size());
        recordValue("#KEY", "ui32", 4, 0, {0, 0, static_cast<uint8_t>(keys.size() >> 8), count});
        recordCelsius(key, celsius, type, size);
    }
    void recordCelsius(const char *key, float celsius, const char *type = "flt ", uint32_t size = 4)
    {
        const auto bits = std::bit_cast<uint32_t>(celsius);
        recordValue(key, type, size, 0x84,
                    {static_cast<uint8_t>(bits), static_cast<uint8_t>(bits >> 8),
                     static_cast<uint8_t>(bits >> 16), static_cast<uint8_t>(bits >> 24)});
    }
    /// Records what the controller says of a key, listed or not.
    void recordValue(const char *key, const char *type, uint32_t size, uint8_t attributes,
                     const std::vector<uint8_t> &bytes)
    {
        SmcRecord info{};
        put(info, 28, size);
        put(info, 32, code(type));
        info[36] = attributes;
        replies[infoRequest(key)] = {.record = info, .size = 80};
        SmcRecord request = info;
        put(request, 0, code(key));
        request[42] = 5;
        valueRequests[QLatin1String(key)] = request;
        SmcRecord answer{};
        std::copy(bytes.begin(), bytes.end(), answer.begin() + 48);
        replies[request] = {.record = answer, .size = 80};
    }

    SmcReply &infoReply(const char *key) { return replies[infoRequest(key)]; }
    SmcReply &valueReply(const char *key) { return replies[valueRequests.at(QLatin1String(key))]; }

    /// How often the value of a key was asked for.
    int valueReads(const char *key) const
    {
        return static_cast<int>(
            std::count(requests.begin(), requests.end(), valueRequests.at(QLatin1String(key))));
    }

    static uint32_t code(const char *text)
    {
        uint32_t code = 0;
        while (*text)
            code = code << 8 | static_cast<uint8_t>(*text++);
        return code;
    }
    static SmcRecord infoRequest(const char *key)
    {
        SmcRecord request{};
        put(request, 0, code(key));
        request[42] = 9;
        return request;
    }
    static void put(SmcRecord &record, size_t offset, uint32_t value)
    {
        for (size_t i = 0; i < 4; ++i)
            record[offset + i] = static_cast<uint8_t>(value >> (8 * i));
    }

    static constexpr uint32_t connection = 1507;
    bool isThere = true;
    bool isBroken = false;
    int opened = 0;
    std::vector<uint32_t> closed;
    QStringList keys;
    std::map<SmcRecord, SmcReply> replies;
    std::map<QString, SmcRecord> valueRequests;
    std::vector<SmcRecord> requests;
};

class FakeThermal : public ThermalServices
{
public:
    struct Service
    {
        QString name;
        std::optional<double> celsius;
    };

    std::optional<int> match() override
    {
        ++matched;
        return canList ? std::optional(static_cast<int>(services.size())) : std::nullopt;
    }
    std::optional<double> celsius(int service) override
    {
        asked.append(service);
        return services.at(service).celsius;
    }
    QString name(int service) override { return services.at(service).name; }

    bool canList = true;
    int matched = 0;
    QList<int> asked;
    std::vector<Service> services;
};

class FakeMachine : public MachineInfo
{
public:
    std::optional<QString> chip() override { return chipText; }
    std::optional<QString> model() override { return modelText; }
    std::optional<QString> osBuild() override { return buildText; }
    QString osVersion() override { return QStringLiteral("Linux 6.1.0"); }
    QString hostName() override { return QStringLiteral("host"); }

    std::optional<QString> chipText = QStringLiteral("Chip One");
    std::optional<QString> modelText = QStringLiteral("Board2,1");
    std::optional<QString> buildText = QStringLiteral("6.1.0-18");
};

} // namespace brimlight::test
