#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "debugger/Duration.h"
#include "debugger/OperationStack.h"

namespace ZAFHartDebugger {

// What was sent of one command number.
struct CommandFigures {
  std::int64_t count = 0;
  std::int64_t withoutReply = 0;
  std::int64_t withCode = 0;  // with a response code or a communication error
  Time total{};
  Time longest{};
  std::int64_t sentBytes = 0;      // of data
  std::int64_t receivedBytes = 0;  // of data, the status bytes included
};

struct OperationTime {
  Time duration{};
  std::string title;
};

// Counts what a run did.
class Statistics {
 public:
  void AddCommand(std::int16_t number, const CommandFigures& figures);
  // Only the slowest `kept` are remembered.
  void AddOperation(const Operation& operation, std::size_t kept);
  // The attributes of an object were computed; "VARIABLE tag".
  void AddComputation(std::string object) { ++computations_[std::move(object)]; }

  bool IsEmpty() const { return commands_.empty() && operations_.empty() && computations_.empty(); }
  const std::map<std::int16_t, CommandFigures>& Commands() const { return commands_; }
  CommandFigures AllCommands() const;
  // Slowest first.
  const std::vector<OperationTime>& Slowest() const { return operations_; }
  // The objects that were computed most often, and how often.
  std::vector<std::pair<std::string, std::int64_t>> Computations() const;

 private:
  std::map<std::int16_t, CommandFigures> commands_;
  std::vector<OperationTime> operations_;
  std::map<std::string, std::int64_t> computations_;
};

}  // namespace ZAFHartDebugger
