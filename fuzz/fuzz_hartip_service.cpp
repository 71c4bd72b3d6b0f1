#include <deque>
#include <memory>
#include <string>

#include "Fuzz.h"
#include "links/HartIpService.h"
#include "platform/Platform.h"
#include "support/SmallCatalogue.h"

namespace {

using namespace ZAFHartTypes::hart;
using HartLinks::HartIpService;
using platform::Milliseconds;

constexpr std::size_t kMaxSessions = 2;
constexpr Milliseconds kMaxInactivity{10'000};

// Takes what the service sends and looks at it.
struct Client : HartIpService::Client {
  explicit Client(std::string clientName) : name(std::move(clientName)) {}
  const std::string& Name() const override { return name; }
  void Send(Bytes message) override {
    const DecodedHartIp sent = DecodeHartIp(message);
    fuzz::Check(sent.IsGood(), "a service sends whole messages");
    fuzz::Check(sent.message.type != HartIpType::Request, "a service requests nothing");
  }
  void HangUp() override {}

  std::string name;
};

// An emulated device with a session service in front, on a clock that the input moves.
struct World {
  platform::Platform platform{std::make_unique<platform::ManualClock>()};
  platform::PlatformScope scope{platform};
  std::shared_ptr<HartLinkSim::EmulatedDevice> device =
      std::make_shared<HartLinkSim::EmulatedDevice>();
  HartLinkSim::WireDevice wire{device, std::make_shared<test_support::SmallCatalogue>()};
  HartIpService service{[this](const DecodedFrame& request) { return wire.Answer(request); },
                        {.maxSessions = kMaxSessions,
                         .maxInactivity = kMaxInactivity,
                         .burst = [this] { return wire.Burst(); }}};

  void Pass(Milliseconds time) {
    dynamic_cast<platform::ManualClock&>(platform.GetClock()).Advance(time);
    platform.Loop().Pump();
  }
};

}  // namespace

// Messages: who sends it and what happens before, after which time (in 50 ms), length, bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::span<const std::uint8_t> input(data, size);
  World world;
  world.device->SetValue("device_type", 0xE605);
  world.device->SetValue("device_id", 7);
  const std::shared_ptr<Client> clients[] = {
      std::make_shared<Client>("a"), std::make_shared<Client>("b"), std::make_shared<Client>("c")};
  while (!input.empty()) {
    const std::size_t what = fuzz::Take(input);
    const auto& client = clients[what % std::size(clients)];
    world.Pass(Milliseconds{50} * static_cast<int>(fuzz::Take(input)));
    if ((what & 0xC0U) == 0xC0U) world.service.Forget(client->name);
    world.device->SetValue("burst_mode_select", (what & 0x20U) != 0 ? 1 : 0);
    const Bytes message = input.first(std::min(fuzz::Take(input), input.size()));
    input = input.subspan(message.size());
    world.service.Receive(client, DecodeHartIp(message));
    fuzz::Check(world.service.SessionCount() <= kMaxSessions, "no more sessions than allowed");
  }
  world.Pass(kMaxInactivity + Milliseconds{1});
  fuzz::Check(world.service.SessionCount() == 0, "a silent client's session ends");
  return 0;
}
