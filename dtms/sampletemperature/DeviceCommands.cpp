#include "common/HartItems.h"
#include "common/HartResponseCodes.h"
#include "sampletemperature/Description.h"

// The device's own commands, from 128 on: in pairs, the even number reads what the odd one writes.
namespace sampletemperature {
namespace {

// A reading and a writing command of the same data; both replies carry it.
void DescribePair(DeviceDescription& dd, const std::string& subject, std::int16_t readNumber,
                  std::initializer_list<CommandItem> items,
                  std::initializer_list<ResponseCode> writeCodes = {}) {
  dd.Command("read_" + subject, readNumber, Operation::Read).Reply(items).Codes(hart::ReadCodes());
  dd.Command("write_" + subject, static_cast<std::int16_t>(readNumber + 1), Operation::Write)
      .Request(items)
      .Reply(items)
      .Codes(hart::WriteCodes(writeCodes));
}

void DescribeSensorCommands(DeviceDescription& dd) {
  DescribePair(dd, "sensor_type", 128, {"sensor_type"},
               {hart::InvalidSelection(),
                {65, ResponseCodeType::DataEntryWarning,
                 "Range adapted to the sensor|de|Messbereich an den Sensor angepasst"}});
  DescribePair(dd, "resistance_settings", 130,
               {"sensor_wiring", "wire_resistance", "rtd_r0", "rtd_a", "rtd_b", "rtd_c"},
               {hart::InvalidSelection(),
                hart::ParameterTooLarge(),
                hart::ParameterTooSmall(),
                {66, ResponseCodeType::ModeError,
                 "No resistance thermometer selected|de|Kein Widerstandsthermometer gewählt"}});
  DescribePair(dd, "cold_junction_settings", 132,
               {"cold_junction_source", "cold_junction_temperature", "cold_junction_offset"},
               {hart::InvalidSelection(),
                hart::ParameterTooLarge(),
                hart::ParameterTooSmall(),
                {67, ResponseCodeType::ModeError,
                 "No thermocouple selected|de|Kein Thermoelement gewählt"}});
}

void DescribeOutputCommands(DeviceDescription& dd) {
  DescribePair(dd, "alarm_settings", 134,
               {"alarm_selection", "low_alarm_current", "high_alarm_current",
                "low_saturation_current", "high_saturation_current", "alarm_delay"},
               {hart::InvalidSelection(), hart::ParameterTooLarge(), hart::ParameterTooSmall()});
  DescribePair(dd, "trim_points", 136,
               {"trim_unit", "lower_trim_point", "upper_trim_point", "trim_date", "trim_operator"},
               {hart::InvalidUnits(),
                {68, ResponseCodeType::ProcessError,
                 "Trim points too close|de|Abgleichpunkte zu nahe beieinander"}});
}

void DescribeLinearisationCommands(DeviceDescription& dd) {
  DescribePair(dd, "linearisation", 138, {"linearisation_mode", "linearisation_count"},
               {hart::InvalidSelection()});
  constexpr std::string_view kArray = "linearisation_points";
  constexpr std::string_view kIndex = "linearisation_index";
  const std::initializer_list<CommandItem> point{Index(kIndex), Element(kArray, kIndex, "INPUT"),
                                                 Element(kArray, kIndex, "OUTPUT")};
  dd.Command("read_linearisation_point", 140, Operation::Read)
      .Request({Index(kIndex)})
      .Reply(point)
      .Codes(hart::ReadCodes({hart::InvalidSelection(), hart::TooFewDataBytes()}));
  dd.Command("write_linearisation_point", 141, Operation::Write)
      .Request(point)
      .Reply(point)
      .TransactionCodes({{69, ResponseCodeType::DataEntryError,
                          "Inputs must rise from point to point|de|"
                          "Eingänge müssen von Punkt zu Punkt steigen"}})
      .Codes(hart::WriteCodes({hart::InvalidSelection()}));
}

void DescribeServiceCommands(DeviceDescription& dd) {
  dd.Command("read_operating_data", 142, Operation::Read)
      .Reply({"operating_hours", "sensor_minimum", "sensor_maximum", "electronics_minimum",
              "electronics_maximum", "restart_count", "event_log"})
      .Codes(hart::ReadCodes({hart::UpdateFailure()}));
  DescribePair(dd, "service_data", 144,
               {"service_date", "service_interval", "service_note", "service_code"});
}

void DescribeSensorTrim(DeviceDescription& dd) {
  using enum ResponseCodeType;
  // HART command 82; the device keeps what follows from it, not the data
  dd.Command("write_device_variable_trim_point", 82, Operation::Command)
      .Request({Index(hart::kDeviceVariableCode), Info("trim_point"), Info("trim_unit"),
                Info("trim_reference")})
      .Reply({Index(hart::kDeviceVariableCode), Info("trim_point"), Info("trim_unit"),
              Info("trim_reference")})
      .Codes(hart::WriteCodes(
          {hart::InvalidSelection(),
           hart::ParameterTooLarge(),
           hart::ParameterTooSmall(),
           {9, ProcessError, "Applied process too high|de|Anliegender Messwert zu hoch"},
           {10, ProcessError, "Applied process too low|de|Anliegender Messwert zu niedrig"},
           {11, DataEntryError, "Invalid device variable code|de|Ungültige Gerätevariable"},
           {13, ProcessError,
            "Trim fails, nothing is changed|de|Abgleich misslingt, nichts ist geändert"},
           hart::InvalidUnits()}));
}

}  // namespace

void DescribeDeviceCommands(DeviceDescription& dd) {
  DescribeSensorTrim(dd);
  DescribeSensorCommands(dd);
  DescribeOutputCommands(dd);
  DescribeLinearisationCommands(dd);
  DescribeServiceCommands(dd);
}

}  // namespace sampletemperature
