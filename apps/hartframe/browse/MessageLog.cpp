#include "hartframe/browse/MessageLog.h"

#include "hartframe/Speech.h"

namespace hartframe::browse {

namespace {

constexpr std::size_t kMost = 500;

// Line ends and what stands around them become one blank.
std::string InOneLine(const std::string& text) {
  std::string line;
  for (const char c : OneLine(text)) {
    if (c == ' ' && line.ends_with(' ')) continue;
    line += c;
  }
  return line;
}

}  // namespace

void MessageLog::AddOutcome(Tone tone, std::string text, std::string help) {
  Clear();
  Add(tone, std::move(text), std::move(help));
  outcome_ = entries_.front();
}

void MessageLog::Add(Tone tone, std::string text, std::string help) {
  while (text.ends_with('\n')) text.pop_back();
  const bool isRepeated = isShown_ && entries_.front().text == text;
  isShown_ = true;
  if (isRepeated) {
    ++entries_.front().count;
    return;
  }
  std::string line = InOneLine(text);
  entries_.push_front({tone, std::move(line), std::move(text), std::move(help), 1});
  if (entries_.size() > kMost) entries_.pop_back();
}

void MessageLog::Clear() {
  outcome_.reset();
  isShown_ = false;
}

const LogEntry* MessageLog::Shown() const {
  if (outcome_) return &*outcome_;
  return isShown_ ? &entries_.front() : nullptr;
}

}  // namespace hartframe::browse
