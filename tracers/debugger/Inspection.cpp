#include "debugger/Inspection.h"

#include "ddobjects/Variable.h"
#include "debugger/Watcher.h"
#include "types/Failure.h"
#include "types/NamePattern.h"

namespace ZAFHartDebugger {

namespace {

using ZAFHartTypes::AccessMode;
using ZAFHartTypes::DDObject;
using ZAFHartTypes::IDDWorkerDB;
using ZAFHartTypes::Variable;

constexpr std::int16_t kFullDetail = 2;

const char* HandlingText(const Variable& variable) {
  const bool readable = variable.CheckHandling(AccessMode::Read);
  const bool writable = variable.CheckHandling(AccessMode::Write);
  if (readable) return writable ? "READ & WRITE" : "READ";
  return writable ? "WRITE" : "-";
}

// What Describe leaves out.
void ShowVariable(TraceView& view, const Variable& variable) {
  const auto line = [&](const char* name, const std::string& text) {
    if (!text.empty()) view.Line(Colour::Plain, std::string("  ") + name + text);
  };
  line("Label=", variable.Label());
  line("Help=", variable.Help());
  line("Default=", variable.DefaultValue().Describe());
  line("Handling=", HandlingText(variable));
  line("Unit=", variable.FixedUnitText());
  const bool wasRead = variable.LastReadTime() != Variable::Time();
  line("Read by a reply=", wasRead ? "yes" : "never");
}

void ShowObject(TraceView& view, const DDObject& object) {
  std::string line = object.Describe(kFullDetail);
  line += object.AttributesAvailable() ? " attributes current" : " attributes to be computed";
  view.Line(Colour::Operation, line);
  if (const auto* const variable = dynamic_cast<const Variable*>(&object))
    ShowVariable(view, *variable);
}

[[noreturn]] void RefuseName(const std::string& name) {
  throw ZAFHartTypes::Failure(
      ZAFHartTypes::ErrorNumber::InvalidArgument, "Debugger",
      "The database has no object \"" + name + "\"; \"print *" + name + "*\" looks for others.");
}

}  // namespace

void ShowOperations(TraceView& view, OperationStack& operations, Time now) {
  for (const Operation& operation : operations) {
    view.Line(Colour::Plain, std::to_string(operation.level) + "  " +
                                 DurationText(now - operation.start) + "  " + operation.Title());
  }
}

void ShowObjects(TraceView& view, const IDDWorkerDB& database, const std::string& pattern) {
  if (!ZAFHartTypes::IsPattern(pattern)) {
    RequireObject(database, pattern);
    return ShowObject(view, *Look(database, pattern));
  }
  bool isFound = false;
  for (const auto& object : database.NewEnum()) {
    if (!ZAFHartTypes::MatchesPattern(object->ObjectDefinition().Name(), pattern)) continue;
    isFound = true;
    view.Line(Colour::Plain, object->Describe(1));
  }
  if (!isFound) RefuseName(pattern);
}

void RequireObject(const IDDWorkerDB& database, const std::string& name) {
  if (!Look(database, name)) RefuseName(name);
}

void ShowStops(TraceView& view, const Breakpoints& breakpoints,
               const std::vector<std::string>& watched) {
  std::size_t position = 0;
  for (const Breakpoint& breakpoint : breakpoints.All()) {
    view.Line(Colour::Plain, std::to_string(++position) + "  break " + breakpoint.text + "  (" +
                                 std::to_string(breakpoint.hits) + ")");
  }
  for (const std::string& name : watched) view.Line(Colour::Plain, "   watch " + name);
}

}  // namespace ZAFHartDebugger
