#pragma once

#include <functional>
#include <string>

#include "components/CDDComponents.h"
#include "workerdb/CDDWorkerDB.h"

namespace ZAFHartLib {

// A running operation on the whole instance. What upload, download and write changes have in
// common: they keep the instance alive, report progress, notice the user's break and a tear-down,
// and put back what they set when they fail.
class DataSetOperation {
 public:
  explicit DataSetOperation(CDDComponents& components);
  virtual ~DataSetOperation();
  DataSetOperation(const DataSetOperation&) = delete;
  DataSetOperation& operator=(const DataSetOperation&) = delete;

 protected:
  // Siblings; each raises ObjectNotSet once the instance has been torn down.
  std::shared_ptr<ZAFHartTypes::IDDKernel> Kernel() const;
  std::shared_ptr<ZAFHartTypes::IDDKernel> KernelExtension() const;
  std::shared_ptr<ZAFHartTypes::IDDWorkerDB> Database() const;
  // The library's own database; TypeMismatch when the host has put another in its place.
  std::shared_ptr<CDDWorkerDB> OwnDatabase() const;
  std::shared_ptr<ZAFHartTypes::IDDDTMGUI> Gui() const;
  std::shared_ptr<ZAFHartTypes::IDDCommWrapper> Comm() const;
  CDDComponents& Components() const { return *components_; }

  // Raises Cancelled after the user's break and ObjectNotSet after a tear-down.
  void CheckGoesOn() const;
  // The menu `definition` with current attributes; nothing when it cannot be resolved.
  std::shared_ptr<ZAFHartTypes::Menu> FindMenu(const ZAFHartTypes::Definition& definition) const;
  // An empty definition becomes that of the DTM's upload menu.
  void ResolveMenuDefinition(ZAFHartTypes::Definition& definition) const;
  // Runs a method of the DTM when the database holds it and it is valid.
  void RunMethod(std::string_view name) const;
  void SetProgressTitle(const std::string& title) const;
  // The title that an outer operation has set; "" for none.
  std::string ProgressTitle() const;
  // 100 * (done + 1) / (total + 1) percent.
  void ShowProgress(std::size_t done, std::size_t total) const;
  // Progress -1, title "".
  void EndProgress() const;
  void MarkSynchronized() const;

 private:
  std::shared_ptr<CDDComponents> components_;
};

// Runs `restore` when an operation fails; one that ends well does it itself and says Done().
class OnFailure {
 public:
  explicit OnFailure(std::function<void()> restore) : restore_(std::move(restore)) {}
  void Done() { restore_ = nullptr; }
  ~OnFailure() {
    if (restore_) ZAFHartTypes::IgnoreFailures(restore_);
  }
  OnFailure(const OnFailure&) = delete;
  OnFailure& operator=(const OnFailure&) = delete;

 private:
  std::function<void()> restore_;
};

// Keeps the views still while much changes at once, and refreshes them when it ends.
class UpdateLock {
 public:
  explicit UpdateLock(const std::shared_ptr<ZAFHartTypes::IDDDTMGUI>& gui);
  // Ends it before the scope does. Failures of the views reach the caller.
  void Release();
  ~UpdateLock();
  UpdateLock(const UpdateLock&) = delete;
  UpdateLock& operator=(const UpdateLock&) = delete;

 private:
  std::shared_ptr<ZAFHartTypes::IDDDTMGUIUpdateControl> control_;
};

}  // namespace ZAFHartLib
