#include "linksim/Faults.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "hart/StatusBytes.h"
#include "platform/AsciiText.h"
#include "types/Failure.h"

namespace HartLinkSim {

namespace hart = ZAFHartTypes::hart;

namespace {

enum class Form : std::uint8_t { Count, Value, ValueAndCount };

struct Description {
  FaultKind kind;
  std::string_view name;
  Form form;
  std::int32_t minimum;
  std::int32_t maximum;
  std::string_view help;
};

constexpr std::int32_t kMaxLatency = 600'000;
constexpr std::int32_t kMaxCount = 1'000'000;

constexpr std::array<Description, 11> kDescriptions{{
    {FaultKind::Latency, "latency", Form::Value, 0, kMaxLatency, "latency:MILLISECONDS"},
    {FaultKind::NoReply, "no-reply", Form::Count, 0, 0, "no-reply[:COUNT]"},
    {FaultKind::CommunicationError, "comm-error", Form::ValueAndCount, 1, 255,
     "comm-error:FLAGS[:COUNT]"},
    {FaultKind::Response, "response", Form::ValueAndCount, 1, 127, "response:CODE[:COUNT]"},
    {FaultKind::Busy, "busy", Form::Count, 0, 0, "busy[:COUNT]"},
    {FaultKind::DeviceStatus, "device-status", Form::ValueAndCount, 1, 255,
     "device-status:BITS[:COUNT]"},
    {FaultKind::Truncated, "truncated", Form::Count, 0, 0, "truncated[:COUNT]"},
    {FaultKind::Overlong, "overlong", Form::Count, 0, 0, "overlong[:COUNT]"},
    {FaultKind::Corrupt, "corrupt", Form::Count, 0, 0, "corrupt[:COUNT]"},
    {FaultKind::WrongCommand, "wrong-command", Form::Count, 0, 0, "wrong-command[:COUNT]"},
    {FaultKind::BadCheck, "bad-check", Form::Count, 0, 0, "bad-check[:COUNT]"},
}};

const Description& DescriptionOf(FaultKind kind) {
  return *std::find_if(kDescriptions.begin(), kDescriptions.end(),
                       [kind](const Description& entry) { return entry.kind == kind; });
}

[[noreturn]] void RaiseWrongText(std::string_view text, const std::string& reason) {
  std::string allowed;
  for (const Description& entry : kDescriptions) {
    allowed.append(allowed.empty() ? "" : ", ").append(entry.help);
  }
  throw platform::Failure(
      platform::ErrorNumber::InvalidArgument, "HartLinkSim.Faults",
      "\"" + std::string(text) + "\" is no fault: " + reason + ". Faults are " + allowed + ".");
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (std::size_t end = text.find(separator); end != std::string_view::npos;
       end = text.find(separator)) {
    parts.push_back(platform::Trim(text.substr(0, end)));
    text.remove_prefix(end + 1);
  }
  parts.push_back(platform::Trim(text));
  return parts;
}

std::int32_t Number(std::string_view whole, std::string_view text, std::int32_t minimum,
                    std::int32_t maximum) {
  const bool isHex = text.starts_with("0x") || text.starts_with("0X");
  const std::string_view digits = isHex ? text.substr(2) : text;
  std::int32_t number = 0;
  const char* const last = digits.data() + digits.size();
  const auto [end, error] = std::from_chars(digits.data(), last, number, isHex ? 16 : 10);
  if (error != std::errc{} || end != last || number < minimum || number > maximum) {
    RaiseWrongText(whole, "\"" + std::string(text) + "\" is no number from " +
                              std::to_string(minimum) + " to " + std::to_string(maximum));
  }
  return number;
}

bool EndsExchange(FaultKind kind) {
  return kind == FaultKind::NoReply || kind == FaultKind::CommunicationError ||
         kind == FaultKind::Response || kind == FaultKind::Busy;
}

void Strike(const Fault& fault, ActiveFaults& active) {
  const auto byte = static_cast<std::uint8_t>(fault.value & 0xFF);
  switch (fault.kind) {
    case FaultKind::Latency:
      active.latency += platform::Milliseconds{fault.value};
      break;
    case FaultKind::NoReply:
      active.noReply = true;
      break;
    case FaultKind::CommunicationError:
      active.communicationError = byte | hart::kCommunicationError;
      break;
    case FaultKind::Response:
      active.response = byte;
      break;
    case FaultKind::Busy:
      active.response = hart::kBusy;
      break;
    case FaultKind::DeviceStatus:
      active.deviceStatus |= byte;
      break;
    case FaultKind::Truncated:
      active.truncated = true;
      break;
    case FaultKind::Overlong:
      active.overlong = true;
      break;
    case FaultKind::Corrupt:
      active.corrupt = true;
      break;
    case FaultKind::WrongCommand:
      active.wrongCommand = true;
      break;
    case FaultKind::BadCheck:
      active.badCheck = true;
      break;
  }
}

}  // namespace

Fault ParseFault(std::string_view text) {
  const std::vector<std::string_view> parts = Split(text, ':');
  const auto found = std::find_if(kDescriptions.begin(), kDescriptions.end(),
                                  [&](const Description& entry) { return entry.name == parts[0]; });
  if (found == kDescriptions.end()) RaiseWrongText(text, "the name is unknown");
  const bool hasValue = found->form != Form::Count;
  const bool mayCount = found->form != Form::Value;
  const std::size_t least = hasValue ? 2 : 1;
  if (parts.size() < least || parts.size() > least + (mayCount ? 1 : 0)) {
    RaiseWrongText(text, "the form is " + std::string(found->help));
  }
  Fault fault{found->kind, 0, std::nullopt};
  if (hasValue) fault.value = Number(text, parts[1], found->minimum, found->maximum);
  if (parts.size() > least) fault.count = Number(text, parts[least], 1, kMaxCount);
  return fault;
}

std::string FaultText(const Fault& fault) {
  const Description& description = DescriptionOf(fault.kind);
  std::string text(description.name);
  if (description.form != Form::Count) text += ":" + std::to_string(fault.value);
  if (fault.count) text += ":" + std::to_string(*fault.count);
  return text;
}

Faults Faults::Parse(std::string_view text) {
  Faults faults;
  if (platform::Trim(text).empty()) return faults;
  for (const std::string_view part : Split(text, ',')) faults.Add(part);
  return faults;
}

std::string Faults::Text() const {
  std::string text;
  for (const Fault& fault : faults_) text += (text.empty() ? "" : ", ") + FaultText(fault);
  return text;
}

ActiveFaults Faults::Next() {
  const auto ending = std::find_if(faults_.begin(), faults_.end(),
                                   [](const Fault& fault) { return EndsExchange(fault.kind); });
  const bool replies = ending == faults_.end() || ending->kind != FaultKind::NoReply;
  ActiveFaults active;
  for (auto fault = faults_.begin(); fault != faults_.end(); ++fault) {
    const bool strikes =
        EndsExchange(fault->kind) ? fault == ending : replies || fault->kind == FaultKind::Latency;
    if (!strikes) continue;
    Strike(*fault, active);
    if (fault->count) --*fault->count;
  }
  std::erase_if(faults_, [](const Fault& fault) { return fault.count == 0; });
  return active;
}

}  // namespace HartLinkSim
