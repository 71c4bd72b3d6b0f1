#include "linksim/WireIdentity.h"

#include <algorithm>
#include <string_view>

#include "hart/StatusBytes.h"

// Layout of HART universal command 0 in revisions 5, 6 and 7.
namespace HartLinkSim {

namespace hart = ZAFHartTypes::hart;

namespace {

constexpr std::size_t kTypeAt = 3;  // positions in the reply, status bytes included
constexpr std::size_t kRevisionAt = 6;
constexpr std::size_t kIdAt = 11;
constexpr std::size_t kMakerAt = 19;
constexpr std::size_t kMakerSize = 2;
constexpr std::size_t kIdSize = 3;
constexpr std::uint8_t kOldestRevision = 5;
constexpr std::uint8_t kNewestRevision = 7;
constexpr std::size_t kDataSize[] = {12, 17, 22};  // from the oldest revision on
constexpr std::uint32_t kNoMaker = 250;            // "not used" in the table of makers

struct Field {
  std::size_t position;
  std::size_t size;
  std::string_view name;  // of the device's value
  std::uint32_t standard;
};

constexpr Field kFields[] = {
    {2, 1, "", hart::kExpansionCode},
    {kTypeAt, 2, "device_type", kNoMaker << 8},
    {5, 1, "request_preambles", 5},
    {kRevisionAt, 1, "universal_revision", kNewestRevision},
    {7, 1, "device_revision", 1},
    {8, 1, "software_revision", 1},
    {9, 1, "", 1 << 3},  // hardware revision 1, asynchronous signals
    {10, 1, "device_flags", 0},
    {kIdAt, kIdSize, "device_id", 1},
    {14, 1, "response_preambles", 5},
    {15, 1, "max_device_variables", 0},
    {16, 2, "configuration_change_counter", 0},
    {18, 1, "extended_device_status", 0},
    {kMakerAt, kMakerSize, "manufacturer_id", 0},
    {21, 2, "private_label_distributor", kNoMaker},
    {23, 1, "device_profile", 1},
};

std::uint32_t ValueOf(const EmulatedDevice& device, const Field& field) {
  const std::uint32_t number = device.Number(field.name).value_or(field.standard);
  return number & ((1U << (8 * field.size)) - 1);
}

}  // namespace

void CompleteIdentity(std::vector<std::uint8_t>& reply, const EmulatedDevice& device) {
  Frame frame;
  frame.SetBytes(std::move(reply));
  for (const Field& field : kFields) {
    if (frame.Length() >= field.position + field.size) continue;
    frame.SetUnsigned(field.position, field.size, ValueOf(device, field));
    // Before HART 7 the maker is the first byte of the device type.
    if (field.position == kMakerAt && frame.Unsigned(kMakerAt, kMakerSize) == 0) {
      frame.SetUnsigned(kMakerAt, kMakerSize, frame.Unsigned(kTypeAt, 1));
    }
  }
  frame.SetUnsigned(2, 1, hart::kExpansionCode);
  std::uint32_t revision = frame.Unsigned(kRevisionAt, 1);
  if (revision == 0) revision = kNewestRevision;
  revision = std::clamp<std::uint32_t>(revision, kOldestRevision, kNewestRevision);
  frame.SetUnsigned(kRevisionAt, 1, revision);
  if ((frame.Unsigned(kTypeAt, 2) & 0x3FFF) == 0 && frame.Unsigned(kIdAt, kIdSize) == 0) {
    frame.SetUnsigned(kIdAt, kIdSize, 1);
  }
  frame.SetLength(hart::kStatusSize + kDataSize[revision - kOldestRevision]);
  reply = frame.Bytes();
}

hart::LinkAddress AddressOf(hart::Bytes identity) {
  std::array<std::uint8_t, 5> bytes{};
  std::copy_n(identity.begin() + kTypeAt, 2, bytes.begin());
  std::copy_n(identity.begin() + kIdAt, kIdSize, bytes.begin() + 2);
  return hart::LinkAddress::Unique(bytes);
}

}  // namespace HartLinkSim
