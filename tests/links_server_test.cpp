#include <gmock/gmock.h>

#include "hart/HexText.h"
#include "links/HartIpLink.h"
#include "links/HartIpServer.h"
#include "platform/Platform.h"

// The server's side of HART-IP: messages in and out, and once over sockets.
namespace HartLinks {
namespace {

namespace hart = ZAFHartTypes::hart;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using ZAFHartTypes::Exchange;

struct FakeClient : HartIpService::Client {
  explicit FakeClient(std::string clientName) : name(std::move(clientName)) {}
  const std::string& Name() const override { return name; }
  void Send(hart::Bytes message) override { sent.push_back(hart::ToHex(message)); }
  void HangUp() override { sent.emplace_back("closed"); }

  std::string name;
  std::vector<std::string> sent;
};

// Command 3 takes 40 ms, command 9 has no answer, others are answered at once.
struct FakeDevice {
  std::optional<HartLinkSim::WireReply> operator()(const hart::DecodedFrame& request) {
    ++asked;
    if (!request.IsGood() || request.frame.command == 9) return std::nullopt;
    const std::uint8_t reply[] = {0, 0x40};
    const auto delay = platform::Milliseconds{request.frame.command == 3 ? 40 : 0};
    return HartLinkSim::WireReply{hart::EncodeFrame(hart::ReplyFrame(request.frame, reply)), delay};
  }
  int asked = 0;
};

struct ServiceTest : testing::Test {
  platform::Platform platform{std::make_unique<platform::ManualClock>()};
  platform::ManualClock& clock = dynamic_cast<platform::ManualClock&>(platform.GetClock());
  platform::PlatformScope scope{platform};
  FakeDevice device;
  std::optional<hart::LinkFrame> burst;
  HartIpService service{std::ref(device), {.maxSessions = 2, .burst = [this] { return burst; }}};
  std::shared_ptr<FakeClient> client = std::make_shared<FakeClient>("a");

