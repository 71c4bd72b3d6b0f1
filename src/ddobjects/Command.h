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
  // HART command number, 0 to 65535 in 16 bits.
  std::int16_t Number() const { return number_; }
  void SetNumber(std::int16_t number) { number_ = number; }
  ZAFHartTypes::Operation Operation() const { return operation_; }
  void SetOperation(ZAFHartTypes::Operation operation) { operation_ = operation; }
  const TransactionList& Transactions() const { return transactions_; }
  TransactionList& Transactions() { return transactions_; }
  // Codes defined for the whole command.
  const ResponseCodeList& ResponseCodes() const;
  ResponseCodeList& EditResponseCodes();
  void SetResponseCodes(std::shared_ptr<const ResponseCodeList> codes) {
    responseCodes_ = std::move(codes);
  }
  // The command's attributes are being computed.
  bool InRecursion() const { return inRecursion_; }
  void SetInRecursion(bool running) { inRecursion_ = running; }

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
  CommandRef() = default;
  CommandRef(std::shared_ptr<ZAFHartTypes::Command> command, std::int16_t transactionNumber)
      : command_(std::move(command)), transactionNumber_(transactionNumber) {}

  const std::shared_ptr<ZAFHartTypes::Command>& Command() const { return command_; }
  void SetCommand(std::shared_ptr<ZAFHartTypes::Command> command) { command_ = std::move(command); }
  std::int16_t TransactionNumber() const { return transactionNumber_; }
  void SetTransactionNumber(std::int16_t number) { transactionNumber_ = number; }
  // The transaction referred to; raises SubscriptOutOfRange, ObjectNotSet without a command.
  const std::shared_ptr<Transaction>& ReferredTransaction() const;

  std::shared_ptr<CommandRef> GetCopy() const;
  std::string Describe(std::int16_t infoLevel) const;

 private:
  std::shared_ptr<ZAFHartTypes::Command> command_;
  std::int16_t transactionNumber_ = 0;
};

}  // namespace ZAFHartTypes
