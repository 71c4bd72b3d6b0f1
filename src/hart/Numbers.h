#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

// Numbers as HART puts them on the wire: most significant byte first.
namespace ZAFHartTypes::hart {

using Bytes = std::span<const std::uint8_t>;
using WritableBytes = std::span<std::uint8_t>;

// Bytes that an integer may take.
inline constexpr std::size_t kMaxIntegerSize = 4;

// Unsigned and two's complement integers of 1 to 4 bytes, the number given by the span. Raise
// InvalidArgument for another size; writing raises Overflow for a value that the bytes do not hold.
std::uint32_t ReadUnsigned(Bytes bytes);
std::int32_t ReadSigned(Bytes bytes);
void WriteUnsigned(WritableBytes bytes, std::uint32_t value);
void WriteSigned(WritableBytes bytes, std::int32_t value);

// IEEE 754 numbers of 4 and 8 bytes. Every bit pattern is kept, that of a NaN too: devices send
// 0x7FA00000 for "not a number". Raise InvalidArgument for another size.
float ReadFloat(Bytes bytes);
double ReadDouble(Bytes bytes);
void WriteFloat(WritableBytes bytes, float value);
void WriteDouble(WritableBytes bytes, double value);

}  // namespace ZAFHartTypes::hart
