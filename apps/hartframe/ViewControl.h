#pragma once

#include <functional>
#include <vector>

#include "hartframe/Console.h"
#include "hartframe/SignalWatch.h"
#include "hartframe/Speech.h"
#include "interfaces/ControlBase.h"
#include "interfaces/IGuiCtrl.h"

namespace hartframe {

// The registered control: shows the progress of upload, download and write changes, and lets the
// GUI manager refresh the live values that it watches.
class ViewControl : public ZAFHartTypes::ControlBase, public ZAFHartTypes::IGuiCont2 {
 public:
  using Updated = std::function<void(const std::vector<ZAFHartTypes::Definition>&)>;

  ViewControl(Console& console, const Speech& speech, SignalWatch& signals)
      : console_(console), speech_(speech), signals_(signals) {}

  // Watches these variables from now on, each read every `interval` at most; `updated` hears of
  // those that an exchange has brought.
  void Watch(std::vector<ZAFHartTypes::Definition> variables, platform::Milliseconds interval,
             Updated updated);

  void SetShowsProgress(bool shows) { showsProgress_ = shows; }

  void ShowObject(const std::shared_ptr<ZAFHartTypes::DDObject>& object) override;
  void LifeSignal(ZAFHartTypes::LifeSignalCode code,
                  const ZAFHartTypes::SignalObject& object) override;

  std::uint64_t ThreadID() const override;
  std::uintptr_t hAppInstance() const override;
  void CollectRefreshData(ZAFHartTypes::DefinitionList& dynData) override;
  void CollectObservedData(ZAFHartTypes::DefinitionList&) override {}

 private:
  void ShowProgress(const ZAFHartTypes::Variable& progress);
  bool Watches(const ZAFHartTypes::Definition& definition) const;
  void OnExchangeFinished(const ZAFHartTypes::CommandRef& reference);

  Console& console_;
  const Speech& speech_;
  SignalWatch& signals_;
  bool showsProgress_ = true;
  std::vector<ZAFHartTypes::Definition> watched_;
  platform::Milliseconds interval_{};
  platform::Milliseconds nextRound_{};
  Updated updated_;
};

}  // namespace hartframe
