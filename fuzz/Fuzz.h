#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string_view>

#include "platform/Failure.h"

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

// The rest of an input as text.
inline std::string_view AsText(std::span<const std::uint8_t> input) {
  return {reinterpret_cast<const char*>(input.data()), input.size()};
}

// Takes the text up to the next NUL off the front of `rest`.
inline std::string_view TakeText(std::string_view& rest) {
  const std::string_view text = rest.substr(0, rest.find('\0'));
  rest.remove_prefix(text.size() < rest.size() ? text.size() + 1 : text.size());
  return text;
}

// Runs what may refuse its input, which it does by a Failure with a text; true when it did not.
template <typename Action>
bool Accepts(Action&& action) {
  try {
    action();
    return true;
  } catch (const platform::Failure& failure) {
    Check(!failure.Description().empty(), "a refusal says why");
    return false;
  }
}

}  // namespace fuzz
