#include "common/HartTables.h"
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
  dd.Variable(name + "_classification")
      .Label(LabelOf(variable, " classification", " Klassifizierung"))
      .Help("Kind of quantity that the device variable is|de|Art der Messgröße")
      .Enumerated(1, hart::DeviceVariableClassifications())
      .ReadOnly();
  dd.Variable(name + "_assignment")
      .Label(LabelOf(variable, " assignment", " Zuordnung"))
      .Help(
          "Device variable that is mapped to this dynamic variable|de|"
          "Gerätevariable, die dieser dynamischen Variablen zugeordnet ist")
      .Index(1, "device_variables")
      .ReadOnly();
  dd.Variable(name + "_data_quality")
      .Label(LabelOf(variable, " data quality", " Datenqualität"))
      .Help("How far the value can be trusted|de|Verlässlichkeit des Wertes")
      .Enumerated(1, hart::ProcessDataStatusCodes())
      .ReadOnly()
      .Dynamic();
  dd.Variable(name + "_limit_status")
      .Label(LabelOf(variable, " limit status", " Grenzstatus"))
      .Help("Whether the value is held at a limit|de|Ob der Wert an einer Grenze steht")
      .Enumerated(1, hart::LimitStatusCodes())
      .ReadOnly()
      .Dynamic();
  dd.Variable(name + "_family_status")
      .Label(LabelOf(variable, " family status", " Familienstatus"))
      .Help("Further status bits of the device variable|de|Weitere Statusbits der Gerätevariablen")
      .BitEnumerated(1, hart::DeviceFamilyStatusBits())
      .ReadOnly()
      .Dynamic();
}

}  // namespace

void DescribeDeviceVariables(DeviceDescription& dd) {
  auto array = dd.Array("device_variables").Label("Device variables|de|Gerätevariablen");
  for (const DeviceVariable& variable : kDeviceVariables) {
    array.Collection(variable.code, "device_variable_" + std::to_string(variable.code),
                     LabelOf(variable));
    DescribeCollectionOf(dd, variable);
  }
  for (const DeviceVariable& variable : kDeviceVariables) DescribePropertiesOf(dd, variable);
  dd.Variable("device_variable_code")
      .Label("Device variable code|de|Nummer der Gerätevariablen")
      .Help("Device variable that a command is about|de|Gerätevariable eines Kommandos")
      .Index(1, "device_variables")
      .Default(0)
      .Local();
}

}  // namespace sampletemperature
