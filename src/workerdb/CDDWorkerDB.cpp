#include "workerdb/CDDWorkerDB.h"

#include "interfaces/InternalNames.h"
#include "settings/Settings.h"
#include "types/Failure.h"
#include "workerdb/StoredObjects.h"

namespace ZAFHartLib {

using ZAFHartTypes::IDDComponents;

CDDWorkerDB::CDDWorkerDB(std::int32_t firstGeneration)
    : expirySuspension_(std::make_shared<char>()), generation_(firstGeneration) {}

CDDWorkerDB::~CDDWorkerDB() {
  for (auto& [name, entry] : objects_) entry.object->DropBindings();
}

void CDDWorkerDB::SetComponentModel(const std::shared_ptr<IDDComponents>& components) {
  model_.Set(components);
  if (!components) return;
  std::string componentFileName;
  ZAFHartTypes::IgnoreFailures([&] {
    if (const auto information = components->KernelInformation()) {
      componentFileName = information->ComponentFileName();
    }
  });
  const std::string ownKey = DtmSettingsPath(componentFileName);
  disableUnitRecalculation_ = GetNumberSetting(ownKey, kDtmsKey, kDisableUnitRecalculation, 0) != 0;
}

std::shared_ptr<IDDComponents> CDDWorkerDB::ComponentModel() const {
  return model_.Get();
}

void CDDWorkerDB::SetSingleStorage(std::shared_ptr<ISingleStorage> manager) {
  singleStorage_ = std::move(manager);
}

void CDDWorkerDB::SetIsDirty(bool dirty) {
  if (!dirty) cleanGeneration_ = generation_;
}

// The online mode follows while it is one of the two online modes.
void CDDWorkerDB::SetSynchronousMode(bool synchronous) {
  using ZAFHartTypes::OnlineMode;
  synchronousMode_ = synchronous;
  const auto onlineMode =
      Definition::Define(ZAFHartTypes::internal_names::kOnlineMode, ObjectKind::Variable);
  const Variable* stored = Stored<Variable>(onlineMode);
  if (!stored) return;
  const double mode = stored->Value().ToDouble();
  if (mode <= 0 || mode >= 3) return;
  model_.Kernel()->GetVariable(onlineMode);
  const OnlineMode followed = synchronous ? OnlineMode::OnlineSynchronous : OnlineMode::Online;
  WriteValue(onlineMode, static_cast<std::int16_t>(followed));
}

Variant CDDWorkerDB::Invoke(std::string_view name, std::span<const Variant> arguments) {
  if (ZAFHartTypes::SameKey(name, "InitDefaultData") && arguments.size() == 1) {
    return InitDefaultData(arguments[0].ToText());
  }
  if (ZAFHartTypes::SameKey(name, "DynAvailTime") && arguments.size() <= 1) {
    if (!arguments.empty()) SetDynAvailTime(arguments[0].ToLong());
    return DynAvailTime();
  }
  throw ZAFHartTypes::Failure(ZAFHartTypes::ErrorNumber::MemberNotFound, "CDDStdWorkerDB.Invoke",
                              "The worker database has no member \"" + std::string(name) +
                                  "\" with " + std::to_string(arguments.size()) + " arguments.");
}

void CDDWorkerDB::AdvanceGeneration() {
  constexpr std::int32_t kLastGeneration = 2'000'000'001;
  if (generation_ < kLastGeneration) {
    ++generation_;
    return;
  }
  generation_ = 1;
  cleanGeneration_ = 0;
  for (auto& [name, entry] : objects_) {
    entry.object->SetSyncStamp(0);
    entry.object->SetChangeStamp(0);
  }
}

void CDDWorkerDB::Show(Variable& stored) const {
  model_.Gui()->ShowObject(stored.ComputeAttributes());
}

void CDDWorkerDB::Show(const Definition& definition) const {
  if (Variable* stored = Stored<Variable>(definition)) Show(*stored);
}

}  // namespace ZAFHartLib