  // What the client gets for these bytes, while the clock stands.
  std::vector<std::string> Tell(FakeClient& to, const std::string& hex) {
    to.sent.clear();
    service.Receive(std::shared_ptr<FakeClient>(std::shared_ptr<void>(), &to),
                    hart::DecodeHartIp(hart::FromHex(hex)));
    return to.sent;
  }
  std::vector<std::string> Tell(const std::string& hex) { return Tell(*client, hex); }
  void Pass(platform::Milliseconds time) {
    clock.Advance(time);
    platform.Loop().Pump();
  }
};

constexpr const char* kInitiate = "010000000007000D0100002710";
constexpr const char* kInitiated = "010100000007000D0100002710";

TEST_F(ServiceTest, KeepsSessions) {
  struct Case {
    const char* what;
    const char* request;
    const char* answer;  // "" for none
  };
  for (const auto& [what, request, answer] : std::initializer_list<Case>{
           {"no session", "0100020000010008", "010F021000010008"},
           {"no session", "010003000002000D0280000082", "010F031000020008"},
           {"no whole body", "010000000003000C01000027", "0101000500030008"},
           {"no such master", "010000000004000D0200002710", "0101000200040008"},
           {"other version", "0200000000050008", "0101000E00050008"},
           {"too short a time", "010000000006000D0100000001", "010100080006000D01000003E8"},
           {"renewed", "010000000007000D0100002710", kInitiated},
           {"keep-alive", "0100020000080008", "0101020000080008"},
           {"other version", "0200020000090008", "010F020E00090008"},
           {"unknown message", "01000700000A0008", "010F0702000A0008"},
           {"no request", "01010200000B0008", ""},
           {"no NAK of a NAK", "010F0200000B0008", ""},
           {"byte count too high", "01000200000C0009", ""},
           {"byte count too low", "01000200000C0007", ""},
           {"goes on", "01000200000C000800", ""},
           {"no whole header", "01000200000C00", ""},
           {"nothing", "", ""}}) {
    EXPECT_THAT(Tell(request), *answer
                                   ? testing::Matcher<std::vector<std::string>>(ElementsAre(answer))
                                   : IsEmpty())
        << what;
  }
  EXPECT_THAT(Tell("01000100000D0008"), ElementsAre("01010100000D0008", "closed"));
  EXPECT_FALSE(service.HasSession("a"));
}

TEST_F(ServiceTest, EndsSilentSessionsAndMakesRoom) {
  FakeClient second("b"), third("c");
  EXPECT_THAT(Tell(kInitiate), ElementsAre(kInitiated));
  EXPECT_THAT(Tell(second, kInitiate), ElementsAre(kInitiated));
  EXPECT_THAT(Tell(third, kInitiate), ElementsAre("0101000F00070008"));
  Pass(6s);
  EXPECT_THAT(Tell("0100020000080008"), ElementsAre("0101020000080008"));
  Pass(6s);
  EXPECT_THAT(second.sent, ElementsAre(kInitiated, "closed"));
  EXPECT_TRUE(service.HasSession("a"));
  EXPECT_THAT(Tell(third, kInitiate), ElementsAre(kInitiated));
  service.Forget("a");
  service.Forget("a");
  EXPECT_EQ(service.SessionCount(), 1U);
}

TEST_F(ServiceTest, PassesFramesOn) {
  Tell(kInitiate);
  const std::string command0 = "010003000001000D0280000082";
  const std::string answer0 = "010103000001000F068000020040C4";
  EXPECT_THAT(Tell(command0), ElementsAre(answer0));
  // Once more: answered once more, carried out once.
  EXPECT_THAT(Tell(command0), ElementsAre(answer0));
  EXPECT_EQ(device.asked, 1);
  EXPECT_THAT(Tell("010003000002000D028009008B"), ElementsAre("0101030000020008"));
  EXPECT_THAT(Tell("010003000003000D0280000083"), ElementsAre("0101030000030008"));
  EXPECT_THAT(Tell("0100030000040008"), ElementsAre("0101030000040008"));
  // A slow device; the repetition meanwhile waits for the same answer.
  const std::string command3 = "010003000005000D0280030081";
  EXPECT_THAT(Tell(command3), IsEmpty());
  EXPECT_THAT(Tell(command3), IsEmpty());
  Pass(40ms);
  EXPECT_THAT(client->sent, ElementsAre("010103000005000F068003020040C7"));
  EXPECT_EQ(device.asked, 5);
  // One more before the slow answer: each has its own.
  Tell("010003000008000D0280030081");
  Tell("010003000009000D0280030081");
  Pass(40ms);
  EXPECT_THAT(client->sent,
              ElementsAre("010103000008000F068003020040C7", "010103000009000F068003020040C7"));
  // Gone before the answer.
  Tell("010003000006000D0280030081");
  Tell("0100010000070008");
  Pass(40ms);
  EXPECT_THAT(client->sent, ElementsAre("0101010000070008", "closed"));
}

TEST_F(ServiceTest, PublishesBursts) {
  FakeClient second("b");
  Tell(kInitiate);
  Tell(second, kInitiate);
  Pass(1s);
  EXPECT_THAT(client->sent, ElementsAre(kInitiated));
  burst = hart::LinkFrame{
      hart::FrameType::Burst, hart::LinkAddress::Polling(2), true, true, {}, 1, {0, 0}};
  Pass(1s);
  EXPECT_THAT(client->sent, ElementsAre(kInitiated, "010203000000000F01C201020000C0"));
  EXPECT_EQ(second.sent, client->sent);
}

TEST(HartIpServerTest, ServesBothTransportsOnOnePort) {
  platform::Platform platform;
  platform::PlatformScope scope{platform};
  const auto waitUntil = [&](const auto& test) {
    const auto end = platform.GetClock().Now() + 20s;
    while (!test() && platform.GetClock().Now() < end) platform.Loop().WaitStep(1s);
    ASSERT_TRUE(test());
  };
  FakeDevice device;
  HartIpServerOptions options;
  options.local = *platform::NumericAddress("127.0.0.1", 0);
  HartIpServer server(std::ref(device), options);
  ASSERT_NE(server.Address().port, 0);
  {
    std::list<HartIpLink> links;
    for (const Transport transport : {Transport::Udp, Transport::Tcp}) {
      HartIpOptions reached;
      reached.server = {"127.0.0.1", server.Address().port, transport};
      const auto exchange = std::make_shared<Exchange>();
      exchange->SetCommandNumber(13);
      exchange->SetLongAddress("2606123456");
      links.emplace_back(reached).Execute(exchange);
      waitUntil([&] { return !IsUnderWay(exchange->State()); });
      EXPECT_EQ(exchange->ReplyData(), "0040");
    }
    EXPECT_EQ(server.Service().SessionCount(), 2U);
    // Bytes that are no HART-IP end their connection, and only that.
    auto hostile = platform::TcpSocket::ConnectTo(server.Address());
    std::array<std::uint8_t, 16> noise;
    noise.fill(0x47);
    std::optional<std::size_t> received;
    bool isSent = false;
    const auto writable =
        platform.Loop().Watch({hostile.Descriptor(), platform::Readiness::Writable},
                              [&] { isSent = isSent || hostile.Send(noise) > 0; });
    waitUntil([&] { return isSent; });
    const auto readable =
        platform.Loop().Watch({hostile.Descriptor()}, [&] { received = hostile.Receive(noise); });
    waitUntil([&] { return received == 0U; });
    auto datagram = platform::UdpSocket::ConnectTo(server.Address());
    datagram.Send(noise);
    EXPECT_EQ(server.Service().SessionCount(), 2U);
  }
  waitUntil([&] { return server.Service().SessionCount() == 0; });
}

}  // namespace
}  // namespace HartLinks
