#include "links/SerialPort.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>
#if defined(__linux__)
#include <linux/serial.h>
#endif

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

#include "platform/Platform.h"

namespace HartLinks {

using platform::Milliseconds;

namespace {

// Between two looks at whether the rest has left.
constexpr Milliseconds kLookInterval{2};

constexpr std::array<std::pair<int, speed_t>, 10> kSpeeds{{{300, B300},
                                                           {600, B600},
                                                           {1200, B1200},
                                                           {2400, B2400},
                                                           {4800, B4800},
                                                           {9600, B9600},
                                                           {19'200, B19200},
                                                           {38'400, B38400},
                                                           {57'600, B57600},
                                                           {115'200, B115200}}};

std::string SystemText(int error) {
  return std::error_code(error, std::generic_category()).message();
}

Milliseconds Now() {
  return platform::Current().GetClock().Now();
}

// For bytes as they are, with marks at those received in error.
void MakeRaw(termios& settings, Parity parity) {
  settings.c_iflag = PARMRK;
  if (parity != Parity::None) settings.c_iflag |= INPCK;
  settings.c_oflag = 0;
  settings.c_lflag = 0;
  settings.c_cflag = CS8 | CREAD | CLOCAL;
  if (parity != Parity::None) settings.c_cflag |= PARENB;
  if (parity == Parity::Odd) settings.c_cflag |= PARODD;
  settings.c_cc[VMIN] = 1;
  settings.c_cc[VTIME] = 0;
}

}  // namespace

std::optional<ParityMarks::Received> ParityMarks::Take(std::uint8_t byte) {
  constexpr std::uint8_t mark = 0xFF;
  if (marks_ == 2) {
    marks_ = 0;
    return Received{byte, true};
  }
  if (marks_ == 1 && byte == 0) {
    marks_ = 2;
    return std::nullopt;
  }
  if (marks_ == 0 && byte == mark) {
    marks_ = 1;
    return std::nullopt;
  }
  marks_ = 0;
  return Received{byte, false};
}

SerialPort::SerialPort(const ModemOptions& options)
    : options_(options), characterTime_(CharacterTimeOf(options)) {}

SerialPort::~SerialPort() {
  Close();
}

void SerialPort::Open() {
  Close();
  descriptor_ = open(options_.port.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  if (descriptor_ < 0) RaiseSystemError(SystemText(errno));
  try {
    Configure();
  } catch (...) {
    Close();
    throw;
  }
  marks_ = {};
  readable_ = platform::Current().Loop().Watch({descriptor_, platform::Readiness::Readable},
                                               [this] { Receive(); });
}

void SerialPort::Configure() {
  if (isatty(descriptor_) == 0) RaiseSystemError("it is no serial port");
  // The lock keeps out those as well whom exclusive use does not, and tells on whom it fails.
  if (flock(descriptor_, LOCK_EX | LOCK_NB) != 0 || ioctl(descriptor_, TIOCEXCL) != 0) {
    RaiseSystemError("another program uses it");
  }
  const auto speed = std::find_if(kSpeeds.begin(), kSpeeds.end(),
                                  [&](const auto& one) { return one.first == options_.baud; });
  if (speed == kSpeeds.end()) {
    RaiseSystemError(std::to_string(options_.baud) + " baud is no speed of serial ports");
  }
  termios settings{};
  if (tcgetattr(descriptor_, &settings) != 0) RaiseSystemError(SystemText(errno));
  // A pseudo terminal has no parity, and refuses to change nothing else.
  MakeRaw(settings, IsPseudoTerminal(options_.port) ? Parity::None : options_.parity);
  cfsetispeed(&settings, speed->second);
  cfsetospeed(&settings, speed->second);
  if (tcsetattr(descriptor_, TCSANOW, &settings) != 0) RaiseSystemError(SystemText(errno));
  tcflush(descriptor_, TCIOFLUSH);
}

void SerialPort::RaiseSystemError(const std::string& what) {
  throw platform::Failure(platform::ErrorNumber::PathFileAccess, "HartLinks.SerialPort",
                          "Cannot open " + options_.port + ": " + what + ".");
}

void SerialPort::Close() {
  readable_.Cancel();
  sending_.Cancel();
  toWrite_.clear();
  if (const int descriptor = std::exchange(descriptor_, -1); descriptor >= 0) close(descriptor);
}

void SerialPort::Receive() {
  std::array<std::uint8_t, 512> bytes{};
  const ssize_t count = read(descriptor_, bytes.data(), bytes.size());
  if (count < 0 && (errno == EAGAIN || errno == EINTR)) return;
  if (count <= 0) return Break();
  for (std::size_t i = 0; i < static_cast<std::size_t>(count) && listener_; ++i) {
    if (const auto received = marks_.Take(bytes[i])) {
      listener_->OnByte(received->byte, received->faulty);
    }
  }
}

void SerialPort::Send(ZAFHartTypes::hart::Bytes bytes) {
  toWrite_.assign(bytes.begin(), bytes.end());
  leftAt_ = Now() + std::chrono::ceil<Milliseconds>(characterTime_ * bytes.size());
  sending_ = platform::Current().Loop().Watch({descriptor_, platform::Readiness::Writable},
                                              [this] { Write(); });
}

void SerialPort::Write() {
  const ssize_t count = write(descriptor_, toWrite_.data(), toWrite_.size());
  if (count < 0 && (errno == EAGAIN || errno == EINTR)) return;
  if (count < 0) return Break();
  toWrite_.erase(toWrite_.begin(), toWrite_.begin() + count);
  if (toWrite_.empty()) AwaitLeft();
}

void SerialPort::AwaitLeft() {
  const Milliseconds now = Now();
  if (now >= leftAt_ && HasAllLeft()) {
    sending_.Cancel();
    if (listener_) listener_->OnSent();
    return;
  }
  sending_ = platform::Current().Loop().StartOnce(std::max(leftAt_ - now, kLookInterval),
                                                  [this] { AwaitLeft(); });
}

// What a pseudo terminal holds waits for its reader, not for a wire.
bool SerialPort::HasAllLeft() const {
  if (characterTime_ == std::chrono::microseconds{0}) return true;
  int waiting = 0;
  if (ioctl(descriptor_, TIOCOUTQ, &waiting) == 0 && waiting > 0) return false;
#if defined(TIOCSERGETLSR) && defined(TIOCSER_TEMT)
  unsigned state = 0;
  if (ioctl(descriptor_, TIOCSERGETLSR, &state) == 0) return (state & TIOCSER_TEMT) != 0;
#endif
  return true;
}

void SerialPort::SetRequestToSend(bool on) {
  const int line = TIOCM_RTS;
  ioctl(descriptor_, on ? TIOCMBIS : TIOCMBIC, &line);
}

bool SerialPort::HasCarrier() {
  int lines = 0;
  return ioctl(descriptor_, TIOCMGET, &lines) == 0 && (lines & TIOCM_CAR) != 0;
}

void SerialPort::Break() {
  Close();
  if (listener_) listener_->OnBroken("The port " + options_.port + " has gone.");
}

}  // namespace HartLinks
