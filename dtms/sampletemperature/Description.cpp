#include "sampletemperature/Description.h"

#include "common/HartItems.h"

namespace sampletemperature {
namespace {

// In multi-drop mode the current carries no measurement.
bool HasLoopCurrent(Context& context) {
  return context.Long("loop_current_mode") != 0;
}

void DescribeCommonPracticeCommands(DeviceDescription& dd) {
  hart::DescribeReadDeviceVariable(dd);
  hart::DescribeReadAssignments(dd);
  hart::DescribeUnitCommands(dd);
  hart::DescribeRangeCommands(dd);
  hart::DescribeLoopCurrentCommands(dd);
  hart::DescribeDeviceHandling(dd);
}

// Arrays come before the variables and commands that name them.
std::unique_ptr<const Catalogue> MakeDescription() {
  auto dd = std::make_unique<DeviceDescription>();
  DescribeDeviceVariables(*dd);
  DescribeIdentityVariables(*dd);
  DescribeProcessVariables(*dd);
  DescribeStatusVariables(*dd);
  DescribeRangeVariables(*dd);
  DescribeSensorVariables(*dd);
  DescribeOutputVariables(*dd);
  DescribeLinearisationVariables(*dd);
  DescribeServiceVariables(*dd);
  DescribeLocalVariables(*dd);
  DescribeUniversalCommands(*dd);
  DescribeCommonPracticeCommands(*dd);
  DescribeDeviceCommands(*dd);
  DescribeRelations(*dd);
  DescribeUnitTable(*dd);
  DescribeActions(*dd);
  hart::DescribeLoopMethods(*dd, HasLoopCurrent);
  DescribeTrimMethods(*dd);
  DescribeStatusMethods(*dd);
  DescribeDeviceMethods(*dd);
  DescribeEditDisplays(*dd);
  DescribeUploadMenu(*dd);
  DescribeMenus(*dd);
  RequireConsistent(*dd);
  return dd;
}

}  // namespace

const Catalogue& Description() {
  static const std::unique_ptr<const Catalogue> description = MakeDescription();
  return *description;
}

}  // namespace sampletemperature
