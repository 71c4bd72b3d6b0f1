#pragma once

#include <any>
#include <cstdint>
#include <memory>
#include <typeindex>
#include <unordered_map>

#include "platform/Clock.h"
#include "platform/ComponentClasses.h"
#include "platform/Export.h"
#include "platform/MessageLoop.h"
#include "platform/Random.h"
#include "platform/Registry.h"
#include "platform/UserLocale.h"

namespace platform {

// Identity of this library's application instance (one per loaded library) and of the calling
// thread (counts from 1, not the system's). For IGuiCont2.
ZAF_API std::uintptr_t ApplicationInstance();
ZAF_API std::uint64_t ThreadId();

// Everything the library takes from its surroundings, one per thread. Start here: the members are
// the seams to the operating system.
class ZAF_API Platform {
 public:
  // Without classes and registry keys. Classes of the library: RegisterLibraryClasses.
  explicit Platform(std::unique_ptr<Clock> clock = MakeSystemClock());
  ~Platform();
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;

  // Good as long as the platform.
  Clock& GetClock() { return *clock_; }
  MessageLoop& Loop() { return loop_; }
  ComponentClasses& Classes() { return classes_; }
  platform::Registry& Registry() { return registry_; }
  UserLocale& Locale() { return locale_; }
  RandomSource& Random() { return random_; }

  // State that the library keeps once per user-interface thread, made on first use.
  template <typename T>
  T& PerThread() {
    std::any& slot = slots_[std::type_index(typeid(T))];
    if (!slot.has_value()) slot = std::make_shared<T>();
    return **std::any_cast<std::shared_ptr<T>>(&slot);
  }

 private:
  std::unordered_map<std::type_index, std::any> slots_;
  std::unique_ptr<Clock> clock_;
  MessageLoop loop_;
  ComponentClasses classes_;
  platform::Registry registry_;
  UserLocale locale_;
  RandomSource random_;
};

// The platform of the calling thread; made on first use, with the system's clock and the locale of
// the process environment. A Platform made otherwise has the default locale.
ZAF_API Platform& Current();

// Makes another platform the current one of this thread until the scope ends.
class ZAF_API PlatformScope {
 public:
  // `platform` has to outlive the scope. Scopes nest.
  explicit PlatformScope(Platform& platform);
  ~PlatformScope();
  PlatformScope(const PlatformScope&) = delete;
  PlatformScope& operator=(const PlatformScope&) = delete;

 private:
  Platform* previous_;
};

}  // namespace platform
