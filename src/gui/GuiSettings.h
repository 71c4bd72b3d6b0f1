#pragma once

#include <memory>

#include "ddobjects/IDDDataModel.h"

namespace ZAFHartLib {

// The GUI manager's settings from the registry, with the values they have before it is read.
struct GuiSettings {
  // Failures of controls are traced instead of reaching the runtime.
  bool useErrorHandler = false;
  // Error texts name the DD items beside their labels.
  bool showDDInformation = true;
  // A control is told about an object when its state is new to the control.
  bool filterDDObjectsForGUI = true;
  // While the update is locked, internal objects alone are shown.
  bool enableHostVariableFilter = false;
};

// Reads the settings of a DTM with failures ignored: the first two true, the others as they are
// when they cannot be read.
GuiSettings ReadGuiSettings(const std::shared_ptr<ZAFHartTypes::IKernelInformation>& information);

}  // namespace ZAFHartLib
