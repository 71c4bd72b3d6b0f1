#include "common/FixedLoopCurrent.h"
#include "common/HartItems.h"
#include "common/HartMethods.h"

// Methods that fix the loop current and compare it with a meter.
namespace hart {
namespace {

constexpr double kZeroCurrent = 4;   // mA
constexpr double kSpanCurrent = 20;  // mA
// What the device can drive, in mA.
constexpr double kLeastCurrent = 3.5;
constexpr double kGreatestCurrent = 23;

bool WarnOfControl(IDDBuiltinLib& dd) {
  dd.Acknowledge(
      "The loop current will not follow the measurement. Take the loop out of automatic "
      "control.|de|"
      "Der Schleifenstrom wird dem Messwert nicht folgen. Nehmen Sie den Regelkreis aus der "
      "Automatik.");
  return !dd.IsAbort();
}

bool TellReturn(IDDBuiltinLib& dd) {
  dd.Acknowledge(
      "The loop current follows the measurement again. Put the loop back into automatic "
      "control.|de|"
      "Der Schleifenstrom folgt wieder dem Messwert. Schalten Sie den Regelkreis wieder auf "
      "Automatik.");
  return !dd.IsAbort();
}

// Nothing to choose any more, or the user has broken off: false.
bool ChooseCurrent(IDDBuiltinLib& dd, double& current) {
  enum Choice : std::int32_t { kZero, kSpan, kOther, kEnd };
  const std::int32_t choice = dd.SelectFromList(
      "Current to fix|de|Strom, der gehalten wird", {},
      "4 mA;20 mA;Another value;End of test|de|4 mA;20 mA;Anderer Wert;Ende des Tests");
  if (dd.IsAbort() || choice == kEnd) return false;
  if (choice != kOther) {
    current = choice == kZero ? kZeroCurrent : kSpanCurrent;
    return true;
  }
  return AskNumber(dd, "Current in mA (3.5 to 23)|de|Strom in mA (3,5 bis 23)", {}, kLeastCurrent,
                   kGreatestCurrent, current);
}

void TestLoop(IDDBuiltinLib& dd) {
  JudgeReplies(dd);
  if (!WarnOfControl(dd)) return;
  FixedLoopCurrent loop(dd);
  double current = kZeroCurrent;
  while (ChooseCurrent(dd, current)) {
    if (loop.Fix(current)) {
      dd.Acknowledge(
          "The device holds %[.3f]{0} mA. Compare the reading of the control system.|de|"
          "Das Gerät hält %[.3f]{0} mA. Vergleichen Sie die Anzeige des Leitsystems.",
          {dd.VARID("fixed_loop_current")});
    }
    if (dd.IsAbort()) return;
  }
  if (dd.IsAbort() || !loop.Release()) return;
  TellReturn(dd);
}

// One end of the current: the device is told what the meter shows until both agree.
bool TrimAt(IDDBuiltinLib& dd, FixedLoopCurrent& loop, double current, std::int16_t trimCommand) {
  if (!loop.Fix(current)) return false;
  const std::int16_t id = dd.VARID("fixed_loop_current");
  for (;;) {
    double reading = current;
    if (!AskNumber(dd, "Reading of the meter in mA|de|Anzeige des Messgeräts in mA", {},
                   kLeastCurrent, kGreatestCurrent, reading)) {
      return false;
    }
    dd.AssignFloat("measured_loop_current", static_cast<float>(reading));
    CarryOut(dd, trimCommand);
    if (dd.IsAbort()) return false;
    if (Confirm(dd,
                "Does the meter show %[.3f]{0} mA now?|de|"
                "Zeigt das Messgerät jetzt %[.3f]{0} mA?",
                {id})) {
      return true;
    }
    if (dd.IsAbort()) return false;
  }
}

void TrimLoopCurrent(IDDBuiltinLib& dd) {
  constexpr std::int16_t kTrimZero = 45;  // HART command numbers
  constexpr std::int16_t kTrimGain = 46;
  JudgeReplies(dd);
  if (!WarnOfControl(dd)) return;
  dd.Acknowledge(
      "Connect a reference meter to the loop.|de|"
      "Schließen Sie ein Referenzmessgerät an die Schleife an.");
  if (dd.IsAbort()) return;
  FixedLoopCurrent loop(dd);
  if (!TrimAt(dd, loop, kZeroCurrent, kTrimZero)) return;
  if (!TrimAt(dd, loop, kSpanCurrent, kTrimGain)) return;
  if (!loop.Release()) return;
  TellReturn(dd);
}

}  // namespace

void DescribeLoopMethods(DeviceDescription& dd, const Condition& hasLoopCurrent) {
  DescribeLoopRelease(dd);
  dd.Method("loop_test")
      .Label("Loop test|de|Schleifentest")
      .Help("Holds the loop current at chosen values|de|Hält den Schleifenstrom auf festen Werten")
      .Body(TestLoop)
      .ValidWhen(hasLoopCurrent);
  dd.Method("loop_current_trim")
      .Label("Loop current trim|de|Abgleich des Schleifenstroms")
      .Help("Trims 4 mA and 20 mA by a meter|de|Gleicht 4 mA und 20 mA mit einem Messgerät ab")
      .Body(TrimLoopCurrent)
      .ValidWhen(hasLoopCurrent);
}

}  // namespace hart
