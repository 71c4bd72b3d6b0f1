#pragma once

#include <string>
#include <vector>

#include "components/CDDComponents.h"
#include "ddobjects/DefinitionList.h"

namespace hartframe {

class WatchedBuiltins;

// Learns from their builtins how methods end. While it lives, the instance makes its builtin
// libraries from a class that tells it.
class MethodWatch {
 public:
  explicit MethodWatch(ZAFHartLib::CDDComponents& components);
  ~MethodWatch();
  MethodWatch(const MethodWatch&) = delete;
  MethodWatch& operator=(const MethodWatch&) = delete;

  // The method that was started first has been aborted, or is just being.
  bool IsAborted() const;
  bool HasStarted() const { return isStarted_; }
  // By its own Abort or ProcessAbort, as opposed to the status of a command.
  bool AbortedItself() const { return abortedItself_; }
  // Result of its last communication; see IDDBuiltinLib::BiRc.
  std::int32_t LastResult() const { return lastResult_; }
  // A method that runs, or one that it was called from, is being aborted: what is shown now belongs
  // to the abort.
  bool IsClosing() const;
  // Aborts every method that runs; those that clean up after an abort go on.
  void AbortAll();
  // Variables that methods assigned and saved, in that order.
  const ZAFHartTypes::DefinitionList& Kept() const { return kept_; }
  // Multilingual options of the selection that is being asked for; "" at other times.
  const std::string& Options() const { return options_; }

 private:
  friend class WatchedBuiltins;
  void OnStart(WatchedBuiltins& method);
  void OnEnd(WatchedBuiltins& method);
  void OnAbort(const WatchedBuiltins& method);
  void OnSave(const ZAFHartTypes::DefinitionList& assigned);

  ZAFHartLib::CDDComponents& components_;
  const std::string libraryClass_;          // of the instance, to be put back
  std::vector<WatchedBuiltins*> running_;   // innermost last
  const WatchedBuiltins* first_ = nullptr;  // while it runs
  bool isStarted_ = false;
  bool isAborted_ = false;  // of the first one, once it has ended
  bool abortedItself_ = false;
  std::int32_t lastResult_ = 0;
  ZAFHartTypes::DefinitionList kept_;
  std::string options_;
};

}  // namespace hartframe
