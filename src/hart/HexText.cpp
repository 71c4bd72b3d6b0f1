#include "hart/HexText.h"

#include <charconv>

#include "types/Failure.h"

namespace ZAFHartTypes::hart {
namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";

}  // namespace

std::string ToHex(Bytes bytes) {
  std::string text;
  text.reserve(2 * bytes.size());
  for (const std::uint8_t byte : bytes) {
    text += kDigits[byte >> 4];
    text += kDigits[byte & 0xF];
  }
  return text;
}

std::vector<std::uint8_t> FromHex(std::string_view text) {
  std::vector<std::uint8_t> bytes;
  bytes.reserve(text.size() / 2);
  for (std::size_t at = 0; at < text.size();) {
    if (text[at] == ' ') {
      ++at;
      continue;
    }
    const std::string_view digits = text.substr(at, 2);
    std::uint8_t byte = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), byte, 16);
    if (error != std::errc{} || digits.size() != 2 || end != digits.data() + 2) {
      throw Failure(ErrorNumber::InvalidArgument, "hart.FromHex",
                    "There are no two hexadecimal digits at position " + std::to_string(at + 1) +
                        " of \"" + std::string(text) + "\".");
    }
    bytes.push_back(byte);
    at += 2;
  }
  return bytes;
}

}  // namespace ZAFHartTypes::hart
