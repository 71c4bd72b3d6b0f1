#include "workerdb/CDDSiStorManager.h"

#include "types/Failure.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

std::shared_ptr<CDDWorkerDB> DatabaseOf(const std::shared_ptr<IDDComponents>& components) {
  auto database =
      components ? std::dynamic_pointer_cast<CDDWorkerDB>(components->DDWorkerDB()) : nullptr;
  if (!database) {
    throw Failure(ErrorNumber::InvalidArgument, "CDDSiStorManager",
                  "A pair needs two initialised component models with the library's own worker "
                  "database.");
  }
  return database;
}

}  // namespace

std::shared_ptr<CDDSiStorManager> CDDSiStorManager::Pair(const Components& offline,
                                                         const Components& online) {
  const auto manager = std::make_shared<CDDSiStorManager>();
  manager->Initialize(offline, online);
  const auto join = [&](const Side& side, StorageMode mode) {
    const auto database = side.database.lock();
    database->SetSingleStorage(manager);
    database->SetStorageMode(mode);
  };
  join(manager->offline_, StorageMode::Offline);
  join(manager->online_, StorageMode::Online);
  return manager;
}

void CDDSiStorManager::Part() {
  const auto self = shared_from_this();  // the databases may hold it alone
  for (const Side* side : {&offline_, &online_}) {
    const auto database = side->database.lock();
    if (!database || database->GetSingleStorage() != self) continue;
    database->SetSingleStorage(nullptr);
    database->SetStorageMode(StorageMode::NotPaired);
  }
  DisConnect();
}

CDDSiStorManager::~CDDSiStorManager() {
  DisConnect();
}

void CDDSiStorManager::Initialize(const Components& offline, const Components& online) {
  offline_ = {offline, DatabaseOf(offline)};
  online_ = {online, DatabaseOf(online)};
  singleStorageObjects_ = offline_.database.lock()->SingleStorageVariables();
}

void CDDSiStorManager::DisConnect() {
  offline_ = {};
  online_ = {};
  singleStorageObjects_.Clear();
}

bool CDDSiStorManager::IsSingleStorageObject(const Definition& definition) const {
  return singleStorageObjects_.Contains(definition.Key());
}

// Shows the receiver's own object.
void CDDSiStorManager::Update(StorageMode source, const std::shared_ptr<DDObject>& object) {
  const Side side = Other(source);
  const auto database = side.database.lock();
  if (!database || !object) return;
  database->WriteObjectWithoutPropagation(object);
  const auto components = side.components.lock();
  const auto gui = components ? components->DDGUI() : nullptr;
  const auto received = database->ReadObject(object->ObjectDefinition());
  if (gui && received) gui->ShowObject(received);
}

void CDDSiStorManager::WriteVariableValue(StorageMode mode, const Definition& definition,
                                          const Variant& value) {
  if (mode != StorageMode::Offline && mode != StorageMode::Online) return;
  const Side side = mode == StorageMode::Offline ? offline_ : online_;
  const auto components = side.components.lock();
  if (const auto kernel = components ? components->DDKernel() : nullptr) {
    kernel->WriteVariable(definition, value);
  }
}

void CDDSiStorManager::UploadVariableValue(const Definition& definition, const Variant& value) {
  const auto database = offline_.database.lock();
  const auto object = database ? database->ReadObject(definition) : nullptr;
  const auto variable = object ? object->MakeVariable() : nullptr;
  if (!variable) return;
  variable->SetValue(value);
  variable->SetAvailable(true);
  database->WriteObject(variable);
}

}  // namespace ZAFHartLib
