#pragma once

#include <map>
#include <memory>
#include <string>

#include "platform/Platform.h"

namespace HartLinks {

// The lines (or sessions) of a thread by name. Those who ask for the same name share one object; it
// goes when the last of them has let go of it.
template <typename T>
class SharedByName {
 public:
  // `make` returns a new std::shared_ptr<T>; called when the name has no object.
  template <typename Make>
  std::shared_ptr<T> Get(const std::string& name, Make&& make) {
    std::weak_ptr<T>& slot = objects_[name];
    std::shared_ptr<T> object = slot.lock();
    if (!object) slot = object = make();
    return object;
  }

  static SharedByName& OfThread() { return platform::Current().PerThread<SharedByName>(); }

 private:
  std::map<std::string, std::weak_ptr<T>> objects_;
};

}  // namespace HartLinks
