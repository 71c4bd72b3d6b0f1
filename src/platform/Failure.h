#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Export.h"

namespace platform {

// Numbers of the run-time failures that the library raises. The small ones are those of the OLE
// Automation run time, the large ones are HRESULT values.
enum class ErrorNumber : std::uint32_t {
  InvalidProcedureCall = 5,
  Overflow = 6,
  SubscriptOutOfRange = 9,
  TypeMismatch = 13,
  FileNotFound = 53,
  DeviceIo = 57,
  PathFileAccess = 75,
  ObjectNotSet = 91,
  CannotCreateObject = 429,
  MemberNotFound = 438,
  DuplicateKey = 457,
  NotImplemented = 0x80004001,
  InvalidArgument = 0x80070057,
  NotConnected = 0x8007048F,
  Cancelled = 0x800704C7,
  Unexpected = 0x8000FFFF,
};

// The usual text of a number ("Type mismatch", …); "Automation error" for one without a text.
ZAF_API std::string_view StandardText(ErrorNumber number);

// The only exception that the library throws on purpose.
class ZAF_API Failure : public std::exception {
 public:
  // An empty description becomes StandardText(number).
  Failure(ErrorNumber number, std::string source, std::string description = {});
  ~Failure() override;

  ErrorNumber Number() const { return number_; }
  const std::string& Source() const { return source_; }
  const std::string& Description() const { return description_; }
  const char* what() const noexcept override { return description_.c_str(); }

 private:
  ErrorNumber number_;
  std::string source_;
  std::string description_;
};

// The number in decimal as error reports show it: HRESULTs as negative 32-bit integers.
ZAF_API std::string NumberText(ErrorNumber number);

// Runs `action` and swallows a Failure, and nothing else. True when it did not fail.
template <typename Action>
bool IgnoreFailures(Action&& action) {
  try {
    std::forward<Action>(action)();
    return true;
  } catch (const Failure&) {
    return false;
  }
}

}  // namespace platform
