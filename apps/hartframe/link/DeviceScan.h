#pragma once

#include <functional>
#include <string>
#include <vector>

#include "hartframe/Speech.h"
#include "hartframe/link/DirectLink.h"
#include "hartframe/link/LinkResults.h"

namespace hartframe {

// Asks polling addresses one after the other who is there (HART command 0), and those who answer
// for their tags (13, and 20 from HART 6 on) and, when they are gateways, for the devices behind
// them (74, 84).
class DeviceScan {
 public:
  // An address at which somebody was heard, but nothing that could be used.
  struct Disturbed {
    int pollingAddress;
    std::string reason;
  };

  DeviceScan(DirectLink& link, const Speech& say) : link_(link), say_(say) {}

  // `progress` is told the addresses that are done. Raises Cancelled after Ctrl-C; what was found
  // by then stays. CommandFailure (Communication) when the link itself cannot be used.
  void Run(int first, int last, const std::function<void(int done)>& progress);

  const std::vector<FoundDevice>& Devices() const { return devices_; }
  const std::vector<Disturbed>& Problems() const { return problems_; }

 private:
  void Visit(int pollingAddress);
  void TakeSilence(int pollingAddress);
  void AddDevice(FoundDevice device);
  void ReadTags(FoundDevice& device);
  void AddSubDevices(const std::string& gateway);

  DirectLink& link_;
  const Speech& say_;
  std::vector<FoundDevice> devices_;
  std::vector<Disturbed> problems_;
};

}  // namespace hartframe
