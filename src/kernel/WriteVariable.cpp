// Putting a new value into a variable and, where it is the device's, into the device.

#include "fdtobjects/StateSetters.h"
#include "interfaces/InternalNames.h"
#include "kernel/KernelOperation.h"
#include "kernel/KernelTemplates.h"
#include "kernel/ResponseClassification.h"
#include "kernel/ScopedValue.h"
#include "kernel/StatusBytes.h"
#include "resources/ResText.h"
#include "resources/enumDDResourceIDs.h"
#include "workerdb/CDDWorkerDB.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

constexpr const char* kOperation = "IDDKernel_WriteVariable";
constexpr int kNoCommand = 1;
constexpr int kDone = 2;

bool GoesToDevice(const Variable& variable, const Variant& value) {
  return !variable.Attributes().IsLibraryHeld() && variable.CheckHandling(AccessMode::Write) &&
         variable.CheckValue(value, true);
}

bool IsInternal(const Definition& definition) {
  return definition.Name().starts_with(internal_names::kPrefix);
}

void MarkModified(IDDWorkerDB& database, const Definition& definition) {
  if (!IsInternal(definition)) SetDataSetState(database, DataSetState::ValidModified);
}

}  // namespace

void CHARTKernel::WriteVariable(const Definition& definition, const Variant& value) {
  KernelOperation operation(*this, kOperation,
                            {{trace_tag::kDef, definition}, {trace_tag::kVal, value}});
  const auto variable = GetVariable(definition);
  if (!variable->Validity()) Report(variable, ItemIndex::WriteNotValid);
  if (GoesToDevice(*variable, value)) {
    StoreNewValue(*variable, value);
    Show(Stored<Variable>(definition, kOperation));
    const auto command = FindWriteCommand(definition);
    if (!command) {
      Report(Stored<Variable>(definition, kOperation), ItemIndex::CannotWrite);
      operation.Release(kNoCommand);
      Database()->SetVariableToBeWritten(definition, false);
      return;
    }
    ExecuteCommand(command->Command(), command->TransactionNumber());
    EndDeviceWrite(definition, value, command);
  } else if (variable->Attributes().IsLibraryHeld() && variable->CheckValue(value, true)) {
    WriteLocally(variable, value);
  } else {
    Report(variable, ItemIndex::NotWritable);
    Database()->SetVariableToBeWritten(definition, false);
  }
  const std::string& name = variable->Definition().Name();
  operation.Progress(1, [&] { return "Write VARIABLE " + name + " Completed"; });
  operation.Progress(
      2, [&] { return "VARIABLE " + name + ":" + variable->Describe(operation.InfoLevel()); });
  operation.Release(kDone);
}

// Into the database only: this operation is the one that writes to the device, in synchronous mode
// as well.
void CHARTKernel::StoreNewValue(Variable& variable, const Variant& value) const {
  const Definition& definition = variable.Definition();
  variable.SetValue(value);
  const auto database = Database();
  database->SetVariableError(definition, 0, "");
  if (const auto own = std::dynamic_pointer_cast<CDDWorkerDB>(database)) {
    own->WriteValueLocally(definition, value);
  } else {
    database->WriteValue(definition, value);
  }
}

void CHARTKernel::WriteLocally(const std::shared_ptr<Variable>& variable, const Variant& value) {
  const Definition& definition = variable->Definition();
  StoreNewValue(*variable, value);
  ExecuteRelations(definition);
  variable->SetIsChecked(true);
  MarkModified(*Database(), definition);
  Show(Stored<Variable>(definition, kOperation));
}

// A value given since waits to be written.
bool CHARTKernel::IsOutrun(const Definition& definition, const Variant& sent) const {
  const auto stored = Find<Variable>(definition);
  return stored && stored->ToBeWritten() && !(stored->Value() == sent);
}

void CHARTKernel::EndDeviceWrite(const Definition& definition, const Variant& value,
                                 const std::shared_ptr<CommandRef>& command) {
  const CommandStatus status = StatusFromReply(ReplyBytesOf(*command->ReferredTransaction()));
  if (status.communication != 0 || status.responseCode != 0) {
    GiveUpRequest(definition, *command, status);
    GiveUpWrite(definition, value);
  }
  if (status.communication != 0) {
    Report(Stored<Variable>(definition, kOperation), ItemIndex::CannotWrite);
    return;
  }
  {
    ScopedValue wait(context_, Context{});
    Gui()->ResponseCodeError(status, command);
  }
  MarkModified(*Database(), definition);
}

// The device's value stands, unless the user has given another one during the exchange.
void CHARTKernel::GiveUpWrite(const Definition& definition, const Variant& sent) {
  if (IsOutrun(definition, sent)) return;
  const auto database = Database();
  database->SetVariableAvailable(definition, false);
  database->SetVariableToBeWritten(definition, false);
  Show(model_.Kernel()->ReadVariable(definition));
}

// The other variables that the same request was to write fare like the one asked for; the device's
// values come with the next read. An error that the reply has recorded on them stands.
void CHARTKernel::GiveUpRequest(const Definition& written, const CommandRef& command,
                                const CommandStatus& status) {
  ResponseVerdict verdict{static_cast<std::int32_t>(ItemIndex::CannotWrite),
                          ResText(idErrCannotWrite)};
  const auto& transaction = command.ReferredTransaction();
  if (status.communication == 0) {
    verdict = ClassifyResponse(status, 0, transaction->ResponseCodes(),
                               command.Command()->ResponseCodes());
  }
  const auto database = Database();
  for (const DataItem& item : transaction->Request()) {
    const Definition& definition = item.VariableDefinition();
    if (!item.CarriesValue() || item.IsIndex() || definition.IsSameAs(written) ||
        (item.Variable() && IsOutrun(definition, item.Variable()->Value()))) {
      continue;
    }
    database->SetVariableAvailable(definition, false);
    database->SetVariableToBeWritten(definition, false);
    const auto stored = Find<Variable>(definition);
    if (!stored) continue;
    if (stored->ErrorText().empty()) {
      database->SetVariableError(definition, verdict.error, verdict.message);
    }
    Show(Find<Variable>(definition));
  }
}

}  // namespace ZAFHartLib
