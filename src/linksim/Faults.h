#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Clock.h"
#include "platform/Export.h"

namespace HartLinkSim {

enum class FaultKind : std::uint8_t {
  Latency,             // latency:MS            every exchange takes MS milliseconds
  NoReply,             // no-reply[:N]          nothing reaches the device
  CommunicationError,  // comm-error:FLAGS[:N]  the device received a broken request
  Response,            // response:CODE[:N]     an error code refuses the command, a warning code
                       //                       comes with the ordinary reply
  Busy,                // busy[:N]              response code 32
  DeviceStatus,        // device-status:BITS[:N]  bits that are set besides the device's own
  Truncated,           // truncated[:N]         the reply lacks its last byte
  Overlong,            // overlong[:N]          the reply has bytes that nobody asked for
  Corrupt,             // corrupt[:N]           all bits of the reply's data are inverted
  WrongCommand,        // wrong-command[:N]     the reply is that of another command
  BadCheck,            // bad-check[:N]         the reply's check byte is wrong: no link takes it
};

// One fault of a simulated link.
struct Fault {
  FaultKind kind{};
  std::int32_t value = 0;             // milliseconds, flags, code or bits; 0 for the other kinds
  std::optional<std::int32_t> count;  // of the next exchanges that it strikes; nothing: of all
  friend bool operator==(const Fault&, const Fault&) = default;
};

// Reads the text form shown at FaultKind; numbers are decimal or "0x…". Raises InvalidArgument
// naming what is wrong and the allowed forms.
ZAF_API Fault ParseFault(std::string_view text);
// The text form, with decimal numbers.
ZAF_API std::string FaultText(const Fault& fault);

// What strikes one exchange.
struct ActiveFaults {
  platform::Milliseconds latency{0};    // of all latency faults together
  bool noReply = false;                 // then no other but the latency strikes
  std::uint8_t communicationError = 0;  // flags, bit 7 among them; 0: none
  std::uint8_t response = 0;            // 0: none
  std::uint8_t deviceStatus = 0;        // bits to be set
  bool truncated = false;
  bool overlong = false;
  bool corrupt = false;
  bool wrongCommand = false;
  bool badCheck = false;
};

// The faults of a link. Of no-reply, comm-error, response and busy one exchange suffers the first
// in the list that is not used up; the others strike side by side.
class ZAF_API Faults {
 public:
  Faults() = default;
  // Faults separated by commas ("latency:30, busy:3"); "" for none. Raises like ParseFault.
  static Faults Parse(std::string_view text);

  // At the end of the list. A text raises like ParseFault.
  void Add(const Fault& fault) { faults_.push_back(fault); }
  void Add(std::string_view text) { Add(ParseFault(text)); }
  void Clear() { faults_.clear(); }
  // Nothing strikes any more: those with a count leave when they are used up.
  bool IsEmpty() const { return faults_.empty(); }
  // What is left, as Parse reads it; counts are what remains of them.
  std::string Text() const;

  // What strikes the next exchange; counts it. An exchange of which nothing reaches the device uses
  // up no fault but that and its latency.
  ActiveFaults Next();

 private:
  std::vector<Fault> faults_;
};

}  // namespace HartLinkSim
