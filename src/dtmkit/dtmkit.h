#pragma once

// What a DTM author, or a generator, writes a data model with:
//
//   DeviceDescription     the words for the items of a device description
//   RequireConsistent     finds names and values in it that do not fit together
//   DataModelBase         makes them an IDDDataModel
//   KernelInformationBase standard names and the place of the component file
//   Context               what conditions and computations see
//   MethodBody            the code of a method
//   ZAF_DTM_PLUGIN        makes it a plug-in
#include "dtmkit/Context.h"
#include "dtmkit/DataModelBase.h"
#include "dtmkit/DescriptionCheck.h"
#include "dtmkit/DeviceDescription.h"
#include "dtmkit/KernelInformationBase.h"
#include "dtmkit/Plugin.h"
