#include "debugger/Statistics.h"

#include <algorithm>

namespace ZAFHartDebugger {

namespace {

void Add(CommandFigures& sum, const CommandFigures& figures) {
  sum.count += figures.count;
  sum.withoutReply += figures.withoutReply;
  sum.withCode += figures.withCode;
  sum.total += figures.total;
  sum.longest = std::max(sum.longest, figures.longest);
  sum.sentBytes += figures.sentBytes;
  sum.receivedBytes += figures.receivedBytes;
}

}  // namespace

void Statistics::AddCommand(std::int16_t number, const CommandFigures& figures) {
  Add(commands_[number], figures);
}

CommandFigures Statistics::AllCommands() const {
  CommandFigures all;
  for (const auto& [number, figures] : commands_) Add(all, figures);
  return all;
}

void Statistics::AddOperation(const Operation& operation, std::size_t kept) {
  const bool isFull = operations_.size() >= kept;
  if (isFull && (kept == 0 || operation.duration <= operations_.back().duration)) return;
  const auto place = std::ranges::upper_bound(operations_, operation.duration, std::greater<>(),
                                              &OperationTime::duration);
  operations_.insert(place, {operation.duration, operation.Title()});
  if (operations_.size() > kept) operations_.resize(kept);
}

std::vector<std::pair<std::string, std::int64_t>> Statistics::Computations() const {
  std::vector<std::pair<std::string, std::int64_t>> all(computations_.begin(), computations_.end());
  std::ranges::stable_sort(all, std::greater<>(), [](const auto& entry) { return entry.second; });
  return all;
}

}  // namespace ZAFHartDebugger
