#include "hart/Numbers.h"

#include <bit>
#include <string>

#include "types/Failure.h"

namespace ZAFHartTypes::hart {
namespace {

void RequireIntegerSize(std::size_t size) {
  if (size >= 1 && size <= kMaxIntegerSize) return;
  throw Failure(ErrorNumber::InvalidArgument, "hart.Integer",
                "An integer takes 1 to 4 bytes, not " + std::to_string(size) + ".");
}

void RequireSize(std::size_t size, std::size_t wanted) {
  if (size == wanted) return;
  throw Failure(
      ErrorNumber::InvalidArgument, "hart.Float",
      "The number takes " + std::to_string(wanted) + " bytes, not " + std::to_string(size) + ".");
}

[[noreturn]] void RaiseOverflow(const std::string& value, std::size_t size) {
  throw Failure(ErrorNumber::Overflow, "hart.Integer",
                value + " does not fit " + std::to_string(size) + " byte(s).");
}

template <typename Word>
Word ReadWord(Bytes bytes) {
  Word word = 0;
  for (const std::uint8_t byte : bytes) word = static_cast<Word>((word << 8) | byte);
  return word;
}

template <typename Word>
void WriteWord(WritableBytes bytes, Word word) {
  for (auto at = bytes.rbegin(); at != bytes.rend(); ++at, word >>= 8) {
    *at = static_cast<std::uint8_t>(word & 0xFF);
  }
}

unsigned BitsOf(std::size_t size) {
  return static_cast<unsigned>(8 * size);
}

}  // namespace

std::uint32_t ReadUnsigned(Bytes bytes) {
  RequireIntegerSize(bytes.size());
  return ReadWord<std::uint32_t>(bytes);
}

std::int32_t ReadSigned(Bytes bytes) {
  const unsigned unused = BitsOf(kMaxIntegerSize) - BitsOf(bytes.size());
  return static_cast<std::int32_t>(ReadUnsigned(bytes) << unused) >> unused;
}

void WriteUnsigned(WritableBytes bytes, std::uint32_t value) {
  RequireIntegerSize(bytes.size());
  if (std::uint64_t{value} >> BitsOf(bytes.size()) != 0) {
    RaiseOverflow(std::to_string(value), bytes.size());
  }
  WriteWord(bytes, value);
}

void WriteSigned(WritableBytes bytes, std::int32_t value) {
  RequireIntegerSize(bytes.size());
  const std::int64_t limit = std::int64_t{1} << (BitsOf(bytes.size()) - 1);
  if (value < -limit || value >= limit) RaiseOverflow(std::to_string(value), bytes.size());
  WriteWord(bytes, static_cast<std::uint32_t>(value));
}

float ReadFloat(Bytes bytes) {
  RequireSize(bytes.size(), sizeof(float));
  return std::bit_cast<float>(ReadWord<std::uint32_t>(bytes));
}

double ReadDouble(Bytes bytes) {
  RequireSize(bytes.size(), sizeof(double));
  return std::bit_cast<double>(ReadWord<std::uint64_t>(bytes));
}

void WriteFloat(WritableBytes bytes, float value) {
  RequireSize(bytes.size(), sizeof(float));
  WriteWord(bytes, std::bit_cast<std::uint32_t>(value));
}

void WriteDouble(WritableBytes bytes, double value) {
  RequireSize(bytes.size(), sizeof(double));
  WriteWord(bytes, std::bit_cast<std::uint64_t>(value));
}

}  // namespace ZAFHartTypes::hart
