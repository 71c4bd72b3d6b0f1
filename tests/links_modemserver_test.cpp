#include <gmock/gmock.h>

#include "hart/HexText.h"
#include "links/HartModemLink.h"
#include "links/ModemServer.h"
#include "links/PtyChannel.h"
#include "platform/Platform.h"
#include "support/TempFolder.h"

// The devices' side of a modem's line.
namespace HartLinks {
namespace {

namespace hart = ZAFHartTypes::hart;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

struct FakeChannel : ByteChannel {
  void SetListener(Listener* value) override { listener = value; }
  bool IsOpen() const override { return true; }
  void Open() override {}
  void Close() override {}
  void Send(hart::Bytes bytes) override { log.push_back(hart::ToHex(bytes)); }
  void SetRequestToSend(bool on) override { log.emplace_back(on ? "on" : "off"); }
  bool HasCarrier() override { return false; }

  // "~" ahead of a byte: received with an error.
  void Receive(const std::string& text) {
    std::istringstream words(text);
    for (std::string word; words >> word;) {
      const bool faulty = word[0] == '~';
      listener->OnByte(hart::FromHex(word.substr(faulty))[0], faulty);
    }
  }

  Listener* listener = nullptr;
  std::vector<std::string> log;
};

// The device of polling address 0; command 3 takes 300 ms, a damaged request has its flags.
std::optional<HartLinkSim::WireReply> Answered(const hart::DecodedFrame& request) {
  if (request.fault == hart::FrameFault::TooShort || request.frame.address.bytes[0] != 0) return {};
  const std::uint8_t reply[] = {static_cast<std::uint8_t>(request.IsGood() ? 0 : 0x88), 0x40};
  return HartLinkSim::WireReply{hart::EncodeFrame(hart::ReplyFrame(request.frame, reply)),
                                platform::Milliseconds{request.frame.command == 3 ? 300 : 0}};
}

TEST(ModemServer, AnswersRequestsAmongOtherTraffic) {
  auto ownClock = std::make_unique<platform::ManualClock>();
  platform::ManualClock& clock = *ownClock;
  platform::Platform platform{std::move(ownClock)};
  const platform::PlatformScope scope{platform};
  FakeChannel channel;
  ModemServer server(channel, &Answered, {.preambles = 6});
  const auto pass = [&](platform::Milliseconds time) {
    clock.Advance(time);
    platform.Loop().Pump();
  };
  struct Case {
    const char* what;
    const char* bytes;
    int milliseconds;
    const char* sent;  // "" for nothing
  };
  constexpr const char* kReply0 = "FFFFFFFFFFFF068000020040C4";
  for (const auto& [what, bytes, milliseconds, sent] : std::initializer_list<Case>{
           {"a request", "FF FF FF FF FF 02 80 00 00 82", 10, kReply0},
           {"behind noise", "02 13 FF 55 FF FF 02 80 00 00 82", 10, kReply0},
           {"one preamble", "00 FF 02 80 00 00 82", 110, ""},
           {"another device's", "FF FF 02 81 00 00 83", 10, ""},
           {"its reply", "FF FF 06 80 00 02 00 00 84", 10, ""},
           {"a wrong check byte", "FF FF 02 80 00 00 83", 10, "FFFFFFFFFFFF0680000288404C"},
           {"wrong parity", "FF FF 02 80 00 00 ~82", 10, "FFFFFFFFFFFF0680000288404C"},
           {"a silence within", "FF FF 02 80 00", 110, ""},
           {"the rest of it", "00 82", 10, ""},
           {"a slow command", "FF FF 02 80 03 00 81", 299, ""},
           {"its end", "", 1, "FFFFFFFFFFFF068003020040C7"}}) {
    channel.log.clear();
    channel.Receive(bytes);
    pass(platform::Milliseconds{milliseconds});
    if (*sent == 0) {
      EXPECT_THAT(channel.log, IsEmpty()) << what;
      continue;
    }
    EXPECT_THAT(channel.log, ElementsAre("on", sent)) << what;
    channel.Receive("FF FF FF FF FF FF 06 80 00 02 00 40 C4");  // an echo
    channel.listener->OnSent();
    pass(50ms);
    EXPECT_THAT(channel.log, ElementsAre("on", sent, "off")) << what;
  }
  channel.log.clear();
  channel.Receive("FF FF 02 80 00 00 82");
  pass(10ms);
  channel.Receive("FF FF 02 80 00 00 82");  // heard the reply, which the channel has not reported
  pass(10ms);
  EXPECT_THAT(channel.log, ElementsAre("on", kReply0));
  channel.listener->OnSent();
  EXPECT_THAT(channel.log, ElementsAre("on", kReply0, "off", "on", kReply0));
}

TEST(ModemServer, IsReachedOverAPseudoTerminalByOneMasterAfterAnother) {
  platform::Platform platform;
  const platform::PlatformScope scope{platform};
  const support::TempFolder folder;
  const std::filesystem::path link = folder.Path() / "line";
  {
    PtyChannel channel;
    ModemServer server(channel, &Answered);
    std::filesystem::create_symlink("nowhere", link);
    const platform::TemporaryLink leads(link, channel.Name());
    for (int master = 0; master < 2; ++master) {
      ModemOptions options;
      options.port = link.string();
      HartModemLink asked(options);
      const auto exchange = std::make_shared<ZAFHartTypes::Exchange>();
      asked.Execute(exchange);
      const auto end = platform.GetClock().Now() + 20s;
      while (IsUnderWay(exchange->State()) && platform.GetClock().Now() < end) {
        platform.Loop().WaitStep(1s);
      }
      EXPECT_EQ(exchange->ReplyData(), "0040") << asked.LastError();
    }
  }
  EXPECT_FALSE(std::filesystem::is_symlink(link));
  std::ofstream(link) << "a file of somebody's";
  EXPECT_THROW(platform::TemporaryLink(link, "/dev/null"), platform::Failure);
  EXPECT_TRUE(std::filesystem::is_regular_file(link));
}

}  // namespace
}  // namespace HartLinks
