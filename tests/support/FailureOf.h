#pragma once

#include <gtest/gtest.h>

#include "types/Failure.h"

namespace support {

// The failure that the action ends with. One that is missing fails the test.
template <typename Action>
platform::Failure FailureOf(Action action) {
  try {
    action();
  } catch (const platform::Failure& failure) {
    return failure;
  }
  ADD_FAILURE() << "nothing was raised";
  return {platform::ErrorNumber{0}, ""};
}

// Its number; 0 for none.
template <typename Action>
platform::ErrorNumber NumberOfFailure(Action action) {
  try {
    action();
  } catch (const platform::Failure& failure) {
    return failure.Number();
  }
  return {};
}

}  // namespace support
