#include <gtest/gtest.h>

#include <random>

#include "hart/FrameDecoder.h"
#include "hart/HexText.h"

namespace ZAFHartTypes::hart {
namespace {

using Line = std::vector<std::uint8_t>;

const Line kReply =
    FromHex("FF FF FF FF FF 86 A6 06 12 34 56 03 0B 00 00 41 40 00 00 20 41 C8 00 00 F6");

void Append(Line& line, const Line& more) {
  line.insert(line.end(), more.begin(), more.end());
}

// Frames as their bytes, faults as their text and the data that were read.
std::vector<std::string> Texts(const std::vector<DecodedFrame>& found) {
  std::vector<std::string> texts;
  for (const auto& [fault, frame] : found) {
    texts.push_back(fault == FrameFault::None
                        ? ToHex(EncodeFrame(frame))
                        : std::string(FaultText(fault)) + ":" + ToHex(frame.data));
  }
  return texts;
}

// What a line brings: bytes in hexadecimal, "~" ahead of one received with an error, "|" for a gap.
std::vector<std::string> Heard(std::string_view line) {
  FrameDecoder decoder;
  std::vector<DecodedFrame> found;
  const auto take = [&found](std::vector<DecodedFrame> more) {
    std::move(more.begin(), more.end(), std::back_inserter(found));
  };
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (line[at] == ' ') continue;
    if (line[at] == '|') {
      take(decoder.Gap());
      continue;
    }
    const bool faulty = line[at] == '~';
    const auto byte = FromHex(line.substr(faulty ? at + 1 : at, 2));
    take(faulty ? decoder.ReceiveFaulty(byte[0]) : decoder.Receive(byte));
    at += faulty ? 2 : 1;
  }
  return Texts(found);
}

// All that a whole line gives, the line silent at its end; in pieces of `piece` bytes.
std::vector<DecodedFrame> HeardWhole(Bytes line, std::size_t piece) {
  FrameDecoder decoder;
  std::vector<DecodedFrame> found;
  while (!line.empty()) {
    const Bytes part = line.first(std::min(piece, line.size()));
    for (auto& one : decoder.Receive(part)) found.push_back(std::move(one));
    line = line.subspan(part.size());
  }
  for (auto& one : decoder.Gap()) found.push_back(std::move(one));
  return found;
}

std::size_t Count(const std::vector<DecodedFrame>& found, const Line& sent) {
  const LinkFrame frame = DecodeFrame(sent).frame;
  return static_cast<std::size_t>(std::count_if(found.begin(), found.end(), [&](const auto& one) {
    return one.IsGood() && one.frame == frame;
  }));
}

TEST(HartStream, WhatTheLineBrings) {
  const std::string poll = "0280000082";
  const std::string tooShort = "the frame ends before its check byte:";
  const std::string received = "a byte was received with wrong parity or framing:";
  struct {
    const char* line;
    std::vector<std::string> heard;
  } const cases[] = {
      {"FF FF 02 80 00 00 82", {poll}},
      {"FF 02 80 00 00 82 |", {}},         // one preamble is not enough
      {"FF | FF 02 80 00 00 82 |", {}},    // nor are two with silence between
      {"FF ~FF FF 02 80 00 00 82 |", {}},  // or with an error between
      {"FF FF ~02 80 00 00 82 |", {}},
      {"FF FF 03 FF FF 02 80 00 00 82", {poll}},  // noise between preambles
      // Own request and its echo, the reply close behind the latter.
      {"FF FF 02 80 00 00 82 FF FF 02 80 00 00 82 FF FF 06 80 00 02 00 00 84",
       {poll, poll, "06800002000084"}},
      // A frame's own data hold what looks like another frame.
      {"FF FF 06 80 7B 09 00 00 FF FF 02 80 00 00 82 F4",
       {"0680"
        "7B090000FFFF0280000082F4"}},
      // Errors: in the header, in the data, in the check byte; the next frame is found.
      {"FF FF 02 ~80 00 00 82 FF FF 02 80 00 00 82", {received, poll}},
      {"FF FF 06 80 00 02 ~00 00 84 FF FF 02 80 00 00 82", {received + "0000", poll}},
      {"FF FF 02 80 00 00 ~82 FF FF 02 80 00 00 82", {received, poll}},
      {"FF FF 02 80 00 00 83 FF FF 02 80 00 00 82", {"the check byte is wrong:", poll}},
      {"FF FF 06 80 00 00 86 FF FF 02 80 00 00 82", {"the reply has no status bytes:", poll}},
      // Silence ends a frame under way, in its header or its data, and what it held is searched.
      {"FF FF 02 80 00 | FF FF 02 80 00 00 82", {tooShort, poll}},
      {"FF FF 82 FF FF FF FF FF 06 80 00 02 00 00 84 |",
       {tooShort + "0002000084", "06800002000084"}},
      {"FF FF 06 80 00 20 00 00 FF FF 02 80 00 00 82 |", {tooShort + "0000FFFF0280000082", poll}},
      {"FF FF 02 80 00 | | 00 82 |", {tooShort}},
  };
  for (const auto& test : cases) EXPECT_EQ(Heard(test.line), test.heard) << test.line;
}

TEST(HartStream, FindsTheLongestFrame) {
  LinkFrame frame;
  frame.address.isLong = true;
  frame.expansion = {1, 2, 3};
  frame.data.assign(kMaxFrameData, kPreamble);
  const Line line = WithPreambles(EncodeFrame(frame), kMaxPreambles);
  EXPECT_EQ(Count(HeardWhole(line, 1), line), 1U);
  EXPECT_EQ(Count(HeardWhole(line, line.size()), line), 1U);
}

TEST(HartStream, FindsTheFrameInNoiseAtEveryOffset) {
  std::mt19937 random(3);
  for (std::size_t offset = 0; offset <= 600; ++offset) {
    Line line(offset);
    for (auto& byte : line) byte = static_cast<std::uint8_t>(random());
    Append(line, kReply);
    for (int i = 0; i < 50; ++i) line.push_back(static_cast<std::uint8_t>(random()));
    EXPECT_EQ(Count(HeardWhole(line, 1 + random() % 20), kReply), 1U) << offset;
  }
}

// The rule, over the whole line at once: the first start that makes a good frame takes its bytes.
std::vector<LinkFrame> GoodFramesOf(Bytes line) {
  std::vector<LinkFrame> frames;
  for (std::size_t at = 2, free = 0; at < line.size(); ++at) {
    if (at < free + 2 || line[at - 1] != 0xFF || line[at - 2] != 0xFF || !IsDelimiter(line[at])) {
      continue;
    }
    const auto size = FrameSize(line.subspan(at));
    if (!size || *size > line.size() - at) continue;
    const DecodedFrame decoded = DecodeFrame(line.subspan(at, *size));
    if (!decoded.IsGood()) continue;
    frames.push_back(decoded.frame);
    free = at + *size;
  }
  return frames;
}

// Noise made of nothing but starts, so that some false frames have the right check byte.
TEST(HartStream, FindsTheSameFramesHoweverTheBytesCome) {
  constexpr std::uint8_t alphabet[] = {0xFF, 0xFF, 0xFF, 0x02, 0x86, 0x22, 0x80, 0x00, 0x05, 0x40};
  std::mt19937 random(7);
  std::size_t frames = 0;
  for (int round = 0; round < 300; ++round) {
    Line line;
    for (int i = 0; i < 40; ++i) {
      for (std::size_t k = random() % 12; k > 0; --k) {
        line.push_back(alphabet[random() % std::size(alphabet)]);
      }
      if (random() % 4 == 0) Append(line, kReply);
    }
    const auto expected = GoodFramesOf(line);
    frames += expected.size();
    const auto whole = HeardWhole(line, line.size());
    std::vector<LinkFrame> good;
    for (const auto& one : whole) {
      if (one.IsGood()) good.push_back(one.frame);
    }
    EXPECT_EQ(good, expected) << ToHex(line);
    EXPECT_EQ(Texts(HeardWhole(line, 1 + random() % 9)), Texts(whole)) << ToHex(line);
  }
  EXPECT_GT(frames, 2000U);
}

}  // namespace
}  // namespace ZAFHartTypes::hart
