#include <gtest/gtest.h>

#include "hart/HexText.h"
#include "hart/LinkFrame.h"
#include "types/Failure.h"

namespace ZAFHartTypes::hart {
namespace {

// "Reply long A primary burst command 3: 0000": kind, address, who, command number, data.
std::string Text(const LinkFrame& frame) {
  std::string text = frame.type == FrameType::Request ? "Request "
                     : frame.type == FrameType::Reply ? "Reply "
                                                      : "Burst ";
  text +=
      frame.address.isLong ? ToHex(frame.address.bytes) : std::to_string(frame.address.bytes[0]);
  text += frame.primaryMaster ? " primary " : " secondary ";
  if (frame.burst) text += "bursting ";
  if (!frame.expansion.empty()) text += "expansion " + ToHex(frame.expansion) + " ";
  return text + "#" + std::to_string(frame.CommandNumber()) + ":" + ToHex(frame.ExchangeData());
}

TEST(HartFrames, Vectors) {
  struct {
    const char* bytes;
    const char* frame;
  } const cases[] = {
      {"02 80 00 00 82", "Request 0 primary #0:"},
      {"02 05 00 00 07", "Request 5 secondary #0:"},
      {"02 BF 00 00 BD", "Request 63 primary #0:"},
      {"06 80 00 0E 00 00 FE 26 06 05 07 01 08 01 00 12 34 56 2C",
       "Reply 0 primary #0:0000FE2606050701080100123456"},
      {"06 4F 03 02 00 00 48", "Reply 15 secondary bursting #3:0000"},
      {"82 A6 06 12 34 56 03 00 51", "Request 2606123456 primary #3:"},
      {"82 26 06 12 34 56 03 00 D1", "Request 2606123456 secondary #3:"},
      {"86 A6 06 12 34 56 03 0B 00 00 41 40 00 00 20 41 C8 00 00 F6",
       "Reply 2606123456 primary #3:0000414000002041C80000"},
      {"86 A6 06 12 34 56 03 02 88 00 DF", "Reply 2606123456 primary #3:8800"},
      {"81 E6 06 12 34 56 03 0B 00 00 41 40 00 00 20 41 C8 00 00 B1",
       "Burst 2606123456 primary bursting #3:0000414000002041C80000"},
      {"A2 A6 06 12 34 56 7E 03 00 0F", "Request 2606123456 primary expansion 7E #3:"},
      {"62 80 01 02 03 00 00 E2", "Request 0 primary expansion 010203 #0:"},
      {"82 A6 06 12 34 56 1F 03 02 01 05 48", "Request 2606123456 primary #513:05"},
      {"86 A6 06 12 34 56 1F 05 00 00 02 01 05 4A", "Reply 2606123456 primary #513:000005"},
      {"86 A6 06 12 34 56 1F 02 40 00 0B", "Reply 2606123456 primary #31:4000"},
  };
  for (const auto& test : cases) {
    const auto bytes = FromHex(test.bytes);
    const DecodedFrame decoded = DecodeFrame(bytes);
    EXPECT_EQ(FaultText(decoded.fault), "") << test.bytes;
    EXPECT_EQ(Text(decoded.frame), test.frame);
    EXPECT_EQ(EncodeFrame(decoded.frame), bytes) << test.frame;
    EXPECT_EQ(DecodeFrame(WithPreambles(bytes, 5)).frame, decoded.frame);
  }
}

TEST(HartFrames, RequestsAndReplies) {
  const auto poll = RequestFrame(0, LinkAddress::Polling(0), true, {});
  EXPECT_EQ(ToHex(WithPreambles(EncodeFrame(poll), 5)), "FFFFFFFFFF0280000082");
  // The two high bits of a unique address are not sent as master and burst bit.
  const auto device = LinkAddress::Unique(std::array<std::uint8_t, 5>{0xE6, 6, 0x12, 0x34, 0x56});
  const auto extended = RequestFrame(513, device, false, FromHex("05"));
  EXPECT_EQ(ToHex(EncodeFrame(extended)),
            "822606123456"
            "1F03020105C8");
  EXPECT_EQ(ToHex(EncodeFrame(ReplyFrame(extended, FromHex("000005")))),
            "862606123456"
            "1F0500000201"
            "05CA");
  EXPECT_EQ(RequestFrame(255, device, true, {}).command, 255);
  EXPECT_EQ(ToHex(RequestFrame(256, device, true, {}).data), "0100");
}

TEST(HartFrames, WhatAnswersARequest) {
  const auto request = DecodeFrame(FromHex("82 A6 06 12 34 56 1F 02 02 01 4C")).frame;
  struct {
    const char* bytes;
    bool answers;
  } const cases[] = {
      {"86 A6 06 12 34 56 1F 05 00 00 02 01 05 4A", true},
      {"86 E6 06 12 34 56 1F 05 00 00 02 01 05 0A", true},   // in burst mode
      {"86 A6 06 12 34 56 1F 02 40 00 0B", true},            // command 31 not known
      {"86 A6 06 12 34 56 1F 04 00 00 02 02 4D", false},     // another number
      {"86 26 06 12 34 56 1F 05 00 00 02 01 05 CA", false},  // to the other master
      {"86 A6 06 12 34 57 1F 05 00 00 02 01 05 4B", false},  // from another device
      {"86 A6 06 12 34 56 03 02 00 00 57", false},           // another command
      {"81 E6 06 12 34 56 1F 04 00 00 02 01 09", false},     // a burst
      {"82 A6 06 12 34 56 1F 02 02 01 4C", false},           // an echo
  };
  for (const auto& test : cases) {
    const DecodedFrame decoded = DecodeFrame(FromHex(test.bytes));
    EXPECT_EQ(FaultText(decoded.fault), "") << test.bytes;
    EXPECT_EQ(Answers(decoded.frame, request), test.answers) << test.bytes;
  }
}

TEST(HartFrames, RefusesWhatNoFrameHolds) {
  const std::vector<std::uint8_t> data(254);
  const auto device = LinkAddress::Polling(1);
  EXPECT_EQ(EncodeFrame(RequestFrame(3, device, true, data)).size(), 1U + 1 + 1 + 1 + 254 + 1);
  EXPECT_THROW(RequestFrame(512, device, true, data), Failure);
  EXPECT_THROW(LinkAddress::Polling(64), Failure);
  EXPECT_THROW(WithPreambles(data, 1), Failure);
  EXPECT_THROW(WithPreambles(data, 21), Failure);
  LinkFrame frame;
  frame.data.resize(256);
  EXPECT_THROW(EncodeFrame(frame), Failure);
  frame = {};
  frame.expansion.resize(4);
  EXPECT_THROW(EncodeFrame(frame), Failure);
}

TEST(HartFrames, SaysWhatIsWrong) {
  struct {
    const char* bytes;
    FrameFault fault;
    const char* frame;
  } const cases[] = {
      {"", FrameFault::TooShort, nullptr},
      {"FF FF FF", FrameFault::TooShort, nullptr},
      {"FF FF 82 A6 06 12 34 56 03", FrameFault::TooShort, nullptr},
      {"82 A6 06 12 34 56 03 02 11", FrameFault::TooShort, "Request 2606123456 primary #3:11"},
      {"86 A6 06 12 34 56 03 02 00 00", FrameFault::TooShort, "Reply 2606123456 primary #3:0000"},
      {"03 80 00 00 83", FrameFault::Delimiter, nullptr},
      {"0A 80 00 00 8A", FrameFault::Delimiter, nullptr},
      {"FF FF 00 02 80 00 00 82", FrameFault::Delimiter, nullptr},
      {"06 80 00 01 00 87", FrameFault::ByteCount, "Reply 0 primary #0:00"},
      {"01 80 00 00 81", FrameFault::ByteCount, "Burst 0 primary #0:"},
      {"02 80 00 00 83", FrameFault::CheckByte, "Request 0 primary #0:"},
      {"02 80 00 00 82 00", FrameFault::Surplus, "Request 0 primary #0:"},
  };
  for (const auto& test : cases) {
    const DecodedFrame decoded = DecodeFrame(FromHex(test.bytes));
    EXPECT_EQ(decoded.fault, test.fault) << test.bytes;
    if (test.frame == nullptr) {
      EXPECT_EQ(decoded.frame, LinkFrame{}) << test.bytes;
    } else {
      EXPECT_EQ(Text(decoded.frame), test.frame);
    }
  }
}

}  // namespace
}  // namespace ZAFHartTypes::hart
