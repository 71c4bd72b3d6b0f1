#include "sampletemperature/Description.h"
#include "sampletemperature/LinearisationPoint.h"

namespace sampletemperature {
namespace {

void DescribeSettings(DeviceDescription& dd) {
  dd.Menu("sensor_menu")
      .Label("Sensor")
      .Variables({"sensor_type", "sensor_wiring", "wire_resistance", "cold_junction_source",
                  "cold_junction_temperature", "cold_junction_offset", "transducer_serial_number"})
      .ReadOnlyVariables({"transducer_limits_unit", "lower_transducer_limit",
                          "upper_transducer_limit", "minimum_span"})
      .Menus({"coefficients_menu"});
  dd.Menu("coefficients_menu")
      .Label("Coefficients|de|Koeffizienten")
      .Variables({"rtd_r0", "rtd_a", "rtd_b", "rtd_c"});
  dd.Menu("output_menu")
      .Label("Output|de|Ausgang")
      .Variables({"primary_variable_unit", "range_unit", "lower_range_value", "upper_range_value",
                  "damping_value", "loop_current_mode"})
      .ReadOnlyVariables({"measuring_span", "transfer_function"})
      .EditDisplays({"range_form"})
      .Menus({"alarm_menu"});
  dd.Menu("alarm_menu")
      .Label("Alarm")
      .Variables({"alarm_selection", "low_alarm_current", "high_alarm_current",
                  "low_saturation_current", "high_saturation_current", "alarm_delay"});
  auto linearisation = dd.Menu("linearisation_menu")
                           .Label("Linearisation|de|Linearisierung")
                           .Variables({"linearisation_mode", "linearisation_count"});
  for (int number = 1; number <= kLinearisationPoints; ++number)
    linearisation.Variables({LinearisationInput(number), LinearisationOutput(number)});
  dd.Menu("setup_menu")
      .Label("Device setup|de|Geräteeinstellung")
      .Menus({"sensor_menu", "output_menu", "linearisation_menu", "identification_menu"});
}

void DescribeIdentification(DeviceDescription& dd) {
  dd.Menu("identification_menu")
      .Label("Identification|de|Identifikation")
      .Variables({"tag", "long_tag", "descriptor", "message", "date", "final_assembly_number",
                  "polling_address", "response_preambles"})
      .ReadOnlyVariables({"manufacturer_id", "device_type", "device_id", "universal_revision",
                          "device_revision", "software_revision", "hardware_revision"});
}

void DescribeService(DeviceDescription& dd) {
  dd.Menu("service_menu")
      .Label("Service|de|Wartung")
      .Variables({"service_date", "service_interval", "service_note", "service_code"})
      .ReadOnlyVariables({"operating_hours", "operating_days", "restart_count", "event_log",
                          "sensor_minimum", "sensor_maximum", "previous_sensor_maximum",
                          "electronics_minimum", "electronics_maximum"})
      .EditDisplays({"service_form"})
      .Menus({"trim_menu", "test_menu"})
      .Methods({"device_reset"});
  dd.Menu("test_menu")
      .Label("Tests|de|Tests")
      .ReadOnlyVariables({"loop_current_mode", "loop_current"})
      .Methods({"loop_test", "self_test", "watch_measurement"});
  dd.Menu("trim_menu")
      .Label("Sensor trim|de|Sensorabgleich")
      .Variables(
          {"trim_unit", "lower_trim_point", "upper_trim_point", "trim_date", "trim_operator"})
      .Methods({"sensor_zero_trim", "sensor_trim", "loop_current_trim"});
}

// The menus that the kernel information names.
void DescribeStandardMenus(DeviceDescription& dd) {
  dd.Menu("online_parameters")
      .Label("Online parameters|de|Online-Parameter")
      .Menus({"setup_menu", "service_menu"});
  dd.Menu("process_variables")
      .Label("Process variables|de|Prozessgrößen")
      .ReadOnlyVariables({"primary_variable", "primary_variable_data_quality",
                          "primary_variable_limit_status", "percent_of_range", "loop_current",
                          "secondary_variable", "tertiary_variable", "fourth_variable"});
  dd.Menu("status_display")
      .Label("Status")
      .ReadOnlyVariables(
          {kDeviceStatus, "extended_device_status", "device_specific_status_0",
           "device_specific_status_1", "device_specific_status_2", "device_specific_status_3",
           "device_specific_status_4", "device_specific_status_5", "standardized_status_0",
           "standardized_status_1", "standardized_status_2", "standardized_status_3",
           "analog_channel_saturated", "analog_channel_fixed", "configuration_change_counter"})
      .Methods({"show_status"});
}

}  // namespace

void DescribeMenus(DeviceDescription& dd) {
  DescribeSettings(dd);
  DescribeIdentification(dd);
  DescribeService(dd);
  DescribeStandardMenus(dd);
  dd.Menu("root_menu")
      .Label("Temperature transmitter|de|Temperaturmessumformer")
      .Menus({"process_variables", "setup_menu", "service_menu", "status_display"});
}

}  // namespace sampletemperature
