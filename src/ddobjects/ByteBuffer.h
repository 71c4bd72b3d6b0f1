#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Export.h"

namespace ZAFHartTypes {

// Indexed byte container; indexes count from 0. Used for command status bytes (0 response code,
// 1 communication status, 2 device status) and additional device status.
class ZAF_API ByteBuffer {
 public:
  // Empty, or with the bytes listed.
  ByteBuffer() = default;
  ByteBuffer(std::initializer_list<std::uint8_t> bytes) : bytes_(bytes) {}
  std::size_t Count() const { return bytes_.size(); }
  // Makes it that long: new bytes are 0, surplus ones are dropped.
  void SetSize(std::size_t size) { bytes_.resize(size); }
  // Both raise SubscriptOutOfRange for an index outside 0..Count() - 1.
  std::uint8_t Item(std::size_t index) const;
  void SetItem(std::size_t index, std::uint8_t value);
  // Replaces all bytes by a copy of the given ones.
  void Assign(std::span<const std::uint8_t> bytes) { bytes_.assign(bytes.begin(), bytes.end()); }
  // All bytes: the buffer's own, not a copy.
  const std::vector<std::uint8_t>& Bytes() const { return bytes_; }
  // The bytes as a text in UTF-8, without a NUL at its end. Whether it is UTF-8 is not checked.
  void SetText(std::string_view text) { bytes_.assign(text.begin(), text.end()); }
  std::string Text() const { return {bytes_.begin(), bytes_.end()}; }

 private:
  std::vector<std::uint8_t> bytes_;
};

// Positions in command status bytes.
enum class StatusByte : std::size_t { ResponseCode = 0, Communication = 1, Device = 2 };

// The three status bytes of an exchange.
struct CommandStatus {
  std::uint8_t responseCode = 0;   // HART response code, 0 to 127; 0 with communication errors
  std::uint8_t communication = 0;  // HART communication error flags, bit 7 set when there are any
  std::uint8_t device = 0;         // field device status
  friend bool operator==(const CommandStatus&, const CommandStatus&) = default;
};

}  // namespace ZAFHartTypes
