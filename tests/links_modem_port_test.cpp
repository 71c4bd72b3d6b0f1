#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

#include "hart/FrameDecoder.h"
#include "hart/HexText.h"
#include "links/HartModemLink.h"
#include "links/LinkClasses.h"
#include "links/SerialPort.h"
#include "platform/Platform.h"

namespace HartLinks {
namespace {

namespace hart = ZAFHartTypes::hart;
using namespace std::chrono_literals;
using ZAFHartTypes::Exchange;
using ZAFHartTypes::ExchangeState;

// The exchange, once it has ended.
std::shared_ptr<Exchange> Asked(ZAFHartTypes::ILink& link, int command,
                                const std::string& data = "") {
  const auto exchange = std::make_shared<Exchange>();
  exchange->SetCommandNumber(static_cast<std::int16_t>(command));
  exchange->SetRequestData(data);
  link.Execute(exchange);
  auto& current = platform::Current();
  const auto end = current.GetClock().Now() + 60s;
  while (IsUnderWay(exchange->State()) && current.GetClock().Now() < end) {
    current.Loop().WaitStep(1s);
  }
  return exchange;
}

// The far end of a pseudo terminal: a device that answers with the data that it was sent.
class EchoingDevice {
 public:
  EchoingDevice() : descriptor_(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) {
    grantpt(descriptor_);
    unlockpt(descriptor_);
    watch_ = platform::Current().Loop().Watch({descriptor_, platform::Readiness::Readable},
                                              [this] { Answer(); });
  }
  ~EchoingDevice() { Unplug(); }
  std::string Port() const { return ptsname(descriptor_); }
  void Unplug() {
    watch_.Cancel();
    if (descriptor_ >= 0) close(descriptor_);
    descriptor_ = -1;
  }

 private:
  void Answer() {
    std::array<std::uint8_t, 300> bytes{};
    const ssize_t count = read(descriptor_, bytes.data(), bytes.size());
    if (count <= 0) return watch_.Cancel();
    for (const auto& [fault, request] :
         decoder_.Receive(hart::Bytes(bytes.data(), static_cast<std::size_t>(count)))) {
      std::vector<std::uint8_t> data = {0, 0};
      data.insert(data.end(), request.data.begin(), request.data.end());
      const auto reply = hart::WithPreambles(hart::EncodeFrame(ReplyFrame(request, data)), 5);
      EXPECT_EQ(write(descriptor_, reply.data(), reply.size()), static_cast<ssize_t>(reply.size()));
    }
  }

