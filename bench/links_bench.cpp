#include <benchmark/benchmark.h>

#include <array>
#include <atomic>
#include <thread>
#include <vector>

#include "hart/HexText.h"
#include "links/HartIpLink.h"
#include "platform/Platform.h"
#include "platform/Sockets.h"

// 250 devices behind one HART-IP gateway, each asked for its dynamic variables (command 3) once a
// round, over a UDP socket of this machine. The time is that of the thread of the links; the
// gateway answers at once on a thread of its own.
namespace {

namespace hart = ZAFHartTypes::hart;
using ZAFHartTypes::Exchange;
using namespace std::chrono_literals;

class Gateway {
 public:
  Gateway() : thread_([this] { Serve(); }) {}
  ~Gateway() {
    stops_ = true;
    thread_.join();
  }
  std::uint16_t Port() const { return socket_.LocalAddress().port; }

 private:
  void Serve() {
    const auto reply = hart::FromHex("0000 41400000 2041C80000 2041C80000 2041C80000 2041C80000");
    std::array<std::uint8_t, 2000> buffer{};
    while (!stops_) {
      platform::PollDescriptors(std::array{platform::WatchedDescriptor{socket_.Descriptor()}},
                                50ms);
      while (const auto received = socket_.Receive(buffer)) {
        hart::HartIpMessage message =
            hart::DecodeHartIp(hart::Bytes(buffer).first(received->size)).message;
        message.type = hart::HartIpType::Response;
        if (message.id == hart::HartIpId::TokenPassing) {
          const hart::LinkFrame request = hart::DecodeFrame(message.body).frame;
          message.body = hart::EncodeFrame(hart::ReplyFrame(request, reply));
        }
        socket_.SendTo(received->from, hart::EncodeHartIp(message));
      }
    }
  }

  platform::UdpSocket socket_ =
      platform::UdpSocket::BindTo(*platform::NumericAddress("127.0.0.1", 0));
  std::atomic<bool> stops_ = false;
  std::thread thread_;
};

struct Ends : ZAFHartTypes::ICommCallback {
  void CommCallback_Finisched(const std::shared_ptr<Exchange>& exchange) override {
    --left;
    failed += exchange->State() != ZAFHartTypes::ExchangeState::Completed;
  }
  int left = 0;
  int failed = 0;
};

void Links_HartIpRound(benchmark::State& state) {
  const int devices = static_cast<int>(state.range(0));
  Gateway gateway;
  HartLinks::HartIpOptions options;
  options.server = {"127.0.0.1", gateway.Port(), HartLinks::Transport::Udp};
  std::vector<std::unique_ptr<HartLinks::HartIpLink>> links;
  for (int i = 0; i < devices; ++i) {
    links.push_back(std::make_unique<HartLinks::HartIpLink>(options));
  }
  const auto ends = std::make_shared<Ends>();
  for (auto _ : state) {
    ends->left = devices;
    for (int i = 0; i < devices; ++i) {
      const auto exchange = std::make_shared<Exchange>();
      exchange->SetCommandNumber(3);
      exchange->SetLongAddress(hart::ToHex(
          std::array<std::uint8_t, 5>{0x26, 0x06, 0x12, 0x34, static_cast<std::uint8_t>(i)}));
      exchange->SetCallback(ends);
      links[static_cast<std::size_t>(i)]->Execute(exchange);
    }
    while (ends->left > 0) platform::Current().Loop().WaitStep(1s);
  }
  if (ends->failed > 0) state.SkipWithError("an exchange had no reply");
  // With one round a second: part of a core, and time of one exchange.
  using benchmark::Counter;
  state.counters["core"] =
      Counter(static_cast<double>(state.iterations()), Counter::kIsRate | Counter::kInvert);
  state.counters["exchange"] = Counter(static_cast<double>(state.iterations() * devices),
                                       Counter::kIsRate | Counter::kInvert);
}
BENCHMARK(Links_HartIpRound)->Arg(250)->Unit(benchmark::kMillisecond);

}  // namespace
