#include "generic/Description.h"

namespace generic {
namespace {

std::unique_ptr<const Catalogue> MakeDescription() {
  auto dd = std::make_unique<DeviceDescription>();
  DescribeDeviceVariables(*dd);
  DescribeIdentity(*dd);
  DescribeProcessVariables(*dd);
  DescribeOutput(*dd);
  DescribeStatus(*dd);
  DescribeBurst(*dd);
  DescribeDeviceVariableCommands(*dd);
  DescribeRelations(*dd);
  DescribeMethods(*dd);
  DescribeMenus(*dd);
  RequireConsistent(*dd);
  return dd;
}

}  // namespace

const Catalogue& Description() {
  static const std::unique_ptr<const Catalogue> description = MakeDescription();
  return *description;
}

}  // namespace generic
