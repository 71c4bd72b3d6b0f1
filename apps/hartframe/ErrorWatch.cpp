#include "hartframe/ErrorWatch.h"

#include "ddobjects/Command.h"

namespace hartframe {

namespace {

using ZAFHartTypes::CommandRef;
using ZAFHartTypes::CommandStatus;
using ZAFHartTypes::ItemIndex;
using ZAFHartTypes::ResponseCode;
using ZAFHartTypes::Transaction;

bool IsRefusal(std::int32_t code, const CommandRef& command, const Transaction& transaction) {
  const ResponseCode* known = transaction.ResponseCodes().Find(code);
  if (!known) known = command.Command()->ResponseCodes().Find(code);
  return !known || IsError(known->CodeType());
}

Trouble TroubleOf(const CommandStatus& status, const CommandRef& command,
                  const Transaction& transaction) {
  if (status.responseCode != 0) {
    return IsRefusal(status.responseCode, command, transaction) ? Trouble::Refused : Trouble::None;
  }
  return status.communication != 0 ? Trouble::Communication : Trouble::None;
}

}  // namespace

std::int32_t ErrorWatch::ObjectError(const std::shared_ptr<ZAFHartTypes::DDObject>& object,
                                     ItemIndex index) {
  const std::string& name = object->ObjectDefinition().Key().Folded();
  if (index == ItemIndex::CannotWrite) writes_[name] = Trouble::Communication;
  if (index == ItemIndex::NotWritable) writes_[name] = Trouble::Other;
  return 0;
}

std::int32_t ErrorWatch::ResponseCodeError(const CommandStatus& status,
                                           const std::shared_ptr<CommandRef>& command) {
  if (!command || !command->Command()) return 0;
  const auto& transaction = command->ReferredTransaction();
  const Trouble trouble = TroubleOf(status, *command, *transaction);
  if (trouble == Trouble::None) return 0;
  for (const auto& item : transaction->Request()) {
    if (item.IsVariable() && !item.IsInfo())
      writes_[item.VariableDefinition().Key().Folded()] = trouble;
  }
  return 0;
}

Trouble ErrorWatch::WriteTrouble(const ZAFHartTypes::Definition& definition) const {
  const auto found = writes_.find(definition.Key().Folded());
  return found == writes_.end() ? Trouble::None : found->second;
}

}  // namespace hartframe
