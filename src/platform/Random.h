#pragma once

#include <cstdint>
#include <random>

#include "platform/Export.h"

namespace platform {

// Seedable source of random numbers; seeded from the system unless a seed is given.
class ZAF_API RandomSource {
 public:
  RandomSource();
  explicit RandomSource(std::uint64_t seed);
  // The same seed gives the same numbers from then on, on every system.
  void Seed(std::uint64_t seed) { engine_.seed(seed); }
  // Uniform in [0, 1).
  double Uniform();
  // 64 random bits.
  std::uint64_t Bits() { return engine_(); }

 private:
  std::mt19937_64 engine_;
};

}  // namespace platform
