#pragma once

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "hart/HartIpMessage.h"
#include "hart/LinkFrame.h"
#include "linksim/WireDevice.h"
#include "platform/Export.h"
#include "platform/MessageLoop.h"

namespace HartLinks {

// Answers the frames of masters: one device, or several on one line. Nothing when none answers.
using FrameAnswerer = std::function<std::optional<HartLinkSim::WireReply>(
    const ZAFHartTypes::hart::DecodedFrame& request)>;
// What a device in burst mode sends; nothing when none is.
using BurstSource = std::function<std::optional<ZAFHartTypes::hart::LinkFrame>()>;

// What a server grants its clients.
struct HartIpServiceOptions {
  std::size_t maxSessions = 16;  // one more is refused with kHartIpAllSessionsInUse
  // Between these a client may choose after which silence its session is closed.
  platform::Milliseconds minInactivity{1000};
  platform::Milliseconds maxInactivity{3'600'000};
  BurstSource burst;                         // may be empty; published to all sessions
  platform::Milliseconds burstPeriod{1000};  // between two questions to `burst`
};

// The server's side of HART-IP, without sockets: sessions by client, requests in and responses out.
//
// A session is granted with the inactivity time that the client wants, or the nearest that is
// allowed and a warning. A client that asks again renews its session. Requests without a session
// are refused with a NAK, those of another protocol version with status 14, session or not; what is
// malformed or no request is passed over. A device that does not answer makes the response's body
// empty. A request that comes once more is answered once more and carried out once.
class ZAF_API HartIpService {
 public:
  // Where a client's messages come from and go to.
  class Client {
   public:
    virtual ~Client() = default;
    // The same for all messages of one client: "192.0.2.1:40211/udp".
    virtual const std::string& Name() const = 0;
    // Takes the bytes of one message. Nothing is told of what gets lost.
    virtual void Send(ZAFHartTypes::hart::Bytes message) = 0;
    // Its session has ended; a connection is closed when what was sent has gone out.
    virtual void HangUp() = 0;
  };

  // `answerer` is asked once for each request, repetitions excepted. REQUIRES: an answerer.
  explicit HartIpService(FrameAnswerer answerer, HartIpServiceOptions options = {});
  HartIpService(const HartIpService&) = delete;
  HartIpService& operator=(const HartIpService&) = delete;

  // A message came from the client, who is held while it has a session; answers are sent to it at
  // once, or after the time that the device takes.
  void Receive(const std::shared_ptr<Client>& client,
               const ZAFHartTypes::hart::DecodedHartIp& decoded);
  // The client is gone, and its session with it.
  void Forget(const std::string& name);
  // By Client::Name.
  bool HasSession(const std::string& name) const;
  std::size_t SessionCount() const { return sessions_.size(); }

 private:
  using Message = ZAFHartTypes::hart::HartIpMessage;
  struct Session {
    std::shared_ptr<Client> client;
    platform::Milliseconds inactivity;
    platform::Subscription silence;
    Message lastRequest;                            // of a device
    std::vector<std::uint8_t> answer;               // to it; empty until the device has it
    std::vector<platform::Subscription> answering;  // while the device takes its time
  };
  using Place = std::list<Session>::iterator;

  Place Find(const std::string& name);
  void Initiate(const std::shared_ptr<Client>& client, const Message& request);
  void Grant(const std::shared_ptr<Client>& client, const Message& request,
             ZAFHartTypes::hart::HartIpSession wanted);
  void Serve(Place session, const Message& request);
  void AskDevice(Place session, const Message& request);
  void Respond(Session& session, const Message& request, std::vector<std::uint8_t> frame);
  void WatchSilence(Session& session);
  void End(Place session);
  void Publish();

  FrameAnswerer answerer_;
  HartIpServiceOptions options_;
  std::list<Session> sessions_;
  platform::Subscription publishing_;  // while there are sessions
};

}  // namespace HartLinks
