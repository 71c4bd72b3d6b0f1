#include "types/Utf8.h"

namespace ZAFHartTypes::utf8 {
namespace {

constexpr unsigned char ByteAt(std::string_view text, std::size_t position) {
  return static_cast<unsigned char>(text[position]);
}

// What a lead byte announces. `smallest` rules out overlong forms.
struct Sequence {
  std::size_t length;
  char32_t leadBits;
  char32_t smallest;
};

constexpr Sequence SequenceOf(unsigned char lead) {
  if (lead >= 0xC2 && lead <= 0xDF) return {2, lead & 0x1FU, 0x80};
  if (lead >= 0xE0 && lead <= 0xEF) return {3, lead & 0x0FU, 0x800};
  if (lead >= 0xF0 && lead <= 0xF4) return {4, lead & 0x07U, 0x10000};
  return {0, 0, 0};
}

constexpr bool IsScalarValue(char32_t codePoint) {
  return codePoint <= 0x10FFFF && (codePoint < 0xD800 || codePoint > 0xDFFF);
}

// Reads one code point; false for a broken byte, which alone is then consumed.
bool Decode(std::string_view text, std::size_t& position, char32_t& codePoint) {
  const unsigned char lead = ByteAt(text, position);
  if (lead < 0x80) {
    codePoint = lead;
    ++position;
    return true;
  }
  const Sequence sequence = SequenceOf(lead);
  char32_t value = sequence.leadBits;
  bool valid = sequence.length != 0 && text.size() - position >= sequence.length;
  for (std::size_t i = 1; valid && i < sequence.length; ++i) {
    const unsigned char next = ByteAt(text, position + i);
    valid = (next & 0xC0U) == 0x80U;
    value = (value << 6U) | (next & 0x3FU);
  }
  valid = valid && value >= sequence.smallest && IsScalarValue(value);
  codePoint = valid ? value : kReplacement;
  position += valid ? sequence.length : 1;
  return valid;
}

}  // namespace

char32_t Next(std::string_view text, std::size_t& position) {
  char32_t codePoint = 0;
  Decode(text, position, codePoint);
  return codePoint;
}

void Append(std::string& text, char32_t codePoint) {
  const char32_t value = IsScalarValue(codePoint) ? codePoint : kReplacement;
  const auto tail = [&](unsigned shift) {
    text += static_cast<char>(0x80U | ((value >> shift) & 0x3FU));
  };
  if (value < 0x80) {
    text += static_cast<char>(value);
  } else if (value < 0x800) {
    text += static_cast<char>(0xC0U | (value >> 6U));
    tail(0);
  } else if (value < 0x10000) {
    text += static_cast<char>(0xE0U | (value >> 12U));
    tail(6);
    tail(0);
  } else {
    text += static_cast<char>(0xF0U | (value >> 18U));
    tail(12);
    tail(6);
    tail(0);
  }
}

std::size_t Length(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t position = 0; position < text.size(); ++count) Next(text, position);
  return count;
}

std::string_view Prefix(std::string_view text, std::size_t count) {
  std::size_t position = 0;
  for (; count > 0 && position < text.size(); --count) Next(text, position);
  return text.substr(0, position);
}

bool IsValid(std::string_view text) {
  char32_t codePoint = 0;
  for (std::size_t position = 0; position < text.size();) {
    if (!Decode(text, position, codePoint)) return false;
  }
  return true;
}

std::string Repaired(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t position = 0; position < text.size();) Append(result, Next(text, position));
  return result;
}

std::string OneLine(std::string_view text) {
  std::string line;
  for (std::size_t at = 0; at < text.size();) {
    const char32_t c = Next(text, at);
    const bool control = c < 0x20 || (c >= 0x7F && c < 0xA0);
    Append(line, control ? U' ' : c);
  }
  return line;
}

std::string ToLatin1(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t position = 0; position < text.size();) {
    const char32_t codePoint = Next(text, position);
    bytes += codePoint <= 0xFF ? static_cast<char>(codePoint) : '?';
  }
  return bytes;
}

std::string FromLatin1(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) Append(text, static_cast<unsigned char>(byte));
  return text;
}

}  // namespace ZAFHartTypes::utf8
