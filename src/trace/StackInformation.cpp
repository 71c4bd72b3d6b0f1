#include "trace/StackInformation.h"

#include <utility>

#include "types/Failure.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::Failure;
using ZAFHartTypes::ITracedOperation;

[[noreturn]] void RaiseNoEntry(std::int32_t position) {
  throw Failure(ErrorNumber::SubscriptOutOfRange, "StackInformation",
                "The trace stack has no entry " + std::to_string(position) + ".");
}

// `first` + line break + `second` in `first`.
void AppendBelow(std::string& first, const std::string& second) {
  first += kLineBreak;
  first += second;
}

}  // namespace

StackInformation::StackInformation() {
  Add("No Trace Info Available!");
}

std::string StackInformation::Item(std::int32_t position) const {
  if (position < 1 || position > Count()) RaiseNoEntry(position);
  return Render(entries_[static_cast<std::size_t>(position - 1)]);
}

void StackInformation::Add(std::string text) {
  entries_.emplace_back().text = std::move(text);
}

void StackInformation::Remove(std::int32_t position) {
  if (position < 1 || position > Count()) RaiseNoEntry(position);
  entries_.erase(entries_.begin() + (position - 1));
}

std::string StackInformation::Text() const {
  std::string text;
  for (const Entry& entry : entries_) AppendBelow(text, Render(entry));
  return text;
}

std::int32_t StackInformation::Open(const ITracedOperation& operation, std::int32_t infoLevel) {
  entries_.push_back({{}, &operation, infoLevel});
  // Nobody closes position 1: what stands there must not refer to an operation.
  if (Count() == 1) Fix(entries_.front());
  return Count();
}

void StackInformation::AppendLine(std::int32_t position, const std::string& line) {
  if (Entry* entry = Find(position)) AppendBelow(entry->text, line);
}

void StackInformation::Fix(std::int32_t position) {
  if (Entry* entry = Find(position)) Fix(*entry);
}

void StackInformation::CloseFrom(std::int32_t position) {
  if (Find(position)) entries_.resize(static_cast<std::size_t>(position - 1));
}

void StackInformation::MergeFrom(std::int32_t position) {
  if (!Find(position)) return;
  if (position == 2) {
    entries_.erase(entries_.begin());
    Add({});
  }
  while (Count() >= position && Count() > 1) {
    const Entry last = std::move(entries_.back());
    entries_.pop_back();
    Fix(entries_.back());
    AppendBelow(entries_.back().text, Render(last));
  }
}

std::string StackInformation::Render(const Entry& entry) {
  if (!entry.operation) return entry.text;
  std::vector<std::string> lines;
  ZAFHartTypes::IgnoreFailures([&] { lines = entry.operation->TraceLines(entry.infoLevel); });
  std::string text;
  for (const std::string& line : lines) {
    if (&line != lines.data()) text += kLineBreak;
    text += line;
  }
  return text + entry.text;
}

void StackInformation::Fix(Entry& entry) {
  entry.text = Render(entry);
  entry.operation = nullptr;
}

StackInformation::Entry* StackInformation::Find(std::int32_t position) {
  const bool exists = position >= 1 && position <= Count();
  return exists ? &entries_[static_cast<std::size_t>(position - 1)] : nullptr;
}

}  // namespace ZAFHartLib
