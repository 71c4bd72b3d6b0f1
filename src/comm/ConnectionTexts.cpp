#include "comm/ConnectionTexts.h"

#include <algorithm>

#include "comm/DeviceSearch.h"
#include "hart/HexText.h"
#include "hart/StatusBytes.h"
#include "resources/ResText.h"
#include "resources/enumDDResourceIDs.h"
#include "text/modDDPrintF.h"

namespace ZAFHartLib {

using ZAFHartTypes::SupportedDevice;
using ZAFHartTypes::hart::DeviceIdentity;
namespace hart = ZAFHartTypes::hart;

namespace {

// A value, as one that is in no language: "|" begins the next language of a text.
std::string Neutral(std::string value) {
  std::ranges::replace(value, '|', '/');
  return value;
}

std::string Filled(std::int32_t id, const std::string& first, const std::string& second,
                   const std::string& third = {}) {
  ZAFHartTypes::PromptValues values;
  values.Set("s1", Neutral(first));
  values.Set("s2", Neutral(second));
  values.Set("s3", Neutral(third));
  return FormatDDString(ResText(id), values);
}

bool Fits(const SupportedDevice& device, const DeviceIdentity& found) {
  return found.expandedType == device.expandedType &&
         found.deviceRevision >= device.lowestRevision &&
         found.deviceRevision <= device.highestRevision &&
         (!device.manufacturer || *device.manufacturer == found.Manufacturer());
}

std::string ListText(std::span<const SupportedDevice> devices) {
  std::string text;
  for (const SupportedDevice& device : devices) {
    if (!text.empty()) text += ", ";
    text += device.Text();
  }
  return text;
}

std::string NoIdentityText(const std::string& address, const DeviceSearch::Refusal& refusal) {
  const std::uint8_t status = refusal.status;
  const std::string command = std::to_string(refusal.command);
  const bool isRefused = status != hart::kSuccess && !hart::IsCommunicationError(status);
  const std::uint8_t byte[] = {status};
  return isRefused ? Filled(idErrIdentityRefused, address, std::to_string(status), command)
                   : Filled(idErrIdentityDamaged, address, "0x" + hart::ToHex(byte), command);
}

}  // namespace

std::string NoDeviceText(const std::string& address, std::string reason) {
  if (reason.ends_with('.')) reason.pop_back();  // the text goes on
  return Filled(reason.empty() ? idErrNoDeviceAnswers : idErrNoDeviceReason, address, reason);
}

std::string NotFoundText(const DeviceSearch& search, const std::string& address,
                         const std::string& reason) {
  const bool isAnswered = reason.empty() && search.Refused();
  return isAnswered ? NoIdentityText(address, *search.Refused()) : NoDeviceText(address, reason);
}

std::string WrongDeviceText(std::span<const SupportedDevice> supported,
                            const DeviceIdentity& found) {
  const auto fits = [&](const SupportedDevice& device) { return Fits(device, found); };
  if (supported.empty() || std::ranges::any_of(supported, fits)) return {};
  return Filled(idErrWrongDevice, ListText(supported), found.Text());
}

std::string OtherDeviceText(const std::string& before, const DeviceIdentity& found) {
  return Filled(idErrOtherDevice, before, found.Text());
}

}  // namespace ZAFHartLib
