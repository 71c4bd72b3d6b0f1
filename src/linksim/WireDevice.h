#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "hart/LinkFrame.h"
#include "linksim/CommandCatalogue.h"
#include "linksim/EmulatedDevice.h"
#include "linksim/Faults.h"
#include "platform/Export.h"

namespace HartLinkSim {

// What a device sends.
struct WireReply {
  std::vector<std::uint8_t> frame;  // from delimiter to check byte
  platform::Milliseconds delay{0};  // that it takes for it
};

// An emulated device as it shows on the wire: a request's frame in, the reply's out, deformed by
// its faults.
//
// It answers command 0 at its polling address ("polling_address", 0 when it has none), every
// command at its long address, which follows from its identity, and commands 11 and 21 there and as
// a broadcast when the request has its tag. A damaged request is answered with communication error
// flags. Commands that it does not have are answered with response code 64, requests that are those
// of no transaction with 2, too short ones with 5, what it cannot carry out with 6.
class ZAF_API WireDevice {
 public:
  // Both are shared and must be there. Its address is asked of the device.
  WireDevice(std::shared_ptr<EmulatedDevice> device, std::shared_ptr<CommandCatalogue> commands);

  // The faults of the requests from now on.
  Faults& LinkFaults() { return faults_; }
  // Other links may share it.
  const std::shared_ptr<EmulatedDevice>& Device() const { return device_; }
  // As its identity said when it was last asked for.
  const ZAFHartTypes::hart::LinkAddress& Address() const { return address_; }

  // Nothing when the frame is for somebody else, or nobody answers. Whatever the bytes are, nothing
  // is raised.
  std::optional<WireReply> Answer(const ZAFHartTypes::hart::DecodedFrame& request);
  // What the device sends unasked in burst mode ("burst_mode_select" other than 0): the reply to
  // "burst_command_number" (1 when it has none), to either master in turn, because a burst frame
  // gives the bus to the other one. Nothing in other modes.
  std::optional<ZAFHartTypes::hart::LinkFrame> Burst();
  // Why the last request was answered with response code 6; "" when it was not.
  const std::string& LastError() const { return lastError_; }

 private:
  using Data = std::vector<std::uint8_t>;  // status bytes and data of a reply

  bool IsAddressed(const ZAFHartTypes::hart::LinkFrame& request) const;
  bool HasTag(const ZAFHartTypes::hart::LinkFrame& request);
  bool IsInBurstMode() const;
  // The exchange that a request stands for; FoundCommand says whether it can be carried out.
  std::shared_ptr<ZAFHartTypes::Exchange> ExchangeFor(std::uint16_t number,
                                                      ZAFHartTypes::hart::Bytes data,
                                                      FoundCommand& found) const;
  Data CarryOut(std::uint16_t number, const ZAFHartTypes::Exchange& exchange,
                const FoundCommand& found);
  Data Identity(const ZAFHartTypes::Exchange& exchange, bool isKnown);
  std::optional<Data> FaultyData(const ZAFHartTypes::hart::DecodedFrame& request,
                                 const ActiveFaults& faults);
  // Asks the device for its own purposes, which leaves its status as it is.
  Data Ask(std::uint16_t number);

  std::shared_ptr<EmulatedDevice> device_;
  std::shared_ptr<CommandCatalogue> commands_;
  Faults faults_;
  bool burstsToPrimary_ = false;  // the last one
  ZAFHartTypes::hart::LinkAddress address_;
  std::string lastError_;
};

}  // namespace HartLinkSim
