#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/MessageLoop.h"
#include "platform/SocketAddress.h"

namespace HartLinks {

// Finds the addresses of a host without blocking the message loop: a name is resolved on a thread
// of its own, which tells the loop through a pipe. Destroying the object takes the handler back and
// does not wait for that thread.
class NameLookup {
 public:
  struct Result {
    std::vector<platform::SocketAddress> addresses;  // in the order in which they are to be tried
    std::string error;                               // for users; "" with an address
  };
  using Handler = std::function<void(Result)>;

  // Calls `found` once, from the message loop; for a numeric address at the next pump.
  NameLookup(const std::string& host, std::uint16_t port, Handler found);
  NameLookup(const NameLookup&) = delete;
  NameLookup& operator=(const NameLookup&) = delete;

 private:
  struct Shared;
  void StartThread(const std::string& host, std::uint16_t port);
  void Tell(Result result);

  Handler found_;
  std::shared_ptr<Shared> shared_;  // with the thread; nothing for a numeric address
  platform::Subscription subscription_;
};

}  // namespace HartLinks
