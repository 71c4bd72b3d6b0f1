#pragma once

#include <memory>
#include <vector>

#include "ddobjects/Command.h"
#include "ddobjects/DefinitionList.h"
#include "gui/Asynchronizer.h"

namespace ZAFHartTypes {
class IDDComponents;
class IDDWorkerDB;
}  // namespace ZAFHartTypes

namespace ZAFHartLib {

class CDDDTMGUI;
class ControlList;

// The background refresh of one GUI manager: collects the variables that the controls want
// refreshed, at most once per second, and reads them one at a time, stalest first, each when the
// one before is finished.
class DynamicRefresh {
 public:
  // Parts of one GUI manager; both outlive this object.
  DynamicRefresh(CDDDTMGUI& gui, const ControlList& controls);

  void Start();
  void Stop() { asynchronizer_.Stop(); }
  bool IsRunning() const { return asynchronizer_.IsRunning(); }
  // Stops, and forgets what was to be read and what is being read.
  void Reset();
  // An asynchronous exchange has been completed: when it is the running read, the next one begins.
  void OnExchangeFinished(const std::shared_ptr<ZAFHartTypes::CommandRef>& reference);

 private:
  void OnTimer();
  void OnSignal(std::int32_t id);
  void CollectRefreshData();
  // Drops what needs no read and answers the variable last read longest ago; empty when there is
  // none.
  ZAFHartTypes::Definition ChooseStalest(ZAFHartTypes::IDDWorkerDB& database);
  void Read(ZAFHartTypes::IDDComponents& components, const ZAFHartTypes::Definition& definition);
  // Starts the asynchronous read; nothing when none was started.
  static std::shared_ptr<ZAFHartTypes::CommandRef> StartRead(
      ZAFHartTypes::IDDComponents& components, const ZAFHartTypes::Definition& definition);
  void ReadAtOnce(ZAFHartTypes::IDDComponents& components,
                  const ZAFHartTypes::Definition& definition);
  void DropFromList(const ZAFHartTypes::Definition& definition);
  void ReadNext();
  // Runs `step`, keeping the GUI manager alive, and traces its failure under `name`.
  template <typename Step>
  void Trapped(const char* name, Step&& step);

  CDDDTMGUI& gui_;
  const ControlList& controls_;
  Asynchronizer asynchronizer_;
  ZAFHartTypes::DefinitionList refreshList_;
  // The variable being read, and the exchange that reads it once that has been started.
  ZAFHartTypes::Definition runningDefinition_;
  std::shared_ptr<ZAFHartTypes::CommandRef> runningRead_;
  // Exchanges that were finished before the call that starts the read returned.
  std::vector<std::shared_ptr<ZAFHartTypes::CommandRef>> finishedEarly_;
  platform::TickCount lastCollection_ = 0;
};

}  // namespace ZAFHartLib
