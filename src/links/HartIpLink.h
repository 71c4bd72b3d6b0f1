#pragma once

#include <memory>

#include "links/FrameLink.h"
#include "links/HartIpOptions.h"
#include "links/HartIpSession.h"
#include "platform/Export.h"

namespace HartLinks {

// "HartIp.Link": the link to a device that a HART-IP server is or has behind it. Links of one
// thread to the same server share its session, and take turns on it.
class ZAF_API HartIpLink : public FrameLink {
 public:
  // From the settings (kHartIpSettingsKey); raises InvalidArgument naming the one that is missing
  // or wrong. Nothing is sent before the first exchange.
  HartIpLink() : HartIpLink(HartIpOptions::FromSettings()) {}
  // To the server named in the options, over this thread's session with it; over a given session.
  explicit HartIpLink(const HartIpOptions& options)
      : HartIpLink(HartIpSession::Shared(options), options.busy) {}
  HartIpLink(std::shared_ptr<HartIpSession> session, BusyPolicy busy)
      : FrameLink(session, busy), session_(std::move(session)) {}

  // Other links may share it.
  HartIpSession& Session() const { return *session_; }

 private:
  std::shared_ptr<HartIpSession> session_;
};

}  // namespace HartLinks
