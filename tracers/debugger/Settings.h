#pragma once

#include <cstdint>
#include <string>

namespace ZAFHartDebugger {

// What a trace shows.
struct Settings {
  std::int32_t level = 1;   // highest level of free lines; 0: errors only
  std::int32_t depth = 1;   // operations shown, 1: the outermost; 0: none
  std::int32_t detail = 1;  // how much objects tell about themselves
  std::string filter;       // only operations whose title holds this, and what is in them; "": all
  std::size_t top = 10;     // entries of each list of the summary; 0: no summary
  std::string language;     // of DD texts and of what is said; "": the GUI manager's
};

}  // namespace ZAFHartDebugger
