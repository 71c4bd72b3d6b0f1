#include <gmock/gmock.h>

#include "links/HartIpLink.h"
#include "links/LinkClasses.h"
#include "links/NameLookup.h"
#include "support/LoopbackServer.h"

// Over the sockets of this machine, with its clock; the loop waits for them.
namespace HartLinks {
namespace {

using namespace test_support;  // NOLINT(google-build-using-namespace)
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using ZAFHartTypes::Exchange;
using ZAFHartTypes::ExchangeState;

struct NetworkTest : testing::Test {
  platform::Platform platform;
  platform::PlatformScope scope{platform};

  template <typename Test>
  void WaitUntil(Test&& test) {
    const auto end = platform.GetClock().Now() + 20s;
    while (!test() && platform.GetClock().Now() < end) platform.Loop().WaitStep(1s);
    ASSERT_TRUE(test());
  }
  // The reply to a command, or why there is none.
  std::string Ask(HartIpLink& link, int command, const std::string& longAddress = "2606123456") {
    const auto exchange = std::make_shared<Exchange>();
    exchange->SetCommandNumber(static_cast<std::int16_t>(command));
    exchange->SetLongAddress(longAddress);
    link.Execute(exchange);
    WaitUntil([&] { return !IsUnderWay(exchange->State()); });
    return exchange->State() == ExchangeState::Completed ? exchange->ReplyData() : link.LastError();
  }
};

struct OverBoth : NetworkTest, testing::WithParamInterface<std::pair<Transport, const char*>> {
  Transport Way() const { return GetParam().first; }
  const char* Address() const { return GetParam().second; }
};
INSTANTIATE_TEST_SUITE_P(Links, OverBoth,
                         testing::Values(std::pair{Transport::Udp, "127.0.0.1"},
                                         std::pair{Transport::Tcp, "127.0.0.1"},
                                         std::pair{Transport::Udp, "::1"},
                                         std::pair{Transport::Tcp, "::1"}),
                         [](const auto& test) {
                           return std::string(test.param.first == Transport::Udp ? "Udp" : "Tcp") +
                                  (test.param.second[0] == ':' ? "V6" : "V4");
                         });

TEST_P(OverBoth, LinksShareASessionThatOutlivesTheServer) {
  std::optional<LoopbackServer> server;
  try {
    server.emplace(Way(), Address());
  } catch (const platform::Failure& failure) {
    GTEST_SKIP() << failure.Description();  // a machine without IPv6
  }
  HartIpOptions options;
  options.server = {Address(), server->Port(), Way()};
  options.timeout = 300ms;
  options.retries = 0;
  options.connectTimeout = 600ms;
  std::optional<HartIpLink> first(options), second(options);
  EXPECT_EQ(&first->Session(), &second->Session());
  EXPECT_EQ(Ask(*first, 3), "004003");
  EXPECT_EQ(Ask(*second, 0, ""), "004000");
  EXPECT_EQ(Ask(*second, 800), "004020");
  EXPECT_THAT(server->Heard(), ElementsAre("initiate", "3", "0", "800"));

  const std::uint16_t port = server->Port();
  server.reset();
  EXPECT_THAT(Ask(*first, 3), HasSubstr(options.server.Text() + ": "));
  EXPECT_FALSE(first->Session().HasSession());
  server.emplace(Way(), Address(), port);
  EXPECT_EQ(Ask(*second, 3), "004003");
  first.reset();
  second.reset();
  WaitUntil([&] { return server->Heard().back() == "close"; });
  EXPECT_THAT(server->Heard(), ElementsAre("initiate", "3", "close"));
}

TEST_F(NetworkTest, AServerGoesOnFromThePortOfTheSession) {
  for (const char* address : {"127.0.0.1", "::1"}) {
    std::optional<LoopbackServer> server;
    if (!platform::IgnoreFailures([&] { server.emplace(Transport::Udp, address, 0, true); }))
      continue;
    HartIpOptions options;
    options.server = {address, server->Port(), Transport::Udp};
    HartIpLink link(options);
    EXPECT_EQ(Ask(link, 3), "004003");
    EXPECT_EQ(Ask(link, 9), "004009");
    EXPECT_THAT(server->Heard(), ElementsAre("initiate", "3", "9"));
  }
}

TEST_F(NetworkTest, LinksOfTheClassNameTakeTheSettings) {
  LoopbackServer server(Transport::Tcp, "127.0.0.1");
  RegisterLinkClasses(platform.Classes());
  const auto create = [&] { return platform.Classes().CreateAs<HartIpLink>("HartIp.Link"); };
  const auto set = [&](const char* name, std::string value) {
    platform.Registry().SetValue(kHartIpSettingsKey, name, std::move(value));
  };
  EXPECT_THROW(create(), platform::Failure);  // without a host
  set("Host", "127.0.0.1");
  set("Port", std::to_string(server.Port()));
  set("Transport", "sctp");
  EXPECT_THROW(create(), platform::Failure);
  set("Transport", "TCP");
  set("Master", "secondary");
  set("BusyAttempts", "7");
  const auto link = create();
  EXPECT_FALSE(link->Session().IsPrimaryMaster());
  EXPECT_EQ(link->Busy().attempts, 7);
  EXPECT_EQ(Ask(*link, 3), "004003");
}

TEST_F(NetworkTest, SaysWhyAServerCannotBeReached) {
  std::optional<LoopbackServer> server(std::in_place, Transport::Tcp, "127.0.0.1");
  HartIpOptions options;
  options.server = {"127.0.0.1", server->Port(), Transport::Tcp};
  options.connectTimeout = 700ms;
  server.reset();
  HartIpLink overTcp(options);
  options.server.transport = Transport::Udp;
  HartIpLink overUdp(options);
  const auto unheard = std::make_shared<Exchange>();
  overUdp.Execute(unheard);
  EXPECT_THAT(Ask(overTcp, 0), HasSubstr("/tcp: Cannot connect to 127.0.0.1:"));
  WaitUntil([&] { return unheard->State() == ExchangeState::NoReply; });
  for (const HartIpLink* link : {&overTcp, &overUdp}) {
    EXPECT_THAT(link->LastError(), HasSubstr(": Connection refused"));
  }
}

TEST_F(NetworkTest, NamesAreLookedUpBesideTheLoop) {
  std::optional<NameLookup::Result> found;
  NameLookup lookup("localhost", 5094, [&](NameLookup::Result result) { found = result; });
  NameLookup{"localhost", 1, [](NameLookup::Result) { FAIL(); }};  // given up at once
  EXPECT_FALSE(found);
  WaitUntil([&] { return found.has_value(); });
  ASSERT_FALSE(found->addresses.empty()) << found->error;
  EXPECT_EQ(found->addresses.front().port, 5094);

  found.reset();
  NameLookup vain("no such host", 5094, [&](NameLookup::Result result) { found = result; });
  WaitUntil([&] { return found.has_value(); });
  EXPECT_TRUE(found->addresses.empty());
  EXPECT_THAT(found->error, HasSubstr("Cannot find the host no such host: "));
}

}  // namespace
}  // namespace HartLinks
