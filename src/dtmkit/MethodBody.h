#pragma once

#include <functional>
#include <memory>
#include <string>

#include "dtmkit/Context.h"
#include "interfaces/IDDBuiltinLib.h"
#include "platform/Export.h"

namespace ZAFHartTypes::dtmkit {

// The code of a DD method, on the builtins of one run of it:
//
//   void ResetDevice(IDDBuiltinLib& dd) {
//     dd.Acknowledge("The device restarts.|de|Das Gerät startet neu.");
//     if (dd.IsAbort()) return;
//     dd.SendCommand(42);
//   }
//
// It leaves off as soon as IsAbort() holds after a builtin; RunMethod does the rest. What is
// assigned and not saved (SaveValues) is undone when it ends.
using MethodBody = std::function<void(IDDBuiltinLib& dd)>;

// The further helpers of the same run: calculations, AddUnit. Raises TypeMismatch when the
// library in use has none.
ZAF_API IDDBuiltinLib2& Extended(IDDBuiltinLib& dd);

// Runs the body of a method that was started from `object`, and ends the method however the body
// leaves: an aborted one has its abort methods run, once each in the order they were added, a
// failing one not stopping the next; then the builtins are released. Abort methods of a method that
// itself runs in abort are not run.
//
// A failure that leaves the body aborts the method. It is raised on, unless a builtin raised it
// after telling the user why the method ends.
ZAF_API void RunMethod(Context& context, const std::string& name, const MethodBody& body,
                       std::shared_ptr<DDObject> object, bool inAbort);

// Sees to it that an abort method runs whenever the body leaves before Done(): cancelled, by a
// failure, or by the builtins' error path, which empties the list of abort methods.
//
//   AbortGuard release(dd, "release_loop_current");
//   …
//   release.Done();   // released by the body itself
class ZAF_API AbortGuard {
 public:
  // `dd` outlives the guard.
  AbortGuard(IDDBuiltinLib& dd, std::string method);
  ~AbortGuard();
  AbortGuard(const AbortGuard&) = delete;
  AbortGuard& operator=(const AbortGuard&) = delete;

  // The method need not run any more; takes it off the list.
  void Done();

 private:
  IDDBuiltinLib& dd_;
  std::string method_;
  bool isDone_ = false;
  int unwinding_;  // failures in flight when the guard was made
};

}  // namespace ZAFHartTypes::dtmkit
