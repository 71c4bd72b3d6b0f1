#pragma once

#include <memory>
#include <vector>

namespace ZAFHartLib {

class CDDDTMGUI;

// The GUI managers that live on one user-interface thread: all DTM instances that run on it.
class ThreadGuis : public std::enable_shared_from_this<ThreadGuis> {
 public:
  static std::shared_ptr<ThreadGuis> OfThisThread();

  // A manager is listed once; it removes itself before it dies.
  void Add(CDDDTMGUI& gui);
  void Remove(CDDDTMGUI& gui);

  // Calls `action` with every other manager that is still alive when its turn comes. Not while such
  // a call is under way on the thread: what reaches a manager from another one goes no further.
  template <typename Action>
  void ForOthers(const CDDDTMGUI& self, Action&& action) {
    if (passingOn_) return;
    const PassingOn scope(passingOn_);
    for (const std::weak_ptr<CDDDTMGUI>& other : Others(self)) {
      if (const auto gui = other.lock()) action(gui);
    }
  }

 private:
  struct PassingOn {
    explicit PassingOn(bool& passing) : flag(passing) { flag = true; }
    ~PassingOn() { flag = false; }
    PassingOn(const PassingOn&) = delete;
    PassingOn& operator=(const PassingOn&) = delete;
    bool& flag;
  };
  std::vector<std::weak_ptr<CDDDTMGUI>> Others(const CDDDTMGUI& self) const;

  std::vector<CDDDTMGUI*> guis_;
  bool passingOn_ = false;
};

}  // namespace ZAFHartLib
