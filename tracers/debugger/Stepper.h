#pragma once

#include <cstdint>

namespace ZAFHartDebugger {

enum class Step {
  None,  // runs on to the next break
  Into,  // stops at the next operation, also one inside
  Over,  // stops at the next operation beside, or where the caller ends
  Out,   // stops where the operation ends
};

// Where an execution stops after a step. A level is that of the operation that the step was
// commanded in, 0 outside of all.
class Stepper {
 public:
  void Go(Step step, std::int32_t level) {
    step_ = step;
    level_ = level;
  }
  bool StopsAtStart(std::int32_t level) const {
    if (step_ == Step::Into) return true;
    return step_ != Step::None && level <= (level_ > 0 ? level_ : 1);
  }
  bool StopsAtEnd(std::int32_t level) const {
    if (step_ == Step::Out) return level <= level_;
    return step_ != Step::None && level < level_;
  }
  bool IsStepping() const { return step_ != Step::None; }

 private:
  Step step_ = Step::None;
  std::int32_t level_ = 0;
};

}  // namespace ZAFHartDebugger
