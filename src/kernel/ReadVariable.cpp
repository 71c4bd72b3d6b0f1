// Bringing a variable's value from the device.

#include "kernel/DisplayText.h"
#include "kernel/KernelOperation.h"
#include "kernel/KernelTemplates.h"
#include "kernel/ReadRecursion.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

constexpr const char* kReadVariable = "IDDKernel_ReadVariable";
constexpr int kAvailableMeanwhile = 1;
constexpr int kUnreadable = 2;
constexpr int kDone = 3;

constexpr const char* kUnreadableText = "impossible to read variable from device";
constexpr std::int32_t kUnreadableIndex = -1;

// A pending change is not overwritten by a read.
bool IsWanted(const Variable& variable) {
  return !variable.Available() && !variable.ToBeWritten();
}

}  // namespace

std::shared_ptr<Variable> CHARTKernel::ReadVariable(const Definition& definition) {
  KernelOperation operation(*this, kReadVariable, {{trace_tag::kDef, definition}});
  auto variable = GetVariable(definition);
  operation.Reads(definition, CanBeRead(*variable) ? ReadSort::Value : ReadSort::Attributes);
  if (variable->InReadRecursion() || context_.cycleFlag) {
    operation.Release(kDone);
    return variable;
  }
  ReadRecursion recursion(Database(), *variable);
  if (!variable->Validity()) {
    Report(variable, ItemIndex::ReadNotValid);
    TakeSubstitute(variable);
  } else if (CanBeRead(*variable) && IsWanted(*variable) && !Comm()->Emulate()) {
    BringUnit(variable);
    const auto command = FindReadCommand(definition);
    variable = Stored<Variable>(definition, kReadVariable);
    if (variable->Available()) {
      recursion.Leave(*variable);
      Show(variable);
      return operation.Return(variable, kAvailableMeanwhile);
    }
    if (!command) {
      Report(variable, ItemIndex::CannotRead);
      recursion.Leave(*variable);
      MarkUnreadable(variable);
      return operation.Return(variable, kUnreadable);
    }
    ExecuteRead(*command);
    variable = GetVariable(definition);
  }
  recursion.Leave(*variable);
  Show(variable);
  const std::string& name = variable->Definition().Name();
  operation.Progress(1, [&] { return "Read VARIABLE " + name + " completed"; });
  operation.Progress(
      2, [&] { return "VARIABLE " + name + ":" + variable->Describe(operation.InfoLevel()); });
  return operation.Return(variable, kDone);
}

// What the device answers stands on the variable, also when it is an error; the variable stays not
// available when the exchange could not be made. Only the user's break ends the operation.
void CHARTKernel::ExecuteRead(const CommandRef& command) {
  try {
    ExecuteCommand(command.Command(), command.TransactionNumber());
  } catch (const Failure& failure) {
    if (failure.Number() == ErrorNumber::Cancelled) throw;
  }
}

bool CHARTKernel::CanBeRead(const Variable& variable) {
  return !variable.Attributes().IsLibraryHeld() && variable.CheckHandling(AccessMode::Read);
}

void CHARTKernel::TakeSubstitute(const std::shared_ptr<Variable>& variable) const {
  variable->SetValue(variable->SubstituteValue());
  variable->SetAvailable(true);
  Store(variable);
}

// Reads the unit variable first where it is not available, and takes its text as the unit.
void CHARTKernel::BringUnit(const std::shared_ptr<Variable>& variable) {
  const Definition source = variable->UnitSource();
  if (!source) return;
  std::shared_ptr<Variable> unit;
  IgnoreFailures([&] { unit = GetVariable(source); });
  if (!unit) unit = Find<Variable>(source);
  if (!unit) return;
  if (!unit->Available()) {
    unit->SetUnitSource({});
    Store(unit);
    ReadVariable(source);
    unit = Stored<Variable>(source, kReadVariable);
  }
  variable->SetUnitText(DisplayText(*unit));
  Store(variable);
}

// Available with an error, so that it is not tried again and again.
void CHARTKernel::MarkUnreadable(const std::shared_ptr<Variable>& variable) const {
  variable->SetErrorIndex(kUnreadableIndex);
  variable->SetErrorText(kUnreadableText);
  Database()->SetVariableAvailable(variable->Definition(), true);
  variable->SetAvailable(true);
  Store(variable);
  Show(variable);
}

namespace {

// Commands 0 and 1 identify a device; any other command that reads the variable is preferred.
constexpr std::uint16_t kFirstPreferredCommand = 2;

std::uint16_t NumberOf(const CommandRef& reference) {
  return static_cast<std::uint16_t>(reference.Command()->Number());
}

}  // namespace

void CHARTKernel::AsyncReadVariable(const Definition& definition) {
  ReadAsync(definition, AsyncTrace::Plain);
}

std::shared_ptr<CommandRef> CHARTKernel::AsyncReadVariableEx(const Definition& definition) {
  return ReadAsync(definition, AsyncTrace::Extended);
}

std::shared_ptr<CommandRef> CHARTKernel::ReadAsync(const Definition& definition, AsyncTrace trace) {
  constexpr int kNoCommand = 1;
  constexpr int kStarted = 2;
  const char* name =
      trace == AsyncTrace::Plain ? "IDDKernel_AsyncReadVariable" : "IDDKernel3_AsyncReadVariableEx";
  KernelOperation operation(*this, name, {{trace_tag::kDef, definition}});
  const auto variable = GetVariable(definition);
  std::shared_ptr<CommandRef> reference;
  if (!variable->Validity()) {
    RefuseAsync(variable, trace);
    operation.Release(kStarted);
    return nullptr;
  }
  if (CanBeRead(*variable) && IsWanted(*variable)) {
    BringUnit(variable);
    reference = ChooseAsyncCommand(definition);
    if (!reference) {
      MarkUnreadable(variable);
      Report(variable, ItemIndex::CannotRead);
      operation.Release(kNoCommand);
      throw Failure(ErrorNumber::Unexpected, name, kUnreadableText);
    }
    AsyncExecuteCommandStart(reference);
  }
  Show(Stored<Variable>(definition, name));  // waits may have brought news
  operation.Release(kStarted);
  return reference;
}

void CHARTKernel::RefuseAsync(const std::shared_ptr<Variable>& variable, AsyncTrace trace) {
  if (trace == AsyncTrace::Plain) Report(variable, ItemIndex::ReadNotValid);
  TakeSubstitute(variable);
  if (trace == AsyncTrace::Extended) Report(variable, ItemIndex::ReadNotValid);
}

std::shared_ptr<CommandRef> CHARTKernel::ChooseAsyncCommand(const Definition& definition) {
  std::shared_ptr<CommandRef> lastResort[kFirstPreferredCommand];  // by command number
  auto found = FindReadCommand(definition);
  while (found && NumberOf(*found) < kFirstPreferredCommand) {
    lastResort[NumberOf(*found)] = found->GetCopy();
    found = FindReadCommand(definition, found);
  }
  if (found) return found;
  return lastResort[1] ? lastResort[1] : lastResort[0];
}

}  // namespace ZAFHartLib
