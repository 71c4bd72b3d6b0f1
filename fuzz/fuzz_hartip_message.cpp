#include <algorithm>

#include "Fuzz.h"
#include "hart/HartIpMessage.h"

namespace {

using namespace ZAFHartTypes::hart;

std::vector<DecodedHartIp> Listen(Bytes line, std::size_t piece) {
  HartIpStream stream;
  std::vector<DecodedHartIp> found;
  while (!line.empty()) {
    const Bytes part = line.first(piece == 0 ? line.size() : std::min(piece, line.size()));
    for (auto& one : stream.Receive(part)) found.push_back(std::move(one));
    line = line.subspan(part.size());
  }
  const bool broken = !found.empty() && !found.back().IsGood();
  fuzz::Check(stream.IsBroken() == broken, "a stream breaks with its first fault");
  return found;
}

void CheckStream(Bytes line, std::size_t piece) {
  const auto found = Listen(line, piece);
  fuzz::Check(std::ranges::equal(found, Listen(line, 0),
                                 [](const auto& a, const auto& b) {
                                   return a.fault == b.fault && a.message == b.message;
                                 }),
              "the pieces in which a stream comes change nothing");
  for (const auto& one : found) {
    if (!one.IsGood()) {
      fuzz::Check(&one == &found.back(), "nothing is found behind a fault");
      return;
    }
    const auto bytes = EncodeHartIp(one.message);
    fuzz::Check(bytes.size() <= line.size() && std::equal(bytes.begin(), bytes.end(), line.begin()),
                "a message encodes to the bytes it came from");
    line = line.subspan(bytes.size());
  }
}

void CheckDatagram(Bytes datagram) {
  const DecodedHartIp decoded = DecodeHartIp(datagram);
  if (decoded.IsGood()) {
    fuzz::Check(std::ranges::equal(EncodeHartIp(decoded.message), datagram),
                "a datagram encodes to the bytes it came from");
  }
  const auto session = DecodeSession(decoded.message.body);
  if (session) {
    const auto body = EncodeSession(*session);
    fuzz::Check(std::equal(body.begin(), body.end(), decoded.message.body.begin()),
                "a session encodes to the bytes it came from");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Bytes line(data, size);
  CheckDatagram(line);
  const std::size_t piece = fuzz::Take(line);
  CheckStream(line, piece);
  return 0;
}
