#pragma once

#include <cstdint>
#include <vector>

#include "hart/FrameDecoder.h"
#include "links/ByteChannel.h"
#include "links/HartIpService.h"
#include "platform/Export.h"
#include "platform/MessageLoop.h"

namespace HartLinks {

// How the devices' side behaves in time.
struct ModemServerOptions {
  int preambles = 5;  // ahead of a reply, 2 to 20
  // Between the end of a request and the reply; a master waits 256 ms at most.
  platform::Milliseconds answerDelay{10};
  // A silence of that length ends a frame that is under way.
  platform::Milliseconds gap{100};
};

// The devices' side of a line: finds requests in what comes, and answers those that are for a
// device. What others say on the line is passed over, and so is the echo of a reply; a request that
// comes before the answer to the last one has begun takes its place.
class ZAF_API ModemServer : private ByteChannel::Listener {
 public:
  // The channel is open and outlives the server.
  ModemServer(ByteChannel& channel, FrameAnswerer answerer, ModemServerOptions options = {});
  ~ModemServer() override;
  ModemServer(const ModemServer&) = delete;
  ModemServer& operator=(const ModemServer&) = delete;

 private:
  void OnByte(std::uint8_t byte, bool faulty) override;
  void OnSent() override;
  void OnBroken(const std::string&) override;
  void Handle(const ZAFHartTypes::hart::DecodedFrame& decoded);
  void Send();

  ByteChannel& channel_;
  FrameAnswerer answerer_;
  ModemServerOptions options_;
  ZAFHartTypes::hart::FrameDecoder decoder_;
  std::vector<std::uint8_t> answer_;  // that waits for its time
  bool isSending_ = false;
  bool isDue_ = false;  // the answer's time has come while the one before is being sent
  platform::Subscription silence_;
  platform::Subscription answering_;
};

}  // namespace HartLinks
