#pragma once

#include <functional>

#include "ddobjects/Definition.h"

namespace ZAFHartLib {

// What the worker database tells another part of the library; empty functions are not called.
struct DatabaseSinks {
  using Sink = std::function<void(const ZAFHartTypes::Definition&)>;

  // Who has set them, so that a former holder does not clear those of its successor.
  const void* holder = nullptr;
  // Called with every object whose attributes go stale through dependencies, and with every object
  // that depends on a variable which has just lost its availability. It must not change the
  // database.
  Sink invalidated;
  // Called with every object that ReadObject is about to hand out. It may add dependencies.
  Sink read;
};

}  // namespace ZAFHartLib
