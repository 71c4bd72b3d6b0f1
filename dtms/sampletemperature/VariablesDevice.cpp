#include "common/HartItems.h"
#include "sampletemperature/Description.h"
#include "sampletemperature/DeviceVariable.h"

namespace sampletemperature {
namespace {

void DescribeCollectionOf(DeviceDescription& dd, const DeviceVariable& variable) {
  const std::string name = variable.name;
  dd.Collection("device_variable_" + std::to_string(variable.code))
      .Label(LabelOf(variable))
      .Variable("VALUE", name)
      .Variable("UNITS", name + "_unit")
      .Variable("CLASSIFICATION", name + "_classification")
      .Variable("DATA_QUALITY", name + "_data_quality")
      .Variable("LIMIT_STATUS", name + "_limit_status")
      .Variable("FAMILY_STATUS", name + "_family_status");
}

// What commands 8, 9 and 50 tell of each device variable.
void DescribePropertiesOf(DeviceDescription& dd, const DeviceVariable& variable) {
  const std::string name = variable.name;
  hart::DescribeValueStatus(dd, name, variable.english, variable.german);
  dd.Variable(name + "_assignment")
      .Label(LabelOf(variable, " assignment", " Zuordnung"))
      .Help(
          "Device variable that is mapped to this dynamic variable|de|"
          "Gerätevariable, die dieser dynamischen Variablen zugeordnet ist")
      .Index(1, "device_variables")
      .ReadOnly();
}

}  // namespace

void DescribeDeviceVariables(DeviceDescription& dd) {
  auto array = dd.Array(hart::kDeviceVariables).Label("Device variables|de|Gerätevariablen");
  for (const DeviceVariable& variable : kDeviceVariables) {
    array.Collection(variable.code, "device_variable_" + std::to_string(variable.code),
                     LabelOf(variable));
    DescribeCollectionOf(dd, variable);
  }
  for (const DeviceVariable& variable : kDeviceVariables) DescribePropertiesOf(dd, variable);
  dd.Variable(hart::kDeviceVariableCode)
      .Label("Device variable code|de|Nummer der Gerätevariablen")
      .Help("Device variable that a command is about|de|Gerätevariable eines Kommandos")
      .Index(1, "device_variables")
      .Default(0)
      .Local();
}

}  // namespace sampletemperature
