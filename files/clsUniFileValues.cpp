// clsUniFile: byte arrays and values of a fixed size.
#include "files/clsUniFile.h"

#include "base/Rounding.h"

#include <bit>
#include <limits>

namespace orvanta {

static_assert(std::endian::native == std::endian::little, "values are transferred as they stand in memory");

namespace {

constexpr std::size_t kLargestTransfer = std::numeric_limits<std::int32_t>::max();

} // namespace

bool clsUniFile::ReadBytes(std::span<std::uint8_t> aBuffer) {
    return aBuffer.size() <= kLargestTransfer && ReadAny(aBuffer.data(), static_cast<std::int32_t>(aBuffer.size()));
}

bool clsUniFile::WriteBytes(std::span<const std::uint8_t> aBuffer) {
    return aBuffer.size() <= kLargestTransfer && WriteAny(aBuffer.data(), static_cast<std::int32_t>(aBuffer.size()));
}

bool clsUniFile::ReadLong(std::int32_t& lOut) {
    return ReadAny(&lOut, sizeof lOut);
}

bool clsUniFile::WriteLong(std::int32_t lIn) {
    return WriteAny(&lIn, sizeof lIn);
}

bool clsUniFile::ReadInt(std::int16_t& iOut) {
    return ReadAny(&iOut, sizeof iOut);
}

bool clsUniFile::WriteInt(std::int16_t iIn) {
    return WriteAny(&iIn, sizeof iIn);
}

bool clsUniFile::ReadBool(bool& b) {
    std::uint8_t bStored = 0;
    if (!ReadByte(bStored)) return false;
    b = bStored == 1;
    return true;
}

bool clsUniFile::WriteBool(bool b) {
    return WriteByte(b ? 1 : 0);
}

bool clsUniFile::ReadDouble(std::int32_t& dOut) {
    double d = 0;
    if (!ReadAny(&d, sizeof d)) return false;
    const double dRounded = RoundHalfEven(d);
    // False for NaN too. Nothing is raised by a read, so a value out of range is only refused.
    if (!(dRounded >= std::numeric_limits<std::int32_t>::min() && dRounded <= std::numeric_limits<std::int32_t>::max()))
        return false;
    dOut = static_cast<std::int32_t>(dRounded);
    return true;
}

bool clsUniFile::WriteDouble(double d) {
    return WriteAny(&d, sizeof d);
}

} // namespace orvanta
