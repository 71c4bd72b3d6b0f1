#include "common/HartItems.h"
#include "common/HartMethods.h"

// Methods about the device as a whole: its self test, its restart.
namespace hart {

using namespace ZAFHartTypes;          // NOLINT(google-build-using-namespace)
using namespace ZAFHartTypes::dtmkit;  // NOLINT(google-build-using-namespace)

namespace {

constexpr std::int16_t kReadUniqueIdentifier = 0;  // HART command numbers
constexpr std::int16_t kSelfTest = 41;
constexpr std::int16_t kResetDevice = 42;
constexpr std::uint8_t kColdStart = 0x20;  // device status
constexpr std::uint8_t kMalfunction = 0x80;

// The device's own bytes lead the data of command 48. True when there was something to show.
bool ShowAdditionalStatus(IDDBuiltinLib& dd, const ByteBuffer& data) {
  bool hasShown = false;
  for (int number = 0; number < kOwnStatusBytes && !dd.IsAbort(); ++number) {
    const auto position = static_cast<std::size_t>(number);
    const std::uint8_t bits = position < data.Count() ? data.Item(position) : std::uint8_t{0};
    if (bits == 0) continue;
    dd.DisplayXmtrStatus(OwnStatus(number), bits);
    hasShown = true;
  }
  return hasShown;
}

const char* TestResult(std::uint8_t deviceStatus, bool hasShown) {
  if ((deviceStatus & kMalfunction) != 0)
    return "The device has found a malfunction.|de|Das Gerät hat eine Störung gefunden.";
  if (hasShown) {
    return "Apart from these messages the device has found no fault.|de|"
           "Abgesehen von diesen Meldungen hat das Gerät keinen Fehler gefunden.";
  }
  return "The device has found no fault.|de|Das Gerät hat keinen Fehler gefunden.";
}

void TestDevice(IDDBuiltinLib& dd) {
  ShowEveryStatus(dd);
  if (!Confirm(dd,
               "The measurement may jump during the test. Start it?|de|"
               "Die Messung kann während des Tests springen. Starten?")) {
    return;
  }
  std::uint8_t deviceStatus = 0;
  ByteBuffer additional;
  if (!CarryOut(dd, kSelfTest, deviceStatus, additional)) return;
  if (deviceStatus != 0) dd.DisplayDeviceStatus(deviceStatus);
  if (dd.IsAbort()) return;
  const bool hasShown = ShowAdditionalStatus(dd, additional) || deviceStatus != 0;
  if (!dd.IsAbort()) dd.Acknowledge(TestResult(deviceStatus, hasShown));
}

void ResetDevice(IDDBuiltinLib& dd) {
  JudgeReplies(dd);
  if (!Confirm(dd,
               "The device restarts and does not measure meanwhile. Reset it?|de|"
               "Das Gerät startet neu und misst solange nicht. Zurücksetzen?")) {
    return;
  }
  if (!CarryOut(dd, kResetDevice)) return;
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

}  // namespace

void DescribeSelfTest(DeviceDescription& dd) {
  dd.Method("self_test")
      .Label("Self test|de|Selbsttest")
      .Help("Has the device test itself|de|Lässt das Gerät sich selbst prüfen")
      .Body(TestDevice);
}

void DescribeDeviceReset(DeviceDescription& dd) {
  dd.Method("device_reset")
      .Label("Device reset|de|Gerät zurücksetzen")
      .Help("Restarts the device|de|Startet das Gerät neu")
      .Body(ResetDevice);
}

}  // namespace hart
