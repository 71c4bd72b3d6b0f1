#pragma once

#include <gtest/gtest.h>

#include <array>
#include <deque>
#include <map>
#include <sstream>

#include "hart/HexText.h"
#include "links/HartModemLink.h"
#include "platform/Platform.h"

namespace test_support {

namespace hart = ZAFHartTypes::hart;

// A modem's line that the test plays, with a clock that stands still. Steps that the test takes:
//   "ask LINK COMMAND [ADDRESS [DATA]]", "cancel LINK COMMAND", "sent", "< BYTES" ("~": received
//   with an error), "broken", "unplugged" (opening fails), "plugged", "+ MILLISECONDS",
//   "held MILLISECONDS BYTES" (the program was busy elsewhere while the bytes came)
// and what has to happen then, and nothing else, in the last millisecond of a "+":
//   "open", "> PREAMBLES BYTES", "= LINK COMMAND REPLY", "burst BYTES"
// "*" in bytes stands for the right check byte.
class ModemScript {
 public:
  explicit ModemScript(HartLinks::ModemOptions options) {
    options.port = "line";
    auto channel = std::make_unique<Channel>(*this);
    channel_ = channel.get();
    line_ = std::make_shared<HartLinks::HartLine>(options, std::move(channel));
    line_->SetBurstObserver([this](const hart::LinkFrame& frame) {
      log_.push_back("burst " + hart::ToHex(hart::EncodeFrame(frame)));
    });
    for (auto& link : links_) {
      link = std::make_shared<HartLinks::HartModemLink>(line_, options.busy);
    }
  }

  void Run(const std::vector<std::string>& steps) {
    for (const std::string& step : steps) {
      if (testing::Test::HasFailure()) return;
      SCOPED_TRACE(step);
      std::istringstream words(step);
      std::string verb;
      words >> verb;
      if (verb == "open" || verb == ">" || verb == "=" || verb == "burst") {
        Expect(verb == ">" || verb == "burst" ? verb + Normal(words, verb) : step);
      } else {
        Expect("");
        Take(verb, words);
        Pump();
      }
    }
    Expect("");
  }

 private:
  struct Channel : HartLinks::ByteChannel {
    explicit Channel(ModemScript& owner) : script(owner) {}
    void SetListener(Listener* value) override { listener = value; }
    bool IsOpen() const override { return open; }
    void Open() override {
      if (!plugged) {
        throw platform::Failure(platform::ErrorNumber::PathFileAccess, "", "Cannot open line.");
      }
      open = true;
      script.log_.emplace_back("open");
    }
    void Close() override { open = false; }
    void Send(hart::Bytes bytes) override {
      EXPECT_TRUE(requestToSend);
      std::size_t preambles = 0;
      while (bytes[preambles] == hart::kPreamble) ++preambles;
      script.log_.push_back("> " + std::to_string(preambles) + " " +
                            hart::ToHex(bytes.subspan(preambles)));
    }
    void SetRequestToSend(bool on) override { requestToSend = on; }
    bool HasCarrier() override { return false; }

    ModemScript& script;
    Listener* listener = nullptr;
    bool open = false;
    bool plugged = true;
    bool requestToSend = false;
  };

  struct Told : ZAFHartTypes::ICommCallback {
    void CommCallback_Finisched(const std::shared_ptr<ZAFHartTypes::Exchange>& exchange) override {
      std::string result = exchange->ReplyData();
      if (exchange->State() == ZAFHartTypes::ExchangeState::Cancelled) result = "cancelled";
      if (exchange->State() == ZAFHartTypes::ExchangeState::NoReply) {
        result = "no reply " + script->links_[link]->LastError();
      }
      script->log_.push_back("= " + std::to_string(link) + " " +
                             std::to_string(exchange->CommandNumber()) + " " + result);
    }
    ModemScript* script = nullptr;
    std::size_t link = 0;
  };

  void Take(const std::string& verb, std::istringstream& words) {
    int number = 0;
    if (verb == "+") {
      words >> number;
      return Advance(number);
    }
    if (verb == "sent") {
      channel_->listener->OnSent();
      EXPECT_FALSE(channel_->requestToSend);
      return;
    }
    if (verb == "<") return Receive(words.str().substr(2));
    if (verb == "held") {
      std::string bytes;
      std::getline(words >> number, bytes);
      clock_->Advance(platform::Milliseconds{number});
      unread_ = platform_.Loop().Post([this, bytes] { Receive(bytes); });
      return;
    }
    if (verb == "broken") return channel_->Close(), channel_->listener->OnBroken("It has gone.");
    if (verb == "plugged" || verb == "unplugged") {
      channel_->plugged = verb == "plugged";
      return;
    }
    std::size_t link = 0;
    std::string address;
    std::string data;
    words >> link >> number >> address >> data;
    auto& [exchange, told] = exchanges_[{link, number}];
    if (verb == "cancel") return links_.at(link)->Cancel(exchange);
    ASSERT_EQ(verb, "ask");
    told = std::make_shared<Told>();
    told->script = this;
    told->link = link;
    exchange = std::make_shared<ZAFHartTypes::Exchange>();
    exchange->SetCommandNumber(static_cast<std::int16_t>(number));
    exchange->SetLongAddress(address);
    exchange->SetRequestData(data);
    exchange->SetCallback(told);
    links_.at(link)->Execute(exchange);
  }

  void Advance(int milliseconds) {
    for (int i = 0; i < milliseconds && !testing::Test::HasFailure(); ++i) {
      Expect("");
      clock_->Advance(platform::Milliseconds{1});
      Pump();
    }
  }

  void Receive(const std::string& text) {
    std::istringstream words(text);
    std::vector<std::uint8_t> frame;
    for (std::string word; words >> word;) {
      const bool faulty = word[0] == '~';
      const auto byte =
          word == "*" ? hart::CheckByte(frame) : hart::FromHex(word.substr(faulty))[0];
      if (!frame.empty() || byte != hart::kPreamble) frame.push_back(byte);
      if (word == "*") frame.clear();
      channel_->listener->OnByte(byte, faulty);
    }
  }

  static std::string Normal(std::istringstream& words, const std::string& verb) {
    std::string head;
    if (verb == ">") words >> head;
    std::string hex;
    for (std::string word; words >> word;) {
      hex += word == "*" ? hart::ToHex(std::vector{hart::CheckByte(hart::FromHex(hex))}) : word;
    }
    return " " + (head.empty() ? hex : head + " " + hex);
  }

  void Pump() {
    while (platform_.Loop().Pump()) {
    }
  }
  void Expect(const std::string& what) {
    const std::string found = log_.empty() ? "" : log_.front();
    ASSERT_EQ(found, what);
    if (!log_.empty()) log_.pop_front();
  }

  std::unique_ptr<platform::ManualClock> ownClock_ = std::make_unique<platform::ManualClock>();
  platform::ManualClock* clock_ = ownClock_.get();
  platform::Platform platform_{std::move(ownClock_)};
  platform::PlatformScope scope_{platform_};
  std::deque<std::string> log_;
  std::map<std::pair<std::size_t, int>,
           std::pair<std::shared_ptr<ZAFHartTypes::Exchange>, std::shared_ptr<Told>>>
      exchanges_;
  Channel* channel_ = nullptr;
  platform::Subscription unread_;
  std::shared_ptr<HartLinks::HartLine> line_;
  std::array<std::shared_ptr<HartLinks::HartModemLink>, 3> links_;
};

}  // namespace test_support
