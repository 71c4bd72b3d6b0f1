#pragma once

#include <utility>

namespace ZAFHartLib {

// Gives a variable another value until the scope ends, however it ends.
template <typename T>
class ScopedValue {
 public:
  ScopedValue(T& place, T value) : place_(place), saved_(std::exchange(place, std::move(value))) {}
  ~ScopedValue() { place_ = std::move(saved_); }
  ScopedValue(const ScopedValue&) = delete;
  ScopedValue& operator=(const ScopedValue&) = delete;

 private:
  T& place_;
  T saved_;
};

}  // namespace ZAFHartLib
