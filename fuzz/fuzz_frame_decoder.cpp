#include <algorithm>
#include <iterator>

#include "Fuzz.h"
#include "hart/FrameDecoder.h"

namespace {

using namespace ZAFHartTypes::hart;
using Found = std::vector<DecodedFrame>;

// One input: how a line is heard (three bytes), and what is on it.
struct Heard {
  std::size_t piece;   // bytes per call; 0 as many as there are
  std::size_t faulty;  // every how manieth byte has a receive error; 0 none
  std::size_t gap;     // after every how many bytes there is a gap; 0 never
};

void Add(Found& found, Found more) {
  std::move(more.begin(), more.end(), std::back_inserter(found));
}

bool Divides(std::size_t period, std::size_t count) {
  return period != 0 && count % period == 0;
}

Found Listen(Bytes line, const Heard& heard) {
  FrameDecoder decoder;
  Found found;
  std::size_t first = 0;  // of the bytes that wait to be handed over
  const auto handOver = [&](std::size_t end) {
    Add(found, decoder.Receive(line.subspan(first, end - first)));
    first = end;
  };
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (Divides(heard.faulty, at + 1)) {
      handOver(at);
      Add(found, decoder.ReceiveFaulty(line[at]));
      first = at + 1;
    } else if (at + 1 - first == heard.piece) {
      handOver(at + 1);
    }
    if (Divides(heard.gap, at + 1)) {
      handOver(at + 1);
      Add(found, decoder.Gap());
    }
  }
  handOver(line.size());
  Add(found, decoder.Gap());
  fuzz::Check(!decoder.IsReceiving(), "no frame goes on after a gap");
  return found;
}

void CheckSame(const Found& left, const Found& right) {
  fuzz::Check(std::ranges::equal(left, right,
                                 [](const auto& a, const auto& b) {
                                   return a.fault == b.fault && a.frame == b.frame;
                                 }),
              "the pieces in which a line comes change nothing");
}

// Good frames are on the line as they encode, one behind the other.
void CheckOnLine(const Found& found, Bytes line) {
  auto from = line.begin();
  for (const auto& one : found) {
    if (!one.IsGood()) continue;
    const auto bytes = WithPreambles(EncodeFrame(one.frame), kMinPreambles);
    from = std::search(from, line.end(), bytes.begin(), bytes.end());
    fuzz::Check(from != line.end(), "a frame encodes to the bytes it came from");
    from += static_cast<std::ptrdiff_t>(bytes.size());
  }
}

void CheckWhole(Bytes line) {
  const DecodedFrame decoded = DecodeFrame(line);
  if (!decoded.IsGood()) return;
  const auto start = std::ranges::find_if(line, [](auto byte) { return byte != kPreamble; });
  fuzz::Check(std::ranges::equal(EncodeFrame(decoded.frame), Bytes(start, line.end())),
              "one whole frame encodes to the bytes it came from");
  const auto number = decoded.frame.CommandNumber();
  const auto data = decoded.frame.ExchangeData();
  if (decoded.frame.type == FrameType::Request && number != kExtendedCommand &&
      (number > 0xFF) == (decoded.frame.command == kExtendedCommand)) {
    const auto again =
        RequestFrame(number, decoded.frame.address, decoded.frame.primaryMaster, data);
    fuzz::Check(again.data == decoded.frame.data, "number and data make the same request again");
  }
}

// Noise hides nothing that comes after a silence.
void CheckFoundBehind(Bytes noise) {
  const auto frame = RequestFrame(0, LinkAddress::Polling(0), true, {});
  const auto sent = WithPreambles(EncodeFrame(frame), kMinPreambles);
  FrameDecoder decoder;
  decoder.Receive(noise);
  decoder.Gap();
  const Found found = decoder.Receive(sent);
  fuzz::Check(found.size() == 1 && found[0].IsGood() && found[0].frame == frame,
              "a frame after noise and a gap is found");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Bytes line(data, size);
  CheckWhole(line);
  const Heard heard{fuzz::Take(line), fuzz::Take(line), fuzz::Take(line)};
  const Found found = Listen(line, heard);
  CheckSame(found, Listen(line, {0, heard.faulty, heard.gap}));
  CheckOnLine(found, line);
  CheckFoundBehind(line);
  return 0;
}
