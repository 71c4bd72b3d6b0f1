#include "dtmkit/Plugin.h"

#include <exception>
#include <string>

namespace ZAFHartTypes::dtmkit {
namespace {

// Kept outside the catching function, so that running out of memory here has an answer too.
const char* Keep(const char* text) noexcept {
  try {
    thread_local std::string kept;
    kept = text;
    return kept.c_str();
  } catch (...) {
    return "out of memory";
  }
}

}  // namespace

const char* ErrorOf(void (*action)(void* argument), void* argument) noexcept {
  try {
    action(argument);
    return nullptr;
  } catch (const std::exception& error) {
    return Keep(error.what());
  } catch (...) {
    return "its code threw what is no exception of the standard library";
  }
}

}  // namespace ZAFHartTypes::dtmkit
