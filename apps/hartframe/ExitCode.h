#pragma once

#include <string>
#include <string_view>

#include "platform/Failure.h"

namespace hartframe {

// What a script learns from a run. The numbers are documented and stay.
enum class ExitCode {
  Ok = 0,
  Usage = 1,           // wrong arguments, or a name that the DTM does not have
  Communication = 2,   // no reply, or a disturbed one
  DeviceRefused = 3,   // the device answered with a response code that is an error
  ValueRefused = 4,    // a value that the variable does not accept
  DtmNotLoadable = 5,  // plug-in missing, crashing or of another version
  FileBroken = 6,      // device file or file of pending changes
  NotAllowed = 7,      // by user level or validity, or pending changes would be lost
  MethodAborted = 8,   // by the user, by a status of the device, or by itself
  AnswerRefused = 9,   // an answer to a method is missing or not accepted; it was aborted
  MethodFailed = 10,   // a failure ended the method
  Different = 11,      // compare has found differences
  WrongDevice = 12,    // another device answers than the DTM, or the address given, is for
  Internal = 70,       // a failure that should not be
  Interrupted = 130,   // Ctrl-C
};

// "ok", "usage", … as the JSON output names them.
std::string_view NameOf(ExitCode code);
// One line per code, for the help text.
std::string ExitCodeHelp();
// The one that a run with both ends with.
ExitCode Worse(ExitCode a, ExitCode b);

// A failure that ends the run with its own exit code.
class CommandFailure : public platform::Failure {
 public:
  CommandFailure(ExitCode code, std::string description);
  ~CommandFailure() override;
  ExitCode Code() const { return code_; }

 private:
  ExitCode code_;
};

}  // namespace hartframe
