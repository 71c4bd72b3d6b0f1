#pragma once

#include <memory>
#include <string>
#include <vector>

#include "interfaces/ILink.h"
#include "links/BusyPolicy.h"
#include "links/FrameCarrier.h"
#include "platform/Export.h"
#include "platform/Object.h"

namespace HartLinks {

// A link to a real device: makes a frame of an exchange, has a carrier bring it there, and asks a
// busy device again when its policy says so. The request goes to the exchange's long address (five
// bytes: the unique address; one byte: a polling address) or, without one, to its polling address.
// A link that goes away ends its exchanges as Cancelled.
class ZAF_API FrameLink : public platform::Object,
                          public ZAFHartTypes::ILink,
                          public ZAFHartTypes::ILinkStatus,
                          public ZAFHartTypes::IBusyRetrying {
 public:
  // Raises InvalidArgument for an address that is none.
  static ZAFHartTypes::hart::LinkAddress AddressOf(const ZAFHartTypes::Exchange& exchange);

  ~FrameLink() override;

  // Raises InvalidProcedureCall for an exchange that is under way and InvalidArgument for an
  // address or data that no frame can have; the exchange is left as it was.
  void Execute(const std::shared_ptr<ZAFHartTypes::Exchange>& exchange) override;
  void Cancel(const std::shared_ptr<ZAFHartTypes::Exchange>& exchange) override;

  std::string LastError() const override { return lastError_; }

  // Attempts hold for the exchanges that begin from now on, the delay at once.
  const BusyPolicy& Busy() const { return busy_; }
  void SetBusy(BusyPolicy policy) { busy_ = policy; }
  bool RetriesBusy() const override { return busy_.IsOn(); }
  void SetBusyAttempts(int attempts) override { busy_.attempts = attempts; }

  // What the link's requests go over; other links may share it.
  FrameCarrier& Carrier() const { return *carrier_; }

 protected:
  // The carrier is shared with whoever made it. REQUIRES: a carrier.
  FrameLink(std::shared_ptr<FrameCarrier> carrier, BusyPolicy busy);

 private:
  struct Pending {
    std::shared_ptr<ZAFHartTypes::Exchange> exchange;
    std::shared_ptr<FrameRequest> request;
    int attemptsLeft = 0;
    platform::Subscription askAgain;
  };

  // Where the exchange is among the pending ones; their end when it is none of them.
  std::vector<Pending>::iterator Find(const ZAFHartTypes::Exchange& exchange);
  void Finish(ZAFHartTypes::Exchange& exchange, const FrameEnd& end);

  std::shared_ptr<FrameCarrier> carrier_;
  BusyPolicy busy_;
  std::string lastError_;
  std::vector<Pending> pending_;
};

}  // namespace HartLinks
