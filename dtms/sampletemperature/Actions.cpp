#include "sampletemperature/Description.h"

// What happens around the reading, editing and writing of single variables and edit displays. The
// variables name these methods where they are described.
namespace sampletemperature {
namespace {

void WarnOfSensorChange(IDDBuiltinLib& dd) {
  dd.Acknowledge(
      "With another sensor the device changes its range, its units and its limits.|de|"
      "Mit einem anderen Sensor ändert das Gerät Messbereich, Einheiten und Grenzen.");
}

// What was read last time, for comparison with what is about to be read.
void KeepSensorMaximum(IDDBuiltinLib& dd) {
  dd.AssignFloat("previous_sensor_maximum", static_cast<float>(dd.Fgetval()));
  dd.SaveValues();
}

void ConvertOperatingTime(IDDBuiltinLib& dd) {
  constexpr double kHoursOfDay = 24;
  dd.AssignDouble("operating_days", dd.Fgetval() / kHoursOfDay);
  dd.SaveValues();
}

// The device takes steps of 0.1 s.
void RoundDamping(IDDBuiltinLib& dd) {
  constexpr std::int32_t kRoundToDecimals = 1016;
  const double asked = dd.Fgetval();
  const Variant rounded = Extended(dd).Func2(kRoundToDecimals, asked, 1);
  if (dd.IsAbort()) return;
  const auto nearest = static_cast<float>(rounded.ToDouble());
  if (nearest != static_cast<float>(asked)) dd.Fsetval(nearest);
}

void WarnOfMultiDrop(IDDBuiltinLib& dd) {
  constexpr std::int32_t kOff = 0;
  if (dd.Lgetval() != kOff || dd.IsAbort()) return;
  dd.PutMessage(
      "The loop current is fixed and no longer carries the measurement.|de|"
      "Der Schleifenstrom steht fest und überträgt den Messwert nicht mehr.");
}

// The limits beside the range are those of the sensor as it is now.
void StartRange(IDDBuiltinLib& dd) {
  constexpr std::int16_t kReadTransducerInformation = 14;  // HART command number
  dd.SendCommand(kReadTransducerInformation);
}

void CheckSpan(IDDBuiltinLib& dd) {
  const double span = dd.FloatValue("measuring_span");
  const double least = dd.FloatValue("minimum_span");
  const bool isComparable = dd.LongValue("range_unit") == dd.LongValue("transducer_limits_unit");
  if (dd.IsAbort() || !isComparable || span >= least) return;
  dd.Acknowledge(
      "The span of %[.2f]{0} %{2} is smaller than the %[.2f]{1} %{2} that the sensor needs.|de|"
      "Die Messspanne von %[.2f]{0} %{2} ist kleiner als die %[.2f]{1} %{2}, die der Sensor "
      "braucht.",
      {dd.VARID("measuring_span"), dd.VARID("minimum_span"), dd.VARID("range_unit")});
}

}  // namespace

void DescribeActions(DeviceDescription& dd) {
  const auto describe = [&dd](std::string_view name, SharedText label, MethodBody body) {
    dd.Method(name).Label(std::move(label)).Body(std::move(body));
  };
  describe("warn_of_sensor_change", "Another sensor|de|Anderer Sensor", WarnOfSensorChange);
  describe("keep_sensor_maximum", "Sensor maximum|de|Höchstwert", KeepSensorMaximum);
  describe("convert_operating_time", "Operating time|de|Betriebszeit", ConvertOperatingTime);
  describe("round_damping", "Damping|de|Dämpfung", RoundDamping);
  describe("warn_of_multi_drop", "Multi-drop mode|de|Multidrop-Betrieb", WarnOfMultiDrop);
  describe("start_range", "Measuring range|de|Messbereich", StartRange);
  describe("check_span", "Measuring span|de|Messspanne", CheckSpan);
}

}  // namespace sampletemperature
