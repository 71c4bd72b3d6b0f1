#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "interfaces/ILink.h"
#include "linksim/Faults.h"
#include "platform/Export.h"
#include "platform/MessageLoop.h"
#include "platform/Object.h"

namespace HartLinkSim {

// Registry key of the emulator's settings, read when a link is made: "Latency" (milliseconds of
// every exchange) and "Faults" (see Faults::Parse).
inline constexpr std::string_view kEmulatorSettingsKey =
    "\\HKEY_LOCAL_MACHINE\\SOFTWARE\\Quillbridge\\HART\\Emulator";

// A link without a wire: takes its time, suffers its faults, and has the rest answered by what
// stands behind it. Without latency an exchange is over when Execute returns; otherwise it ends in
// the message loop of the thread. A link that goes away ends its exchanges as Cancelled.
class ZAF_API SimulatedLink : public platform::Object, public ZAFHartTypes::ILink {
 public:
  ~SimulatedLink() override;

  // The faults of the exchanges from now on.
  Faults& LinkFaults() { return faults_; }
  void SetFaults(Faults faults) { faults_ = std::move(faults); }
  // Whether replies come as bytes (the default) or as values by variable name; the status bytes
  // come as bytes in both cases.
  ZAFHartTypes::ResponseType ResponseType() const { return responseType_; }
  void SetResponseType(ZAFHartTypes::ResponseType type) { responseType_ = type; }

  // Raises InvalidProcedureCall for an exchange that is under way, and what the answering side
  // raises; the exchange then ends without reply.
  void Execute(const std::shared_ptr<ZAFHartTypes::Exchange>& exchange) override;
  void Cancel(const std::shared_ptr<ZAFHartTypes::Exchange>& exchange) override;

 protected:
  // A reply from the response code byte on.
  using Reply = std::vector<std::uint8_t>;

  // Takes the settings; raises InvalidArgument naming the value that cannot be read.
  SimulatedLink();

  // Carries the command out; at least the two status bytes, or nothing for no reply.
  virtual std::optional<Reply> Answer(const ZAFHartTypes::Exchange& exchange) = 0;
  // The device status byte of a reply to a command that is not carried out.
  virtual std::uint8_t DeviceStatus(const ZAFHartTypes::Exchange& exchange) const = 0;

 private:
  struct Pending {
    std::shared_ptr<ZAFHartTypes::Exchange> exchange;
    platform::Subscription timer;
  };

  // Takes the exchange out of the pending ones; false when it is none of them.
  bool Take(const ZAFHartTypes::Exchange& exchange);
  void Complete(ZAFHartTypes::Exchange& exchange, const ActiveFaults& faults);
  std::optional<Reply> ReplyTo(const ZAFHartTypes::Exchange& exchange, const ActiveFaults& faults);
  void Deliver(ZAFHartTypes::Exchange& exchange, Reply reply) const;

  Faults faults_;
  ZAFHartTypes::ResponseType responseType_ = ZAFHartTypes::ResponseType::Bytes;
  std::vector<Pending> pending_;
};

}  // namespace HartLinkSim
