#pragma once

#include "ddobjects/Menu.h"
#include "hartframe/browse/Page.h"
#include "hartframe/dataset/DataSetPair.h"

namespace hartframe::browse {

// All that a pair has on both sides: the variables of the upload, and the shared ones.
class ComparePage : public Page {
 public:
  // `session`: the side whose values can be edited on the page.
  ComparePage(Session& session, DataSetPair& pair);

  // Asks the device for what it has not told yet. Ends early when it does not answer.
  void ReadDevice();
  // All as they are now.
  std::vector<ComparedRow> Rows();
  void SetDifferencesOnly(bool only) { differencesOnly_ = only; }
  bool DifferencesOnly() const { return differencesOnly_; }

  std::string Label() override;
  std::vector<PageItem> Items() override;
  void Enter(std::shared_ptr<ZAFHartTypes::Variable>& field) override;
  void Leave(std::shared_ptr<ZAFHartTypes::Variable>& field) override;

 private:
  DataSetPair& pair_;
  // Of no data model: what the kernel is told that the fields belong to.
  const std::shared_ptr<ZAFHartTypes::Menu> menu_;
  bool differencesOnly_ = false;
};

}  // namespace hartframe::browse
