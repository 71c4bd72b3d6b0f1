#include "debugger/Duration.h"

#include <array>
#include <cstdio>

#include "types/Utf8.h"

namespace ZAFHartDebugger {

namespace {

std::string Format(const char* format, double value) {
  std::array<char, 48> text{};
  std::snprintf(text.data(), text.size(), format, value);
  return text.data();
}

}  // namespace

Time SteadyTime() {
  return std::chrono::duration_cast<Time>(std::chrono::steady_clock::now().time_since_epoch());
}

std::string DurationText(Time duration) {
  using Microseconds = std::chrono::duration<double, std::micro>;
  const double microseconds = Microseconds(duration).count();
  constexpr double kThousand = 1e3;
  constexpr double kMillion = 1e6;
  std::string text;
  if (microseconds < kThousand)
    text = Format("%.1f µs", microseconds);
  else if (microseconds < kMillion)
    text = Format("%.3f ms", microseconds / kThousand);
  else
    text = Format("%.3f s", microseconds / kMillion);
  const std::size_t length = ZAFHartTypes::utf8::Length(text);
  return std::string(length < kDurationWidth ? kDurationWidth - length : 0, ' ') + text;
}

}  // namespace ZAFHartDebugger
