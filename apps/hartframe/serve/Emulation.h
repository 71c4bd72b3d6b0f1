#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "hartframe/Session.h"
#include "linksim/WireDevice.h"

namespace hartframe {

// The session's emulated device as masters see it, with a report of what they ask.
class Emulation {
 public:
  // Gives the device its polling address and lets the DTM learn what the device has, from which
  // the layouts of its commands follow. Raises CommandFailure (Usage) for a fault that is none.
  explicit Emulation(Session& session);

  HartLinkSim::WireDevice& Wire() { return *wire_; }
  std::optional<HartLinkSim::WireReply> Answer(const ZAFHartTypes::hart::DecodedFrame& request);
  std::size_t Answered() const { return answered_; }
  // FileBroken when the device could not carry something out with the values that it has, or could
  // not keep them; Ok otherwise.
  ExitCode Code() const { return errors_.empty() ? ExitCode::Ok : ExitCode::FileBroken; }

 private:
  void TellRequest(const ZAFHartTypes::hart::DecodedFrame& request,
                   const std::optional<HartLinkSim::WireReply>& reply);

  Session& session_;
  std::unique_ptr<HartLinkSim::WireDevice> wire_;
  HartLinkSim::Faults faults_;  // that are still to come
  std::size_t answered_ = 0;
  std::set<std::string> errors_;  // told already
};

}  // namespace hartframe
