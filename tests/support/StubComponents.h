#pragma once

#include <utility>

#include "interfaces/IDDComponents.h"
#include "support/StubGui.h"
#include "support/StubKernel.h"

namespace test_support {

// A communication wrapper that reaches no device.
class StubComm : public IDDCommWrapper {
 public:
  void SetComponentModel(const std::shared_ptr<IDDComponents>&) override {}
  std::shared_ptr<IDDComponents> ComponentModel() const override { return nullptr; }
  bool ExecuteCommand(std::int16_t, const std::shared_ptr<Transaction>&) override {
    return lastResult == 0;
  }
  bool AsyncExecuteCommand(const std::shared_ptr<CommandRef>&) override { return lastResult == 0; }
  std::int32_t LastResult() const override { return lastResult; }
  void SetLastResult(std::int32_t result) override { lastResult = result; }
  CommandStatus LastStatus() const override { return lastStatus; }
  std::vector<std::uint8_t> LastData() const override { return lastData; }
  void Initialize() override {}
  bool Emulate() const override { return emulate; }
  void SetEmulate(bool on) override { emulate = on; }
  void GetAddressInformation(std::int32_t&, std::string&, std::string&) override {}
  void SetAddressInformation(std::int32_t, const std::string&, const std::string&) override {}

  std::int32_t lastResult = 0;
  CommandStatus lastStatus{};
  std::vector<std::uint8_t> lastData;
  bool emulate = false;
};

class StubInformation : public IKernelInformation {
 public:
  std::string StandardName(ZAFHartTypes::StandardName index) override {
    return index == ZAFHartTypes::StandardName::UploadVariables ? uploadMenu : std::string();
  }
  std::string ComponentFolder() override { return folder; }
  std::string ComponentFileName() override { return fileName; }

  std::string uploadMenu;
  std::string folder;
  std::string fileName = "Device.dll";
};

// A component model whose members are set one by one; Create() puts stubs at all of them but the
// worker database.
class StubComponents : public IDDComponents, public std::enable_shared_from_this<StubComponents> {
 public:
  static std::shared_ptr<StubComponents> Create() {
    auto made = std::make_shared<StubComponents>();
    made->gui->SetComponentModel(made);
    made->kernel->SetComponentModel(made);
    return made;
  }
  // Puts a database in place and gives it this component model.
  void Use(std::shared_ptr<IDDWorkerDB> newDatabase) {
    database = std::move(newDatabase);
    database->SetComponentModel(shared_from_this());
  }

  std::shared_ptr<IDDKernel> DDKernel() const override { return kernel; }
  std::shared_ptr<IDDKernel> DDKernelExtension() const override {
    return kernelExtension ? kernelExtension : kernel;
  }
  std::shared_ptr<IKernelInformation> KernelInformation() const override { return information; }
  std::shared_ptr<IDDBuiltinLib> DDBuiltinLib(std::shared_ptr<DDObject>&,
                                              const std::string&) override {
    return std::exchange(builtins, nullptr);
  }
  std::shared_ptr<IDDWorkerDB> DDWorkerDB() const override { return database; }
  std::shared_ptr<IDDDTMGUI> DDGUI() const override { return gui; }
  std::shared_ptr<IDDCommWrapper> HARTComm() const override { return comm; }
  void Upload(Definition&) override {}
  void Download(Definition&) override {}
  void WriteChanges() override {}

  std::shared_ptr<IDDKernel> kernel = std::make_shared<StubKernel>();
  std::shared_ptr<IDDKernel> kernelExtension;
  std::shared_ptr<IKernelInformation> information = std::make_shared<StubInformation>();
  std::shared_ptr<IDDBuiltinLib> builtins;  // for the next method
  std::shared_ptr<IDDWorkerDB> database;
  std::shared_ptr<IDDDTMGUI> gui = std::make_shared<StubGui>();
  std::shared_ptr<IDDCommWrapper> comm = std::make_shared<StubComm>();
};

}  // namespace test_support
