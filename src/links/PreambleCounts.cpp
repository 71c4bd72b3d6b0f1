#include "links/PreambleCounts.h"

#include <algorithm>

#include "hart/StatusBytes.h"

namespace HartLinks {

namespace hart = ZAFHartTypes::hart;

namespace {

// The identity of command 0: expansion code, two bytes of expanded type, preambles, revisions and
// flags, three bytes of device id.
constexpr std::size_t kTypeAt = 1;
constexpr std::size_t kPreamblesAt = 3;
constexpr std::size_t kDeviceIdAt = 9;
constexpr std::size_t kIdentitySize = 12;

bool HasIdentity(const hart::LinkFrame& reply) {
  constexpr std::uint16_t commands[] = {0, 11, 21, 73, 75};
  return reply.type != hart::FrameType::Request &&
         std::ranges::find(commands, reply.CommandNumber()) != std::end(commands) &&
         reply.data.size() >= hart::kStatusSize + kIdentitySize &&
         !hart::IsCommunicationError(reply.data[0]) &&
         reply.data[hart::kStatusSize] == hart::kExpansionCode;
}

}  // namespace

int PreambleCounts::For(const hart::LinkAddress& address) const {
  const auto count = address.isLong ? counts_.find(address.bytes) : counts_.end();
  return count == counts_.end() ? hart::kMaxPreambles : count->second;
}

void PreambleCounts::Learn(const hart::LinkFrame& reply) {
  if (!HasIdentity(reply)) return;
  const hart::Bytes identity = hart::Bytes(reply.data).subspan(hart::kStatusSize);
  const std::array<std::uint8_t, 5> unique = {identity[kTypeAt], identity[kTypeAt + 1],
                                              identity[kDeviceIdAt], identity[kDeviceIdAt + 1],
                                              identity[kDeviceIdAt + 2]};
  counts_[hart::LinkAddress::Unique(unique).bytes] =
      std::clamp<int>(identity[kPreamblesAt], kLeast, hart::kMaxPreambles);
}

}  // namespace HartLinks
