#include "dtmkit/Plugin.h"

#include "generic/Generic.h"

ZAF_DTM_PLUGIN("Generic", generic::DataModel, generic::KernelInformation)
