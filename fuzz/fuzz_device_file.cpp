#include <algorithm>
#include <string>

#include "Fuzz.h"
#include "InputFile.h"
#include "linksim/DeviceFile.h"
#include "linksim/DeviceMemory.h"

namespace {

using HartLinkSim::DeviceFile;
using ZAFHartTypes::TextKey;
using ZAFHartTypes::TypeCode;

constexpr TypeCode kTypes[] = {TypeCode::Float, TypeCode::Unsigned, TypeCode::Enumerated,
                               TypeCode::PackedAscii, TypeCode::Date};

void CheckSame(const std::vector<DeviceFile::Entry>& left,
               const std::vector<DeviceFile::Entry>& right) {
  fuzz::Check(std::ranges::equal(left, right,
                                 [](const auto& a, const auto& b) {
                                   return a.section == b.section && a.name == b.name &&
                                          a.value == b.value;
                                 }),
              "what is saved reads back the same");
}

// Whatever type a variable has: its text is a value of it, or is refused.
void CheckValues(const std::vector<DeviceFile::Entry>& entries) {
  for (const auto& entry : entries) {
    for (const TypeCode type : kTypes) {
      HartLinkSim::DeviceMemory memory;
      memory.SetFromFile(TextKey::Of("value"), entry.value, entry.line);
      fuzz::Accepts([&] { memory.ValueOf(TextKey::Of("value"), type); });
    }
  }
}

}  // namespace

// A value to set, ended by a NUL, then the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::InputFile file("device.txt");
  std::string_view rest = fuzz::AsText({data, size});
  const std::string_view value = fuzz::TakeText(rest);
  file.Fill(rest);
  fuzz::Accepts([&] {
    DeviceFile device(file.Path());
    CheckValues(device.Entries());
    device.Set(DeviceFile::kDeviceSection, "tag", value);
    device.Save();
    CheckSame(DeviceFile(file.Path()).Entries(), device.Entries());
  });
  return 0;
}
