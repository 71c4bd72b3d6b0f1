#include <gtest/gtest.h>

#include "hart/DateText.h"
#include "hart/HexText.h"
#include "hart/Numbers.h"
#include "hart/StatusBytes.h"
#include "hart/Texts.h"
#include "types/Failure.h"

namespace ZAFHartTypes::hart {
namespace {

// What `write` puts into `size` bytes, or "failure <number>".
template <typename Write>
std::string Written(std::size_t size, Write write) {
  std::vector<std::uint8_t> bytes(size, 0xEE);
  try {
    write(bytes);
  } catch (const Failure& failure) {
    return "failure " + platform::NumberText(failure.Number());
  }
  return ToHex(bytes);
}

TEST(HartNumbers, Integers) {
  struct {
    std::int64_t value;
    std::size_t size;
    bool isSigned;
    const char* bytes;
  } const cases[] = {{0, 1, false, "00"},
                     {256, 1, false, "failure 6"},
                     {0x1234, 2, false, "1234"},
                     {0xFFFFFF, 3, false, "FFFFFF"},
                     {0x1000000, 3, false, "failure 6"},
                     {0xFFFFFFFE, 4, false, "FFFFFFFE"},
                     {1, 5, false, "failure -2147024809"},
                     {1, 0, true, "failure -2147024809"},
                     {-128, 1, true, "80"},
                     {-129, 1, true, "failure 6"},
                     {128, 1, true, "failure 6"},
                     {-2, 2, true, "FFFE"},
                     {-8388608, 3, true, "800000"},
                     {8388608, 3, true, "failure 6"},
                     {INT32_MIN, 4, true, "80000000"}};
  for (const auto& test : cases) {
    const std::string bytes = Written(test.size, [&](WritableBytes room) {
      if (test.isSigned) return WriteSigned(room, static_cast<std::int32_t>(test.value));
      WriteUnsigned(room, static_cast<std::uint32_t>(test.value));
    });
    EXPECT_EQ(bytes, test.bytes) << test.value;
    if (bytes.starts_with('f')) continue;
    const auto back = FromHex(bytes);
    EXPECT_EQ(test.isSigned ? std::int64_t{ReadSigned(back)} : std::int64_t{ReadUnsigned(back)},
              test.value);
  }
}

TEST(HartNumbers, FloatsKeepEveryBitPattern) {
  EXPECT_EQ(Written(4, [](WritableBytes bytes) { WriteFloat(bytes, 12.5F); }), "41480000");
  for (const char* hex : {"7FA00000", "7FC00001", "FF800000", "80000000", "00000001"}) {
    const float value = ReadFloat(FromHex(hex));
    EXPECT_EQ(Written(4, [&](WritableBytes bytes) { WriteFloat(bytes, value); }), hex);
  }
  const double notANumber = ReadDouble(FromHex("7FF4000000000001"));
  EXPECT_EQ(Written(8, [&](WritableBytes bytes) { WriteDouble(bytes, notANumber); }),
            "7FF4000000000001");
  EXPECT_THROW(ReadFloat(FromHex("414800")), Failure);
}

TEST(HartTexts, Latin1AndPackedAscii) {
  struct {
    const char* text;
    std::size_t size;
    bool isPacked;
    const char* bytes;
    const char* back;
  } const cases[] = {{"AB", 4, false, "41420000", "AB"},
                     {"5 \u00B0C ", 6, false, "3520B0432000", "5 \u00B0C "},
                     {"\u03A9", 1, false, "3F", "?"},
                     {"ABC", 2, false, "failure 6", ""},
                     {"PT-101", 6, true, "414B71C31820", "PT-101"},
                     {"tag\u00E9", 3, true, "5011FF", "TAG?"},
                     {"AB", 4, true, "04282082", "AB"},
                     {"@_ ?", 3, true, "01F83F", "@_ ?"},
                     {"ABCDE", 3, true, "failure 6", ""}};
  for (const auto& test : cases) {
    const std::string bytes = Written(test.size, [&](WritableBytes room) {
      test.isPacked ? WritePackedAscii(room, test.text) : WriteLatin1(room, test.text);
    });
    EXPECT_EQ(bytes, test.bytes) << test.text;
    if (bytes.starts_with('f')) continue;
    const auto back = FromHex(bytes);
    EXPECT_EQ(test.isPacked ? ReadPackedAscii(back) : ReadLatin1(back), test.back);
  }
}

TEST(HartTexts, HexTextAndDates) {
  EXPECT_EQ(FromHex("00 40fe"), (std::vector<std::uint8_t>{0x00, 0x40, 0xFE}));
  for (const char* wrong : {"0", "004", "0G", "0x", "-1", "4 0"}) {
    EXPECT_THROW(FromHex(wrong), Failure) << wrong;
  }
  EXPECT_EQ(DateToText(0x180B7E), "2026-11-24");
  EXPECT_EQ(DateFromText("2026-11-24"), 0x180B7E);
  EXPECT_EQ(DateFromText("2155-12-31"), 0x1F0CFFU);
  EXPECT_EQ(DateToText(0x1E0200), std::nullopt);
  for (const char* wrong : {"2026-02-29", "1899-12-31", "2156-01-01", "26-11-24", "2026-1-024"}) {
    EXPECT_EQ(DateFromText(wrong), std::nullopt) << wrong;
  }
}

TEST(HartStatus, WarningCodesAreCarriedOut) {
  std::string codes;
  for (unsigned code = 0; code < 96; ++code) {
    if (IsCarriedOut(static_cast<std::uint8_t>(code))) codes += std::to_string(code) + " ";
  }
  EXPECT_EQ(codes, "0 8 14 24 25 26 27 30 31 ");
}

}  // namespace
}  // namespace ZAFHartTypes::hart
