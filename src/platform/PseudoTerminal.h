#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>

#include "platform/Export.h"

namespace platform {

// The controlling end of a pseudo terminal, which never blocks; another program opens Name() like a
// serial port. Bytes go through as they are, unless that program sets its end otherwise. What fails
// raises DeviceIo with the system's reason. Closed with the object.
class ZAF_API PseudoTerminal {
 public:
  PseudoTerminal();
  ~PseudoTerminal();
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;

  // For MessageLoop::Watch; not to be closed.
  int Descriptor() const { return descriptor_; }
  // The path of the other end, "/dev/pts/3".
  const std::string& Name() const { return name_; }

  // The number of bytes that were taken, from the first on; 0 when there is no room just now.
  std::size_t Send(std::span<const std::uint8_t> bytes);
  // What has come: the number of bytes, 0 when none are there; nothing while nobody has the other
  // end open any more (its descriptor is ready then all the time: look again after a while).
  std::optional<std::size_t> Receive(std::span<std::uint8_t> buffer);

 private:
  int descriptor_;
  std::string name_;
};

// A symbolic link that leads somewhere as long as the object lives. One that leads there already,
// or nowhere any more, is replaced; raises PathFileAccess for one that leads to something else,
// which another program may use, and for any other file that is in the way.
class ZAF_API TemporaryLink {
 public:
  TemporaryLink(std::filesystem::path link, const std::string& target);
  ~TemporaryLink();
  TemporaryLink(const TemporaryLink&) = delete;
  TemporaryLink& operator=(const TemporaryLink&) = delete;

 private:
  std::filesystem::path link_;
  std::string target_;
};

}  // namespace platform
