#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>

// What libFuzzer calls, and the replay of a corpus.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

// A broken promise ends the program, which is how a finding is told.
inline void Check(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "Broken: %s\n", promise);
  std::abort();
}

// Settings of a run, taken from the front of its input; 0 when nothing is left.
inline std::size_t Take(std::span<const std::uint8_t>& input) {
  if (input.empty()) return 0;
  const std::size_t value = input.front();
  input = input.subspan(1);
  return value;
}

}  // namespace fuzz
