#pragma once

#include "debugger/Tracer.h"

namespace ZAFHartDebugger {

// "ZAFHartDebugger.Tracer", for hosts that know nothing of it: set up by values of the tracer key
// "\HKEY_LOCAL_MACHINE\SOFTWARE\Quillbridge\HART\Tracer", it talks over standard input and standard
// error.
//
//   Commands   commands of the prompt that run first, separated by ";": "depth 9; break error"
//   File       file that the trace goes to
//
// Its summary comes at the end of its DTM instance.
class PluginTracer : public Tracer {
 public:
  PluginTracer();
  void Terminate() override;
};

}  // namespace ZAFHartDebugger
