#include "dtmkit/Plugin.h"

#include "sampletemperature/SampleTemperature.h"

ZAF_DTM_PLUGIN("SampleTemperature", sampletemperature::DataModel,
               sampletemperature::KernelInformation)
