#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "hart/LinkFrame.h"
#include "links/FrameCarrier.h"
#include "links/HartIpConnection.h"
#include "links/RequestQueue.h"
#include "platform/Export.h"

namespace HartLinks {

// Brings requests to the devices behind a HART-IP server. The session is made for the first request
// and kept while a link holds this object.
//
// - Over UDP an unanswered request is sent again with its sequence number: the answer to any of the
//   sendings is the answer to the request, and a server that knows repetitions by their number does
//   not have the command carried out twice. A number that is waited for no more is nobody's: late
//   and doubled answers are dropped.
// - A damaged answer, one that belongs to another request by its frame, and one with communication
//   error flags: the request is asked again, under a new number.
// - The session is lost with requests under way: nobody knows whether the device has carried them
//   out, so they end without a reply and their sender decides. Only what the server refused with a
//   NAK was certainly not carried out; it is sent once more, in a new session. What was not sent
//   yet waits for a new session, at most HartIpOptions::connectTimeout.
class ZAF_API HartIpSession : public FrameCarrier, private HartIpConnection::User {
 public:
  using PublishHandler = std::function<void(const ZAFHartTypes::hart::LinkFrame&)>;

  // The one of this thread for the options' server and master.
  static std::shared_ptr<HartIpSession> Shared(const HartIpOptions& options);

  // One of its own, over channels that `open` makes.
  HartIpSession(const HartIpOptions& options, IpChannelOpener open);

  // Receives the burst messages that the server publishes; they answer nothing. The handler must
  // not let go of the session.
  void SetPublishHandler(PublishHandler handler) { published_ = std::move(handler); }
  // False before the first request and while the session is made again.
  bool HasSession() const { return connection_.HasSession(); }

  // --- FrameCarrier ---
  bool IsPrimaryMaster() const override { return options_.primaryMaster; }
  void Send(const std::shared_ptr<FrameRequest>& request) override;
  // One under way keeps its place among the outstanding ones until it is answered or its time-out
  // is over: the server is busy with it.
  void Cancel(const std::shared_ptr<FrameRequest>& request) override;

 private:
  struct Waiting {
    std::shared_ptr<FrameRequest> request;
    platform::Milliseconds since{0};
    bool wasRefused = false;

    friend bool operator==(const Waiting& a, const Waiting& b) { return a.request == b.request; }
  };
  struct Outstanding {
    std::shared_ptr<FrameRequest> request;  // nothing: cancelled
    std::vector<std::uint8_t> body;
    bool wasRefused = false;
    int sendingsLeft = 0;
    int repetitionsLeft = 0;
    std::uint64_t heardBefore = 0;
    std::uint16_t sequence = 0;
    platform::Subscription timer;
  };
  using Place = std::vector<Outstanding>::iterator;

  bool WantsSession() const override { return !queue_.IsEmpty(); }
  void OnSession() override;
  void OnNoSession(const std::string& reason, bool hadOne) override;
  void OnAnswer(const HartIpConnection::Message& message) override;
  void OnPublish(const HartIpConnection::Message& message) override;

  Place Find(std::uint16_t sequence);
  void StartNext();
  void Start(Waiting waiting);
  void SendAsNew(Outstanding& outstanding);
  void AwaitAnswer(Outstanding& outstanding);
  void OnTimeout(std::uint16_t sequence);
  void TakeRefusal(Place place);
  void TakeFrame(Place place, const HartIpConnection::Message& message);
  FrameEnd Failed(const std::string& what) const;
  void AskAgainOr(Place place, FrameEnd end);
  void Finish(Place place, FrameEnd end);
  void WatchWaiting(platform::Milliseconds forTime);
  void EndWaiting();

  const HartIpOptions options_;
  PublishHandler published_;
  RequestQueue<Waiting> queue_;
  std::vector<Outstanding> outstanding_;
  std::string reason_;                // why there is no session
  platform::Milliseconds lostAt_{0};  // the last session
  platform::Subscription waitingTimer_;
  HartIpConnection connection_;
};

}  // namespace HartLinks
