#include <gtest/gtest.h>

#include <bit>

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

TEST(HartNumbers, UnsignedIntegers) {
  struct {
    std::uint32_t value;
    std::size_t size;
    const char* bytes;
  } const cases[] = {{0, 1, "00"},
                     {255, 1, "FF"},
                     {256, 1, "failure 6"},
                     {0x1234, 2, "1234"},
                     {0xFFFFFF, 3, "FFFFFF"},
                     {0x1000000, 3, "failure 6"},
                     {0xFFFFFFFE, 4, "FFFFFFFE"},
                     {1, 5, "failure -2147024809"},
                     {1, 0, "failure -2147024809"}};
  for (const auto& test : cases) {
    const auto write = [&](WritableBytes bytes) { WriteUnsigned(bytes, test.value); };
    const std::string bytes = Written(test.size, write);
    EXPECT_EQ(bytes, test.bytes) << test.value;
    if (!bytes.starts_with('f')) {
      EXPECT_EQ(ReadUnsigned(FromHex(bytes)), test.value);
    }
  }
}

TEST(HartNumbers, SignedIntegers) {
  struct {
    std::int32_t value;
    std::size_t size;
    const char* bytes;
  } const cases[] = {
      {-1, 1, "FF"},           {-128, 1, "80"},           {-129, 1, "failure 6"},
      {127, 1, "7F"},          {128, 1, "failure 6"},     {-2, 2, "FFFE"},
      {-8388608, 3, "800000"}, {8388608, 3, "failure 6"}, {INT32_MIN, 4, "80000000"}};
  for (const auto& test : cases) {
    const auto write = [&](WritableBytes bytes) { WriteSigned(bytes, test.value); };
    const std::string bytes = Written(test.size, write);
    EXPECT_EQ(bytes, test.bytes) << test.value;
    if (!bytes.starts_with('f')) {
      EXPECT_EQ(ReadSigned(FromHex(bytes)), test.value);
    }
  }
}

TEST(HartNumbers, FloatsKeepEveryBitPattern) {
  EXPECT_EQ(Written(4, [](WritableBytes bytes) { WriteFloat(bytes, 12.5F); }), "41480000");
  EXPECT_EQ(Written(8, [](WritableBytes bytes) { WriteDouble(bytes, -2.0); }), "C000000000000000");
  for (const char* hex : {"7FA00000", "7FC00001", "FF800000", "80000000", "00000001"}) {
    const float value = ReadFloat(FromHex(hex));
    EXPECT_EQ(Written(4, [&](WritableBytes bytes) { WriteFloat(bytes, value); }), hex);
  }
  const double notANumber = ReadDouble(FromHex("7FF4000000000001"));
  EXPECT_EQ(Written(8, [&](WritableBytes bytes) { WriteDouble(bytes, notANumber); }),
            "7FF4000000000001");
  EXPECT_THROW(ReadFloat(FromHex("414800")), Failure);
}

TEST(HartTexts, Latin1) {
  struct {
    const char* text;
    std::size_t size;
    const char* bytes;
    const char* back;
  } const cases[] = {{"AB", 4, "41420000", "AB"},
                     {"5 \u00B0C ", 6, "3520B0432000", "5 \u00B0C "},
                     {"\u03A9", 1, "3F", "?"},
                     {"", 2, "0000", ""}};
  for (const auto& test : cases) {
    EXPECT_EQ(Written(test.size, [&](WritableBytes bytes) { WriteLatin1(bytes, test.text); }),
              test.bytes);
    EXPECT_EQ(ReadLatin1(FromHex(test.bytes)), test.back);
  }
  EXPECT_EQ(Written(2, [](WritableBytes bytes) { WriteLatin1(bytes, "ABC"); }), "failure 6");
}

TEST(HartTexts, PackedAscii) {
  struct {
    const char* text;
    std::size_t size;
    const char* bytes;
    const char* back;
  } const cases[] = {{"ABCD", 3, "0420C4", "ABCD"},      {"PT-101", 6, "414B71C31820", "PT-101"},
                     {"tag\u00E9", 3, "5011FF", "TAG?"}, {"AB", 4, "0428208200", "AB"},
                     {"@_ ?", 3, "01F83F", "@_ ?"},      {"", 6, "820820820820", ""}};
  for (const auto& test : cases) {
    const std::string bytes =
        Written(test.size, [&](WritableBytes room) { WritePackedAscii(room, test.text); });
    EXPECT_EQ(bytes, std::string(test.bytes).substr(0, 2 * test.size)) << test.text;
    EXPECT_EQ(ReadPackedAscii(FromHex(bytes)), test.back);
  }
  EXPECT_EQ(Written(3, [](WritableBytes bytes) { WritePackedAscii(bytes, "ABCDE"); }), "failure 6");
}

TEST(HartTexts, HexText) {
  EXPECT_EQ(FromHex("00 40fe"), (std::vector<std::uint8_t>{0x00, 0x40, 0xFE}));
  for (const char* wrong : {"0", "004", "0G", "0x", "-1", "4 0"}) {
    EXPECT_THROW(FromHex(wrong), Failure) << wrong;
  }
}

TEST(HartDates, Texts) {
  EXPECT_EQ(DateToText(0x180B7E), "2026-11-24");
  EXPECT_EQ(DateFromText("2026-11-24"), 0x180B7E);
  EXPECT_EQ(DateFromText("2155-12-31"), 0x1F0CFFU);
  EXPECT_EQ(DateToText(0xFFFFFF), std::nullopt);
  EXPECT_EQ(DateToText(0x1E0200), std::nullopt);
  for (const char* wrong : {"2026-02-29", "1899-12-31", "2156-01-01", "26-11-24", "2026/11/24",
                            "2026-1-024", "2026-11-24 "}) {
    EXPECT_EQ(DateFromText(wrong), std::nullopt) << wrong;
  }
}

TEST(HartStatus, WarningCodesAreCarriedOut) {
  for (const int code : {0, 8, 14, 24, 27, 30, 31, 96, 127}) {
    EXPECT_TRUE(IsCarriedOut(static_cast<std::uint8_t>(code))) << code;
  }
  for (const int code : {1, 5, 9, 16, 23, 28, 29, 32, 64, 95}) {
    EXPECT_FALSE(IsCarriedOut(static_cast<std::uint8_t>(code))) << code;
  }
}

}  // namespace
}  // namespace ZAFHartTypes::hart
