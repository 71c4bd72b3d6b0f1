#include "types/TextKey.h"
#include "types/Utf8.h"

namespace ZAFHartTypes {
namespace {

// Letters in which each capital is followed by its small letter; the first capital's parity rules.
constexpr bool IsInPairs(char32_t c, char32_t first, char32_t last) {
  return c >= first && c <= last && (c - first) % 2 == 0;
}

constexpr char32_t FoldLatin(char32_t c) {
  if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return c + 0x20;
  if (IsInPairs(c, 0x100, 0x12E) || IsInPairs(c, 0x132, 0x136) || IsInPairs(c, 0x139, 0x147) ||
      IsInPairs(c, 0x14A, 0x176) || IsInPairs(c, 0x179, 0x17D)) {
    return c + 1;
  }
  if (c == 0x178) return 0xFF;  // Ÿ
  if (c == 0x17F) return U's';  // long s
  return c;
}

constexpr char32_t FoldGreek(char32_t c) {
  if (c >= 0x391 && c <= 0x3AB && c != 0x3A2) return c + 0x20;
  if (c >= 0x388 && c <= 0x38A) return c + 0x25;
  switch (c) {
    case 0x386:
      return 0x3AC;
    case 0x38C:
      return 0x3CC;
    case 0x38E:
    case 0x38F:
      return c + 0x3F;
    case 0x3C2:  // final sigma
      return 0x3C3;
    default:
      return c;
  }
}

constexpr char32_t FoldCyrillic(char32_t c) {
  if (c >= 0x410 && c <= 0x42F) return c + 0x20;
  if (c >= 0x400 && c <= 0x40F) return c + 0x50;
  if (c == 0x4C0) return 0x4CF;
  if (IsInPairs(c, 0x460, 0x480) || IsInPairs(c, 0x48A, 0x4BE) || IsInPairs(c, 0x4C1, 0x4CD) ||
      IsInPairs(c, 0x4D0, 0x52E)) {
    return c + 1;
  }
  return c;
}

constexpr char FoldAscii(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 0x20) : c;
}

// Beyond ASCII.
constexpr char32_t FoldCodePoint(char32_t c) {
  if (c < 0x180) return c == 0xB5 ? 0x3BC : FoldLatin(c);  // the micro sign is the letter mu
  if (c >= 0x370 && c < 0x400) return FoldGreek(c);
  if (c >= 0x400 && c < 0x530) return FoldCyrillic(c);
  switch (c) {
    case 0x1E9E:  // capital sharp s
      return 0xDF;
    case 0x2126:  // ohm sign
      return 0x3C9;
    case 0x212A:  // kelvin sign
      return U'k';
    case 0x212B:  // angstrom sign
      return 0xE5;
    default:
      return c;
  }
}

}  // namespace

std::string FoldCase(std::string_view text) {
  std::string folded;
  folded.reserve(text.size());
  for (std::size_t position = 0; position < text.size();) {
    if (static_cast<unsigned char>(text[position]) < 0x80) {
      folded += FoldAscii(text[position++]);
      continue;
    }
    const std::size_t start = position;
    const char32_t codePoint = utf8::Next(text, position);
    const char32_t lower = FoldCodePoint(codePoint);
    if (lower == codePoint) {
      folded += text.substr(start, position - start);  // broken bytes stay what they are
    } else {
      utf8::Append(folded, lower);
    }
  }
  return folded;
}

bool SameKey(std::string_view a, std::string_view b) {
  return a == b || FoldCase(a) == FoldCase(b);
}

}  // namespace ZAFHartTypes
