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
  // Of its own reply a modem may send the echo; a master is silent meanwhile.
  if (isSending_) return;
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

void ModemServer::Send() {
  isSending_ = true;
  channel_.SetRequestToSend(true);
  channel_.Send(answer_);
}

void ModemServer::OnSent() {
  channel_.SetRequestToSend(false);
  isSending_ = false;
}

void ModemServer::OnBroken(const std::string&) {
  answering_.Cancel();
  isSending_ = false;
}

}  // namespace HartLinks
