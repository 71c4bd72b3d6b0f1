#include "hartframe/dataset/DataSetPair.h"

namespace hartframe {

DataSetPair::DataSetPair(Session& online)
    : online_(online), options_(online.Settings()), offline_(online, options_) {
  offline_.Open();
  manager_ = ZAFHartLib::CDDSiStorManager::Pair(offline_.Components().shared_from_this(),
                                                online_.Components().shared_from_this());
  // Now that they are a pair, what is shared reaches both.
  offline_.SetKept(std::make_shared<KeptDataSet>(offline_, options_.dataSetFile));
  File().Restore();
  if (HasDevice()) File().RequireSameDevice(online_);
}

DataSetPair::~DataSetPair() {
  if (manager_) manager_->Part();
}

bool DataSetPair::HasDevice() const {
  const bool isOfflineOnly =
      options_.command == CommandKind::Pair && !options_.uploadPair && !options_.downloadPair;
  return !isOfflineOnly || options_.link != LinkKind::Echo;
}

void DataSetPair::TakeOver(const ZAFHartTypes::Variable& online) {
  manager_->UploadVariableValue(online.Definition(), online.Value());
  offline_.Database().SetVariableToBeWritten(online.Definition(), false);
}

}  // namespace hartframe
