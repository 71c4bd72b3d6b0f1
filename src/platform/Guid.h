#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/Export.h"
#include "platform/Random.h"

namespace platform {

struct Guid {
  std::array<std::uint8_t, 16> bytes{};
  friend bool operator==(const Guid&, const Guid&) = default;
};

// A random GUID (version 4).
ZAF_API Guid CreateGuid(RandomSource& random);

// "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}", upper-case digits.
ZAF_API std::string RegistryForm(const Guid& guid);

}  // namespace platform
