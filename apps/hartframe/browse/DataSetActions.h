#pragma once

#include <functional>
#include <vector>

#include "hartframe/browse/Screen.h"
#include "hartframe/changes/Changes.h"

namespace hartframe::browse {

// Upload, download and write changes from the screen: asks what has to be asked, runs what the
// commands of that name run, and shows what they tell.
class DataSetActions {
 public:
  // `session`: the data set that the changes of earlier runs and the file on disk belong to.
  DataSetActions(Session& session, Screen& screen) : session_(session), screen_(screen) {}
  virtual ~DataSetActions() = default;
  DataSetActions(const DataSetActions&) = delete;
  DataSetActions& operator=(const DataSetActions&) = delete;

  // Changes of earlier runs become changes of this one.
  void TakeOver(const std::vector<Change>& pending);
  virtual void Upload();
  virtual void Download();
  // Writes what was changed on the device's side. True when nothing is left to be written.
  virtual bool Write();
  // Has the online data set read anew.
  virtual void RefreshOnline();
  // Keeps the data set in its file now. False tells why not.
  bool Save();
  // Asks what is to become of changes that are not written or saved. True when the user leaves.
  bool Leave(const std::function<bool()>& mayWrite);

  // How many changes are still to be written.
  virtual std::size_t Pending() { return PendingVariables(session_).size() + notAccepted_.size(); }
  // Changes of earlier runs that the DTM does not accept now.
  const std::vector<Change>& NotAccepted() const { return notAccepted_; }
  // Nothing is to be kept: the user has said so.
  bool IsAbandoned() const { return isAbandoned_; }

 protected:
  // Before changes are made: what they depend on.
  virtual bool ReadFor(const std::vector<Change>& changes);
  // Writes everything there is to write; true when nothing is left.
  virtual bool WriteAll() { return Write(); }
  // The file does not have what the data set has, and will not have it unless the user says so.
  virtual bool IsUnsaved() { return false; }

  // Runs an operation and takes down what it tells. True when it has ended by itself.
  bool Record(const std::function<void()>& operation, std::string& transcript);
  // Shows what was told, under the title.
  void ShowTranscript(const char* title, std::string transcript);
  bool RunAndShow(const char* title, const std::function<void()>& operation);
  bool Confirm(const char* title, const std::string& question, const char* yes);

  Session& session_;
  Screen& screen_;
  std::vector<Change> notAccepted_;

 private:
  enum class Way { Stay, Write, Keep, Lose };
  Way AskWay(std::size_t pending, bool isUnsaved);
  bool KeepAndLeave();
  bool Abandon();
  std::string FileName() const;  // that changes are kept in; "" without one

  bool isAbandoned_ = false;
};

}  // namespace hartframe::browse
