#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "hart/HexText.h"
#include "links/HartIpLink.h"
#include "platform/Platform.h"

namespace test_support {

namespace hart = ZAFHartTypes::hart;

inline hart::LinkFrame PollingRequest(int command) {
  return hart::RequestFrame(static_cast<std::uint16_t>(command), hart::LinkAddress::Polling(0),
                            true, {});
}

// "req1" is the frame of command 1 to polling address 0, "ack1" its answer without data, "ack1/88"
// with another first status byte; anything else is hexadecimal.
inline std::vector<std::uint8_t> FrameBody(const std::string& text) {
  if (text.starts_with("req")) return hart::EncodeFrame(PollingRequest(std::stoi(text.substr(3))));
  if (!text.starts_with("ack")) return hart::FromHex(text);
  const auto slash = text.find('/');
  const std::string status = slash == std::string::npos ? "00" : text.substr(slash + 1);
  return hart::EncodeFrame(
      hart::ReplyFrame(PollingRequest(std::stoi(text.substr(3))), hart::FromHex(status + "00")));
}

// "0 3 0 #2 req1": type, id, status, sequence number, body.
inline hart::HartIpMessage ParseMessage(const std::string& text) {
  std::istringstream words(text);
  int type = 0, id = 0, status = 0, sequence = 0;
  char hash = 0;
  std::string body;
  words >> type >> id >> status >> hash >> sequence >> body;
  return {static_cast<hart::HartIpType>(type), static_cast<hart::HartIpId>(id),
          static_cast<std::uint8_t>(status), static_cast<std::uint16_t>(sequence), FrameBody(body)};
}

// A session on a channel that the test plays, by the lines of a script:
//   ask L C       link L starts an exchange of command C     cancel L      it gives it up
//   open          the channel is open                        lost REASON   it is lost
//   < MESSAGE     comes from the server                      <hex BYTES    the same, as it is
//   > MESSAGE     is what the session sent next              + MS          time passes
//   = L C RESULT  is the exchange that ended next            opening, closed: of the channel
// Everything that the session does has to be named, in order.
class HartIpScript : public ZAFHartTypes::ICommCallback,
                     public std::enable_shared_from_this<HartIpScript> {
 public:
  explicit HartIpScript(HartLinks::HartIpOptions options)
      : session_(std::make_shared<HartLinks::HartIpSession>(
            options, [this](const auto&, std::size_t, HartLinks::IpChannel::User& user) {
              return std::make_unique<Channel>(*this, user);
            })) {}

  void Run(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
      SCOPED_TRACE(line);
      Do(line);
      Settle();
      if (testing::Test::HasFailure()) return;
    }
    EXPECT_EQ(Next(), "");
  }

  HartLinks::HartIpSession& Session() { return *session_; }
  // Lets go of the session and its links.
  void Finish() {
    links_.clear();
    session_.reset();
  }
  // What happened next: "> …", "= …", "opening", "closed"; "" for nothing.
  std::string Next() {
    if (events_.empty()) return "";
    const std::string event = events_.front();
    events_.pop_front();
    return event;
  }
  void Receive(hart::Bytes bytes) {
    if (channel_) channel_->User().OnReceive(bytes);
    Settle();
  }
  void Ask(int link, int command) {
    auto& slot = links_[link];
    if (!slot) slot = std::make_unique<HartLinks::HartIpLink>(session_, HartLinks::BusyPolicy{});
    auto exchange = std::make_shared<ZAFHartTypes::Exchange>();
    exchange->SetCommandNumber(static_cast<std::int16_t>(command));
    exchange->SetTag(std::to_string(link));
    exchange->SetCallback(weak_from_this());
    exchanges_[link] = exchange;
    slot->Execute(exchange);
  }

  void CommCallback_Finisched(const std::shared_ptr<ZAFHartTypes::Exchange>& exchange) override {
    std::string text = "= " + exchange->Tag() + " " + std::to_string(exchange->CommandNumber());
    if (exchange->State() == ZAFHartTypes::ExchangeState::Completed) {
      text += " " + exchange->ReplyData();
    } else if (exchange->State() == ZAFHartTypes::ExchangeState::Cancelled) {
      text += " cancelled";
    } else {
      text += " no reply";
      const std::string error = links_[std::stoi(exchange->Tag())]->LastError();
      if (!error.empty()) text += ": " + error;
    }
    events_.push_back(text);
  }

 private:
  class Channel : public HartLinks::IpChannel {
   public:
    Channel(HartIpScript& script, IpChannel::User& user) : script_(script), user_(user) {
      script_.channel_ = this;
      script_.events_.emplace_back("opening");
    }
    ~Channel() override {
      script_.channel_ = nullptr;
      script_.events_.emplace_back("closed");
    }
    IpChannel::User& User() { return user_; }
    void Send(hart::Bytes bytes) override {
      const hart::DecodedHartIp decoded = hart::DecodeHartIp(bytes);
      ASSERT_TRUE(decoded.IsGood());
      const hart::HartIpMessage& message = decoded.message;
      script_.events_.push_back("> " + std::to_string(static_cast<int>(message.type)) + " " +
                                std::to_string(static_cast<int>(message.id)) + " 0 #" +
                                std::to_string(message.sequence) + BodyText(message));
    }

   private:
    static std::string BodyText(const hart::HartIpMessage& message) {
      if (message.body.empty()) return "";
      const hart::DecodedFrame decoded = hart::DecodeFrame(message.body);
      const std::string request = "req" + std::to_string(decoded.frame.CommandNumber());
      const bool isShort =
          message.id == hart::HartIpId::TokenPassing && FrameBody(request) == message.body;
      return " " + (isShort ? request : hart::ToHex(message.body));
    }
    HartIpScript& script_;
    IpChannel::User& user_;
  };

  void Settle() {
    while (platform_.Loop().Pump()) {
    }
  }
  void Do(const std::string& line) {
    std::istringstream words(line);
    std::string verb, rest;
    words >> verb;
    std::getline(words >> std::ws, rest);
    if (verb == "ask") return Ask(std::stoi(rest), std::stoi(rest.substr(rest.find(' '))));
    if (verb == "cancel") return links_[std::stoi(rest)]->Cancel(exchanges_[std::stoi(rest)]);
    if (verb == "+") return platform_.GetClock().Sleep(platform::Milliseconds{std::stoi(rest)});
    if (verb == ">" || verb == "=" || verb == "opening" || verb == "closed") {
      EXPECT_EQ(Next(), line);
      return;
    }
    ASSERT_TRUE(channel_);
    if (verb == "open") channel_->User().OnOpen();
    if (verb == "lost") channel_->User().OnLost(rest);
    if (verb == "<") channel_->User().OnReceive(hart::EncodeHartIp(ParseMessage(rest)));
    if (verb == "<hex") channel_->User().OnReceive(hart::FromHex(rest));
  }

  platform::Platform platform_{std::make_unique<platform::ManualClock>()};
  platform::PlatformScope scope_{platform_};
  std::deque<std::string> events_;
  Channel* channel_ = nullptr;
  std::shared_ptr<HartLinks::HartIpSession> session_;
  std::map<int, std::unique_ptr<HartLinks::HartIpLink>> links_;
  std::map<int, std::shared_ptr<ZAFHartTypes::Exchange>> exchanges_;
};

}  // namespace test_support
