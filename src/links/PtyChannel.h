#pragma once

#include "links/ByteChannel.h"
#include "platform/Export.h"
#include "platform/MessageLoop.h"
#include "platform/PseudoTerminal.h"

namespace HartLinks {

// The far end of a line that another program opens as a serial port. It is open as long as it
// lives, whether or not somebody has the other end; what is sent to nobody is lost. It has no
// speed: bytes have left at once.
class ZAF_API PtyChannel : public ByteChannel {
 public:
  // Raises DeviceIo when no pseudo terminal can be had.
  PtyChannel();

  // Path of the other end, for the program that opens it: "/dev/pts/3".
  const std::string& Name() const { return terminal_.Name(); }

  void SetListener(Listener* listener) override { listener_ = listener; }
  bool IsOpen() const override { return true; }
  void Open() override {}
  void Close() override {}
  void Send(ZAFHartTypes::hart::Bytes bytes) override;
  void SetRequestToSend(bool) override {}
  bool HasCarrier() override { return false; }

 private:
  void Watch();
  void Receive();

  platform::PseudoTerminal terminal_;
  Listener* listener_ = nullptr;
  platform::Subscription readable_;
  platform::Subscription lookingAgain_;  // while nobody has the other end
  platform::Subscription sent_;
};

}  // namespace HartLinks
