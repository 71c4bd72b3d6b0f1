#pragma once

#include "ddobjects/DDObject.h"
#include "ddobjects/Transaction.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

// A HART command with its transactions. Searches and executions work on copies of it.
class ZAF_API Command : public DDObject {
 public:
  static constexpr ObjectKind kKind = ObjectKind::Command;
  explicit Command(const ZAFHartTypes::Definition& definition) : DDObject(definition) {}
  Command(const Command&) = default;

  const ZAFHartTypes::Definition& Definition() const { return ObjectDefinition(); }
  // HART command number, 0 to 65535 in 16 bits: those above 32767 are negative here. 0 at first.
  std::int16_t Number() const { return number_; }
  void SetNumber(std::int16_t number) { number_ = number; }
  // Searches for a variable's read and write command look at Read and Write commands alone.
  ZAFHartTypes::Operation Operation() const { return operation_; }
  void SetOperation(ZAFHartTypes::Operation operation) { operation_ = operation; }
  // Those of this object: an execution binds variables in them and stores the reply there.
  const TransactionList& Transactions() const { return transactions_; }
  TransactionList& Transactions() { return transactions_; }
  // Codes defined for the whole command; empty when there are none. Copies of the command share
  // the list. Editing gives this object a list of its own with the same codes; the reference is
  // good until the next call. SetResponseCodes shares the list; nothing takes it away.
  const ResponseCodeList& ResponseCodes() const;
  ResponseCodeList& EditResponseCodes();
  void SetResponseCodes(std::shared_ptr<const ResponseCodeList> codes) {
    responseCodes_ = std::move(codes);
  }
  // The command's attributes are being computed. For the worker database; Assign leaves it alone.
  bool InRecursion() const { return inRecursion_; }
  void SetInRecursion(bool running) { inRecursion_ = running; }

  // GetCopy as a command: transactions of its own, bound to the same variables.
  std::shared_ptr<Command> CommandCopy() const { return std::make_shared<Command>(*this); }

  void Assign(const DDObject& other) override;
  std::shared_ptr<DDObject> GetCopy() const override { return CommandCopy(); }
  void DropBindings() override;
  std::string Describe(std::int16_t infoLevel) const override;

 private:
  std::int16_t number_ = 0;
  bool inRecursion_ = false;
  ZAFHartTypes::Operation operation_ = ZAFHartTypes::Operation::Command;
  TransactionList transactions_;
  std::shared_ptr<const ResponseCodeList> responseCodes_;
};

// Result of a command search and argument of an asynchronous execution: a command and the number of
// one of its transactions. Held by std::shared_ptr; its address identifies an execution.
class ZAF_API CommandRef {
 public:
  // Without a command, or to a transaction that the command need not have: see
  // ReferredTransaction. The command is shared.
  CommandRef() = default;
  CommandRef(std::shared_ptr<ZAFHartTypes::Command> command, std::int16_t transactionNumber)
      : command_(std::move(command)), transactionNumber_(transactionNumber) {}

  const std::shared_ptr<ZAFHartTypes::Command>& Command() const { return command_; }
  void SetCommand(std::shared_ptr<ZAFHartTypes::Command> command) { command_ = std::move(command); }
  std::int16_t TransactionNumber() const { return transactionNumber_; }
  void SetTransactionNumber(std::int16_t number) { transactionNumber_ = number; }
  // The transaction referred to. Raises SubscriptOutOfRange when the command has none of that
  // number, ObjectNotSet without a command.
  const std::shared_ptr<Transaction>& ReferredTransaction() const;

  // A reference to a copy of the command, made by CommandCopy.
  std::shared_ptr<CommandRef> GetCopy() const;
  // Text for trace lines: the command's and the transaction's number; "Nothing" without a command.
  std::string Describe(std::int16_t infoLevel) const;

 private:
  std::shared_ptr<ZAFHartTypes::Command> command_;
  std::int16_t transactionNumber_ = 0;
};

}  // namespace ZAFHartTypes
