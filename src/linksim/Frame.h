#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Export.h"

namespace HartLinkSim {

// The data bytes of one request or reply, coded and decoded by position (from 0) and size in bytes.
// Writing makes the frame long enough; new bytes are 0. Reading beyond its length raises
// SubscriptOutOfRange; sizes and values that do not go together raise as hart/Numbers.h and
// hart/Texts.h say.
class ZAF_API Frame {
 public:
  // IEEE 754 numbers of 4 and 8 bytes.
  float Float(std::size_t position) const;
  void SetFloat(std::size_t position, float value);
  double Double(std::size_t position) const;
  void SetDouble(std::size_t position, double value);
  // Integers of 1 to 4 bytes.
  std::int32_t Signed(std::size_t position, std::size_t size) const;
  void SetSigned(std::size_t position, std::size_t size, std::int32_t value);
  std::uint32_t Unsigned(std::size_t position, std::size_t size) const;
  void SetUnsigned(std::size_t position, std::size_t size, std::uint32_t value);
  // Latin-1, one byte per character; `text` is UTF-8. Writing raises Overflow for more characters
  // than bytes.
  std::string Ascii(std::size_t position, std::size_t size) const;
  void SetAscii(std::size_t position, std::size_t size, std::string_view text);
  // Four characters in three bytes; `size` counts bytes. Overflow as above.
  std::string PackedAscii(std::size_t position, std::size_t size) const;
  void SetPackedAscii(std::size_t position, std::size_t size, std::string_view text);

  // The bits of `mask` in a group of `size` bytes (1 to 4), as a number that starts at the lowest
  // bit of the mask. Mask bits outside the group are not there: they read as 0 and are not written.
  // Writing leaves the other bits of the group alone and raises Overflow for a value of more bits
  // than the mask has.
  std::uint32_t Bits(std::size_t position, std::uint32_t mask, std::size_t size) const;
  void SetBits(std::size_t position, std::uint32_t mask, std::size_t size, std::uint32_t value);
  // "0"s and "1"s of the lowest `count` bits of a mask, bit 0 first.
  static std::string BitText(std::uint32_t mask, std::size_t count);

  // The whole frame. A new length cuts bytes off its end, or adds ones that are 0.
  const std::vector<std::uint8_t>& Bytes() const { return bytes_; }
  void SetBytes(std::vector<std::uint8_t> bytes) { bytes_ = std::move(bytes); }
  std::size_t Length() const { return bytes_.size(); }
  void SetLength(std::size_t length) { bytes_.resize(length); }
  // Two capital hexadecimal digits per byte, of a stretch or of the whole frame. A stretch beyond
  // its length raises SubscriptOutOfRange.
  std::string HexText(std::size_t position, std::size_t length) const;
  std::string HexText() const;
  // Loads the frame; raises InvalidArgument for a text that is not hexadecimal.
  void SetHexText(std::string_view text);

 private:
  std::vector<std::uint8_t> bytes_;
};

}  // namespace HartLinkSim
