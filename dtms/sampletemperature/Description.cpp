#include "sampletemperature/Description.h"

namespace sampletemperature {
namespace {

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
  DescribeUniversalReadCommands(*dd);
  DescribeUniversalWriteCommands(*dd);
  DescribeCommonPracticeCommands(*dd);
  DescribeDeviceCommands(*dd);
  DescribeRelations(*dd);
  DescribeUnitTable(*dd);
  DescribeActions(*dd);
  DescribeLoopMethods(*dd);
  DescribeTrimMethods(*dd);
  DescribeStatusMethods(*dd);
  DescribeDeviceMethods(*dd);
  DescribeEditDisplays(*dd);
  DescribeUploadMenu(*dd);
  DescribeMenus(*dd);
  return dd;
}

}  // namespace

const Catalogue& Description() {
  static const std::unique_ptr<const Catalogue> description = MakeDescription();
  return *description;
}

}  // namespace sampletemperature
