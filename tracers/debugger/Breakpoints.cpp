#include "debugger/Breakpoints.h"

#include <algorithm>

#include "types/Failure.h"
#include "types/NamePattern.h"
#include "types/TextKey.h"

namespace ZAFHartDebugger {

using ZAFHartTypes::MatchesPattern;
using ZAFHartTypes::SameKey;

Breakpoint Breakpoint::Parse(std::string_view text) {
  const auto colon = text.find(':');
  const std::string_view first = text.substr(0, colon);
  const std::string_view second =
      colon == std::string_view::npos ? std::string_view() : text.substr(colon + 1);
  if (first.empty() && second.empty()) {
    throw ZAFHartTypes::Failure(ZAFHartTypes::ErrorNumber::InvalidArgument, "Debugger",
                                "\"" + std::string(text) +
                                    "\" is no place to break: give OPERATION, OPERATION:OBJECT, "
                                    ":OBJECT, error, changed or changed:OBJECT");
  }
  Breakpoint breakpoint{Kind::Operation, std::string(text), std::string(first),
                        std::string(second)};
  if (SameKey(text, "error")) breakpoint.kind = Kind::Error;
  if (SameKey(first, "changed")) breakpoint.kind = Kind::Change;
  return breakpoint;
}

bool Breakpoint::StopsAt(const Operation& started) const {
  if (kind != Kind::Operation) return false;
  return (operation.empty() || MatchesPattern(started.name, operation)) &&
         (object.empty() || started.HasObject(object));
}

bool Breakpoints::Remove(std::size_t position) {
  if (position < 1 || position > list_.size()) return false;
  list_.erase(list_.begin() + static_cast<std::ptrdiff_t>(position - 1));
  return true;
}

template <typename Test>
const Breakpoint* Breakpoints::Hit(Test&& test) {
  const auto found = std::ranges::find_if(list_, test);
  if (found == list_.end()) return nullptr;
  ++found->hits;
  return &*found;
}

const Breakpoint* Breakpoints::Starting(const Operation& operation) {
  return Hit([&](const Breakpoint& breakpoint) { return breakpoint.StopsAt(operation); });
}

const Breakpoint* Breakpoints::OnError() {
  return Hit(
      [](const Breakpoint& breakpoint) { return breakpoint.kind == Breakpoint::Kind::Error; });
}

const Breakpoint* Breakpoints::Changing(std::string_view object) {
  return Hit([&](const Breakpoint& breakpoint) {
    return breakpoint.kind == Breakpoint::Kind::Change &&
           (breakpoint.object.empty() || MatchesPattern(object, breakpoint.object));
  });
}

bool Breakpoints::NeedsOperations() const {
  return std::ranges::any_of(list_, [](const Breakpoint& breakpoint) {
    return breakpoint.kind == Breakpoint::Kind::Operation;
  });
}

}  // namespace ZAFHartDebugger
