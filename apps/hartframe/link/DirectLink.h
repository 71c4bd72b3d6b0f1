#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "hartframe/Connection.h"
#include "hartframe/SignalWatch.h"

namespace hartframe {

// The link without a DTM, for those who make their exchanges themselves.
class DirectLink {
 public:
  struct Request {
    int command = 0;
    int pollingAddress = 0;   // used without a long address
    std::string longAddress;  // ten hexadecimal digits
    std::vector<std::uint8_t> data;
  };
  using Reply = std::optional<std::vector<std::uint8_t>>;  // from the response code byte on

  // CommandFailure as Connection raises.
  explicit DirectLink(const Options& options) : connection_(options) {}

  // Sends the exchange and waits for its end; the message loop runs meanwhile. Raises Cancelled
  // after Ctrl-C, which takes it back at once.
  void Send(const std::shared_ptr<ZAFHartTypes::Exchange>& exchange);
  // The reply; nothing when none came. Raises Cancelled after Ctrl-C.
  Reply Ask(const Request& request);

  const Connection& Way() const { return connection_; }

 private:
  Connection connection_;
  SignalWatch signals_;
};

}  // namespace hartframe
