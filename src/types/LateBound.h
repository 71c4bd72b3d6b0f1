#pragma once

#include <span>
#include <string_view>

#include "platform/Export.h"
#include "types/Variant.h"

namespace ZAFHartTypes {

// Members called by name, for the few callers that do not know an object's interface at build time.
// A property is set by its name and one argument, and read by its name and none.
class ZAF_API ILateBound {
 public:
  virtual ~ILateBound() = default;
  // Raises MemberNotFound for a name that the object does not have.
  virtual Variant Invoke(std::string_view name, std::span<const Variant> arguments) = 0;
};

}  // namespace ZAFHartTypes
