#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "hart/DeviceIdentity.h"
#include "interfaces/IDeviceConnection.h"
#include "interfaces/ILink.h"
#include "platform/Export.h"

namespace ZAFHartLib {

// Where a device is looked for.
struct ZAF_API DeviceTarget {
  // Which of the following the device is looked for by.
  ZAFHartTypes::Addressing addressing = ZAFHartTypes::Addressing::Automatic;
  std::int32_t pollingAddress = 0;  // 0 to 63
  std::string tag;                  // of 8 characters, or a long tag of 32
  std::string longAddress;          // ten hexadecimal digits; "" when unknown

  // The addressing that Automatic stands for here.
  ZAFHartTypes::Addressing Way() const;
  // That part of the address as users know it.
  std::string Text() const;
};

// Asks for a device's identity, one exchange after the other, until somebody answers or all rounds
// are over. It makes the exchanges without the DD and leaves it to its owner to send them.
class ZAF_API DeviceSearch {
 public:
  // `rounds`, at least 1: times that each way is tried. A device that has been met under
  // `knownAddress` (ten hexadecimal digits) is found by it as well when its tag has been changed;
  // "" for none. Raises InvalidArgument for an address that is none: a polling address outside 0 to
  // 63, a tag that is empty or longer than 32 characters, an empty long address.
  DeviceSearch(const DeviceTarget& target, const std::string& knownAddress, int rounds);
  // The next exchange to send; nothing at the end.
  std::shared_ptr<ZAFHartTypes::Exchange> Next();
  // Takes the reply of an exchange that has ended; one without reply changes nothing.
  void Take(const ZAFHartTypes::Exchange& exchange);
  // Who answered with an identity; nothing so far.
  const std::optional<ZAFHartTypes::hart::DeviceIdentity>& Found() const { return found_; }
  // The last reply that held no identity.
  struct Refusal {
    std::int16_t command;  // HART command 0, 11 or 21
    std::uint8_t status;   // its first status byte
  };
  // Nothing when there was none.
  const std::optional<Refusal>& Refused() const { return refused_; }

 private:
  struct Request {
    std::int16_t command;
    std::string longAddress;
    std::string data;  // hexadecimal
  };
  void AddTagRequests(const std::string& tag, const std::string& knownAddress);

  std::int16_t pollingAddress_ = 0;
  std::vector<Request> requests_;  // of one round
  std::size_t next_ = 0;
  std::size_t end_ = 0;
  std::optional<ZAFHartTypes::hart::DeviceIdentity> found_;
  std::optional<Refusal> refused_;
};

}  // namespace ZAFHartLib
