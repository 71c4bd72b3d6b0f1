#pragma once

#include "interfaces/Codes.h"
#include "interfaces/IDDWorkerDB.h"

namespace ZAFHartLib {

// Write "__ZAF__DATASETSTATE" and "__ZAF__STORAGESTATE" (1 persistent, 0 transient); ignored when
// the database holds no such variable.
void SetDataSetState(ZAFHartTypes::IDDWorkerDB& database, ZAFHartTypes::DataSetState state);
void SetStorageState(ZAFHartTypes::IDDWorkerDB& database, bool persistent);

}  // namespace ZAFHartLib
