#pragma once

#include <deque>
#include <string>

#include "hartframe/browse/Picture.h"

namespace hartframe::browse {

// A message that did not stop anybody: one line for the screen, all of it for who asks.
struct LogEntry {
  Tone tone = Tone::Plain;
  std::string line;
  std::string text;
  std::string help;
  int count = 1;  // how often it came in a row
};

// The last messages, the newest first.
class MessageLog {
 public:
  void Add(Tone tone, std::string text, std::string help = {});
  const std::deque<LogEntry>& Entries() const { return entries_; }
  // Takes the newest off the screen; it stays in the list.
  void Clear() { shown_ = false; }
  // The newest; nothing when it was cleared, or there is none.
  const LogEntry* Newest() const { return shown_ ? &entries_.front() : nullptr; }

 private:
  std::deque<LogEntry> entries_;
  bool shown_ = false;
};

}  // namespace hartframe::browse
