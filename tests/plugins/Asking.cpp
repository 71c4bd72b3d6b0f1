// A DTM whose methods talk to the user, one for each way to end, and a variable that cannot be
// read.
#include "dtmkit/dtmkit.h"

namespace {

using namespace ZAFHartTypes;
using namespace ZAFHartTypes::dtmkit;

void DescribeDevice(DeviceDescription& dd) {
  dd.Variable("response_code").Unsigned(1).Local();
  dd.Variable("device_status").Unsigned(1).Local();
  dd.Variable("polling_address").Unsigned(1).ReadOnly();
  dd.Variable("tag").PackedAscii(8).ReadOnly();
  for (const char* name : {"manufacturer", "device_type", "preambles", "revision"})
    dd.Variable(name).Unsigned(1).ReadOnly();
  dd.Variable("device_id").Unsigned(3).ReadOnly();
  dd.Command("read_unique_identifier", 0, Operation::Read)
      .Reply({Byte(254), "manufacturer", "device_type", "preambles", "revision", Byte(1), Byte(1),
              Byte(1), Byte(0), "device_id"});
  dd.Variable("setpoint")
      .Label("Setpoint|de|Sollwert")
      .Float()
      .Range(0, 10)
      .Format(".2f")
      .Unit("s")
      .Default(2);
  dd.Command("read_setpoint", 130, Operation::Read).Reply({"setpoint"});
  // No command can carry it, and nobody has had the description checked.
  dd.Variable("age").DateAndTime().Dynamic();
  dd.Command("read_age", 132, Operation::Read).Reply({"age"});
  dd.Menu("ages").Variables({"age", "setpoint"});
  dd.Command("write_setpoint", 131, Operation::Write).Request({"setpoint"}).Reply({"setpoint"});
}

void Ask(IDDBuiltinLib& dd) {
  dd.AddAbortMethod("clean_up");
  dd.Acknowledge("Ready?|de|Bereit?");
  if (dd.IsAbort()) return;
  const std::int32_t speed =
      dd.SelectFromList("Speed|de|Tempo", {}, "Slow;In/out;Fast|de|Langsam;Ein/aus;Schnell");
  if (dd.IsAbort()) return;
  dd.GetDevVarValue("New setpoint|de|Neuer Sollwert", {}, "setpoint");
  if (dd.IsAbort()) return;
  Variant note("none");
  dd.GetLocalVarValue("Note", {}, note);
  if (dd.IsAbort()) return;
  dd.SaveValues();
  dd.Acknowledge("Speed " + std::to_string(speed) + ", " + note.ToText());
}

void DescribeMethods(DeviceDescription& dd) {
  dd.Method("ask").Label("Ask|de|Fragen").Body(Ask);
  dd.Method("clean_up").Label("Clean up").Body([](IDDBuiltinLib& builtins) {
    builtins.Acknowledge("Cleaned up.");
    Variant never(1);
    builtins.GetLocalVarValue("Never answered", {}, never);
  });
  dd.Method("forget").Body([](IDDBuiltinLib& builtins) { builtins.AssignFloat("setpoint", 7); });
  dd.Method("stumble").Body([](IDDBuiltinLib& builtins) { builtins.FloatValue("nonsense"); });
  dd.Method("break").Body(
      [](IDDBuiltinLib&) { throw Failure(ErrorNumber::Overflow, "break", "too much"); });
  dd.Method("when_low").Body([](IDDBuiltinLib&) {}).ValidWhen([](Context& context) {
    return context.Number("setpoint") < 1;
  });
  dd.Method("give_up").Body([](IDDBuiltinLib& builtins) { builtins.Abort(true); });
  dd.Menu("root_menu").Label("Asking|de|Fragend").Methods({"ask"});
}

class Description : public DeviceDescription {
 public:
  Description() {
    DescribeDevice(*this);
    DescribeMethods(*this);
  }
};

const Description& TheDescription() {
  static const Description description;
  return description;
}

class DataModel : public DataModelBase {
 public:
  DataModel() : DataModelBase(TheDescription()) {}
};

class KernelInformation : public KernelInformationBase {
 public:
  KernelInformation() : KernelInformationBase("", "Asking.so", {}) {}
};

}  // namespace

ZAF_DTM_PLUGIN("Asking", DataModel, KernelInformation)
