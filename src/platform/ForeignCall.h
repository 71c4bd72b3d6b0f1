#pragma once

#include <exception>
#include <string_view>
#include <utility>

#include "platform/Failure.h"

namespace platform {

// Calls code that is not the library's own (a plug-in's class, a control, an error handler). A
// Failure passes; any other std::exception becomes a Failure of `number` from `source` with its
// text.
template <typename Call>
decltype(auto) CallForeign(std::string_view source, Call&& call,
                           ErrorNumber number = ErrorNumber::Unexpected) {
  try {
    return std::forward<Call>(call)();
  } catch (const Failure&) {
    throw;
  } catch (const std::exception& error) {
    throw Failure(number, std::string(source), error.what());
  }
}

}  // namespace platform
