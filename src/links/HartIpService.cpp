#include "links/HartIpService.h"

#include <algorithm>
#include <utility>

#include "platform/Platform.h"

namespace HartLinks {

namespace hart = ZAFHartTypes::hart;
using hart::HartIpFault;
using hart::HartIpId;
using hart::HartIpMessage;
using hart::HartIpType;
using platform::Milliseconds;

namespace {

constexpr std::uint8_t kInvalidSelection = 2;  // status of a message that is none of the protocol
constexpr std::size_t kSessionBodySize = 5;

platform::MessageLoop& Loop() {
  return platform::Current().Loop();
}

void Answer(HartIpService::Client& client, const HartIpMessage& request, HartIpType type,
            std::uint8_t status, std::vector<std::uint8_t> body = {}) {
  client.Send(hart::EncodeHartIp({type, request.id, status, request.sequence, std::move(body)}));
}

}  // namespace

HartIpService::HartIpService(FrameAnswerer answerer, HartIpServiceOptions options)
    : answerer_(std::move(answerer)), options_(std::move(options)) {}

void HartIpService::Receive(const std::shared_ptr<Client>& client,
                            const hart::DecodedHartIp& decoded) {
  const Message& request = decoded.message;
  if (request.type != HartIpType::Request) return;
  const bool initiates = request.id == HartIpId::SessionInitiate;
  if (decoded.fault == HartIpFault::Version) {
    return Answer(*client, request, initiates ? HartIpType::Response : HartIpType::Nak,
                  hart::kHartIpVersionNotSupported);
  }
  if (!decoded.IsGood()) return;
  if (initiates) return Initiate(client, request);
  const Place session = Find(client->Name());
  if (session == sessions_.end()) {
    return Answer(*client, request, HartIpType::Nak, hart::kHartIpAccessRestricted);
  }
  Serve(session, request);
}

void HartIpService::Forget(const std::string& name) {
  const Place session = Find(name);
  if (session != sessions_.end()) sessions_.erase(session);
  if (sessions_.empty()) publishing_.Cancel();
}

bool HartIpService::HasSession(const std::string& name) const {
  return std::any_of(sessions_.begin(), sessions_.end(),
                     [&](const Session& session) { return session.client->Name() == name; });
}

HartIpService::Place HartIpService::Find(const std::string& name) {
  return std::find_if(sessions_.begin(), sessions_.end(),
                      [&](const Session& session) { return session.client->Name() == name; });
}

void HartIpService::Initiate(const std::shared_ptr<Client>& client, const Message& request) {
  const auto refuse = [&](std::uint8_t status) {
    Answer(*client, request, HartIpType::Response, status);
  };
  if (request.body.size() < kSessionBodySize) return refuse(hart::kHartIpTooFewBytes);
  const auto wanted = hart::DecodeSession(request.body);
  if (!wanted) return refuse(hart::kHartIpInvalidMaster);
  const bool isNew = !HasSession(client->Name());
  if (isNew && sessions_.size() >= options_.maxSessions) {
    return refuse(hart::kHartIpAllSessionsInUse);
  }
  Grant(client, request, *wanted);
}

void HartIpService::Grant(const std::shared_ptr<Client>& client, const Message& request,
                          hart::HartIpSession wanted) {
  const Milliseconds asked = wanted.inactivityClose;
  wanted.inactivityClose = std::clamp(asked, options_.minInactivity, options_.maxInactivity);
  const auto status =
      wanted.inactivityClose == asked ? hart::kHartIpSuccess : hart::kHartIpNearestTime;
  Forget(client->Name());
  Session& session =
      sessions_.emplace_back(Session{client, wanted.inactivityClose, {}, {}, {}, {}});
  WatchSilence(session);
  if (options_.burst && !publishing_.IsActive()) {
    publishing_ = Loop().StartTimer(options_.burstPeriod, [this] { Publish(); });
  }
  Answer(*client, request, HartIpType::Response, status, hart::EncodeSession(wanted));
}

void HartIpService::Serve(Place session, const Message& request) {
  WatchSilence(*session);
  switch (request.id) {
    case HartIpId::SessionClose:
      Answer(*session->client, request, HartIpType::Response, hart::kHartIpSuccess);
      return End(session);
    case HartIpId::KeepAlive:
      return Answer(*session->client, request, HartIpType::Response, hart::kHartIpSuccess);
    case HartIpId::TokenPassing:
      return AskDevice(session, request);
    default:
      return Answer(*session->client, request, HartIpType::Nak, kInvalidSelection);
  }
}

void HartIpService::AskDevice(Place session, const Message& request) {
  if (request == session->lastRequest) {
    if (!session->answer.empty()) session->client->Send(session->answer);
    return;
  }
  session->lastRequest = request;
  session->answer.clear();
  auto reply = answerer_(hart::DecodeFrame(request.body));
  if (!reply) return Respond(*session, request, {});
  if (reply->delay == Milliseconds{0}) return Respond(*session, request, std::move(reply->frame));
  auto& answering = session->answering;
  std::erase_if(answering, [](const platform::Subscription& one) { return !one.IsActive(); });
  answering.push_back(
      Loop().StartOnce(reply->delay, [this, session, request, frame = std::move(reply->frame)] {
        Respond(*session, request, frame);
      }));
}

void HartIpService::Respond(Session& session, const Message& request,
                            std::vector<std::uint8_t> frame) {
  auto answer = hart::EncodeHartIp({HartIpType::Response, HartIpId::TokenPassing,
                                    hart::kHartIpSuccess, request.sequence, std::move(frame)});
  session.client->Send(answer);
  if (request == session.lastRequest) session.answer = std::move(answer);
}

void HartIpService::WatchSilence(Session& session) {
  session.silence = Loop().StartOnce(session.inactivity, [this, name = session.client->Name()] {
    const Place silent = Find(name);
    if (silent != sessions_.end()) End(silent);
  });
}

void HartIpService::End(Place session) {
  const std::shared_ptr<Client> client = session->client;
  Forget(client->Name());
  client->HangUp();
}

void HartIpService::Publish() {
  const auto frame = options_.burst();
  if (!frame) return;
  const auto message = hart::EncodeHartIp({HartIpType::Publish, HartIpId::TokenPassing,
                                           hart::kHartIpSuccess, 0, hart::EncodeFrame(*frame)});
  const std::list<Session>& sessions = sessions_;
  for (const Session& session : sessions) session.client->Send(message);
}

}  // namespace HartLinks
