#pragma once

#include <memory>
#include <string>

#include "interfaces/IDDComponents.h"
#include "platform/Export.h"
#include "platform/Object.h"

namespace ZAFHartLib {

// The composition root of one DTM instance. Start here:
//
//   auto components = CDDComponents::Create();
//   components->SetDataModelClass("Vendor.DataModel");
//   components->SetCommWrapperClass("ZAFHartLib.CDDTestCommWrapper");
//   components->Initialize();
//
// It owns all components; they refer back to it weakly. All calls come on one thread, the one whose
// platform was current when it was made.
class ZAF_API CDDComponents : public platform::Object,
                              public ZAFHartTypes::IDDComponents,
                              public std::enable_shared_from_this<CDDComponents> {
 public:
  // Without components, and the class names at their defaults.
  static std::shared_ptr<CDDComponents> Create();
  // Tears the instance down when that has not been done.
  ~CDDComponents() override;

  // Creates and wires all components and loads the data model. Once per instance, or anew after
  // PrepareTermination. With `secureKernel` the kernel extension is made from
  // KernelExtensionClass, otherwise it is the kernel itself. Raises CannotCreateObject and
  // TypeMismatch for a class name that gives no such component, ObjectNotSet when a method of the
  // DTM had the instance torn down; any other failure of a step reaches the caller too. What was
  // created before it stays until PrepareTermination.
  void Initialize(bool secureKernel = false);
  // Clears every back-reference, then releases the components. Called while an operation runs (from
  // a timer in a wait, say), the references are cleared at once, the operation fails with
  // ObjectNotSet, and the components go when it has ended. Never raises; a second call does
  // nothing.
  void PrepareTermination();

  // Whole-data-set operations, see IDDComponents. Progress stands in "__ZAF__ProgressValue"
  // (percent, -1 when idle) and "__ZAF__ProgressTitle"; the GUI is locked meanwhile. Failures of
  // the kernel and the database reach the caller, with locks and progress restored. Methods
  // of the DTM are run before and after: "__ZAF__pre_upload", "__ZAF__post_upload" and the same
  // with "download". Raise TypeMismatch with another worker database than the library's.
  void Upload(ZAFHartTypes::Definition& menu) override;
  void Download(ZAFHartTypes::Definition& menu) override;
  void WriteChanges() override;
  // The user's break: the exchange under way ends, and the running operation fails with
  // ErrorNumber::Cancelled. Without a running operation only an exchange under way is ended. What
  // was not attempted keeps its marks.
  void CancelOperation();

  std::shared_ptr<ZAFHartTypes::IDDKernel> DDKernel() const override { return kernel_; }
  std::shared_ptr<ZAFHartTypes::IDDKernel> DDKernelExtension() const override {
    return kernelExtension_;
  }
  std::shared_ptr<ZAFHartTypes::IKernelInformation> KernelInformation() const override {
    return information_;
  }
  std::shared_ptr<ZAFHartTypes::IDDBuiltinLib> DDBuiltinLib(
      std::shared_ptr<ZAFHartTypes::DDObject>& currentObject,
      const std::string& currentMethodName) override;
  std::shared_ptr<ZAFHartTypes::IDDWorkerDB> DDWorkerDB() const override { return database_; }
  std::shared_ptr<ZAFHartTypes::IDDDTMGUI> DDGUI() const override { return gui_; }
  std::shared_ptr<ZAFHartTypes::IDDCommWrapper> HARTComm() const override { return comm_; }

  // The same components as properties that the host may replace: after Initialize, which
  // makes its own. The host gives the new one the component model.
  void SetDDKernel(std::shared_ptr<ZAFHartTypes::IDDKernel> kernel) { kernel_ = std::move(kernel); }
  void SetDDKernelExtension(std::shared_ptr<ZAFHartTypes::IDDKernel> kernel) {
    kernelExtension_ = std::move(kernel);
  }
  void SetKernelInformation(std::shared_ptr<ZAFHartTypes::IKernelInformation> information) {
    information_ = std::move(information);
  }
  void SetDDWorkerDB(std::shared_ptr<ZAFHartTypes::IDDWorkerDB> database) {
    database_ = std::move(database);
  }
  std::shared_ptr<ZAFHartTypes::IDDDTMGUI> DDDTMGUI() const { return gui_; }
  void SetDDDTMGUI(std::shared_ptr<ZAFHartTypes::IDDDTMGUI> gui) { gui_ = std::move(gui); }
  std::shared_ptr<ZAFHartTypes::IDDCommWrapper> HARTCommWrapper() const { return comm_; }
  void SetHARTCommWrapper(std::shared_ptr<ZAFHartTypes::IDDCommWrapper> comm) {
    comm_ = std::move(comm);
  }

  // Class names ("project.class"), set before Initialize. Kernel and extension default to the
  // library's own; the other two have to be set. The project of the data model's class also names
  // that of the DTM's "KernelInformation".
  const std::string& KernelClass() const { return kernelClass_; }
  void SetKernelClass(std::string name) { kernelClass_ = std::move(name); }
  const std::string& KernelExtensionClass() const { return kernelExtensionClass_; }
  void SetKernelExtensionClass(std::string name) { kernelExtensionClass_ = std::move(name); }
  const std::string& CommWrapperClass() const { return commWrapperClass_; }
  void SetCommWrapperClass(std::string name) { commWrapperClass_ = std::move(name); }
  const std::string& DataModelClass() const { return dataModelClass_; }
  void SetDataModelClass(std::string name) { dataModelClass_ = std::move(name); }
  // Class of the builtin libraries; set by Initialize, and may be changed after it.
  const std::string& DDBuitlinLibName() const { return builtinLibName_; }
  void SetDDBuitlinLibName(std::string name) { builtinLibName_ = std::move(name); }
  // Name of the menu that lists the variables of upload and download; set by Initialize from the
  // DTM's standard names. For the host; Upload and Download ask the DTM again.
  const std::string& UpDownloadMenuName() const { return upDownloadMenuName_; }
  void SetUpDownloadMenuName(std::string name) { upDownloadMenuName_ = std::move(name); }
  // For the host; the library does not read it.
  bool IsSynchronized() const { return isSynchronized_; }
  void SetIsSynchronized(bool synchronized) { isSynchronized_ = synchronized; }

 private:
  friend class DataSetOperation;

  CDDComponents();
  void CreateComponents(bool secureKernel);
  void LoadDataModel();
  void ChooseUploadMenu();
  void ConfigureOptimization();
  // Raises ObjectNotSet once the instance has been torn down.
  void RequireRunning() const;
  void DetachComponents();
  void ReleaseComponents();

  std::shared_ptr<ZAFHartTypes::IDDKernel> kernel_;
  std::shared_ptr<ZAFHartTypes::IDDKernel> kernelExtension_;
  std::shared_ptr<ZAFHartTypes::IKernelInformation> information_;
  std::shared_ptr<ZAFHartTypes::IDDWorkerDB> database_;
  std::shared_ptr<ZAFHartTypes::IDDDTMGUI> gui_;
  std::shared_ptr<ZAFHartTypes::IDDCommWrapper> comm_;
  std::string kernelClass_;
  std::string kernelExtensionClass_;
  std::string commWrapperClass_;
  std::string dataModelClass_;
  std::string upDownloadMenuName_;
  std::string builtinLibName_;
  bool isSynchronized_ = false;
  bool cancelRequested_ = false;
  bool terminated_ = false;
  int runningOperations_ = 0;
};

}  // namespace ZAFHartLib
