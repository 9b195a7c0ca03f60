#pragma once

#include <QByteArray>

#include <cstdint>
#include <optional>

namespace brimlight::TemperatureValueDecoder {

/// The type code of "flt ", the only type that is decoded.
constexpr uint32_t smcFloatType = 0x666C7420;

/// The first four bytes as a single, the lowest byte first. Absent for another type or fewer bytes.
std::optional<double> decodeSMCFloat(const QByteArray &data, uint32_t dataSize, uint32_t dataType);

} // namespace brimlight::TemperatureValueDecoder
