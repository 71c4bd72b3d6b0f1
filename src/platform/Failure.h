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
  InvalidProcedureCall = 5,  // not possible in this state, or no such key
  Overflow = 6,              // a number that its type does not hold
  SubscriptOutOfRange = 9,   // no such position, transaction or element
  TypeMismatch = 13,         // a value does not convert; an object does not offer an interface
  FileNotFound = 53,
  DeviceIo = 57,             // a serial port, socket or the like failed; with the system's reason
  PathFileAccess = 75,       // a file cannot be read or written
  ObjectNotSet = 91,         // something is missing: an item, or the DTM instance, torn down
  CannotCreateObject = 429,  // a class name or plug-in gives no object
  MemberNotFound = 438,      // by ILateBound::Invoke
  DuplicateKey = 457,
  NotImplemented = 0x80004001,
  InvalidArgument = 0x80070057,
  NotConnected = 0x8007048F,  // a change could not be sent to the device
  Cancelled = 0x800704C7,     // the user's break
  Unexpected = 0x8000FFFF,    // whatever has no other number, another exception among it
};

// The usual text of a number ("Type mismatch", …); "Automation error" for one without a text.
ZAF_API std::string_view StandardText(ErrorNumber number);

// The only exception that the library throws on purpose.
class ZAF_API Failure : public std::exception {
 public:
  // `source` names the operation that fails. `description` is for users and logs; an empty one
  // becomes StandardText(number).
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
