#pragma once

#include "interfaces/IDDComponents.h"

namespace ZAFHartLib {

// Body of the method "__ZAF__METHOD_REFRESH_DATASET": every device variable of an online data set
// loses its value and is shown again, so that it is read anew. Other data sets stay as they are.
void RefreshDataSet(ZAFHartTypes::IDDComponents& components);

}  // namespace ZAFHartLib
