#include "sampletemperature/Description.h"
#include "sampletemperature/DeviceVariable.h"
#include "sampletemperature/LinearisationPoint.h"

namespace sampletemperature {

// Everything that is read from the device and kept. What others depend on stands first.
void DescribeUploadMenu(DeviceDescription& dd) {
  auto menu = dd.Menu("upload_variables").Label("Offline parameters|de|Offline-Parameter");
  menu.Variables({"sensor_type", "sensor_wiring", "wire_resistance", "rtd_r0", "rtd_a", "rtd_b",
                  "rtd_c", "cold_junction_source", "cold_junction_temperature",
                  "cold_junction_offset"});
  menu.ReadOnlyVariables({"manufacturer_id", "device_type", "device_id", "request_preambles",
                          "max_device_variables", "device_flags", "private_label_distributor",
                          "device_profile", "universal_revision", "device_revision",
                          "software_revision", "hardware_revision", "physical_signaling_code"});
  menu.Variables({"response_preambles", "polling_address", "loop_current_mode", "tag", "descriptor",
                  "date", "message", "long_tag", "final_assembly_number", "primary_variable_unit",
                  "secondary_variable_unit"});
  menu.ReadOnlyVariables({"tertiary_variable_unit", "fourth_variable_unit"});
  for (const DeviceVariable& variable : kDeviceVariables) {
    const std::string name = variable.name;
    menu.ReadOnlyVariables({name + "_classification", name + "_assignment"});
  }
  menu.Variables({"transducer_serial_number"});
  menu.ReadOnlyVariables({"transducer_limits_unit", "upper_transducer_limit",
                          "lower_transducer_limit", "minimum_span", "transfer_function",
                          "write_protect", "analog_channel_flags"});
  menu.Variables({"range_unit", "upper_range_value", "lower_range_value", "damping_value",
                  "alarm_selection", "low_alarm_current", "high_alarm_current",
                  "low_saturation_current", "high_saturation_current", "alarm_delay", "trim_unit",
                  "lower_trim_point", "upper_trim_point", "trim_date", "trim_operator",
                  "linearisation_mode", "linearisation_count"});
  for (int number = 1; number <= kLinearisationPoints; ++number)
    menu.Variables({LinearisationInput(number), LinearisationOutput(number)});
  menu.Variables({"service_date", "service_interval", "service_note", "service_code"});
  menu.ReadOnlyVariables({"operating_hours", "sensor_minimum", "sensor_maximum",
                          "electronics_minimum", "electronics_maximum", "restart_count",
                          "event_log"});
}

}  // namespace sampletemperature
