#pragma once

#include <utility>

#include "platform/ForeignCall.h"

namespace ZAFHartLib {

// Calls a tracer and drops whatever it raises.
template <typename Call>
void CallQuietly(Call&& call) {
  platform::IgnoreFailures(
      [&] { platform::CallForeign("External tracer", std::forward<Call>(call)); });
}

}  // namespace ZAFHartLib
