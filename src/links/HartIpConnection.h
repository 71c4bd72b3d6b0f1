#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "hart/HartIpMessage.h"
#include "links/HartIpOptions.h"
#include "links/IpChannel.h"
#include "platform/MessageLoop.h"

namespace HartLinks {

// A session with a HART-IP server, made, kept alive and made again: everything but the requests.
//
//   closed -> opening -> initiating -> in session
//     ^          |           |             |
//     +-- pause: 0.1 s, doubled to 10 s while there is no session
class HartIpConnection : private IpChannel::User {
 public:
  using Message = ZAFHartTypes::hart::HartIpMessage;

  // Calls come from the message loop; the user must not destroy the connection in them.
  class User {
   public:
    // A session is to be made again as soon as it may be tried.
    virtual bool WantsSession() const = 0;
    // There is a session: messages can be sent.
    virtual void OnSession() = 0;
    // The session is lost, or an attempt to get one has failed. The reason names the server.
    virtual void OnNoSession(const std::string& reason, bool hadOne) = 0;
    // An answer to a token-passing message, or a NAK.
    virtual void OnAnswer(const Message& message) = 0;
    // A burst message, which answers nothing.
    virtual void OnPublish(const Message& message) = 0;

   protected:
    ~User() = default;
  };

  // Opens nothing yet, see Want. The user outlives the connection.
  HartIpConnection(const HartIpOptions& options, IpChannelOpener open, User& user);
  // Closes the session.
  ~HartIpConnection();

  bool HasSession() const { return state_ == State::InSession; }
  // Starts to make a session, unless that is under way or pausing.
  void Want();
  // Gives a token-passing message the next sequence number and sends it. REQUIRES: a session.
  std::uint16_t Send(std::vector<std::uint8_t> body);
  // Sends it again, as the same message. REQUIRES: a session.
  void SendAgain(std::uint16_t sequence, std::vector<std::uint8_t> body);
  // Asks the server for a sign of life; the session is lost when it gives none or denies it.
  void Confirm();
  // Gives the session up as lost; a new one can be made.
  void Lose(const std::string& reason);
  // Number of messages that came from the server.
  std::uint64_t Heard() const { return heard_; }

 private:
  enum class State : std::uint8_t { Closed, Opening, Initiating, InSession, Pausing };

  void OnOpen() override;
  void OnReceive(ZAFHartTypes::hart::Bytes bytes) override;
  void OnLost(const std::string& reason) override { End(reason); }

  void Close();
  void End(const std::string& reason);
  void Transmit(const Message& message);
  void Take(const ZAFHartTypes::hart::DecodedHartIp& decoded);
  void TakeFault(const ZAFHartTypes::hart::DecodedHartIp& decoded);
  void TakeAnswer(const Message& message);
  void TakeInitiated(const Message& message);
  void TakeKeepAlive(const Message& message);
  void WatchIdleness();
  void SendKeepAlive(int sendings);
  void EndPause();

  const HartIpOptions options_;
  IpChannelOpener open_;
  User& user_;
  State state_ = State::Closed;
  std::unique_ptr<IpChannel> channel_;
  ZAFHartTypes::hart::HartIpStream stream_;
  std::uint16_t sequence_ = 0;  // given last
  std::uint64_t heard_ = 0;
  platform::Milliseconds sentAt_{0};
  std::size_t failedAttempts_ = 0;  // since the last session
  platform::Milliseconds pause_;    // the next one
  platform::Subscription pausing_;
  platform::Subscription limit_;  // of an attempt
  Message initiate_;
  platform::Subscription initiateAgain_;
  platform::Milliseconds idleTime_{0};  // after which the session is kept alive; 0: never
  platform::Subscription idle_;
  Message keepAlive_;
  std::uint64_t heardBefore_ = 0;           // it was sent
  platform::Subscription keepAliveAnswer_;  // active while it is waited for
};

}  // namespace HartLinks
