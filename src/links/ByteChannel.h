#pragma once

#include <string>

#include "hart/Numbers.h"
#include "platform/Export.h"

namespace HartLinks {

// A way for single bytes: a serial port, or what stands in for one. Everything it tells comes from
// the message loop, never out of a call.
class ZAF_API ByteChannel {
 public:
  // Who is told what the channel brings.
  class Listener {
   public:
    virtual ~Listener() = default;
    // One byte came; `faulty`: with wrong parity or framing.
    virtual void OnByte(std::uint8_t byte, bool faulty) = 0;
    // The last bit of what was sent has left.
    virtual void OnSent() = 0;
    // The channel has gone (unplugged, closed at its far end) and is closed now; `reason` is for
    // users.
    virtual void OnBroken(const std::string& reason) = 0;
  };

  virtual ~ByteChannel() = default;
  // Whoever listens outlives the channel or takes itself back (nullptr).
  virtual void SetListener(Listener* listener) = 0;
  virtual bool IsOpen() const = 0;
  // Raises PathFileAccess with the reason for users.
  virtual void Open() = 0;
  // Nothing is told any more until it is opened again. Without effect on a channel that is closed
  // or always open.
  virtual void Close() = 0;
  // REQUIRES: open, and what was sent before has left. A failure is told as OnBroken.
  virtual void Send(ZAFHartTypes::hart::Bytes bytes) = 0;
  // The modem's carrier on or off. Without effect where there is no such line.
  virtual void SetRequestToSend(bool on) = 0;
  // Somebody's carrier is on; false where that cannot be told.
  virtual bool HasCarrier() = 0;
};

}  // namespace HartLinks
