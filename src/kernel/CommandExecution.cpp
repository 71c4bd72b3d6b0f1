// Executing one transaction of a command.

#include "kernel/CommandExecution.h"

#include "kernel/DisplayText.h"
#include "kernel/KernelOperation.h"
#include "kernel/KernelTemplates.h"
#include "kernel/ResponseClassification.h"
#include "kernel/ScopedValue.h"
#include "kernel/StatusBytes.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

const DataItem* FindItem(const DataItemList& items, const Definition& variable) {
  for (const DataItem& item : items) {
    if (item.IsVariable() && item.VariableDefinition().IsSameAs(variable)) return &item;
  }
  return nullptr;
}

bool SameValue(const Variant& a, const Variant& b) {
  return a == b || (a.IsNotFinite() && b.IsNotFinite());
}

// A variable whose unit came in the same reply has that unit.
void SetReplyUnits(DataItemList& reply) {
  for (DataItem& item : reply) {
    if (!item.IsVariable() || !item.Variable()->UnitSource()) continue;
    const DataItem* unit = FindItem(reply, item.Variable()->UnitSource());
    if (unit) item.Variable()->SetUnitText(DisplayText(*unit->Variable()));
  }
}

void PutStatusBytes(IDDWorkerDB& database, Transaction& transaction, ReplyBytes bytes) {
  const std::uint8_t values[] = {bytes.first, bytes.second};
  for (std::size_t position = 1; position <= std::size(values); ++position) {
    if (position > transaction.Reply().Count()) return;
    DataItem& item = transaction.Reply().Item(position);
    if (item.IsVariable() && !item.Variable()) {
      item.SetVariable(ViewOf<Variable>(database.ReadObject(item.VariableDefinition())));
    }
    item.SetValue(values[position - 1]);
  }
}

}  // namespace

void CHARTKernel::ExecuteCommand(const std::shared_ptr<Command>& command,
                                 std::int16_t transactionNumber) {
  constexpr const char* kOperation = "IDDKernel_ExecuteCommand";
  constexpr int kDone = 2;
  KernelOperation operation(
      *this, kOperation,
      {{trace_tag::kCmd, command}, {trace_tag::kTno, Variant(std::int32_t{transactionNumber})}});
  RequireObject(command, kOperation);
  Execution execution(command, transactionNumber);
  Prepare(execution, Binding::Synchronous);
  {
    ScopedValue wait(context_, Context{});
    const auto comm = Comm();
    comm->ExecuteCommand(command->Number(), execution.transaction);
    execution.status = comm->LastStatus();
    execution.lastResult = comm->LastResult();
  }
  const bool hadNoReply = HadNoReply(execution.status, execution.lastResult);
  const ReplyBytes bytes =
      hadNoReply ? ReplyBytes{kNoReplyByte, 0} : ReplyBytesOf(*execution.transaction);
  Complete(execution);
  PutStatusBytes(*Database(), *command->Transactions().Item(transactionNumber), bytes);
  const std::string& name = command->Definition().Name();
  operation.Progress(1, [&] { return "COMMAND " + name + " completed"; });
  operation.Progress(2, [&] {
    return "COMMAND " + name + " Result:" + execution.transaction->Describe(operation.InfoLevel());
  });
  operation.Release(kDone);
}

void CHARTKernel::AsyncExecuteCommandStart(const std::shared_ptr<CommandRef>& reference) {
  constexpr const char* kOperation = "IDDKernel_AsyncExecuteCommandStart";
  constexpr int kDone = 3;
  KernelOperation operation(*this, kOperation, {{trace_tag::kTrans, reference}});
  RequireObject(reference, kOperation);
  RequireObject(reference->Command(), kOperation);
  Execution execution(reference->Command(), reference->TransactionNumber());
  Prepare(execution, Binding::Asynchronous);
  {
    ScopedValue wait(context_, Context{});
    Comm()->AsyncExecuteCommand(reference);
  }
  operation.Release(kDone);
}

void CHARTKernel::AsyncExecuteCommandEnd(const std::shared_ptr<CommandRef>& reference) {
  constexpr const char* kOperation = "IDDKernel_AsyncExecuteCommandEnd";
  constexpr int kDone = 1;
  KernelOperation operation(*this, kOperation, {{trace_tag::kTrans, reference}});
  RequireObject(reference, kOperation);
  RequireObject(reference->Command(), kOperation);
  Execution execution(reference->Command(), reference->TransactionNumber());
  const auto comm = Comm();
  execution.status = comm->LastStatus();
  execution.lastResult = comm->LastResult();
  BindRest(execution.transaction->Request());
  BindRest(execution.transaction->Reply());
  Complete(execution);
  const std::string& name = execution.command->Definition().Name();
  operation.Progress(1, [&] { return "COMMAND " + name + " completed asynchroneous."; });
  operation.Progress(2, [&] {
    return "COMMAND Result:" + execution.transaction->Describe(operation.InfoLevel());
  });
  operation.Release(kDone);
}

