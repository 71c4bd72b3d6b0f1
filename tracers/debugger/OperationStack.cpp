#include "debugger/OperationStack.h"

#include <algorithm>
#include <sstream>

#include "types/NamePattern.h"

namespace ZAFHartDebugger {

namespace {

constexpr std::string_view kOpening = "[ ";
constexpr std::string_view kKernel = "IDDKernel_";
constexpr std::string_view kNumber = "Number=";

std::string_view Without(std::string_view prefix, std::string_view text) {
  return text.starts_with(prefix) ? text.substr(prefix.size()) : text;
}

// "VARIABLE", "EDIT_DISPLAY", …
bool IsKind(std::string_view word) {
  return !word.empty() &&
         std::ranges::all_of(word, [](char c) { return (c >= 'A' && c <= 'Z') || c == '_'; });
}

bool NamesObject(std::string_view input, std::string_view pattern) {
  const auto tagEnd = input.find(": ");
  if (tagEnd == std::string_view::npos || input.starts_with("> Val: ")) return false;
  std::istringstream words{std::string(input.substr(tagEnd + 2))};
  std::string kind;
  std::string name;
  if (!(words >> kind >> name) || !IsKind(kind)) return false;
  if (ZAFHartTypes::MatchesPattern(name, pattern)) return true;
  std::string number;
  return words >> number && number.starts_with(kNumber) &&
         ZAFHartTypes::MatchesPattern("#" + number.substr(kNumber.size()), pattern);
}

}  // namespace

std::string Operation::Title() const {
  std::string title = name;
  for (const std::string& input : inputs) title.append("  ").append(input);
  return title;
}

bool Operation::HasObject(std::string_view pattern) const {
  return std::ranges::any_of(inputs,
                             [&](const std::string& input) { return NamesObject(input, pattern); });
}

Operation& OperationStack::Open(std::int32_t level, std::string_view text, Time now) {
  Operation& operation = operations_.emplace_back();
  operation.level = level;
  operation.name = Without(kKernel, Without(kOpening, text));
  operation.start = now;
  return operation;
}

Operation* OperationStack::At(std::int32_t level) {
  const auto found = std::ranges::find(operations_, level, &Operation::level);
  return found == operations_.end() ? nullptr : &*found;
}

Operation OperationStack::TakeInnermost() {
  Operation innermost = std::move(operations_.back());
  operations_.pop_back();
  return innermost;
}

std::string OperationStack::Path() const {
  std::string path;
  for (const Operation& operation : operations_)
    path.append(path.empty() ? "" : "/").append(operation.name);
  return path;
}

}  // namespace ZAFHartDebugger
