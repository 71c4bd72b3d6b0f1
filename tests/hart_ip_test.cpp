#include <gtest/gtest.h>

#include "hart/HartIpMessage.h"
#include "hart/HexText.h"
#include "types/Failure.h"

namespace ZAFHartTypes::hart {
namespace {

using namespace std::chrono_literals;

// "1 0 8 #1: 0100007530": type, id, status, sequence number, body.
std::string Text(const HartIpMessage& message) {
  return std::to_string(static_cast<int>(message.type)) + " " +
         std::to_string(static_cast<int>(message.id)) + " " + std::to_string(message.status) +
         " #" + std::to_string(message.sequence) + ":" + ToHex(message.body);
}

std::string Text(const DecodedHartIp& decoded) {
  return decoded.IsGood() ? Text(decoded.message) : std::string(FaultText(decoded.fault));
}

TEST(HartIpMessages, Vectors) {
  struct {
    const char* bytes;
    const char* message;
  } const cases[] = {
      {"01 00 00 00 00 01 00 0D 01 00 00 75 30", "0 0 0 #1:0100007530"},
      {"01 01 00 08 00 01 00 0D 01 00 00 EA 60", "1 0 8 #1:010000EA60"},
      {"01 00 02 00 FF FE 00 08", "0 2 0 #65534:"},
      {"01 00 03 00 12 34 00 0D 02 80 00 00 82", "0 3 0 #4660:0280000082"},
      {"01 02 03 00 00 00 00 0F 01 80 00 02 00 00 83", "2 3 0 #0:01800002000083"},
      {"01 0F 03 0E 00 07 00 08", "15 3 14 #7:"},
      {"01 00 05 00 00 07 00 09 AA", "0 5 0 #7:AA"},  // an id of later versions
  };
  for (const auto& test : cases) {
    const auto bytes = FromHex(test.bytes);
    const DecodedHartIp decoded = DecodeHartIp(bytes);
    EXPECT_EQ(Text(decoded), test.message);
    EXPECT_EQ(EncodeHartIp(decoded.message), bytes) << test.message;
  }
}

TEST(HartIpMessages, SaysWhatIsWrong) {
  struct {
    const char* bytes;
    HartIpFault fault;
    const char* message;
  } const cases[] = {
      {"", HartIpFault::TooShort, "0 2 0 #0:"},
      {"01 00 03 00 12 34 00", HartIpFault::TooShort, "0 2 0 #0:"},
      {"01 00 03 00 12 34 00 0D 02 80", HartIpFault::TooShort, "0 3 0 #4660:0280"},
      {"02 00 00 00 00 01 00 0D 01 00 00 75 30", HartIpFault::Version, "0 0 0 #1:0100007530"},
      {"01 00 02 00 00 01 00 07", HartIpFault::ByteCount, "0 2 0 #1:"},
      {"01 00 02 00 00 01 05 DD AA", HartIpFault::ByteCount, "0 2 0 #1:AA"},
      {"01 00 02 00 00 01 00 08 AA", HartIpFault::Surplus, "0 2 0 #1:"},
  };
  for (const auto& test : cases) {
    const DecodedHartIp decoded = DecodeHartIp(FromHex(test.bytes));
    EXPECT_EQ(decoded.fault, test.fault) << test.bytes;
    EXPECT_EQ(Text(decoded.message), test.message) << test.bytes;
  }
  HartIpMessage message;
  message.body.resize(kHartIpMaxSize - kHartIpHeaderSize);
  EXPECT_TRUE(DecodeHartIp(EncodeHartIp(message)).IsGood());
  message.body.push_back(0);
  EXPECT_THROW(EncodeHartIp(message), Failure);
}

TEST(HartIpMessages, StreamInPiecesOfEverySize) {
  const auto line = FromHex(
      "01 01 00 00 00 01 00 0D 01 00 00 75 30"
      "01 01 02 00 00 02 00 08"
      "01 01 03 00 00 03 00 0D 02 80 00 00 82"
      "01 01 02 00 00 04 00 07"  // broken from here on
      "01 01 02 00 00 05 00 08");
  const std::vector<std::string> expected = {"1 0 0 #1:0100007530",
                                             "1 2 0 #2:", "1 3 0 #3:0280000082",
                                             "the message has an impossible byte count"};
  for (std::size_t piece = 1; piece <= line.size(); ++piece) {
    HartIpStream stream;
    std::vector<std::string> found;
    for (std::size_t at = 0; at < line.size(); at += piece) {
      const Bytes part = Bytes(line).subspan(at, std::min(piece, line.size() - at));
      for (const auto& one : stream.Receive(part)) found.push_back(Text(one));
    }
    EXPECT_EQ(found, expected) << piece;
    EXPECT_TRUE(stream.IsBroken());
  }
}

TEST(HartIpMessages, Sessions) {
  EXPECT_EQ(ToHex(EncodeSession({true, 30s})), "0100007530");
  EXPECT_EQ(DecodeSession(FromHex("00 FF FF FF FF 07")),
            (HartIpSession{false, std::chrono::milliseconds(0xFFFFFFFF)}));
  EXPECT_FALSE(DecodeSession(FromHex("01 00 00 75")));
  EXPECT_FALSE(DecodeSession(FromHex("02 00 00 75 30")));
  EXPECT_THROW(EncodeSession({true, std::chrono::milliseconds(0x100000000)}), Failure);
}

}  // namespace
}  // namespace ZAFHartTypes::hart
