#include "hart/HexText.h"
#include "linksim/EmulatedDevice.h"
#include "linksim/ValueText.h"
#include "types/Failure.h"

// How an emulated device survives a restart.
namespace HartLinkSim {

namespace hart = ZAFHartTypes::hart;
using ZAFHartTypes::IgnoreFailures;
using ZAFHartTypes::SameKey;
using ZAFHartTypes::TextKey;
using ZAFHartTypes::TypeCode;

namespace {

constexpr std::string_view kDeviceStatusName = "device_status";

std::uint8_t StatusFrom(const DeviceFile& file, const DeviceFile::Entry& entry) {
  if (!SameKey(entry.name, kDeviceStatusName)) {
    file.RaiseAt(entry.line, "there is only " + std::string(kDeviceStatusName) + " in section [" +
                                 std::string(DeviceFile::kStatusSection) + "]");
  }
  std::int32_t status = -1;
  IgnoreFailures([&] { status = ValueFromText(entry.value, TypeCode::Unsigned).ToLong(); });
  if (status < 0 || status > 0xFF) {
    file.RaiseAt(entry.line, "the device status is a number from 0 to 255");
  }
  return static_cast<std::uint8_t>(status);
}

}  // namespace

void EmulatedDevice::UseFile(const std::filesystem::path& path, SaveMode mode) {
  DeviceFile file(path);
  DeviceMemory memory = memory_;
  std::uint8_t status = status_;
  for (const DeviceFile::Entry& entry : file.Entries()) {
    if (entry.section == DeviceFile::kStatusSection) {
      status = StatusFrom(file, entry);
    } else {
      memory.SetFromFile(TextKey::Of(entry.name), entry.value, entry.line);
    }
  }
  memory_ = std::move(memory);
  status_ = status;
  file_ = std::move(file);
  saveMode_ = mode;
  statusIsChanged_ = false;
}

void EmulatedDevice::Save() {
  if (!file_) return;
  bool isChanged = statusIsChanged_;
  for (auto& [name, cell] : memory_) {
    if (!cell.isChanged) continue;
    isChanged = true;
    file_->Set(DeviceFile::kDeviceSection, name.Name(), ValueText(cell.value, cell.type));
  }
  if (!isChanged) return;
  file_->Set(DeviceFile::kStatusSection, kDeviceStatusName, "0x" + hart::ToHex({&status_, 1}));
  file_->Save();
  statusIsChanged_ = false;
  for (auto& [name, cell] : memory_) cell.isChanged = false;
}

void EmulatedDevice::SaveAfterChange() {
  if (saveMode_ == SaveMode::EveryChange) Save();
}

}  // namespace HartLinkSim
