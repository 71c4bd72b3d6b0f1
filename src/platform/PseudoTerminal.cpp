#include "platform/PseudoTerminal.h"

#include <fcntl.h>
#include <stdlib.h>  // NOLINT(modernize-deprecated-headers): posix_openpt
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

#include "platform/Failure.h"

namespace platform {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void Raise(const std::string& what, int error) {
  throw Failure(ErrorNumber::DeviceIo, "platform.PseudoTerminal",
                what + ": " + std::generic_category().message(error));
}

bool IsForLater(int error) {
  return error == EAGAIN || error == EWOULDBLOCK || error == EINTR;
}

// Neither end changes or repeats bytes.
void MakeRaw(int descriptor) {
  termios settings{};
  if (tcgetattr(descriptor, &settings) != 0) return;
  settings.c_iflag = 0;
  settings.c_oflag = 0;
  settings.c_lflag = 0;
  settings.c_cflag = CS8 | CREAD | CLOCAL;
  tcsetattr(descriptor, TCSANOW, &settings);
}

}  // namespace

PseudoTerminal::PseudoTerminal() : descriptor_(posix_openpt(O_RDWR | O_NOCTTY)) {
  if (descriptor_ < 0) Raise("Cannot make a pseudo terminal", errno);
  const char* name = nullptr;
  if (grantpt(descriptor_) == 0 && unlockpt(descriptor_) == 0) name = ptsname(descriptor_);
  if (!name) {
    const int error = errno;
    close(descriptor_);
    Raise("Cannot make a pseudo terminal", error);
  }
  name_ = name;
  fcntl(descriptor_, F_SETFD, FD_CLOEXEC);
  fcntl(descriptor_, F_SETFL, O_NONBLOCK);
  MakeRaw(descriptor_);
}

PseudoTerminal::~PseudoTerminal() {
  close(descriptor_);
}

std::size_t PseudoTerminal::Send(std::span<const std::uint8_t> bytes) {
  const ssize_t count = write(descriptor_, bytes.data(), bytes.size());
  if (count >= 0) return static_cast<std::size_t>(count);
  if (!IsForLater(errno)) Raise("Cannot send over " + name_, errno);
  return 0;
}

std::optional<std::size_t> PseudoTerminal::Receive(std::span<std::uint8_t> buffer) {
  const ssize_t count = read(descriptor_, buffer.data(), buffer.size());
  if (count > 0) return static_cast<std::size_t>(count);
  if (count == 0 || errno == EIO) return std::nullopt;
  if (!IsForLater(errno)) Raise("Cannot receive over " + name_, errno);
  return 0;
}

TemporaryLink::TemporaryLink(fs::path link, const std::string& target)
    : link_(std::move(link)), target_(target) {
  const auto refuse = [this](const std::string& reason) {
    throw Failure(ErrorNumber::PathFileAccess, "platform.TemporaryLink",
                  "Cannot make the link \"" + link_.string() + "\": " + reason);
  };
  std::error_code error;
  if (fs::is_symlink(link_, error)) {
    const fs::path leads = fs::read_symlink(link_, error);
    if (leads != target_ && fs::exists(link_, error))
      refuse("it leads to " + leads.string() + ", which another program may use");
    fs::remove(link_, error);
  }
  fs::create_symlink(target_, link_, error);
  if (error) refuse(error.message());
}

// Another program may have made one of its own in its place.
TemporaryLink::~TemporaryLink() {
  std::error_code error;
  if (fs::read_symlink(link_, error) == target_) fs::remove(link_, error);
}

}  // namespace platform
