#include "hartframe/ExitCode.h"

#include <algorithm>
#include <array>
#include <string>

namespace hartframe {

namespace {

struct Entry {
  ExitCode code;
  std::string_view name;
  std::string_view meaning;
};

// From the one that says least to the one that says most.
constexpr std::array kEntries{
    Entry{ExitCode::Ok, "ok", "done"},
    Entry{ExitCode::Different, "different", "the data set and the device differ"},
    Entry{ExitCode::Usage, "usage", "wrong arguments, or a name that the DTM does not have"},
    Entry{ExitCode::ValueRefused, "valueRefused", "a value was not accepted; nothing was written"},
    Entry{
        ExitCode::NotAllowed, "notAllowed",
        "the user level forbids it, the method is not valid, pending changes would be lost, or the "
        "data set is another device type's"},
    Entry{ExitCode::MethodAborted, "methodAborted",
          "the method was aborted: by the user, the device's status, or itself"},
    Entry{ExitCode::AnswerRefused, "answerRefused",
          "an answer to the method was missing or not accepted; it was aborted"},
    Entry{ExitCode::MethodFailed, "methodFailed", "the method has failed"},
    Entry{ExitCode::DtmNotLoadable, "dtmNotLoadable", "the DTM cannot be loaded"},
    Entry{ExitCode::DeviceRefused, "deviceRefused", "the device answered with an error"},
    Entry{ExitCode::Communication, "communication", "the device did not answer, or not properly"},
    Entry{ExitCode::WrongDevice, "wrongDevice",
          "another device answers than the DTM is for; nothing was written to it"},
    Entry{ExitCode::FileBroken, "fileBroken",
          "a device file, a file of pending changes or a data set cannot be used"},
    Entry{ExitCode::Internal, "internal", "a failure that should not be"},
    Entry{ExitCode::Interrupted, "interrupted", "ended by Ctrl-C"},
};

std::size_t PositionOf(ExitCode code) {
  return static_cast<std::size_t>(
      std::find_if(kEntries.begin(), kEntries.end(),
                   [code](const Entry& entry) { return entry.code == code; }) -
      kEntries.begin());
}

}  // namespace

std::string_view NameOf(ExitCode code) {
  return kEntries.at(PositionOf(code)).name;
}

std::string ExitCodeHelp() {
  auto byNumber = kEntries;
  std::sort(byNumber.begin(), byNumber.end(),
            [](const Entry& a, const Entry& b) { return a.code < b.code; });
  std::string help = "Exit codes:\n";
  for (const Entry& entry : byNumber) {
    const std::string number = std::to_string(static_cast<int>(entry.code));
    help += std::string(5 - number.size(), ' ') + number + "  ";
    help += entry.meaning;
    help += '\n';
  }
  return help;
}

ExitCode Worse(ExitCode a, ExitCode b) {
  return PositionOf(a) < PositionOf(b) ? b : a;
}

CommandFailure::CommandFailure(ExitCode code, std::string description)
    : Failure(platform::ErrorNumber::InvalidArgument, "hartframe", std::move(description)),
      code_(code) {}

CommandFailure::~CommandFailure() = default;

}  // namespace hartframe
