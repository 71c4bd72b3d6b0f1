#include <limits>

#include "common/HartMethods.h"
#include "sampletemperature/Description.h"

// Methods that trim the sensor's measurement.
namespace sampletemperature {
namespace {

constexpr std::int16_t kReadPrimaryVariable = 1;  // HART command numbers
constexpr std::int16_t kReadWithStatus = 9;
constexpr std::int16_t kReadTransducerInformation = 14;
constexpr std::int16_t kSetZero = 43;
constexpr std::int16_t kWriteTrimPoint = 82;
constexpr std::int16_t kReadTrimRecord = 136;
constexpr std::int16_t kWriteTrimRecord = 137;
constexpr int kSecondsToWatch = 5;

// What a trim would be made by has to be good, or the user has to know better.
bool MeasuresWell(IDDBuiltinLib& dd) {
  constexpr std::int32_t kGood = 3;  // HART process data status
  if (!hart::CarryOut(dd, kReadWithStatus)) return false;
  const std::int32_t quality = dd.LongValue("primary_variable_data_quality");
  return quality == kGood || hart::Confirm(dd,
                                           "The device calls its value \"%{0}\". Go on?|de|"
                                           "Das Gerät nennt seinen Wert \"%{0}\". Fortfahren?",
                                           {dd.VARID("primary_variable_data_quality")});
}

bool TryAgain(IDDBuiltinLib& dd) {
  return !dd.IsAbort() && hart::Confirm(dd,
                                        "The device has refused the trim. Try again?|de|"
                                        "Das Gerät hat den Abgleich abgelehnt. Noch einmal?");
}

void TrimZero(IDDBuiltinLib& dd) {
  hart::JudgeReplies(dd);
  if (!MeasuresWell(dd)) return;
  const VariableIds ids{dd.VARID("primary_variable"), dd.VARID("primary_variable_unit")};
  dd.Acknowledge(
      "Bring the sensor to zero. \"%[L]{0}\" will then read 0 %{1}.|de|"
      "Bringen Sie den Sensor auf Null. \"%[L]{0}\" zeigt danach 0 %{1}.",
      ids);
  if (dd.IsAbort()) return;
  const char* const steady =
      "Wait until the value is steady: %[.2f]{0} %{1}|de|"
      "Warten Sie, bis der Wert ruhig steht: %[.2f]{0} %{1}";
  if (!hart::ShowLive(dd, steady, ids, kSecondsToWatch)) return;
  while (!hart::CarryOut(dd, kSetZero)) {
    if (!TryAgain(dd)) return;
  }
  dd.Delay(2, "The value settles …|de|Der Wert beruhigt sich …");
  if (dd.IsAbort() || !hart::CarryOut(dd, kReadPrimaryVariable)) return;
  dd.Acknowledge("Zero is trimmed: %[.2f]{0} %{1}|de|Null ist abgeglichen: %[.2f]{0} %{1}", ids);
}

struct TrimPoint {
  std::int32_t code;  // of command 82
  const char* instruction;
};

constexpr TrimPoint kLowerPoint{1,
                                "Bring sensor and reference to the lower trim point.|de|"
                                "Bringen Sie Sensor und Referenz auf den unteren Abgleichpunkt."};
constexpr TrimPoint kUpperPoint{2,
                                "Bring sensor and reference to the upper trim point.|de|"
                                "Bringen Sie Sensor und Referenz auf den oberen Abgleichpunkt."};

struct Limits {
  double minimum = -std::numeric_limits<double>::infinity();
  double maximum = std::numeric_limits<double>::infinity();
};

// Those of the sensor, when the device gives them in the unit of the trim.
Limits SensorLimits(IDDBuiltinLib& dd) {
  if (dd.LongValue("transducer_limits_unit") != dd.LongValue("trim_unit")) return {};
  return {dd.FloatValue("lower_transducer_limit"), dd.FloatValue("upper_transducer_limit")};
}

// Trims one point to what the user reads off the reference.
bool TrimTo(IDDBuiltinLib& dd, const TrimPoint& point, const Limits& limits, double& reference) {
  const VariableIds ids{dd.VARID("primary_variable"), dd.VARID("primary_variable_unit")};
  dd.Acknowledge(point.instruction);
  if (dd.IsAbort()) return false;
  const char* const steady =
      "Wait until the value is steady: %[.2f]{0} %{1}|de|"
      "Warten Sie, bis der Wert ruhig steht: %[.2f]{0} %{1}";
  if (!hart::ShowLive(dd, steady, ids, kSecondsToWatch)) return false;
  reference = dd.FloatValue("primary_variable");
  do {
    if (!hart::AskNumber(dd,
                         "Value of the reference; the device shows %[.2f]{0} %{1}|de|"
                         "Wert der Referenz; das Gerät zeigt %[.2f]{0} %{1}",
                         ids, limits.minimum, limits.maximum, reference)) {
      return false;
    }
    dd.AssignLong("trim_point", point.code);
    dd.AssignFloat("trim_reference", static_cast<float>(reference));
    if (hart::CarryOut(dd, kWriteTrimPoint)) return true;
  } while (TryAgain(dd));
  return false;
}

// The device keeps who trimmed it, when, and at which points.
void Record(IDDBuiltinLib& dd, double lower, double upper) {
  dd.AssignFloat("lower_trim_point", static_cast<float>(lower));
  dd.AssignFloat("upper_trim_point", static_cast<float>(upper));
  dd.GetDevVarValue("Day of the trim|de|Tag des Abgleichs", {}, "trim_date");
  if (dd.IsAbort()) return;
  dd.GetDevVarValue("Your name|de|Ihr Name", {}, "trim_operator");
  if (dd.IsAbort() || !hart::CarryOut(dd, kWriteTrimRecord)) return;
  dd.SaveValues();
  const VariableIds ids{dd.VARID("lower_trim_point"), dd.VARID("upper_trim_point"),
                        dd.VARID("trim_unit")};
  dd.Acknowledge(
      "Trimmed at %[.2f]{0} %{2} and %[.2f]{1} %{2}.|de|"
      "Abgeglichen bei %[.2f]{0} %{2} und %[.2f]{1} %{2}.",
      ids);
}

void TrimSensor(IDDBuiltinLib& dd) {
  hart::JudgeReplies(dd);
  if (!MeasuresWell(dd)) return;
  for (const std::int16_t command : {kReadTrimRecord, kReadTransducerInformation}) {
    if (!hart::CarryOut(dd, command)) return;
  }
  dd.AssignVar("trim_unit", "primary_variable_unit");
  Limits limits = SensorLimits(dd);
  const double span = dd.FloatValue("minimum_span");
  double lower = 0;
  double upper = 0;
  if (!TrimTo(dd, kLowerPoint, limits, lower)) return;
  limits.minimum = lower + span;
  if (!TrimTo(dd, kUpperPoint, limits, upper)) return;
  Record(dd, lower, upper);
}

}  // namespace

void DescribeTrimMethods(DeviceDescription& dd) {
  dd.Method("sensor_zero_trim")
      .Label("Sensor zero trim|de|Nullpunktabgleich")
      .Help("Makes the present value the zero|de|Macht den jetzigen Wert zu Null")
      .Body(TrimZero);
  dd.Method("sensor_trim")
      .Label("Two-point sensor trim|de|Zweipunktabgleich")
      .Help("Trims the sensor at two points|de|Gleicht den Sensor an zwei Punkten ab")
      .Body(TrimSensor);
}

}  // namespace sampletemperature
