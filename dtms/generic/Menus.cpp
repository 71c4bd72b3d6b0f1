#include "common/HartMethods.h"
#include "generic/Description.h"
#include "generic/DeviceVariable.h"
#include "generic/DynamicVariable.h"

namespace generic {
namespace {

// What a device of its revision has to tell: universal commands alone. Common practice data is read
// when it is looked at, so that a device without it loads without errors. What others depend on
// stands first.
void DescribeUploadMenu(DeviceDescription& dd) {
  auto menu = dd.Menu("upload_variables").Label("Offline parameters|de|Offline-Parameter");
  menu.ReadOnlyVariables({"universal_revision", "manufacturer_id", "device_type", "device_id",
                          "request_preambles", "response_preambles", "max_device_variables",
                          "device_flags", "device_profile", "device_revision", "software_revision",
                          "hardware_revision", "physical_signaling_code"});
  for (const DynamicVariable& variable : kDynamicVariables)
    menu.ReadOnlyVariables({std::string(variable.name) + "_classification"});
  menu.Variables({"polling_address", "loop_current_mode", "tag", "descriptor", "date", "message",
                  "long_tag", "final_assembly_number", "primary_variable_unit", "range_unit",
                  "upper_range_value", "lower_range_value", "damping_value", "transfer_function"});
  menu.ReadOnlyVariables({"alarm_selection", "write_protect", "private_label_distributor",
                          "analog_channel_flags", "transducer_serial_number",
                          "transducer_limits_unit", "upper_transducer_limit",
                          "lower_transducer_limit", "minimum_span"});
}

void DescribeIdentification(DeviceDescription& dd) {
  dd.Menu("identification_menu")
      .Label("Identification|de|Identifikation")
      .Variables({"tag", "long_tag", "descriptor", "message", "date", "final_assembly_number",
                  "polling_address", "response_preambles"})
      .ReadOnlyVariables({"manufacturer_id", "private_label_distributor", "device_type",
                          "device_id", "device_profile", "universal_revision", "device_revision",
                          "software_revision", "hardware_revision", "physical_signaling_code",
                          "device_flags", "request_preambles", "max_device_variables",
                          "write_protect"});
}

void DescribeSettings(DeviceDescription& dd) {
  dd.EditDisplay("range_form")
      .Label("Measuring range|de|Messbereich")
      .Display({"primary_variable", "lower_transducer_limit", "upper_transducer_limit"})
      .EditAsOne({"range_values"});
  dd.Menu("range_menu")
      .Label("Range and output|de|Messbereich und Ausgang")
      .Variables({"primary_variable_unit", "range_unit", "lower_range_value", "upper_range_value",
                  "damping_value", "transfer_function", "loop_current_mode"})
      .ReadOnlyVariables({"alarm_selection", "analog_channel_flags"})
      .EditDisplays({"range_form"})
      .Menus({"sensor_menu"})
      .Methods({"set_lower_range_value", "set_upper_range_value", "set_zero"});
  dd.Menu("sensor_menu")
      .Label("Sensor")
      .Variables({"transducer_serial_number"})
      .ReadOnlyVariables({"transducer_limits_unit", "lower_transducer_limit",
                          "upper_transducer_limit", "minimum_span"});
  auto mapping = dd.Menu("mapping_menu").Label("Mapping|de|Zuordnung");
  for (const DynamicVariable& variable : kDynamicVariables) {
    const std::string name = variable.name;
    mapping.Variables({name + "_assignment"}).ReadOnlyVariables({name + "_classification"});
  }
  dd.Menu("burst_menu")
      .Label("Burst mode|de|Burst-Betrieb")
      .Variables({"burst_mode_select", "burst_command_number"});
}

void DescribeDeviceVariableMenus(DeviceDescription& dd) {
  auto all = dd.Menu("device_variables_menu").Label("Device variables|de|Gerätevariablen");
  for (int code = 0; code < kDeviceVariableCount; ++code) {
    const std::string name = DeviceVariableName(code);
    const std::string number = std::to_string(code);
    all.Menus({name + "_menu"});
    dd.Menu(name + "_menu")
        .Label("Device variable " + number + "|de|Gerätevariable " + number)
        .ReadOnlyVariables({name + "_value", name + "_classification", name + "_data_quality",
                            name + "_limit_status", name + "_family_status"})
        .Variables({name + "_unit", name + "_damping"})
        .ReadOnlyVariables({name + "_serial_number", name + "_limits_unit", name + "_lower_limit",
                            name + "_upper_limit", name + "_minimum_span"});
  }
}

void DescribeStatusMenus(DeviceDescription& dd) {
  auto status = dd.Menu("status_display").Label("Status");
  status.ReadOnlyVariables({kDeviceStatus, "extended_device_status", "device_operating_mode",
                            "configuration_change_counter"});
  for (int number = 0; number < hart::kOwnStatusBytes; ++number)
    status.ReadOnlyVariables({hart::OwnStatus(number)});
  status.Menus({"further_status_menu"}).Methods({"self_test", "reset_configuration_changed"});
  auto further = dd.Menu("further_status_menu").Label("Further status|de|Weiterer Status");
  further.ReadOnlyVariables({"standardized_status_0", "standardized_status_1",
                             "standardized_status_2", "standardized_status_3",
                             "analog_channel_saturated", "analog_channel_fixed"});
  for (int number = 14; number <= 24; ++number)
    further.ReadOnlyVariables({hart::OwnStatus(number)});
}

// The menus that the kernel information names.
void DescribeStandardMenus(DeviceDescription& dd) {
  dd.Menu("online_parameters")
      .Label("Online parameters|de|Online-Parameter")
      .Menus({"setup_menu", "service_menu"});
  dd.Menu("setup_menu")
      .Label("Device setup|de|Geräteeinstellung")
      .Menus({"identification_menu", "range_menu", "mapping_menu", "device_variables_menu",
              "burst_menu"});
  dd.Menu("service_menu")
      .Label("Service|de|Wartung")
      .Methods({"loop_test", "loop_current_trim", "self_test", "device_reset"});
  auto process = dd.Menu("process_variables").Label("Process variables|de|Prozessgrößen");
  for (const DynamicVariable& variable : kDynamicVariables)
    process.ReadOnlyVariables({variable.name});
  process.ReadOnlyVariables({"loop_current", "percent_of_range"});
}

}  // namespace

void DescribeMenus(DeviceDescription& dd) {
  DescribeUploadMenu(dd);
  DescribeIdentification(dd);
  DescribeSettings(dd);
  DescribeDeviceVariableMenus(dd);
  DescribeStatusMenus(dd);
  DescribeStandardMenus(dd);
  dd.Menu("root_menu")
      .Label("HART device|de|HART-Gerät")
      .Menus({"process_variables", "setup_menu", "service_menu", "status_display"});
}

}  // namespace generic
