#pragma once

#include <functional>
#include <vector>

#include "hartframe/Changes.h"
#include "hartframe/browse/Screen.h"

namespace hartframe::browse {

// Upload, download and write changes from the screen: asks what has to be asked, runs what the
// commands of that name run, and shows what they tell.
class DataSetActions {
 public:
  DataSetActions(Session& session, Screen& screen) : session_(session), screen_(screen) {}

  // Changes of earlier runs become changes of this one.
  void TakeOver(const std::vector<Change>& pending);
  void Upload();
  void Download();
  // True when everything is written.
  bool Write();

  // How many changes are still to be written.
  std::size_t Pending() { return PendingVariables(session_).size() + notAccepted_.size(); }
  // Changes of earlier runs that the DTM does not accept now.
  const std::vector<Change>& NotAccepted() const { return notAccepted_; }

 private:
  // Shows what the operation tells, under the title.
  bool RunAndShow(const char* title, const std::function<void()>& operation);
  bool Confirm(const char* title, const std::string& question, const char* yes);

  Session& session_;
  Screen& screen_;
  std::vector<Change> notAccepted_;
};

}  // namespace hartframe::browse
