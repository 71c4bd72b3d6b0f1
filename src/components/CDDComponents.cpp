#include "components/CDDComponents.h"

#include "components/COptDataReader.h"
#include "components/UploadOperation.h"
#include "components/WriteOperations.h"
#include "gui/CDDDTMGUI.h"
#include "interfaces/InternalNames.h"
#include "platform/Platform.h"
#include "types/LateBound.h"
#include "workerdb/CDDWorkerDB.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

CDDComponents::CDDComponents()
    : kernelClass_("ZAFHartLib.CHARTKernel"), kernelExtensionClass_("ZAFHartLib.CSecureKernel") {}

std::shared_ptr<CDDComponents> CDDComponents::Create() {
  return std::shared_ptr<CDDComponents>(new CDDComponents);
}

CDDComponents::~CDDComponents() {
  PrepareTermination();
}

void CDDComponents::Initialize(bool secureKernel) {
  const DataSetOperation running(*this);  // a method of the DTM may wait for the user
  terminated_ = false;
  CreateComponents(secureKernel);
  LoadDataModel();
  ChooseUploadMenu();
  ConfigureOptimization();
}

void CDDComponents::CreateComponents(bool secureKernel) {
  platform::ComponentClasses& classes = platform::Current().Classes();
  const auto self = shared_from_this();
  kernel_ = classes.CreateAs<IDDKernel>(kernelClass_);
  kernel_->SetComponentModel(self);
  kernelExtension_ = kernel_;
  if (secureKernel) {
    kernelExtension_ = classes.CreateAs<IDDKernel>(kernelExtensionClass_);
    kernelExtension_->SetComponentModel(self);
  }
  const std::string project(platform::ProjectOf(dataModelClass_));
  information_ = classes.CreateAs<IKernelInformation>(project + ".KernelInformation");
  database_ = std::make_shared<CDDWorkerDB>();
  database_->SetComponentModel(self);
  gui_ = std::make_shared<CDDDTMGUI>();
  gui_->SetComponentModel(self);
  comm_ = classes.CreateAs<IDDCommWrapper>(commWrapperClass_);
  comm_->SetComponentModel(self);
  builtinLibName_ = "ZAFHartLib.CDDBuiltinLib";
}

void CDDComponents::LoadDataModel() {
  kernel_->InitializeDB(dataModelClass_);
  RequireRunning();
  database_->SetVariableAvailable({}, false);
  IgnoreFailures([this] {
    const Variant arguments[] = {dataModelClass_};
    std::dynamic_pointer_cast<ILateBound>(database_)->Invoke("InitDefaultData", arguments);
  });
  comm_->Initialize();
  RequireRunning();
  comm_->SetEmulate(comm_->Emulate());
}

void CDDComponents::ChooseUploadMenu() {
  upDownloadMenuName_ = internal_names::kUploadVariables;
  IgnoreFailures([this] {
    if (information_)
      upDownloadMenuName_ = information_->StandardName(StandardName::UploadVariables);
  });
}

void CDDComponents::ConfigureOptimization() {
  constexpr std::int32_t kAlways = -1;  // passes every filter
  COptDataReader reader;
  reader.ConfigureOptimization(*this);
  if (reader.ErrorReport().empty()) return;
  if (const auto trace = gui_->TraceObject()) {
    trace->TraceText(kAlways, "Errors reading optimization data: \r\n" + reader.ErrorReport());
  }
}

void CDDComponents::RequireRunning() const {
  if (!terminated_) return;
  throw Failure(ErrorNumber::ObjectNotSet, "ZAFHartLib.CDDComponents",
                "The DTM instance was torn down while an operation ran.");
}

void CDDComponents::PrepareTermination() {
  terminated_ = true;
  DetachComponents();
  if (runningOperations_ == 0) ReleaseComponents();
}

// Back-references first, so that no component reaches a half-destroyed sibling.
void CDDComponents::DetachComponents() {
  const auto detach = [](const auto& component) {
    IgnoreFailures([&] {
      if (component) component->SetComponentModel(nullptr);
    });
  };
  detach(gui_);
  detach(kernel_);
  detach(kernelExtension_);
  detach(database_);
  detach(comm_);
}

void CDDComponents::ReleaseComponents() {
  kernel_.reset();
  kernelExtension_.reset();
  database_.reset();
  gui_.reset();
  comm_.reset();
}

std::shared_ptr<IDDBuiltinLib> CDDComponents::DDBuiltinLib(std::shared_ptr<DDObject>& currentObject,
                                                           const std::string& currentMethodName) {
  const auto library = platform::Current().Classes().CreateAs<IDDBuiltinLib>(builtinLibName_);
  library->SetComponentModel(shared_from_this());
  library->Initialize(currentObject, currentMethodName);
  return library;
}

void CDDComponents::Upload(Definition& menu) {
  UploadOperation(*this).Run(menu);
}
void CDDComponents::Download(Definition& menu) {
  DownloadOperation(*this).Run(menu);
}
void CDDComponents::WriteChanges() {
  WriteChangesOperation(*this).Run();
}

void CDDComponents::CancelOperation() {
  if (runningOperations_ > 0) cancelRequested_ = true;
  if (const auto user = std::dynamic_pointer_cast<ILinkUser>(comm_)) user->CancelExchange();
}

}  // namespace ZAFHartLib
