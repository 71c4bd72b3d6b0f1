#pragma once

#include <memory>

#include "platform/Export.h"
#include "platform/Object.h"
#include "workerdb/CDDWorkerDB.h"

namespace ZAFHartLib {

// Pairs the offline and the online data set of one device: the variables whose names contain
// "ZAFsingleStorage_" have one value for both. What changes in one database is written into the
// other at once and shown there.
class ZAF_API CDDSiStorManager : public platform::Object,
                                 public ISingleStorage,
                                 public std::enable_shared_from_this<CDDSiStorManager> {
 public:
  using Components = std::shared_ptr<ZAFHartTypes::IDDComponents>;

  // Makes the pair complete: a manager that both databases hold, each with its storage mode. Keep
  // the result, and Part it before the models end. Raises InvalidArgument unless both have the
  // library's own worker database.
  static std::shared_ptr<CDDSiStorManager> Pair(const Components& offline,
                                                const Components& online);
  // Takes the manager and the storage modes away from both databases, and disconnects.
  void Part();
  ~CDDSiStorManager() override;

  // Remembers both and the single-storage variables of the offline database as they are now. The
  // databases are given the manager and their storage modes by the caller.
  void Initialize(const Components& offline, const Components& online);
  void DisConnect();

  bool IsSingleStorageObject(const Definition& definition) const override;
  void Update(ZAFHartTypes::StorageMode source, const std::shared_ptr<DDObject>& object) override;
  // Writes the value to the device through the kernel of that data set; nothing for another mode.
  void WriteVariableValue(ZAFHartTypes::StorageMode mode, const Definition& definition,
                          const Variant& value);
  void UploadVariableValue(const Definition& definition, const Variant& value) override;

 private:
  // One of the two data sets. The component models belong to the host.
  struct Side {
    std::weak_ptr<ZAFHartTypes::IDDComponents> components;
    std::weak_ptr<CDDWorkerDB> database;
  };
  Side& Other(ZAFHartTypes::StorageMode mode) {
    return mode == ZAFHartTypes::StorageMode::Offline ? online_ : offline_;
  }

  Side offline_;
  Side online_;
  DefinitionsByName singleStorageObjects_;
};

}  // namespace ZAFHartLib
