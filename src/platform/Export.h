#pragma once

// Marks what users of the library call, derive from, catch or ask for with dynamic_cast. The
// library may be built with all else hidden (ZAF_HIDDEN_SYMBOLS).
#define ZAF_API __attribute__((visibility("default")))
