#include "linksim/WireDevice.h"

#include <algorithm>

#include "hart/HexText.h"
#include "hart/StatusBytes.h"
#include "linksim/FaultyReply.h"
#include "linksim/WireIdentity.h"
#include "types/Failure.h"

namespace HartLinkSim {

namespace hart = ZAFHartTypes::hart;
using hart::DecodedFrame;
using hart::FrameFault;
using hart::LinkAddress;
using hart::LinkFrame;
using ZAFHartTypes::Exchange;
using ZAFHartTypes::Failure;

namespace {

// HART universal command numbers.
enum CommandNumber : std::uint16_t {
  kReadUniqueIdentifier = 0,
  kReadIdentifierByTag = 11,
  kReadTag = 13,
  kReadLongTag = 20,
  kReadIdentifierByLongTag = 21,
};
constexpr std::size_t kTagSize = 6;         // Packed ASCII
constexpr std::size_t kLongTagSize = 32;    // Latin-1
constexpr std::uint32_t kBurstAsUsual = 1;  // command 1

// Response codes (HART command summary).
constexpr std::uint8_t kNotImplemented = 64;

bool AsksByTag(std::uint16_t number) {
  return number == kReadIdentifierByTag || number == kReadIdentifierByLongTag;
}

bool IsDamaged(FrameFault fault) {
  return fault == FrameFault::CheckByte || fault == FrameFault::ReceiveError;
}

// What the device's receiver found wrong with a request.
std::uint8_t FlagsOf(FrameFault fault) {
  const auto flag =
      fault == FrameFault::CheckByte ? hart::kLongitudinalParityError : hart::kVerticalParityError;
  return static_cast<std::uint8_t>(hart::kCommunicationError | flag);
}

bool BeginsWith(hart::Bytes bytes, hart::Bytes start) {
  return bytes.size() >= start.size() && std::equal(start.begin(), start.end(), bytes.begin());
}

// A frame holds no more.
std::vector<std::uint8_t> Fitting(std::vector<std::uint8_t> data, const LinkFrame& request) {
  const std::size_t most =
      hart::kMaxFrameData -
      (request.command == hart::kExtendedCommand ? hart::kExtendedNumberSize : 0);
  if (data.size() > most) data.resize(most);
  return data;
}

}  // namespace

WireDevice::WireDevice(std::shared_ptr<EmulatedDevice> device,
                       std::shared_ptr<CommandCatalogue> commands)
    : device_(std::move(device)), commands_(std::move(commands)) {
  Ask(kReadUniqueIdentifier);
}

std::optional<WireReply> WireDevice::Answer(const DecodedFrame& request) {
  const LinkFrame& frame = request.frame;
  const bool isRequest =
      (request.IsGood() || IsDamaged(request.fault)) && frame.type == hart::FrameType::Request;
  if (!isRequest || !IsAddressed(frame)) return std::nullopt;
  const bool asksByTag = AsksByTag(frame.CommandNumber());
  if (asksByTag && (IsDamaged(request.fault) || !HasTag(frame))) return std::nullopt;
  const ActiveFaults faults = faults_.Next();
  const std::optional<Data> data = FaultyData(request, faults);
  if (!data) return std::nullopt;
  LinkFrame reply = hart::ReplyFrame(frame, Fitting(*data, frame));
  reply.burst = IsInBurstMode();
  if (faults.wrongCommand) reply.command ^= 1;
  WireReply sent{hart::EncodeFrame(reply), faults.latency};
  if (faults.badCheck) sent.frame.back() = static_cast<std::uint8_t>(~sent.frame.back());
  return sent;
}

std::optional<LinkFrame> WireDevice::Burst() {
  if (!IsInBurstMode()) return std::nullopt;
  const auto number =
      static_cast<std::uint16_t>(device_->Number("burst_command_number").value_or(kBurstAsUsual));
  burstsToPrimary_ = !burstsToPrimary_;
  const LinkFrame request = hart::RequestFrame(number, address_, burstsToPrimary_, {});
  LinkFrame frame = hart::ReplyFrame(request, Fitting(Ask(number), request));
  frame.type = hart::FrameType::Burst;
  frame.burst = true;
  return frame;
}

bool WireDevice::IsInBurstMode() const {
  return device_->Number("burst_mode_select").value_or(0) != 0;
}

bool WireDevice::IsAddressed(const LinkFrame& request) const {
  const std::uint16_t number = request.CommandNumber();
  if (!request.address.isLong) {
    return number == kReadUniqueIdentifier &&
           request.address.bytes[0] == device_->Number("polling_address").value_or(0);
  }
  const LinkAddress broadcast{true, {}};
  return request.address == address_ || (request.address == broadcast && AsksByTag(number));
}

bool WireDevice::HasTag(const LinkFrame& request) {
  const bool isLong = request.CommandNumber() == kReadIdentifierByLongTag;
  const std::size_t size = isLong ? kLongTagSize : kTagSize;
  const Data reply = Ask(isLong ? kReadLongTag : kReadTag);
  if (reply.size() < hart::kStatusSize + size) return false;
  return BeginsWith(request.data, hart::Bytes(reply).subspan(hart::kStatusSize, size));
}

std::shared_ptr<Exchange> WireDevice::ExchangeFor(std::uint16_t number, hart::Bytes data,
                                                  FoundCommand& found) const {
  found = commands_->Find(number, data);
  auto exchange = std::make_shared<Exchange>();
  exchange->SetCommandNumber(static_cast<std::int16_t>(number));
  exchange->SetLongAddress(hart::ToHex(address_.bytes));
  exchange->SetRequestData(hart::ToHex(data));
  exchange->SetReplyData(found.dataSetReply);
  exchange->SetItemsOf(found.transaction);
  return exchange;
}

std::optional<WireDevice::Data> WireDevice::FaultyData(const DecodedFrame& request,
                                                       const ActiveFaults& faults) {
  lastError_.clear();
  const std::uint16_t number = request.frame.CommandNumber();
  // A command by tag asks for the same as command 0.
  const bool isByTag = AsksByTag(number);
  const auto status = [this] { return device_->Status(); };
  try {
    if (IsDamaged(request.fault)) {
      const Data refused{FlagsOf(request.fault), device_->Status()};
      return FaultyReply(Exchange(), faults, {[&] { return std::optional(refused); }, status});
    }
    const Data data = isByTag ? Data{} : request.frame.ExchangeData();
    const std::uint16_t asked = isByTag ? std::uint16_t{kReadUniqueIdentifier} : number;
    FoundCommand found;
    const auto exchange = ExchangeFor(asked, data, found);
    return FaultyReply(*exchange, faults,
                       {[&] { return std::optional(CarryOut(asked, *exchange, found)); }, status});
  } catch (const Failure& failure) {
    lastError_ = failure.Description();
    return Data{hart::kDeviceSpecificError, device_->Status()};
  }
}

WireDevice::Data WireDevice::CarryOut(std::uint16_t number, const Exchange& exchange,
                                      const FoundCommand& found) {
  if (number == kReadUniqueIdentifier) return Identity(exchange, found.transaction != nullptr);
  if (!found.isKnown) return {kNotImplemented, device_->Status()};
  if (!found.transaction) return {hart::kInvalidSelection, device_->Status()};
  Data reply = *device_->Answer(exchange);
  lastError_ = device_->LastError();
  if (hart::IsCarriedOut(reply.front())) {
    commands_->OnCarriedOut(*found.transaction, hart::FromHex(exchange.RequestData()));
  }
  return reply;
}

WireDevice::Data WireDevice::Identity(const Exchange& exchange, bool isKnown) {
  Data reply = isKnown ? *device_->Answer(exchange) : Data{hart::kSuccess, device_->Status()};
  lastError_ = device_->LastError();
  if (!hart::IsCarriedOut(reply.front())) return reply;
  CompleteIdentity(reply, *device_);
  address_ = AddressOf(reply);
  return reply;
}

WireDevice::Data WireDevice::Ask(std::uint16_t number) {
  const std::uint8_t status = device_->Status();
  Data reply{hart::kDeviceSpecificError, status};
  ZAFHartTypes::IgnoreFailures([&] {
    FoundCommand found;
    const auto exchange = ExchangeFor(number, {}, found);
    reply = CarryOut(number, *exchange, found);
    device_->SetStatus(status);
  });
  return reply;
}

}  // namespace HartLinkSim
