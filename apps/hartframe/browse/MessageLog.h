#pragma once

#include <deque>
#include <optional>
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

// The last messages, the newest first, and the one for the message line.
class MessageLog {
 public:
  // What the user's own doing came to; it has the message line until Clear.
  void AddOutcome(Tone tone, std::string text, std::string help = {});
  // What comes from the background has the line when there is no outcome.
  void Add(Tone tone, std::string text, std::string help = {});
  const std::deque<LogEntry>& Entries() const { return entries_; }
  // Takes the message off the line; it stays in the list.
  void Clear();
  // Nothing when there is none.
  const LogEntry* Shown() const;

 private:
  std::deque<LogEntry> entries_;
  std::optional<LogEntry> outcome_;
  bool isShown_ = false;  // the newest one
};

}  // namespace hartframe::browse
