#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "hart/DeviceIdentity.h"
#include "hart/HexText.h"
#include "interfaces/ILink.h"
#include "platform/Platform.h"

namespace test_support {

using namespace ZAFHartTypes;  // NOLINT(google-build-using-namespace)

// Replies to command 0, one of each revision of the protocol.
inline constexpr const char* kHart5Device = "0000FE26060505010A0800001234";
inline constexpr const char* kHart6Device = "0000FE2606050602031900001234050300070000";
inline constexpr const char* kHart7Device = "0000FEFA1005070203190000123405040007000026001101";

// A line with one device on it, or none. It answers by polling address, tag and long address as a
// real one does; other commands than those for the identity are passed on.
class HartLine : public ILink, public ILinkStatus, public IBusyRetrying {
 public:
  void Execute(const std::shared_ptr<Exchange>& exchange) override {
    log.push_back(Line(*exchange));
    if (onExecute) onExecute();
    exchange->SetState(ExchangeState::InProgress);
    if (latency.count() == 0) return Answer(*exchange);
    timers_.push_back(
        platform::Current().Loop().StartOnce(latency, [this, exchange] { Answer(*exchange); }));
  }
  void Cancel(const std::shared_ptr<Exchange>& exchange) override {
    exchange->Finish(ExchangeState::Cancelled, ExchangeResult::None);
  }
  std::string LastError() const override { return error; }
  bool RetriesBusy() const override { return retriesBusy; }
  void SetBusyAttempts(int attempts) override { busyAttempts = attempts; }
  std::vector<std::string> TakeLog() { return std::exchange(log, {}); }

  std::string device = kHart7Device;  // its reply to command 0; "" for none
  std::int16_t pollingAddress = 0;
  std::string tagData;  // of the command 11 that it answers
  std::function<std::string(Exchange&)> reply = [](Exchange&) { return "0000"; };
  std::function<void()> onExecute;
  platform::Milliseconds latency{0};
  std::string error;
  bool retriesBusy = false;
  int busyAttempts = 0;
  std::vector<std::string> log;  // "number@address", the address as sent

 private:
  static std::string Line(const Exchange& exchange) {
    const std::string& address = exchange.LongAddress();
    return std::to_string(exchange.CommandNumber()) + "@" +
           (address.empty() ? std::to_string(exchange.PollAddress()) : address);
  }
  bool IsAddressed(const Exchange& exchange) const {
    const auto identity = hart::ReadIdentity(hart::FromHex(device));
    const bool isByTag = exchange.CommandNumber() == 11 || exchange.CommandNumber() == 21;
    if (isByTag) return exchange.RequestData() == tagData;
    if (exchange.LongAddress().empty()) return exchange.PollAddress() == pollingAddress;
    return !identity || exchange.LongAddress() == identity->LongAddress();
  }
  void Answer(Exchange& exchange) {
    if (device.empty() || !IsAddressed(exchange)) {
      return exchange.Finish(ExchangeState::NoReply, ExchangeResult::None);
    }
    const bool asksIdentity = exchange.ItemsOf() == nullptr;
    exchange.SetReplyData(asksIdentity ? device : reply(exchange));
    const bool isReply = !exchange.ReplyData().empty();
    exchange.Finish(isReply ? ExchangeState::Completed : ExchangeState::NoReply,
                    isReply ? ExchangeResult::ReplyPresent : ExchangeResult::None);
  }
  std::vector<platform::Subscription> timers_;
};

}  // namespace test_support