  int descriptor_;
  hart::FrameDecoder decoder_;
  platform::Subscription watch_;
};

TEST(SerialPort, ReachesADeviceBehindAPseudoTerminal) {
  platform::Platform platform;
  const platform::PlatformScope scope(platform);
  RegisterLinkClasses(platform.Classes());
  EchoingDevice device;
  platform.Registry().SetValue(kModemSettingsKey, "Port", device.Port());
  platform.Registry().SetValue(kModemSettingsKey, "Retries", "0");
  const auto link = platform.Classes().CreateAs<HartModemLink>("HartModem.Link");
  const auto other = platform.Classes().CreateAs<HartModemLink>("HartModem.Link");
  EXPECT_EQ(&link->Line(), &other->Line());
  EXPECT_EQ(Asked(*link, 17, "00FFFF0011")->ReplyData(), "000000FFFF0011");
  EXPECT_EQ(Asked(*other, 3)->ReplyData(), "0000");
  EXPECT_EQ(link->LastError(), "");

  ModemOptions options;
  options.port = device.Port();
  SerialPort second(options);
  EXPECT_THROW(second.Open(), ZAFHartTypes::Failure);

  const std::string port = device.Port();
  device.Unplug();
  EXPECT_EQ(Asked(*link, 3)->State(), ExchangeState::NoReply);
  EXPECT_NE(link->LastError().find(port), std::string::npos) << link->LastError();
  EXPECT_EQ(Asked(*link, 3)->State(), ExchangeState::NoReply);
  EXPECT_NE(link->LastError().find("Cannot open " + port), std::string::npos) << link->LastError();
}

TEST(SerialPort, RefusesSettingsByName) {
  platform::Platform platform;
  const platform::PlatformScope scope(platform);
  EXPECT_THROW(HartModemLink(), ZAFHartTypes::Failure);
  platform.Registry().SetValue(kModemSettingsKey, "Port", "/dev/null");
  HartModemLink link;
  Asked(link, 0);
  EXPECT_EQ(link.LastError(), "Cannot open /dev/null: it is no serial port.");
  platform.Registry().SetValue(kModemSettingsKey, "Parity", "mark");
  EXPECT_THROW(HartModemLink(), ZAFHartTypes::Failure);
}

TEST(SerialPort, TakesTheMarksOfParityErrorsApart) {
  ParityMarks marks;
  std::string text;
  for (const std::uint8_t byte : hart::FromHex("FFFF 86 FF0086 FFFF FF0000 00")) {
    if (const auto received = marks.Take(byte)) {
      text += (received->faulty ? "~" : " ") + hart::ToHex(std::vector{received->byte});
    }
  }
  EXPECT_EQ(text, " FF 86~86 FF~00 00");
}

// A wire of 1200 baud with a device that answers 10 ms after the request.
class Wire : public ByteChannel {
 public:
  void SetListener(Listener* listener) override { listener_ = listener; }
  bool IsOpen() const override { return open_; }
  void Open() override { open_ = true; }
  void Close() override { open_ = false; }
  void SetRequestToSend(bool /*on*/) override {}
  bool HasCarrier() override { return false; }
  void Send(hart::Bytes bytes) override {
    const hart::LinkFrame request = hart::DecodeFrame(bytes).frame;
    const std::vector<std::uint8_t> data(26, 0x40);
    const auto reply = hart::WithPreambles(hart::EncodeFrame(ReplyFrame(request, data)), 5);
    events_.clear();
    At(bytes.size(), 0ms, [this] { listener_->OnSent(); });
    for (std::size_t i = 0; i < reply.size(); ++i) {
      At(bytes.size() + i + 1, 10ms, [this, byte = reply[i]] { listener_->OnByte(byte, false); });
    }
    milliseconds += 9.1667 * static_cast<double>(bytes.size() + reply.size()) + 10;
  }

  double milliseconds = 0;  // of all frames and the device's time

 private:
  void At(std::size_t characters, platform::Milliseconds later, std::function<void()> event) {
    const auto time = std::chrono::microseconds{characters * 1'000'000 * 11 / 1200};
    events_.push_back(platform::Current().Loop().StartOnce(
        std::chrono::ceil<platform::Milliseconds>(time) + later, std::move(event)));
  }

  Listener* listener_ = nullptr;
  bool open_ = false;
  std::vector<platform::Subscription> events_;
};

TEST(HartLine, TakesTheTimeOfItsFramesAndTheProtocolsGaps) {
  platform::Platform platform(std::make_unique<platform::ManualClock>());
  const platform::PlatformScope scope(platform);
  auto channel = std::make_unique<Wire>();
  Wire& wire = *channel;
  ModemOptions options;
  HartModemLink link(std::make_shared<HartLine>(options, std::move(channel)), {});
  Asked(link, 0);
  wire.milliseconds = 0;
  constexpr int count = 100;
  constexpr double gap = 8 * 9.1667;  // RT2 between two requests
  const auto start = platform.GetClock().Now();
  for (int i = 0; i < count; ++i) {
    ASSERT_EQ(Asked(link, 3)->State(), ExchangeState::Completed);
  }
  const auto took = static_cast<double>((platform.GetClock().Now() - start).count());
  const double sum = wire.milliseconds + count * gap;
  RecordProperty("percent_over_sum", std::to_string(100 * (took / sum - 1)));
  EXPECT_NEAR(took, sum, sum * 0.05);
}

}  // namespace
}  // namespace HartLinks
