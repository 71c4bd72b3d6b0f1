#include "dtmkit/Plugin.h"

#include "debugger/PluginTracer.h"

ZAF_PLUGIN({"ZAFHartDebugger.Tracer",
            &ZAFHartTypes::dtmkit::CreateObject<ZAFHartDebugger::PluginTracer>})
