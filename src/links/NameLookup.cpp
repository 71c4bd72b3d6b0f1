#include "links/NameLookup.h"

#include <system_error>
#include <thread>
#include <utility>

#include "platform/Failure.h"
#include "platform/Platform.h"
#include "platform/WakePipe.h"

namespace HartLinks {

using platform::Failure;

// What the thread works on. It goes with the last of the two, so that neither waits for the other.
struct NameLookup::Shared {
  platform::WakePipe pipe;
  Result result;  // the thread's until it wakes the loop
};

NameLookup::NameLookup(const std::string& host, std::uint16_t port, Handler found)
    : found_(std::move(found)) {
  platform::MessageLoop& loop = platform::Current().Loop();
  if (const auto address = platform::NumericAddress(host, port)) {
    subscription_ = loop.Post([this, address] { Tell({{*address}, ""}); });
    return;
  }
  try {
    StartThread(host, port);
  } catch (const Failure& failure) {
    subscription_ = loop.Post([this, error = failure.Description()] { Tell({{}, error}); });
  }
}

void NameLookup::StartThread(const std::string& host, std::uint16_t port) {
  shared_ = std::make_shared<Shared>();
  try {
    std::thread([shared = shared_, host, port] {
      try {
        shared->result.addresses = platform::ResolveName(host, port);
      } catch (const std::exception& failure) {
        shared->result.error = failure.what();
      }
      shared->pipe.Wake();
    }).detach();
  } catch (const std::system_error& error) {
    throw Failure(platform::ErrorNumber::DeviceIo, "HartLinks.NameLookup",
                  "Cannot look up the host " + host + ": " + error.what());
  }
  subscription_ = platform::Current().Loop().Watch({shared_->pipe.Descriptor()}, [this] {
    subscription_.Cancel();
    Tell(std::move(shared_->result));
  });
}

void NameLookup::Tell(Result result) {
  const Handler found = std::move(found_);  // it may destroy this object
  found(std::move(result));
}

}  // namespace HartLinks
