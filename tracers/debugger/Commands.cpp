#include "debugger/Commands.h"

#include <charconv>
#include <sstream>

#include "debugger/Debugger.h"
#include "debugger/Inspection.h"
#include "types/Failure.h"

namespace ZAFHartDebugger {

namespace {

using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::Failure;

[[noreturn]] void Refuse(const std::string& text) {
  throw Failure(ErrorNumber::InvalidArgument, "Debugger", text);
}

struct Call {
  Debugger& debugger;
  const StopPlace& place;
  std::string argument;
};

const std::string& Required(const Call& call, const char* what) {
  if (call.argument.empty()) Refuse(std::string("Say ") + what + ".");
  return call.argument;
}

int Number(const Call& call, int least, int most) {
  int number = 0;
  const char* const end = call.argument.data() + call.argument.size();
  const auto [rest, error] = std::from_chars(call.argument.data(), end, number);
  if (error != std::errc() || rest != end || number < least || number > most) {
    Refuse("\"" + call.argument + "\" is no number from " + std::to_string(least) + " to " +
           std::to_string(most) + ".");
  }
  return number;
}

// A step is taken from where the execution stands; out of an operation that has ended it leads out
// of its caller.
template <Step step>
Outcome Go(const Call& call) {
  OperationStack& operations = *call.place.operations;
  const Operation* const innermost = operations.Innermost();
  const std::int32_t running = innermost ? innermost->level : 0;
  call.debugger.Go(step, step == Step::Out ? running : call.place.level);
  return Outcome::GoesOn;
}

Outcome Quit(const Call& call) {
  call.debugger.Quit(call.place);
  return Outcome::GoesOn;
}

Outcome Where(const Call& call) {
  ShowOperations(call.debugger.View(), *call.place.operations, call.place.now);
  return Outcome::AsksAgain;
}

Outcome Print(const Call& call) {
  const std::string& pattern = Required(call, "which objects: a name, or a pattern with * and ?");
  if (!call.place.database) Refuse("There is no database yet.");
  ShowObjects(call.debugger.View(), *call.place.database, pattern);
  return Outcome::AsksAgain;
}

Outcome Break(const Call& call) {
  call.debugger.Break(call.argument);
  return Outcome::AsksAgain;
}

Outcome Watch(const Call& call) {
  const std::string& name = Required(call, "which object");
  if (call.place.database) RequireObject(*call.place.database, name);
  call.debugger.Watch(name);
  return Outcome::AsksAgain;
}

// A break by its number, a watch by its name.
Outcome Delete(const Call& call) {
  const std::string& what = Required(call, "which break by its number, or which watched object");
  if (call.debugger.Unwatch(what)) return Outcome::AsksAgain;
  const auto count = static_cast<int>(call.debugger.Breaks().All().size());
  if (count == 0) Refuse("There is no break, and \"" + what + "\" is not watched.");
  call.debugger.RemoveBreak(static_cast<std::size_t>(Number(call, 1, count)));
  return Outcome::AsksAgain;
}

Outcome List(const Call& call) {
  ShowStops(call.debugger.View(), call.debugger.Breaks(), call.debugger.Watched());
  return Outcome::AsksAgain;
}

constexpr int kMostLevels = 9;
constexpr int kMostOperations = 1000;

Outcome Level(const Call& call) {
  call.debugger.Edit().level = Number(call, 0, kMostLevels);
  return Outcome::AsksAgain;
}

Outcome Depth(const Call& call) {
  call.debugger.Edit().depth = Number(call, 0, kMostOperations);
  return Outcome::AsksAgain;
}

Outcome Detail(const Call& call) {
  call.debugger.Edit().detail = Number(call, 0, kMostLevels);
  return Outcome::AsksAgain;
}

Outcome Filter(const Call& call) {
  call.debugger.Edit().filter = call.argument;
  return Outcome::AsksAgain;
}

Outcome Top(const Call& call) {
  call.debugger.Edit().top = static_cast<std::size_t>(Number(call, 0, kMostOperations));
  return Outcome::AsksAgain;
}

Outcome Help(const Call& call);

struct Entry {
  std::string_view name;
  std::string_view abbreviation;
  std::string_view argument;
  std::string_view help;
  bool needsStop;
  Outcome (*run)(const Call&);
};

constexpr Entry kEntries[] = {
    {"step", "s", "", "go on to the next operation, also one inside", true, &Go<Step::Into>},
    {"next", "n", "", "go on to what comes beside this operation", true, &Go<Step::Over>},
    {"out", "o", "", "go on until this operation ends", true, &Go<Step::Out>},
    {"continue", "c", "", "go on to the next break", true, &Go<Step::None>},
    {"quit", "q", "", "cancel what runs and stop no more", true, &Quit},
    {"where", "w", "", "the running operations", true, &Where},
    {"print", "p", "NAME", "objects of the database; * and ? stand for other characters", true,
     &Print},
    {"break", "b", "PLACE",
     "stop at OPERATION, OPERATION:OBJECT, :OBJECT, error, changed, changed:OBJECT", false, &Break},
    {"watch", "", "NAME", "tell when the object changes", false, &Watch},
    {"delete", "d", "N|NAME", "remove break N, or watch NAME", false, &Delete},
    {"list", "l", "", "breaks and watched objects", false, &List},
    {"level", "", "N", "highest level of lines shown", false, &Level},
    {"depth", "", "N", "nested operations shown", false, &Depth},
    {"detail", "", "N", "how much objects tell about themselves", false, &Detail},
    {"filter", "", "TEXT", "only operations whose line holds TEXT; without TEXT all", false,
     &Filter},
    {"top", "", "N", "entries of each list of the summary, 0 for no summary", false, &Top},
    {"help", "h", "", "this list", false, &Help},
};

Outcome Help(const Call& call) {
  for (const Entry& entry : kEntries) {
    std::string usage(entry.name);
    if (!entry.abbreviation.empty()) usage.append(", ").append(entry.abbreviation);
    if (!entry.argument.empty()) usage.append(" ").append(entry.argument);
    constexpr std::size_t kUsageWidth = 18;
    usage.resize(std::max(usage.size(), kUsageWidth), ' ');
    call.debugger.View().Line(Colour::Plain, "  " + usage + std::string(entry.help));
  }
  return Outcome::AsksAgain;
}

const Entry& Find(std::string_view word) {
  for (const Entry& entry : kEntries) {
    if (entry.name == word || (!word.empty() && entry.abbreviation == word)) return entry;
  }
  Refuse("\"" + std::string(word) + "\" is no command; \"help\" lists them.");
}

}  // namespace

Outcome RunCommand(Debugger& debugger, const StopPlace& place, std::string_view line) {
  std::istringstream words{std::string(line)};
  std::string name;
  std::string argument;
  if (!(words >> name)) return Outcome::AsksAgain;
  std::getline(words >> std::ws, argument);
  argument.erase(argument.find_last_not_of(" \t\r") + 1);
  try {
    const Entry& entry = Find(name);
    if (entry.needsStop && !place.operations) Refuse("\"" + name + "\" needs a stop first.");
    return entry.run({debugger, place, argument});
  } catch (const Failure& failure) {
    debugger.View().Line(Colour::Error, failure.Description());
    return Outcome::AsksAgain;
  }
}

}  // namespace ZAFHartDebugger
