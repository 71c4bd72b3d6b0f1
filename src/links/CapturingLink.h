#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "hart/HartIpMessage.h"
#include "hart/LinkFrame.h"
#include "interfaces/ILink.h"
#include "links/PacketObserver.h"
#include "platform/Export.h"
#include "platform/Object.h"

namespace HartLinks {

// Passes exchanges on to another link and has them recorded as HART-IP messages over UDP, as if the
// device of each link had a server of its own (192.0.2.2, port 5094): so the traffic of a modem or
// of an emulated device can be read like any other. An exchange without a reply leaves its request.
// A HART-IP link needs none: HartIpOptions::observer sees what it really sends.
class ZAF_API CapturingLink : public platform::Object,
                              public ZAFHartTypes::ILink,
                              public ZAFHartTypes::ILinkStatus,
                              public ZAFHartTypes::IBusyRetrying,
                              public ZAFHartTypes::ICommCallback,
                              public std::enable_shared_from_this<CapturingLink> {
 public:
  // Both are shared and must be there. The record has a client port for each link, and begins with
  // its first exchange.
  static std::shared_ptr<CapturingLink> Create(std::shared_ptr<ZAFHartTypes::ILink> link,
                                               std::shared_ptr<IPacketObserver> observer);
  // Ends its exchanges as Cancelled.
  ~CapturingLink() override;

  // The other link.
  const std::shared_ptr<ZAFHartTypes::ILink>& Inner() const { return link_; }

  // --- ILink ---
  void Execute(const std::shared_ptr<ZAFHartTypes::Exchange>& exchange) override;
  void Cancel(const std::shared_ptr<ZAFHartTypes::Exchange>& exchange) override;

  // --- What the other link offers; "", false and nothing when it does not ---
  std::string LastError() const override;
  bool RetriesBusy() const override;
  void SetBusyAttempts(int attempts) override;

  // --- ICommCallback, of the exchanges with the other link ---
  void CommCallback_Finisched(const std::shared_ptr<ZAFHartTypes::Exchange>& inner) override;

 private:
  struct Request {  // that was recorded
    ZAFHartTypes::hart::LinkFrame frame;
    std::uint16_t sequence;
  };
  struct Pending {
    std::shared_ptr<ZAFHartTypes::Exchange> outer;  // the caller's
    std::shared_ptr<ZAFHartTypes::Exchange> inner;  // the other link's
    std::optional<Request> request;
  };

  CapturingLink(std::shared_ptr<ZAFHartTypes::ILink> link,
                std::shared_ptr<IPacketObserver> observer);
  void RecordSession();
  std::optional<Request> RecordRequest(const ZAFHartTypes::Exchange& exchange);
  void RecordReply(const Request& request, const ZAFHartTypes::Exchange& exchange);
  void Record(const ZAFHartTypes::hart::HartIpMessage& message);

  std::shared_ptr<ZAFHartTypes::ILink> link_;
  std::shared_ptr<IPacketObserver> observer_;
  Flow flow_;
  bool primaryMaster_;
  bool sessionRecorded_ = false;
  std::uint16_t sequence_ = 0;  // wraps around
  std::vector<Pending> pending_;
};

}  // namespace HartLinks
