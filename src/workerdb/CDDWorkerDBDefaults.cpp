// Default values from the INI file that lies beside the DTM's component file.

#include <algorithm>

#include "interfaces/InternalNames.h"
#include "platform/Platform.h"
#include "types/Failure.h"
#include "workerdb/CIniCollection.h"
#include "workerdb/StoredObjects.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::TextKey;

// HART: 250 to 255 are no burst commands; a device that has none set reports such a code.
constexpr std::int16_t kNoBurst = 252;

bool IsBurstMode(const Variable& variable) {
  static const TextKey names[] = {TextKey::Of("burst_mode_select"), TextKey::Of("burst_mode"),
                                  TextKey::Of("burst_mode_control_code")};
  return std::ranges::find(names, variable.Definition().Key()) != std::end(names);
}

}  // namespace

void CDDWorkerDB::ApplyDefault(Variable& added) {
  const Variant* loaded = defaults_.Find(added.Definition().Key());
  if (!loaded) return;
  added.SetDefaultValue(*loaded);
  added.SetValue(*loaded);
  added.SetAvailable(true);
  added.SetDynAvailTime(dynAvailTime_);
  added.SetStaticAvailTime(staticAvailTime_);
}

bool CDDWorkerDB::InitDefaultData(const std::string& kernelClassName) {
  return ZAFHartTypes::IgnoreFailures([&] {
           LoadDefaults(kernelClassName);
           SetDefaultsOfVariables();
           AdvanceGeneration();
         }) &&
         !defaults_.IsEmpty();
}

void CDDWorkerDB::LoadDefaults(const std::string& kernelClassName) {
  const std::string className =
      std::string(platform::ProjectOf(kernelClassName)) + ".KernelInformation";
  const auto information =
      platform::Current().Classes().CreateAs<ZAFHartTypes::IKernelInformation>(className);
  CIniCollection ini;
  const std::string file = ini.ApplicationToInifileName(information->ComponentFolder() + "\\" +
                                                        information->ComponentFileName());
  if (ini.ReadIniFile(file, "Default", defaults_)) return;
  throw ZAFHartTypes::Failure(ZAFHartTypes::ErrorNumber::PathFileAccess,
                              "CDDWorkerDB.InitDefaultData", "Cannot read \"" + file + "\".");
}

void CDDWorkerDB::SetDefaultsOfVariables() {
  const auto dynAvailTime =
      Definition::Define(ZAFHartTypes::internal_names::kDynAvailTime, ObjectKind::Variable);
  if (const Variant* loaded = defaults_.Find(dynAvailTime.Key())) {
    ZAFHartTypes::IgnoreFailures([&] { WriteValue(dynAvailTime, *loaded); });
  }
  ForAll<Variable>([&](Variable& stored) {
    if (IsBurstMode(stored)) stored.SetDefaultValue(kNoBurst);
    const Variant* loaded = defaults_.Find(stored.Definition().Key());
    if (!loaded) return;
    Alter(stored, [&](Variable& variable) {
      variable.SetDefaultValue(*loaded);
      if (!variable.Available()) variable.SetValue(*loaded);  // not what the device has given
      MakeAvailable(variable, true);
    });
  });
}

}  // namespace ZAFHartLib
