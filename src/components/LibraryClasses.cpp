#include "components/LibraryClasses.h"

#include "builtins/CDDBuiltinLib.h"
#include "comm/CDDTestCommWrapper.h"
#include "comm/CHARTCommWrapper.h"
#include "components/CDDComponents.h"
#include "components/CSecureKernel.h"
#include "fdtobjects/CFDTDataModel.h"
#include "gui/CDDDTMGUI.h"
#include "kernel/CHARTKernel.h"
#include "linksim/DeviceLink.h"
#include "linksim/EchoLink.h"
#include "text/Tools.h"
#include "trace/CEmptyErrorHandler.h"
#include "trace/CExternalTraceConnection.h"
#include "trace/CTraceObj.h"
#include "workerdb/CDDWorkerDB.h"
#include "workerdb/CIniCollection.h"

namespace ZAFHartLib {
namespace {

template <typename Class>
void Register(platform::ComponentClasses& classes, const char* name) {
  classes.Register(name, [] { return std::make_shared<Class>(); });
}

}  // namespace

void RegisterLibraryClasses(platform::ComponentClasses& classes) {
  classes.Register("ZAFHartLib.CDDComponents", [] { return CDDComponents::Create(); });
  Register<CHARTKernel>(classes, "ZAFHartLib.CHARTKernel");
  Register<CDDWorkerDB>(classes, "ZAFHartLib.CDDWorkerDB");
  Register<CDDDTMGUI>(classes, "ZAFHartLib.CDDDTMGUI");
  Register<CSecureKernel>(classes, "ZAFHartLib.CSecureKernel");
  Register<CDDBuiltinLib>(classes, "ZAFHartLib.CDDBuiltinLib");
  Register<CDDTestCommWrapper>(classes, "ZAFHartLib.CDDTestCommWrapper");
  Register<CHARTCommWrapper>(classes, "ZAFHartLib.CHARTCommWrapper");
  Register<CFDTDataModel>(classes, "ZAFHartLib.CFDTDataModel");
  Register<CEmptyErrorHandler>(classes, "ZAFHartLib.CEmptyErrorHandler");
  Register<CTraceObj>(classes, "ZAFHartLib.CTraceObj");
  Register<CExternalTraceConnection>(classes, "ZAFHartLib.CExternalTraceConnection");
  Register<Tools>(classes, "ZAFHartLib.Tools");
  Register<CIniCollection>(classes, "ZAFHartLib.CIniCollection");
  Register<HartLinkSim::EchoLink>(classes, "HartLinkSim.EchoLink");
  Register<HartLinkSim::DeviceLink>(classes, "HartLinkSim.DeviceLink");
}

}  // namespace ZAFHartLib
