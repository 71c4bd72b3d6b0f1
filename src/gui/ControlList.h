#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <type_traits>
#include <vector>

#include "gui/CGUIObj.h"
#include "platform/ForeignCall.h"

namespace ZAFHartLib {

// The registered controls in the order of registration, and the one way to call them. Holds the
// controls until they are removed.
class ControlList {
 public:
  // Told about each failure that was trapped.
  using FailureTrace = std::function<void(std::string_view operation, const platform::Failure&)>;
  explicit ControlList(FailureTrace trace) : trace_(std::move(trace)) {}

  void Add(std::shared_ptr<ZAFHartTypes::IDDDTMGUI> control);
  void Remove(const std::shared_ptr<ZAFHartTypes::IDDDTMGUI>& control);
  // Whether failures of controls are traced instead of reaching the caller; false at first.
  bool TrapFailures() const { return trapFailures_; }
  void SetTrapFailures(bool trap) { trapFailures_ = trap; }

  // Calls one control.
  template <typename Action>
  void Call(std::string_view operation, Action&& action) const {
    try {
      platform::CallForeign(operation, std::forward<Action>(action));
    } catch (const platform::Failure& failure) {
      if (!trapFailures_) throw;
      trace_(operation, failure);
    }
  }

  // Calls `action` with the record and the control of each one registered now; those removed
  // meanwhile are left out. An action that answers true ends the walk.
  template <typename Action>
  void ForEach(std::string_view operation, Action&& action) const {
    const auto entries = entries_;
    for (const auto& entry : *entries) {
      const std::shared_ptr<ZAFHartTypes::IDDDTMGUI> control = entry->GuiControl();
      if (!control) continue;
      bool ends = false;
      Call(operation, [&] {
        if constexpr (std::is_same_v<decltype(action(*entry, *control)), bool>) {
          ends = action(*entry, *control);
        } else {
          action(*entry, *control);
        }
      });
      if (ends) return;
    }
  }

  // The same for those that offer `Interface`.
  template <typename Interface, typename Action>
  void ForEachOffering(std::string_view operation, Action&& action) const {
    ForEach(operation, [&](CGUIObj&, ZAFHartTypes::IDDDTMGUI& control) {
      auto* offered = dynamic_cast<Interface*>(&control);
      if constexpr (std::is_same_v<decltype(action(*offered)), bool>) {
        return offered && action(*offered);
      } else {
        if (offered) action(*offered);
      }
    });
  }

 private:
  using Entries = std::vector<std::shared_ptr<CGUIObj>>;

  FailureTrace trace_;
  // Replaced at each change, so that a walk under way keeps its own.
  std::shared_ptr<const Entries> entries_ = std::make_shared<const Entries>();
  bool trapFailures_ = false;
};

}  // namespace ZAFHartLib
