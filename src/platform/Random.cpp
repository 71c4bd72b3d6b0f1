#include "platform/Random.h"

namespace platform {

namespace {

std::uint64_t SystemSeed() {
  std::random_device device;
  return std::uint64_t{device()} << 32 | device();
}

}  // namespace

RandomSource::RandomSource() : RandomSource(SystemSeed()) {}

RandomSource::RandomSource(std::uint64_t seed) : engine_(seed) {}

double RandomSource::Uniform() {
  // The upper 53 bits: as many as a double's mantissa holds.
  return static_cast<double>(Bits() >> 11) * 0x1p-53;
}

}  // namespace platform
