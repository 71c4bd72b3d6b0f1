#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ZAFHartDebugger {

// Where a debugger writes, and whom it asks.
class Terminal {
 public:
  virtual ~Terminal() = default;
  // One line, without control characters but those of colours. Must not throw.
  virtual void Write(std::string_view line) = 0;
  // The answer without its line end; nothing at the end of the input, when there is nobody to ask
  // and when the question was broken off.
  virtual std::optional<std::string> ReadLine(std::string_view prompt) = 0;
  virtual bool ShowsColours() const = 0;
};

}  // namespace ZAFHartDebugger
