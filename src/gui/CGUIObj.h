#pragma once

#include <memory>
#include <unordered_map>

#include "ddobjects/DefinitionList.h"
#include "interfaces/IDDDTMGUI.h"
#include "interfaces/IGuiCtrl.h"
#include "platform/Clock.h"

namespace ZAFHartLib {

// The GUI manager's record of one registered control. Callers hold the control through a call.
class CGUIObj {
 public:
  const std::shared_ptr<ZAFHartTypes::IDDDTMGUI>& GuiControl() const { return control_; }
  // Starts anew with that control.
  void SetGuiControl(std::shared_ptr<ZAFHartTypes::IDDDTMGUI> control);
  // Drops everything; GuiControl is nothing afterwards.
  void DisConnect();

  // Whether the control has to be told about the object: a variable or method that it has not been
  // told about in this state. Remembers the state. Constant time.
  bool IsNewObject(const std::shared_ptr<ZAFHartTypes::DDObject>& object);

  // Asks a control with IGuiCont2 what it wants refreshed, and appends that and what it wants
  // observed to `dynData`.
  void CollectRefreshData(ZAFHartTypes::DefinitionList& dynData);
  // Asks a control with IGuiCont2 what it wants observed.
  void CollectObservedData();
  // Life signal 2, once per list that holds the variable being read.
  void AsyncReadVariableProgress(const ZAFHartTypes::Definition& definition);
  // Controls with IGuiCont2 get signals other than ExchangeFinished once per 100 ms at most.
  void LifeSignal(ZAFHartTypes::LifeSignalCode code, const ZAFHartTypes::SignalObject& object);

 private:
  using Collect = void (ZAFHartTypes::IGuiCont2::*)(ZAFHartTypes::DefinitionList&);
  ZAFHartTypes::DefinitionList CollectFromControl(Collect collect) const;

  std::shared_ptr<ZAFHartTypes::IDDDTMGUI> control_;
  ZAFHartTypes::IGuiCont2* container_ = nullptr;  // the control's, when it offers it
  // What the control has been told last of each variable and method.
  std::unordered_map<ZAFHartTypes::TextKey, std::shared_ptr<ZAFHartTypes::DDObject>,
                     ZAFHartTypes::TextKeyHash>
      objects_;
  ZAFHartTypes::DefinitionList refreshList_;
  ZAFHartTypes::DefinitionList observedList_;
  // The control runs in this application instance and thread.
  bool sameProcess_ = false;
  platform::TickCount lastLifeSignal_ = 0;
};

}  // namespace ZAFHartLib
