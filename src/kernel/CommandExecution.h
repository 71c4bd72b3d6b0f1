#pragma once

#include <memory>

#include "ddobjects/ByteBuffer.h"
#include "ddobjects/Command.h"
#include "ddobjects/DefinitionList.h"

namespace ZAFHartLib {

// One execution of a transaction, and how it ended as far as the wrapper reports it.
struct Execution {
  Execution(std::shared_ptr<ZAFHartTypes::Command> executed, std::int16_t number)
      : command(std::move(executed)), transaction(command->Transactions().Item(number)) {}

  bool IsRead() const { return command->Operation() == ZAFHartTypes::Operation::Read; }
  bool IsWrite() const { return command->Operation() == ZAFHartTypes::Operation::Write; }

  std::shared_ptr<ZAFHartTypes::Command> command;
  std::shared_ptr<ZAFHartTypes::Transaction> transaction;
  ZAFHartTypes::CommandStatus status;
  std::int32_t lastResult = 0;
  // The user gave a request variable a newer value while the exchange ran: that one still waits to
  // be written, and the reply's echo is out of date.
  ZAFHartTypes::DefinitionList outrun;
};

}  // namespace ZAFHartLib
