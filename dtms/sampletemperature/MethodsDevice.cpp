#include "common/HartMethods.h"
#include "sampletemperature/Description.h"

// Methods about the device as a whole: its restart, its measured values at a glance.
namespace sampletemperature {
namespace {

constexpr std::int16_t kReadUniqueIdentifier = 0;  // HART command numbers
constexpr std::int16_t kResetDevice = 42;
constexpr std::uint8_t kColdStart = 0x20;  // device status

void ResetDevice(IDDBuiltinLib& dd) {
  hart::JudgeReplies(dd);
  if (!hart::Confirm(dd,
                     "The device restarts and does not measure meanwhile. Reset it?|de|"
                     "Das Gerät startet neu und misst solange nicht. Zurücksetzen?")) {
    return;
  }
  if (!hart::CarryOut(dd, kResetDevice)) return;
  dd.Delay(3, "The device restarts …|de|Das Gerät startet neu …");
  if (dd.IsAbort()) return;
  ByteBuffer status{0, 0, 0};
  dd.Send(kReadUniqueIdentifier, status);
  if (dd.IsAbort()) return;
  const bool hasRestarted =
      (status.Item(static_cast<std::size_t>(StatusByte::Device)) & kColdStart) != 0;
  dd.Acknowledge(hasRestarted ? "The device has restarted.|de|Das Gerät ist neu gestartet."
                              : "The device does not report a restart.|de|"
                                "Das Gerät meldet keinen Neustart.");
}

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
  dd.Method("device_reset")
      .Label("Device reset|de|Gerät zurücksetzen")
      .Help("Restarts the device|de|Startet das Gerät neu")
      .Body(ResetDevice);
  dd.Method("watch_measurement")
      .Label("Watch measurement|de|Messung beobachten")
      .Help("Shows the measurement for a while|de|Zeigt die Messung eine Zeit lang")
      .Body(WatchMeasurement);
}

}  // namespace sampletemperature
