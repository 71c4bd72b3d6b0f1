#pragma once

#include <memory>

#include "links/FrameLink.h"
#include "links/HartLine.h"
#include "platform/Export.h"

namespace HartLinks {

// "HartModem.Link": the link to a device behind a HART modem on a serial port or a pseudo terminal.
// Links of one thread to the same port share its line, and take turns on it.
class ZAF_API HartModemLink : public FrameLink {
 public:
  // From the settings (kModemSettingsKey); raises InvalidArgument naming the one that is missing or
  // wrong. The port is opened by the first exchange.
  HartModemLink() : HartModemLink(ModemOptions::FromSettings()) {}
  // At the port named in the options, over this thread's line there; over a given line.
  explicit HartModemLink(const ModemOptions& options)
      : HartModemLink(HartLine::Shared(options), options.busy) {}
  HartModemLink(std::shared_ptr<HartLine> line, BusyPolicy busy)
      : FrameLink(line, busy), line_(std::move(line)) {}

  // Other links may share it.
  HartLine& Line() const { return *line_; }

 private:
  std::shared_ptr<HartLine> line_;
};

}  // namespace HartLinks
