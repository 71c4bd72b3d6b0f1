#pragma once

#include "platform/Export.h"

namespace platform {

// Root of everything that can be created by class name. Interfaces do not derive from it: a holder
// of an Object finds an interface with std::dynamic_pointer_cast.
class ZAF_API Object {
 public:
  Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  virtual ~Object();
};

}  // namespace platform
