#include <malloc.h>

#include <cstdio>
#include <cstdlib>
#include <random>

#include "soak/Soak.h"

namespace {

std::size_t BytesInUse() {
  const auto memory = mallinfo2();
  return memory.uordblks + memory.hblkhd;
}

// The heap breathes with the length of lists and texts.
bool HasGrown(std::size_t before, std::size_t after) {
  constexpr std::size_t kAllowance = std::size_t{256} * 1024;
  return after > before + kAllowance;
}

int Tell(soak::Soak& soak, std::uint64_t seed) {
  std::printf("%llu commands: %s\n", static_cast<unsigned long long>(soak.Commands()),
              soak.Account().c_str());
  if (soak.Problem().empty()) return 0;
  std::printf("FAILED (seed %llu): %s\n", static_cast<unsigned long long>(seed),
              soak.Problem().c_str());
  return 1;
}

int Run(std::uint64_t commands, std::uint64_t seed) {
  std::printf("seed %llu\n", static_cast<unsigned long long>(seed));
  soak::Soak soak(seed);
  if (!soak.RunUntil(commands / 10)) return Tell(soak, seed);
  const std::size_t before = BytesInUse();
  if (!soak.RunUntil(commands)) return Tell(soak, seed);
  const std::size_t after = BytesInUse();
  std::printf("memory: %zu bytes after a tenth, %zu at the end\n", before, after);
  if (HasGrown(before, after)) {
    std::printf("FAILED: the memory has grown\n");
    return 1;
  }
  return Tell(soak, seed);
}

}  // namespace

// zaf_soak [COMMANDS] [SEED]
int main(int argc, char** argv) {
  const std::uint64_t commands = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 1'000'000;
  const std::uint64_t seed =
      argc > 2 ? std::strtoull(argv[2], nullptr, 10) : std::random_device{}();
  return Run(commands, seed);
}
