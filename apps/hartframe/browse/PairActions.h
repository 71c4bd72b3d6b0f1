#pragma once

#include "hartframe/browse/DataSetActions.h"
#include "hartframe/dataset/PairTransfers.h"

namespace hartframe::browse {

// The same between both sides of a pair: an upload goes from the device to the offline data set, a
// download the other way. The offline data set is kept in its file when the user says so.
class PairActions : public DataSetActions {
 public:
  PairActions(DataSetPair& pair, Screen& screen)
      : DataSetActions(pair.Offline(), screen), pair_(pair) {}

  void Upload() override;
  // Loads the device, lists what is to be written and what cannot be, and asks.
  void Download() override;
  bool Write() override;
  void RefreshOnline() override;
  std::size_t Pending() override { return DataSetActions::Pending() + PendingOnline(); }

 protected:
  bool ReadFor(const std::vector<Change>&) override { return true; }
  bool WriteAll() override;
  bool IsUnsaved() override { return pair_.File().HasChanged(); }

 private:
  std::size_t PendingOnline() { return PendingVariables(pair_.Online()).size(); }
  // Loading or refreshing gives up what waits on the device's side: only when the user says so.
  bool MayLoseOnline(const char* title);
  std::string TextOf(const DownloadPlan& plan);
  void AddLine(const ComparedRow& row, const std::string& reason, std::string& text);
  std::string ReasonOf(const ComparedRow& row);

  DataSetPair& pair_;
};

}  // namespace hartframe::browse
