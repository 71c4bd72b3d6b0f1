#pragma once

#include <optional>
#include <string>

#include "hart/DeviceIdentity.h"
#include "interfaces/Codes.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

// By which part of the address information (IDDCommWrapper::SetAddressInformation) a device is
// looked for.
enum class Addressing : std::uint8_t {
  Automatic,       // the long address when one is given, else the polling address
  PollingAddress,  // command 0
  Tag,             // command 11, or 21 for one that only a long tag holds
  LongAddress,     // command 0 to that address
};

// Offered by wrappers that connect to a device before they talk to it. A first command connects by
// itself; so does one after a command without reply. After Disconnect it takes Connect.
class ZAF_API IDeviceConnection {
 public:
  virtual ~IDeviceConnection() = default;
  // Looks for the device and checks that it is what the DTM is for; the message loop runs
  // meanwhile. True when connected, or connected already. False otherwise: the reason has been
  // shown and is ConnectionError(). While emulating there is nothing to connect to. Raises
  // InvalidArgument for an address that is none, Cancelled when the user ends it, and what the link
  // raises.
  virtual bool Connect() = 0;
  // Cancels the exchanges under way and lets go of the link that the wrapper made itself.
  virtual void Disconnect() = 0;
  // As in "__ZAF__DTMOnlineState".
  virtual DtmOnlineState OnlineState() const = 0;
  // Multilingual; "" while connected and before the first attempt.
  virtual std::string ConnectionError() const = 0;
  // Who answered last, the wrong device as well; nothing when nobody did.
  virtual const std::optional<hart::DeviceIdentity>& Device() const = 0;
  // Takes another unit of the right type, found where the device was, for the device: what the data
  // set holds is that of the unit before until it has been read anew. True when connected; false
  // when there is none, and for a device that the DTM is not for.
  virtual bool AcceptDevice() = 0;
  // Automatic at first. Counts from the next connecting on.
  virtual void SetAddressing(Addressing addressing) = 0;
};

}  // namespace ZAFHartTypes
