#include "common/HartResponseCodes.h"
#include "common/HartTables.h"
#include "generic/Revision.h"

// The first burst message, in the form that all revisions take: HART 7 has further messages.
namespace generic {

void DescribeBurst(DeviceDescription& dd) {
  ReadableSinceHart6(
      dd.Variable("burst_mode_select")
          .Label("Burst mode|de|Burst-Betrieb")
          .Help("Whether the device sends by itself|de|Ob das Gerät von sich aus sendet")
          .Enumerated(1, hart::BurstModeControlCodes()));
  ReadableSinceHart6(
      dd.Variable("burst_command_number")
          .Label("Burst command|de|Burst-Kommando")
          .Help("Command whose reply the device sends; 31: one with a number above 255|de|"
                "Kommando, dessen Antwort das Gerät sendet; 31: eines mit einer Nummer über 255")
          .Unsigned(1)
          .Default(1));
  // HART command 105
  ReadsWhen(dd.Command("read_burst_mode_configuration", 105, Operation::Read)
                .Reply({"burst_mode_select", "burst_command_number"})
                .Codes(hart::ReadCodes()),
            Since(Revision::Hart6));
  // HART command 108
  dd.Command("write_burst_mode_command_number", 108, Operation::Write)
      .Request({"burst_command_number"})
      .Reply({"burst_command_number"})
      .Codes(hart::WriteCodes({hart::InvalidSelection()}));
  // HART command 109
  dd.Command("burst_mode_control", 109, Operation::Write)
      .Request({"burst_mode_select"})
      .Reply({"burst_mode_select"})
      .Codes(hart::WriteCodes({hart::InvalidSelection()}));
}

}  // namespace generic
