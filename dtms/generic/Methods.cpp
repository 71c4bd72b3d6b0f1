#include "common/HartMethods.h"
#include "generic/Revision.h"

namespace generic {
namespace {

constexpr std::int16_t kReadDeviceInformation = 15;  // HART command number

// A command that the user confirms.
struct Action {
  const char* name;
  const char* label;
  const char* help;
  std::int16_t command;
  bool movesRange;  // the range values are read again
  const char* question;
};

constexpr Action kActions[] = {
    {"set_upper_range_value", "Set upper range value|de|Messbereichsende übernehmen",
     "Takes the present measurement as upper range value|de|"
     "Übernimmt den anliegenden Messwert als Messbereichsende",
     36, true,
     "The present measurement becomes the upper range value. Go on?|de|"
     "Der anliegende Messwert wird zum Messbereichsende. Weiter?"},
    {"set_lower_range_value", "Set lower range value|de|Messbereichsanfang übernehmen",
     "Takes the present measurement as lower range value|de|"
     "Übernimmt den anliegenden Messwert als Messbereichsanfang",
     37, true,
     "The present measurement becomes the lower range value. Go on?|de|"
     "Der anliegende Messwert wird zum Messbereichsanfang. Weiter?"},
    {"set_zero", "Set zero|de|Nullpunkt setzen",
     "Takes the present measurement as zero|de|Übernimmt den anliegenden Messwert als Null", 43,
     true,
     "The present measurement becomes zero. Go on?|de|Der anliegende Messwert wird zu null. "
     "Weiter?"},
    {"reset_configuration_changed",
     "Reset configuration changed|de|Konfigurationsänderung quittieren",
     "Resets the status bit of this master|de|Setzt das Statusbit dieses Masters zurück", 38, false,
     "Other tools are not told any more that the configuration was changed. Go on?|de|"
     "Andere Werkzeuge erfahren nicht mehr, dass die Konfiguration geändert wurde. Weiter?"},
};

void Run(const Action& action, IDDBuiltinLib& dd) {
  hart::JudgeReplies(dd);
  if (!hart::Confirm(dd, action.question) || !hart::CarryOut(dd, action.command)) return;
  if (action.movesRange && !hart::CarryOut(dd, kReadDeviceInformation)) return;
  dd.Acknowledge("The device has done so.|de|Das Gerät hat es ausgeführt.");
}

// In multi-drop mode the current carries no measurement. Before revision 6 the address decides.
bool HasLoopCurrent(Context& context) {
  return RevisionOf(context) >= Revision::Hart6 ? context.Long("loop_current_mode") != 0
                                                : context.Long("polling_address") == 0;
}

}  // namespace

void DescribeMethods(DeviceDescription& dd) {
  hart::DescribeLoopMethods(dd, HasLoopCurrent);
  hart::DescribeSelfTest(dd);
  hart::DescribeDeviceReset(dd);
  for (const Action& action : kActions) {
    dd.Method(action.name)
        .Label(action.label)
        .Help(action.help)
        .Body([&action](IDDBuiltinLib& builtins) { Run(action, builtins); });
  }
}

}  // namespace generic
