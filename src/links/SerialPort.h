#pragma once

#include <optional>
#include <string>
#include <vector>

#include "links/ByteChannel.h"
#include "links/ModemOptions.h"
#include "platform/MessageLoop.h"

namespace HartLinks {

// Takes the marks apart by which a terminal tells bytes received with an error (PARMRK): 0xFF 0x00
// and the byte. A good 0xFF comes twice.
class ParityMarks {
 public:
  struct Received {
    std::uint8_t byte = 0;
    bool faulty = false;
  };
  // What the byte completes; nothing within a mark.
  std::optional<Received> Take(std::uint8_t byte);

 private:
  int marks_ = 0;  // bytes of a mark so far
};

// A serial port or a pseudo terminal by the system's terminal interface: eight data bits, one stop
// bit, no flow control, for this program alone.
class SerialPort final : public ByteChannel {
 public:
  explicit SerialPort(const ModemOptions& options);
  ~SerialPort() override;

  void SetListener(Listener* listener) override { listener_ = listener; }
  bool IsOpen() const override { return descriptor_ >= 0; }
  void Open() override;
  void Close() override;
  void Send(ZAFHartTypes::hart::Bytes bytes) override;
  void SetRequestToSend(bool on) override;
  bool HasCarrier() override;

 private:
  void Configure();
  [[noreturn]] void RaiseSystemError(const std::string& what);
  void Receive();
  void Write();
  void AwaitLeft();
  bool HasAllLeft() const;
  void Break();

  ModemOptions options_;
  std::chrono::microseconds characterTime_;
  Listener* listener_ = nullptr;
  int descriptor_ = -1;
  ParityMarks marks_;
  std::vector<std::uint8_t> toWrite_;
  platform::Milliseconds leftAt_{0};  // when what was written has left, by the line's speed
  platform::Subscription readable_;
  platform::Subscription sending_;
};

}  // namespace HartLinks
