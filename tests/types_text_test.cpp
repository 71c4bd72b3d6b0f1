#include <gtest/gtest.h>

#include "types/TextKey.h"
#include "types/Utf8.h"

namespace ZAFHartTypes {
namespace {

TEST(Utf8Test, CountsEachBrokenByteAsOneCharacter) {
  const std::pair<std::string, std::size_t> cases[] = {
      {"abc", 3},
      {"Gerät", 5},
      {"\xE2\x82\xAC", 1},      // euro sign
      {"\xF0\x9F\x98\x80", 1},  // beyond the basic plane
      {"\xC3", 1},              // cut off
      {"\xE2\x82", 2},          // cut off
      {"\xC0\xAF", 2},          // overlong
      {"\xED\xA0\x80", 3},      // surrogate
      {"\xF4\x90\x80\x80", 4},  // beyond U+10FFFF
      {"\x80"
       "a\xFF",
       3}};
  for (const auto& [text, length] : cases) {
    EXPECT_EQ(utf8::Length(text), length);
    EXPECT_EQ(utf8::Length(utf8::Repaired(text)), length);
    EXPECT_TRUE(utf8::IsValid(utf8::Repaired(text)));
  }
  EXPECT_FALSE(utf8::IsValid("a\xC3"));
  EXPECT_EQ(utf8::Prefix("Gerät", 4), "Gerä");
  EXPECT_EQ(utf8::Prefix("ab", 9), "ab");
}

TEST(Utf8Test, ConvertsLatin1) {
  EXPECT_EQ(utf8::ToLatin1("°C µ\xE2\x82\xAC"),
            "\xB0"
            "C \xB5?");
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  EXPECT_EQ(utf8::ToLatin1(utf8::FromLatin1(all)), all);
}

TEST(TextKeyTest, FoldsLettersOfManyAlphabets) {
  const std::pair<const char*, const char*> same[] = {
      {"ÀÇÐÞ", "àçðþ"},      {"Œ Ŵ Ÿ Ž", "œ ŵ ÿ ž"},
      {"ΑΣΏ", "ασώ"},        {"Ω", "ω"},
      {"\xE2\x84\xA6", "Ω"},                         // ohm sign and capital omega
      {"\xE2\x84\xAA", "K"}, {"\xE2\x84\xAB", "å"},  // kelvin and angstrom signs
      {"µA", "Μa"},          {"ЖЁ", "жё"}};
  for (const auto& [a, b] : same) {
    EXPECT_TRUE(SameKey(a, b)) << a;
    EXPECT_EQ(TextKey::Of(a), TextKey::Of(b)) << a;
  }
  const std::pair<const char*, const char*> different[] = {
      {"×", "÷"}, {"ı", "i"}, {"ß", "ss"}, {"a", "\xC3"}, {"\xC3", "\xC4"}, {"ab", "a"}};
  for (const auto& [a, b] : different) EXPECT_FALSE(SameKey(a, b)) << a;
}

}  // namespace
}  // namespace ZAFHartTypes