// Binds all items and runs the actions that come before the exchange.
void CHARTKernel::Prepare(Execution& execution, Binding binding) {
  Transaction& transaction = *execution.transaction;
  BindRequest(transaction.Request());
  BindReply(transaction, binding);
  if (execution.IsWrite()) ExecutePreWrites(transaction.Request());
  if (execution.IsRead()) ExecutePreReads(transaction.Reply());
  for (DataItem& item : transaction.Request()) {
    if (item.CarriesValue()) item.SetVariable(GetVariable(item.VariableDefinition()));
  }
}

// An invalid variable is reported; the command is sent all the same.
void CHARTKernel::BindRequest(DataItemList& request) {
  for (DataItem& item : request) {
    if (!item.IsVariable()) continue;
    if (!item.IsInfo() || !item.Variable()) {
      item.SetVariable(GetVariable(item.VariableDefinition()));
    }
    if (!item.Variable()->Validity()) {
      Report(item.Variable(), ItemIndex::ReadNotValid);
    } else if (!item.IsInfo() && !item.Variable()->Available() &&
               !AwaitsItsUnit(*item.Variable())) {
      item.SetVariable(ReadVariable(item.VariableDefinition()));
    }
  }
}

// The unit is about to be written and the value has been converted to it already: the value is sent
// as it stands.
bool CHARTKernel::AwaitsItsUnit(const Variable& variable) {
  if (!variable.UnitSource()) return false;
  const auto unit = GetVariable(variable.UnitSource());
  return unit->ToBeWritten() && variable.UnitText() == DisplayText(*unit);
}

// What the request holds as well is bound to a copy, so that an echoed value lands there and not in
// the value being written.
void CHARTKernel::BindReply(Transaction& transaction, Binding binding) {
  for (DataItem& item : transaction.Reply()) {
    if (!item.IsVariable()) continue;
    const Definition& definition = item.VariableDefinition();
    if (const DataItem* sent = FindItem(transaction.Request(), definition)) {
      item.SetVariable(sent->Variable()->Snapshot());
      continue;
    }
    if (!item.IsInfo() || !item.Variable()) item.SetVariable(ReplyVariable(definition, binding));
    if (!item.Variable()->Validity()) Report(item.Variable(), ItemIndex::WriteNotValid);
  }
}

std::shared_ptr<Variable> CHARTKernel::ReplyVariable(const Definition& definition,
                                                     Binding binding) {
  if (binding == Binding::Asynchronous && Database()->IsVariableInRecursion(definition)) {
    return Stored<Variable>(definition, "IDDKernel_AsyncExecuteCommandStart");
  }
  return GetVariable(definition);
}

// Items that no start has bound.
void CHARTKernel::BindRest(DataItemList& items) const {
  for (DataItem& item : items) {
    if (!item.IsVariable() || item.Variable()) continue;
    item.SetVariable(
        Stored<Variable>(item.VariableDefinition(), "IDDKernel_AsyncExecuteCommandEnd"));
  }
}

// What follows an exchange. Actions and relations may execute commands of their own, whose result
// does not stand for this one's.
void CHARTKernel::Complete(Execution& execution) {
  Transaction& transaction = *execution.transaction;
  StoreWritten(execution);
  SetReplyUnits(transaction.Reply());
  StoreRead(execution);
  if (execution.IsWrite()) ExecutePostWrites(transaction.Request());
  if (execution.IsRead()) ExecutePostReads(transaction.Reply());
  Comm()->SetLastResult(execution.lastResult);
  EvaluateResponse(execution);
  const std::int32_t result = Comm()->LastResult();  // the user's answer to an error, maybe
  for (const DataItem& item : transaction.Request()) {
    if (item.CarriesValue() && item.Variable()->Available()) {
      ExecuteRelations(item.VariableDefinition());
    }
  }
  RefreshReply(transaction.Reply());
  Comm()->SetLastResult(result);
}

void CHARTKernel::StoreWritten(Execution& execution) const {
  const auto database = Database();
  for (DataItem& item : execution.transaction->Request()) {
    if (!item.CarriesValue()) continue;
    const Definition& definition = item.VariableDefinition();
    const auto variable = item.Variable();
    const auto stored = Find<Variable>(definition);
    if (stored && stored->ToBeWritten() && !SameValue(stored->Value(), variable->Value())) {
      execution.outrun.Add(definition);
      variable->SetToBeWritten(true);
    } else if (!item.IsIndex() && variable->ToBeWritten()) {
      variable->SetToBeWritten(false);
      database->SetVariableToBeWritten(definition, false);
    }
    Store(variable);
    Show(variable);
  }
}

// A pending local change is not overwritten by the value read.
void CHARTKernel::StoreRead(const Execution& execution) const {
  for (const DataItem& item : execution.transaction->Reply()) {
    if (!item.CarriesValue() || execution.outrun.Contains(item.VariableDefinition())) continue;
    if (execution.IsRead()) {
      const auto stored = Find<Variable>(item.VariableDefinition());
      if (stored && stored->ToBeWritten()) continue;
    }
    Store(item.Variable());
  }
}

void CHARTKernel::RefreshReply(DataItemList& reply) {
  for (DataItem& item : reply) {
    if (!item.CarriesValue()) continue;
    const Definition& definition = item.VariableDefinition();
    Database()->SetVariableAvailable(definition, item.Variable()->Available());
    item.SetVariable(GetVariable(definition));
    Show(item.Variable());
  }
}

}  // namespace ZAFHartLib
