#include "hartframe/link/DeviceScan.h"

#include "comm/ConnectionTexts.h"
#include "hart/Numbers.h"
#include "hart/StatusBytes.h"
#include "hart/Texts.h"
#include "hartframe/ExitCode.h"

namespace hartframe {

namespace {

namespace hart = ZAFHartTypes::hart;

// HART universal and common practice commands.
constexpr int kReadIdentity = 0;
constexpr int kReadTag = 13;
constexpr int kReadLongTag = 20;
constexpr int kReadIoSystem = 74;
constexpr int kReadSubDevice = 84;

constexpr int kFirstWithLongTag = 6;        // universal revision
constexpr std::uint8_t kBridgeFlag = 0x04;  // of the identity: a gateway, an I/O system
constexpr std::size_t kTagSize = 6;         // Packed ASCII
constexpr std::size_t kLongTagSize = 32;    // Latin-1

// The data of a reply that has `size` bytes of them at least; nothing without one.
hart::Bytes DataOf(const DirectLink::Reply& reply, std::size_t size) {
  if (!reply || !hart::IsCarriedOut(reply->front())) return {};
  const hart::Bytes data = hart::Bytes(*reply).subspan(hart::kStatusSize);
  return data.size() < size ? hart::Bytes() : data;
}

std::uint16_t Word(hart::Bytes data, std::size_t at) {
  return static_cast<std::uint16_t>(hart::ReadUnsigned(data.subspan(at, 2)));
}

// From a reply to command 84: index (2 bytes), card, channel, manufacturer (2), expanded type (2),
// device id (3), universal revision, long tag (32), and of later gateways the device revision.
constexpr std::size_t kSubDeviceSize = 44;
FoundDevice SubDevice(hart::Bytes data) {
  FoundDevice device;
  device.identity.toldManufacturer = Word(data, 4);
  device.identity.expandedType = Word(data, 6);
  device.identity.deviceId = hart::ReadUnsigned(data.subspan(8, 3));
  device.identity.universalRevision = data[11];
  device.longTag = hart::ReadLatin1(data.subspan(12, kLongTagSize));
  if (data.size() > kSubDeviceSize) device.identity.deviceRevision = data[kSubDeviceSize];
  return device;
}

}  // namespace

void DeviceScan::Run(int first, int last, const std::function<void(int done)>& progress) {
  for (int address = first; address <= last; ++address) {
    progress(address - first);
    Visit(address);
  }
  progress(last - first + 1);
}

void DeviceScan::Visit(int pollingAddress) {
  const auto reply = link_.Ask({kReadIdentity, pollingAddress, "", {}});
  if (!reply) return TakeSilence(pollingAddress);
  const auto identity = hart::ReadIdentity(*reply);
  if (!identity) return problems_.push_back({pollingAddress, ""});
  AddDevice({pollingAddress, *identity, "", ""});
  if ((identity->flags & kBridgeFlag) != 0) AddSubDevices(identity->LongAddress());
}

// A link that cannot be used says so at one address like at the other.
void DeviceScan::TakeSilence(int pollingAddress) {
  const std::string reason = link_.Way().LastError();
  if (reason.empty()) return;
  if (!problems_.empty() && problems_.back().pollingAddress == pollingAddress - 1 &&
      problems_.back().reason == reason) {
    const std::string text = ZAFHartLib::NoDeviceText(std::to_string(pollingAddress), reason);
    throw CommandFailure(ExitCode::Communication, say_.Pick(text));
  }
  problems_.push_back({pollingAddress, reason});
}

void DeviceScan::AddDevice(FoundDevice device) {
  devices_.push_back(std::move(device));
  ReadTags(devices_.back());
}

void DeviceScan::ReadTags(FoundDevice& device) {
  const std::string address = device.identity.LongAddress();
  const auto tag = link_.Ask({kReadTag, 0, address, {}});
  if (const hart::Bytes data = DataOf(tag, kTagSize); !data.empty())
    device.tag = hart::ReadPackedAscii(data.first(kTagSize));
  if (device.identity.universalRevision < kFirstWithLongTag || !device.longTag.empty()) return;
  const auto longTag = link_.Ask({kReadLongTag, 0, address, {}});
  if (const hart::Bytes data = DataOf(longTag, kLongTagSize); !data.empty())
    device.longTag = hart::ReadLatin1(data.first(kLongTagSize));
}

// From a reply to command 74: bytes 3 and 4 are the number of devices, the gateway among them as
// number 0.
void DeviceScan::AddSubDevices(const std::string& gateway) {
  constexpr std::size_t kCountAt = 3;
  const auto system = link_.Ask({kReadIoSystem, 0, gateway, {}});
  const hart::Bytes data = DataOf(system, kCountAt + 2);
  const unsigned count = data.empty() ? 0 : Word(data, kCountAt);
  for (unsigned index = 1; index < count; ++index) {
    const auto reply =
        link_.Ask({kReadSubDevice,
                   0,
                   gateway,
                   {static_cast<std::uint8_t>(index >> 8), static_cast<std::uint8_t>(index)}});
    if (const hart::Bytes identity = DataOf(reply, kSubDeviceSize); !identity.empty())
      AddDevice(SubDevice(identity));
  }
}

}  // namespace hartframe
