#pragma once

#include <memory>

#include "hartframe/dataset/KeptDataSet.h"
#include "workerdb/CDDSiStorManager.h"

namespace hartframe {

// The offline data set on disk beside the online one of a connected device: two instances of a DTM,
// whose single-storage variables have one value for both. Ends the pair with its scope.
class DataSetPair {
 public:
  // Restores the file that the online session's options name; it need not be there. CommandFailure:
  // FileBroken, or NotAllowed when the device is of another type than the file's.
  explicit DataSetPair(Session& online);
  ~DataSetPair();
  DataSetPair(const DataSetPair&) = delete;
  DataSetPair& operator=(const DataSetPair&) = delete;

  Session& Online() { return online_; }
  Session& Offline() { return offline_; }
  KeptDataSet& File() { return *offline_.Kept(); }

  bool IsShared(const ZAFHartTypes::Definition& definition) const {
    return manager_->IsSingleStorageObject(definition);
  }
  // Gives the device's value to the offline data set, where it is not to be written any more.
  void TakeOver(const ZAFHartTypes::Variable& online);

 private:
  // Without one, the offline side can be changed all the same.
  bool HasDevice() const;

  Session& online_;
  Options options_;
  Session offline_;
  std::shared_ptr<ZAFHartLib::CDDSiStorManager> manager_;
};

}  // namespace hartframe
