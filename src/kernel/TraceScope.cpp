#include "kernel/TraceScope.h"

#include <algorithm>
#include <limits>

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

std::int16_t ToInfoLevel(std::int32_t level) {
  using Limits = std::numeric_limits<std::int16_t>;
  return static_cast<std::int16_t>(std::clamp<std::int32_t>(level, Limits::min(), Limits::max()));
}

// Text of an input's value.
struct Describer {
  std::int16_t infoLevel;

  std::string operator()(std::monostate) const { return {}; }
  std::string operator()(const Definition& definition) const {
    return definition ? definition.Describe(infoLevel) : std::string("Nothing");
  }
  std::string operator()(const Variant& value) const { return value.Describe(); }
  template <typename Object>
  std::string operator()(const Object& object) const {
    return object ? object->Describe(infoLevel) : std::string("Nothing");
  }
};

}  // namespace

TraceScope::TraceScope(IDDDTMGUI& gui, const char* operation, std::initializer_list<Input> inputs)
    : operation_(operation), inputCount_(inputs.size()), tracer_(gui.TraceObject()) {
  std::copy(inputs.begin(), inputs.end(), inputs_.begin());
  if (!tracer_) return;
  tracer_->OpenStack(*this);
  open_ = true;
}

TraceScope::~TraceScope() {
  if (open_) tracer_->FixStack();
}

std::vector<std::string> TraceScope::TraceLines(std::int32_t infoLevel) const {
  std::vector<std::string> lines{std::string("[ ") + operation_};
  for (std::size_t i = 0; i < inputCount_; ++i) {
    lines.push_back(std::string(inputs_[i].tag) +
                    std::visit(Describer{ToInfoLevel(infoLevel)}, inputs_[i].value));
  }
  return lines;
}

void TraceScope::Release(int exit, const char* exitName) {
  if (!open_) return;
  open_ = false;
  std::string text;
  if (tracer_->WantsStack()) {
    text.append("] ").append(exitName).append(": Exit(").append(std::to_string(exit)).append(")");
  }
  tracer_->ReleaseStack(text);
}

std::int16_t TraceScope::InfoLevel() const {
  return tracer_ ? ToInfoLevel(tracer_->TraceInfoLevel()) : std::int16_t{0};
}

}  // namespace ZAFHartLib
