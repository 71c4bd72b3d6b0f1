#include "components/DataSetOperation.h"

#include "interfaces/InternalNames.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

constexpr const char* kSource = "ZAFHartLib.CDDComponents";
constexpr double kIdle = -1.0;

Definition ProgressValueVariable() {
  return Definition::Define(internal_names::kProgressValue, ObjectKind::Variable);
}
Definition ProgressTitleVariable() {
  return Definition::Define(internal_names::kProgressTitle, ObjectKind::Variable);
}

template <typename Component>
std::shared_ptr<Component> Require(std::shared_ptr<Component> component) {
  if (component) return component;
  throw Failure(ErrorNumber::ObjectNotSet, kSource,
                "The DTM instance is not initialised or has been torn down.");
}

}  // namespace

DataSetOperation::DataSetOperation(CDDComponents& components)
    : components_(components.shared_from_this()) {
  if (components_->runningOperations_++ == 0) components_->cancelRequested_ = false;
}

DataSetOperation::~DataSetOperation() {
  if (--components_->runningOperations_ > 0) return;
  components_->cancelRequested_ = false;
  if (components_->terminated_) components_->ReleaseComponents();
}

std::shared_ptr<IDDKernel> DataSetOperation::Kernel() const {
  return Require(components_->DDKernel());
}
std::shared_ptr<IDDKernel> DataSetOperation::KernelExtension() const {
  return Require(components_->DDKernelExtension());
}
std::shared_ptr<IDDWorkerDB> DataSetOperation::Database() const {
  return Require(components_->DDWorkerDB());
}
std::shared_ptr<CDDWorkerDB> DataSetOperation::OwnDatabase() const {
  if (auto database = std::dynamic_pointer_cast<CDDWorkerDB>(Database())) return database;
  throw Failure(ErrorNumber::TypeMismatch, kSource,
                "The worker database is not the library's own.");
}

std::shared_ptr<IDDDTMGUI> DataSetOperation::Gui() const {
  return Require(components_->DDGUI());
}
std::shared_ptr<IDDCommWrapper> DataSetOperation::Comm() const {
  return Require(components_->HARTComm());
}

void DataSetOperation::CheckGoesOn() const {
  components_->RequireRunning();
  if (components_->cancelRequested_) {
    throw Failure(ErrorNumber::Cancelled, kSource, "The operation was cancelled by the user.");
  }
}

std::shared_ptr<Menu> DataSetOperation::FindMenu(const Definition& definition) const {
  std::shared_ptr<Menu> menu;
  IgnoreFailures([&] {
    const auto entry = Database()->ReadObject(definition);
    if (entry && entry->MakeMenu()) menu = KernelExtension()->GetMenu(definition);
  });
  return menu;
}

void DataSetOperation::ResolveMenuDefinition(Definition& definition) const {
  if (definition) return;
  const auto information = Require(components_->KernelInformation());
  definition = Definition::Define(information->StandardName(StandardName::UploadVariables),
                                  ObjectKind::Menu);
}

void DataSetOperation::RunMethod(std::string_view name) const {
  const Definition definition = Definition::Define(name, ObjectKind::Method);
  if (!Database()->ReadObject(definition)) return;
  const auto method = Kernel()->GetMethod(definition);
  if (method->IsValid()) Kernel()->ExecuteMethod(definition, method->Entry());
}

void DataSetOperation::SetProgressTitle(const std::string& title) const {
  Database()->WriteValue(ProgressTitleVariable(), title);
}

std::string DataSetOperation::ProgressTitle() const {
  const auto entry = Database()->ReadObject(ProgressTitleVariable());
  const auto variable = entry ? entry->MakeVariable() : nullptr;
  return variable ? variable->Value().ToText() : std::string();
}

void DataSetOperation::ShowProgress(std::size_t done, std::size_t total) const {
  const double percent = 100.0 * static_cast<double>(done + 1) / static_cast<double>(total + 1);
  Kernel()->WriteVariable(ProgressValueVariable(), percent);
}

void DataSetOperation::EndProgress() const {
  Kernel()->WriteVariable(ProgressValueVariable(), kIdle);
  SetProgressTitle("");
}

void DataSetOperation::MarkSynchronized() const {
  if (const auto extension = std::dynamic_pointer_cast<IDataBaseExtension>(Database())) {
    extension->SetIsSynchronized(true);
  }
}

UpdateLock::UpdateLock(const std::shared_ptr<IDDDTMGUI>& gui)
    : control_(std::dynamic_pointer_cast<IDDDTMGUIUpdateControl>(gui)) {
  if (control_) control_->SetLockUpdate(true);
}

void UpdateLock::Release() {
  const auto control = std::move(control_);
  if (!control) return;
  control->SetLockUpdate(false);
  control->RefreshView();
}

UpdateLock::~UpdateLock() {
  IgnoreFailures([this] { Release(); });
}

}  // namespace ZAFHartLib
