#include "sensors/TemperatureValueDecoder.h"

#include <QtEndian>

#include <bit>

namespace brimlight::TemperatureValueDecoder {

std::optional<double> decodeSMCFloat(const QByteArray &data, uint32_t dataSize, uint32_t dataType)
{
    constexpr qsizetype singleSize = 4;
    if (dataType != smcFloatType || dataSize < singleSize || data.size() < singleSize)
        return std::nullopt;
    return std::bit_cast<float>(qFromLittleEndian<uint32_t>(data.constData()));
}

} // namespace brimlight::TemperatureValueDecoder
