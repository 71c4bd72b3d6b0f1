#include "hartframe/link/DirectLink.h"

#include "hart/HexText.h"
#include "platform/Platform.h"
#include "types/Failure.h"

namespace hartframe {

namespace hart = ZAFHartTypes::hart;
using ZAFHartTypes::Exchange;

void DirectLink::Send(const std::shared_ptr<Exchange>& exchange) {
  const auto cancelled = [this] {
    if (signals_.Interrupted())
      throw ZAFHartTypes::Failure(ZAFHartTypes::ErrorNumber::Cancelled, "hartframe");
  };
  cancelled();
  signals_.SetHandler([&] { connection_.Link()->Cancel(exchange); });
  const std::shared_ptr<void> restored(nullptr, [this](void*) { signals_.SetHandler({}); });
  connection_.Link()->Execute(exchange);
  while (IsUnderWay(exchange->State())) {
    platform::Current().Loop().WaitStep(platform::Milliseconds(1000));
  }
  cancelled();
}

DirectLink::Reply DirectLink::Ask(const Request& request) {
  const auto exchange = std::make_shared<Exchange>();
  exchange->SetCommandNumber(static_cast<std::int16_t>(request.command));
  exchange->SetPollAddress(static_cast<std::int16_t>(request.pollingAddress));
  exchange->SetLongAddress(request.longAddress);
  exchange->SetRequestData(hart::ToHex(request.data));
  Send(exchange);
  if (exchange->Result() != ZAFHartTypes::ExchangeResult::ReplyPresent) return std::nullopt;
  std::vector<std::uint8_t> bytes = hart::FromHex(exchange->ReplyData());
  if (bytes.size() < 2) return std::nullopt;
  return bytes;
}

}  // namespace hartframe
