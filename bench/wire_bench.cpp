#include <benchmark/benchmark.h>

#include "hart/FrameDecoder.h"
#include "hart/HartIpMessage.h"
#include "hart/HexText.h"

// Command 3 (read dynamic variables) on the wire: a long frame, and a reply of loop current and
// four values with their units. Each figure is one direction, coded and decoded again.
namespace {

using namespace ZAFHartTypes::hart;

const LinkAddress kDevice =
    LinkAddress::Unique(std::array<std::uint8_t, 5>{0x26, 0x06, 0x12, 0x34, 0x56});
const std::vector<std::uint8_t> kStatusAndData =
    FromHex("0000 41400000 2041C80000 2041C80000 2041C80000 2041C80000");
constexpr int kPreambles = 5;

LinkFrame Request() {
  return RequestFrame(3, kDevice, true, {});
}

void Wire_Request(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(DecodeFrame(EncodeFrame(Request())));
}
BENCHMARK(Wire_Request);

void Wire_Reply(benchmark::State& state) {
  const LinkFrame request = Request();
  for (auto _ : state) {
    benchmark::DoNotOptimize(DecodeFrame(EncodeFrame(ReplyFrame(request, kStatusAndData))));
  }
}
BENCHMARK(Wire_Reply);

// With preambles, and found in the stream that a modem brings.
void Wire_ReplyOnTheLine(benchmark::State& state) {
  const LinkFrame request = Request();
  FrameDecoder decoder;
  for (auto _ : state) {
    const auto frame = EncodeFrame(ReplyFrame(request, kStatusAndData));
    benchmark::DoNotOptimize(decoder.Receive(WithPreambles(frame, kPreambles)));
  }
}
BENCHMARK(Wire_ReplyOnTheLine);

void Wire_ReplyInHartIp(benchmark::State& state) {
  const LinkFrame request = Request();
  for (auto _ : state) {
    const HartIpMessage message{HartIpType::Response, HartIpId::TokenPassing, 0, 1,
                                EncodeFrame(ReplyFrame(request, kStatusAndData))};
    const DecodedHartIp decoded = DecodeHartIp(EncodeHartIp(message));
    benchmark::DoNotOptimize(DecodeFrame(decoded.message.body));
  }
}
BENCHMARK(Wire_ReplyInHartIp);

}  // namespace
