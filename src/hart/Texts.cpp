#include "hart/Texts.h"

#include <algorithm>

#include "types/Failure.h"
#include "types/Utf8.h"

namespace ZAFHartTypes::hart {
namespace {

constexpr unsigned kPackedBits = 6;
constexpr unsigned kPackedMask = 0x3F;

// The text in Latin-1; raises when it has more than `room` characters.
std::string Latin1Within(std::string_view text, std::size_t room) {
  std::string latin1 = utf8::ToLatin1(text);
  if (latin1.size() > room) {
    throw Failure(ErrorNumber::Overflow, "hart.Text",
                  "A text of " + std::to_string(latin1.size()) +
                      " characters does not fit the room for " + std::to_string(room) + ".");
  }
  return latin1;
}

// Six bits for the characters from blank to "_".
std::uint8_t PackedCode(char character) {
  if (character >= 'a' && character <= 'z') character = static_cast<char>(character - 'a' + 'A');
  if (character < ' ' || character > '_') character = '?';
  return static_cast<std::uint8_t>(character & static_cast<char>(kPackedMask));
}

char PackedCharacter(unsigned code) {
  return static_cast<char>(code < ' ' ? code | 0x40U : code);
}

void DropTrailing(std::string& text, char filling) {
  text.erase(text.find_last_not_of(filling) + 1);
}

}  // namespace

std::string ReadLatin1(Bytes bytes) {
  std::string latin1(bytes.begin(), bytes.end());
  DropTrailing(latin1, '\0');
  return utf8::FromLatin1(latin1);
}

void WriteLatin1(WritableBytes bytes, std::string_view text) {
  const std::string latin1 = Latin1Within(text, bytes.size());
  const auto end = std::copy(latin1.begin(), latin1.end(), bytes.begin());
  std::fill(end, bytes.end(), std::uint8_t{0});
}

std::string ReadPackedAscii(Bytes bytes) {
  std::string text;
  unsigned bits = 0;
  unsigned held = 0;
  for (const std::uint8_t byte : bytes) {
    bits = (bits << 8) | byte;
    held += 8;
    for (; held >= kPackedBits; held -= kPackedBits) {
      text += PackedCharacter((bits >> (held - kPackedBits)) & kPackedMask);
    }
  }
  DropTrailing(text, ' ');
  return text;
}

void WritePackedAscii(WritableBytes bytes, std::string_view text) {
  std::string characters = Latin1Within(text, PackedCharacters(bytes.size()));
  // One more blank fills the bits of the last byte that hold no whole character.
  characters.resize(PackedCharacters(bytes.size()) + 1, ' ');
  unsigned bits = 0;
  unsigned held = 0;
  auto next = characters.begin();
  for (std::uint8_t& byte : bytes) {
    for (; held < 8; held += kPackedBits) bits = (bits << kPackedBits) | PackedCode(*next++);
    held -= 8;
    byte = static_cast<std::uint8_t>((bits >> held) & 0xFF);
  }
}

}  // namespace ZAFHartTypes::hart
