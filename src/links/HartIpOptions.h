#pragma once

#include <memory>
#include <string_view>

#include "links/BusyPolicy.h"
#include "links/IpChannel.h"
#include "platform/Clock.h"
#include "platform/Export.h"

namespace HartLinks {

class LinkSettings;

// Registry key of the settings that a "HartIp.Link" takes when it is created by its class name:
// "Host", "Port", "Transport" (udp, tcp), "Master" (primary, secondary), "Timeout",
// "ConnectTimeout" and "InactivityTime" (milliseconds), "Retries", "Outstanding", "BusyAttempts",
// "BusyDelay".
inline constexpr std::string_view kHartIpSettingsKey =
    "\\HKEY_LOCAL_MACHINE\\SOFTWARE\\Quillbridge\\HART\\HartIp";

// How a HART-IP server is reached. Links of one thread with the same server and master share a
// session; all but `busy` are those of the link that came first.
struct ZAF_API HartIpOptions {
  HartIpServerName server;
  bool primaryMaster = true;  // else the secondary one
  // For one sending of a message. A gateway may have a device asked several times over 1200 baud
  // before it answers.
  platform::Milliseconds timeout{2000};
  // Over UDP a message is sent so often again. Over TCP nothing is lost on the way, and the answer
  // has the time of all of them. Also the number of times that a request is asked again when its
  // answer is damaged.
  int retries = 3;
  // For connecting and the session's initiation, and for requests that wait for a session.
  platform::Milliseconds connectTimeout{5000};
  // After which silence the server is asked to close the session; it may grant another time.
  platform::Milliseconds inactivityTime{60'000};
  // Requests under way at once. A device takes one at a time, a gateway may take more.
  int outstanding = 1;
  BusyPolicy busy;
  std::shared_ptr<IPacketObserver> observer;  // of the session's packets; may be nothing

  // Sendings of one message, and how long an answer is waited for after each.
  int Sendings() const { return server.transport == Transport::Udp ? retries + 1 : 1; }
  platform::Milliseconds AnswerTime() const {
    return server.transport == Transport::Udp ? timeout : timeout * (retries + 1);
  }

  // Those of kHartIpSettingsKey, or of another place. Times are at most 86400000 ms, "Retries" 0 to
  // 100, "Outstanding" 1 to 1000; what is absent is as above. Raises InvalidArgument naming the
  // setting that is missing ("Host") or cannot be read.
  static HartIpOptions FromSettings();
  static HartIpOptions From(const LinkSettings& settings);
};

}  // namespace HartLinks
