#include "linksim/EmulatedDevice.h"

#include <algorithm>

#include "ddobjects/Transaction.h"
#include "ddobjects/Variable.h"
#include "hart/LinkFrame.h"
#include "hart/StatusBytes.h"
#include "linksim/DeviceRequest.h"
#include "linksim/ItemCoding.h"
#include "linksim/ValueText.h"
#include "platform/Platform.h"
#include "types/Failure.h"

namespace HartLinkSim {

namespace hart = ZAFHartTypes::hart;
using ZAFHartTypes::DataItem;
using ZAFHartTypes::Exchange;
using ZAFHartTypes::Failure;
using ZAFHartTypes::TextKey;
using ZAFHartTypes::TypeCode;
using ZAFHartTypes::Variant;

namespace {

// HART command numbers (universal and common practice).
enum CommandNumber : std::int16_t {
  kReadUniqueIdentifier = 0,
  kWritePollingAddress = 6,
  kResetConfigurationChanged = 38,
  kFixLoopCurrent = 40,
  kRestart = 42,
  kReadAdditionalStatus = 48,
};

// Commands whose request tells what to do or what to read; every other request configures.
constexpr std::int16_t kNotConfiguring[] = {9,
                                            11,
                                            21,
                                            33,
                                            kResetConfigurationChanged,
                                            39,
                                            kFixLoopCurrent,
                                            41,
                                            kRestart,
                                            kReadAdditionalStatus,
                                            54};

// Nobody would find the device again at an address that no frame can name.
bool IsNoPollingAddress(std::int16_t command, const DeviceRequest& request) {
  return command == kWritePollingAddress && !request.Fields().empty() &&
         request.Fields().front().value.ToBits32() > hart::LinkAddress::kMaxPolling;
}

// The variables that the device itself has to know.
TextKey PollingAddressName() {
  static const TextKey name = TextKey::Of("polling_address");
  return name;
}
TextKey ChangeCounterName() {
  static const TextKey name = TextKey::Of("configuration_change_counter");
  return name;
}

bool Configures(std::int16_t command) {
  return std::find(std::begin(kNotConfiguring), std::end(kNotConfiguring), command) ==
         std::end(kNotConfiguring);
}

}  // namespace

std::shared_ptr<EmulatedDevice> EmulatedDevice::OfThread() {
  struct ThreadDevice {
    std::shared_ptr<EmulatedDevice> device = std::make_shared<EmulatedDevice>();
  };
  return platform::Current().PerThread<ThreadDevice>().device;
}

std::optional<Variant> EmulatedDevice::Value(std::string_view name) const {
  const DeviceMemory::Cell* cell = memory_.Find(TextKey::Of(name));
  return cell ? std::optional(cell->value) : std::nullopt;
}

std::optional<std::uint32_t> EmulatedDevice::Number(std::string_view name) const {
  std::optional<std::uint32_t> number;
  ZAFHartTypes::IgnoreFailures([&] {
    auto value = Value(name);
    if (value && value->IsText()) value = ValueFromText(value->ToText(), TypeCode::Unsigned);
    if (value) number = value->ToBits32();
  });
  return number;
}

void EmulatedDevice::SetValue(std::string_view name, const Variant& value) {
  DeviceFile::RequireName(name);
  const TextKey key = TextKey::Of(name);
  const DeviceMemory::Cell* cell = memory_.Find(key);
  memory_.Set(key, value, cell ? cell->type : TypeCode::NotComputed);
  SaveAfterChange();
}

void EmulatedDevice::SetStatus(std::uint8_t status) {
  statusIsChanged_ = statusIsChanged_ || status != status_;
  status_ = status;
  SaveAfterChange();
}

std::uint16_t EmulatedDevice::ConfigurationChangeCounter() const {
  const DeviceMemory::Cell* cell = memory_.Find(ChangeCounterName());
  return cell ? static_cast<std::uint16_t>(cell->value.ToBits32() & 0xFFFF) : 0;
}

std::optional<std::vector<std::uint8_t>> EmulatedDevice::Answer(const Exchange& exchange) {
  if (!IsAddressed(exchange)) return std::nullopt;
  lastError_.clear();
  try {
    std::vector<std::uint8_t> reply = CarryOut(exchange);
    SaveAfterChange();
    return reply;
  } catch (const Failure& failure) {
    lastError_ = failure.Description();
    return Refuse(hart::kDeviceSpecificError);
  }
}

// Command 0 without a long address goes to a polling address; all others to the long address.
bool EmulatedDevice::IsAddressed(const Exchange& exchange) const {
  if (exchange.CommandNumber() != kReadUniqueIdentifier || !exchange.LongAddress().empty()) {
    return true;
  }
  const auto address = Value(PollingAddressName().Name());
  return !address || *address == Variant(exchange.PollAddress());
}

std::vector<std::uint8_t> EmulatedDevice::CarryOut(const Exchange& exchange) {
  const DeviceRequest request(exchange);
  if (!request.IsComplete()) return Refuse(hart::kTooFewDataBytes);
  if (IsNoPollingAddress(exchange.CommandNumber(), request)) return Refuse(hart::kInvalidSelection);
  if (Configures(exchange.CommandNumber())) Store(request);
  Apply(exchange.CommandNumber(), request);
  std::vector<std::uint8_t> reply = ReplyTo(exchange, request);
  SetStatusFlag(hart::kColdStart, exchange.CommandNumber() == kRestart);
  return reply;
}

void EmulatedDevice::Store(const DeviceRequest& request) {
  bool changes = false;
  for (const DeviceRequest::Field& field : request.Fields()) {
    if (field.isSelector) continue;
    changes = memory_.Set(field.name, field.value, field.type) || changes;
  }
  if (changes) CountConfigurationChange();
}

void EmulatedDevice::CountConfigurationChange() {
  const Variant counter = memory_.ValueOf(ChangeCounterName(), TypeCode::Unsigned).value_or(0);
  const std::uint32_t next = (counter.ToBits32() + 1) & 0xFFFF;
  memory_.Set(ChangeCounterName(), static_cast<std::int32_t>(next), TypeCode::Unsigned);
  SetStatusFlag(hart::kConfigurationChanged, true);
}

// What the common commands do beside storing and answering.
void EmulatedDevice::Apply(std::int16_t command, const DeviceRequest& request) {
  const DeviceRequest::Field* first =
      request.Fields().empty() ? nullptr : &request.Fields().front();
  switch (command) {
    case kWritePollingAddress:
      if (first) memory_.Set(PollingAddressName(), first->value, first->type);
      break;
    case kResetConfigurationChanged:
      SetStatusFlag(hart::kConfigurationChanged, false);
      break;
    case kFixLoopCurrent:  // a current of 0 frees it
      if (first) SetStatusFlag(hart::kLoopCurrentFixed, first->value != Variant(0));
      break;
    case kRestart:
      SetStatusFlag(hart::kLoopCurrentFixed, false);
      break;
    default:
      break;
  }
}

std::vector<std::uint8_t> EmulatedDevice::ReplyTo(const Exchange& exchange,
                                                  const DeviceRequest& request) {
  Frame reply;
  reply.SetHexText(exchange.ReplyData());
  reply.SetLength(std::max(reply.Length(), hart::kStatusSize));
  if (const ZAFHartTypes::DataItemList* items = exchange.ReplyItems())
    FillIn(reply, *items, request);
  if (exchange.CommandNumber() == kReadAdditionalStatus) TellMoreStatus(reply);
  reply.SetUnsigned(0, 1, hart::kSuccess);
  reply.SetUnsigned(1, 1, status_);
  return reply.Bytes();
}

// There is more status as long as the last additional status had a bit set.
void EmulatedDevice::TellMoreStatus(const Frame& additionalStatus) {
  const std::vector<std::uint8_t>& bytes = additionalStatus.Bytes();
  SetStatusFlag(hart::kMoreStatusAvailable,
                std::any_of(bytes.begin() + hart::kStatusSize, bytes.end(),
                            [](std::uint8_t byte) { return byte != 0; }));
}

// Puts the device's values in place of those of the data set.
void EmulatedDevice::FillIn(Frame& reply, const ZAFHartTypes::DataItemList& items,
                            const DeviceRequest& request) {
  const ItemLayout layout = LayOut(items);
  reply.SetLength(std::max(reply.Length(), LengthOf(layout)));
  std::size_t index = 0;
  for (const DataItem& item : items) {
    const ItemPlace& place = layout[index++];
    if (!item.IsVariable() || place.repeated || place.position < hart::kStatusSize) continue;
    const Variant inDataSet = *ReadItem(reply, item, place);
    WriteItem(reply, item, place, Known(item, request, inDataSet));
  }
}

// The value that the device has for a reply item. What it does not know it takes from the data set.
Variant EmulatedDevice::Known(const DataItem& item, const DeviceRequest& request,
                              const Variant& inDataSet) {
  const TextKey name = item.VariableDefinition().Key();
  const ZAFHartTypes::Variable& variable = BoundVariable(item);
  if (const Variant* sent = request.Echo(name)) return *sent;
  const TypeCode type = variable.TypeInfo().TypeCode();
  if (auto value = memory_.ValueOf(name, type)) return *std::move(value);
  if (!variable.Attributes().IsDynamic()) memory_.Set(name, inDataSet, type);
  return inDataSet;
}

std::vector<std::uint8_t> EmulatedDevice::Refuse(std::uint8_t responseCode) const {
  return {responseCode, status_};
}

void EmulatedDevice::SetStatusFlag(std::uint8_t flag, bool set) {
  const std::uint8_t status =
      static_cast<std::uint8_t>(set ? status_ | flag : status_ & ~unsigned{flag});
  statusIsChanged_ = statusIsChanged_ || status != status_;
  status_ = status;
}

}  // namespace HartLinkSim
