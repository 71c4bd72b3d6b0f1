#pragma once

#include <chrono>
#include <functional>
#include <string>

namespace ZAFHartDebugger {

using Time = std::chrono::nanoseconds;
// Time since some fixed moment.
using TimeSource = std::function<Time()>;

Time SteadyTime();

// Code points of DurationText.
inline constexpr std::size_t kDurationWidth = 10;
// "  123.4 µs", " 12.345 ms", "  1.250 s": three places at most, right-aligned.
std::string DurationText(Time duration);

}  // namespace ZAFHartDebugger
