#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/Export.h"

// Numbers as HART puts them on the wire: most significant byte first.
namespace ZAFHartTypes::hart {

// Bytes of somebody else's, for the call.
using Bytes = std::span<const std::uint8_t>;
using WritableBytes = std::span<std::uint8_t>;

// Bytes that an integer may take.
inline constexpr std::size_t kMaxIntegerSize = 4;

// Unsigned and two's complement integers of 1 to 4 bytes, the number given by the span. Raise
// InvalidArgument for another size; writing raises Overflow for a value that the bytes do not hold.
ZAF_API std::uint32_t ReadUnsigned(Bytes bytes);
ZAF_API std::int32_t ReadSigned(Bytes bytes);
ZAF_API void WriteUnsigned(WritableBytes bytes, std::uint32_t value);
ZAF_API void WriteSigned(WritableBytes bytes, std::int32_t value);

// IEEE 754 numbers of 4 and 8 bytes. Every bit pattern is kept, that of a NaN too: devices send
// 0x7FA00000 for "not a number". Raise InvalidArgument for another size.
ZAF_API float ReadFloat(Bytes bytes);
ZAF_API double ReadDouble(Bytes bytes);
ZAF_API void WriteFloat(WritableBytes bytes, float value);
ZAF_API void WriteDouble(WritableBytes bytes, double value);

}  // namespace ZAFHartTypes::hart
