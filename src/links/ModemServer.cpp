#include "links/ModemServer.h"

#include <algorithm>

#include "platform/Platform.h"

namespace HartLinks {

namespace hart = ZAFHartTypes::hart;

ModemServer::ModemServer(ByteChannel& channel, FrameAnswerer answerer, ModemServerOptions options)
    : channel_(channel), answerer_(std::move(answerer)), options_(options) {
  channel_.SetListener(this);
}

ModemServer::~ModemServer() {
  channel_.SetListener(nullptr);
}

void ModemServer::OnByte(std::uint8_t byte, bool faulty) {
  const auto found = faulty ? decoder_.ReceiveFaulty(byte) : decoder_.Receive({&byte, 1});
  for (const hart::DecodedFrame& decoded : found) Handle(decoded);
  silence_.Cancel();
  if (!decoder_.IsReceiving()) return;
  silence_ = platform::Current().Loop().StartOnce(options_.gap, [this] {
    for (const hart::DecodedFrame& decoded : decoder_.Gap()) Handle(decoded);
  });
}

void ModemServer::Handle(const hart::DecodedFrame& decoded) {
  const bool isRequest = decoded.frame.type == hart::FrameType::Request;
  const auto reply = isRequest ? answerer_(decoded) : std::nullopt;
  if (!reply) return;
  answer_ = hart::WithPreambles(reply->frame, options_.preambles);
  answering_ = platform::Current().Loop().StartOnce(std::max(options_.answerDelay, reply->delay),
                                                    [this] { Send(); });
}

// A master may ask again as soon as it has heard the reply, before the channel tells its end.
void ModemServer::Send() {
  isDue_ = isSending_;
  if (isDue_) return;
  isSending_ = true;
  channel_.SetRequestToSend(true);
  channel_.Send(answer_);
}

void ModemServer::OnSent() {
  channel_.SetRequestToSend(false);
  isSending_ = false;
  if (isDue_) Send();
}

void ModemServer::OnBroken(const std::string&) {
  answering_.Cancel();
  isSending_ = false;
  isDue_ = false;
}

}  // namespace HartLinks
