#include "common/HartItems.h"
#include "common/HartMethods.h"
#include "sampletemperature/Description.h"

// Methods about the device as a whole: its restart, its measured values at a glance.
namespace sampletemperature {
namespace {

void WatchMeasurement(IDDBuiltinLib& dd) {
  constexpr double kMostSeconds = 600;
  hart::JudgeReplies(dd);
  double seconds = 10;
  if (!hart::AskNumber(dd, "Seconds to watch (1 to 600)|de|Sekunden der Anzeige (1 bis 600)", {}, 1,
                       kMostSeconds, seconds)) {
    return;
  }
  const VariableIds ids{dd.VARID("primary_variable"), dd.VARID("primary_variable_unit"),
                        dd.VARID("loop_current"), dd.VARID("percent_of_range")};
  hart::ShowLive(dd, "%[L]{0}: %[.2f]{0} %{1}\n%[L]{2}: %[.3f]{2} mA\n%[L]{3}: %[.1f]{3}", ids,
                 static_cast<int>(seconds));
}

}  // namespace

void DescribeDeviceMethods(DeviceDescription& dd) {
  hart::DescribeDeviceReset(dd);
  dd.Method("watch_measurement")
      .Label("Watch measurement|de|Messung beobachten")
      .Help("Shows the measurement for a while|de|Zeigt die Messung eine Zeit lang")
      .Body(WatchMeasurement);
}

}  // namespace sampletemperature
