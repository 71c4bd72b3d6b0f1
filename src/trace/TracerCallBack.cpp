#include "trace/TracerCallBack.h"

#include "trace/CExternalTraceConnection.h"

namespace ZAFHartLib {

void TracerCallBack::Terminate() {
  if (connection_) connection_->PrepareTermination();
}

}  // namespace ZAFHartLib
