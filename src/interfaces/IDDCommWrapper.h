#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ddobjects/ByteBuffer.h"
#include "ddobjects/Command.h"
#include "interfaces/ILink.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

class IDDComponents;

// What the kernel hands every command to.
class ZAF_API IDDCommWrapper {
 public:
  virtual ~IDDCommWrapper() = default;
  // Held weakly. Nothing, at tear-down, ends what is under way: a waiting ExecuteCommand fails with
  // ObjectNotSet.
  virtual void SetComponentModel(const std::shared_ptr<IDDComponents>& components) = 0;
  virtual std::shared_ptr<IDDComponents> ComponentModel() const = 0;
  // Executes a transaction of the HART command `number` and waits for its end; the message loop
  // runs meanwhile. Fills the reply items, whose variables the caller has bound. True when a usable
  // reply came; false is no failure: while emulating, and when nobody answered (LastResult -3).
  // Raises InvalidArgument without a transaction and for a device address that is none, Cancelled
  // after ILinkUser::CancelExchange, ObjectNotSet after a tear-down, NotConnected for a change that
  // cannot be sent (see IDeviceConnection), and what the link or the coding of a value raises.
  virtual bool ExecuteCommand(std::int16_t number,
                              const std::shared_ptr<Transaction>& transaction) = 0;
  // Starts an execution; its end reaches the kernel's AsyncExecuteCommandEnd with the same object,
  // from the message loop, and then all controls as life signal ExchangeFinished. Answers
  // false always. Raises InvalidArgument without a command, and what the link raises at the start:
  // there is no end then.
  virtual bool AsyncExecuteCommand(const std::shared_ptr<CommandRef>& reference) = 0;
  // 0 when the last exchange had a reply, -3 when it had none; callers may set other values.
  virtual std::int32_t LastResult() const = 0;
  virtual void SetLastResult(std::int32_t result) = 0;
  // Status bytes of the last reply; {0, 144, 0} when there was none.
  virtual CommandStatus LastStatus() const = 0;
  // Data bytes of the last reply, without the two status bytes; empty when there was none.
  virtual std::vector<std::uint8_t> LastData() const = 0;
  // Called once when the worker database holds the DTM's items: finds the variables of the device's
  // address ("polling_address", "tag", else those of commands 6 and 13), whose values it takes
  // over, builds the connection menu, and ends emulating. A missing one is reported as evaluation
  // error.
  virtual void Initialize() = 0;
  // While emulating, every command is completed locally with the values of the data set, and the
  // DTM is offline. Setting it, to either, ends the connection of the wrapper for real links.
  virtual bool Emulate() const = 0;
  virtual void SetEmulate(bool emulate) = 0;
  // The polling address (0 to 63), the tag and the long address (ten hexadecimal digits), "" for an
  // unknown one. Looks for the device, which runs the message loop, when the long address is not
  // known and it is not emulating. Raises nothing.
  virtual void GetAddressInformation(std::int32_t& pollingAddress, std::string& tagName,
                                     std::string& longAddress) = 0;
  // Where the device is; also stored in the address variables, which are not to be written then.
  // The wrapper for real links ends its connection; see Addressing for which part counts.
  virtual void SetAddressInformation(std::int32_t pollingAddress, const std::string& tagName,
                                     const std::string& longAddress) = 0;
};

// Offered by wrappers whose exchanges go through a link that the host chooses.
class ZAF_API ILinkUser {
 public:
  virtual ~ILinkUser() = default;
  // Class name from which a link is created, at the first exchange, when none is given; at first
  // "HartLinkSim.EchoLink", for a wrapper for real links "HartModem.Link". The exchange raises
  // CannotCreateObject or TypeMismatch for a class that gives no link.
  virtual std::string LinkClass() const = 0;
  virtual void SetLinkClass(const std::string& className) = 0;
  // The link for all exchanges from now on; nothing goes back to LinkClass.
  virtual void SetLink(std::shared_ptr<ILink> link) = 0;
  // Ends the synchronous exchange under way: it fails with ErrorNumber::Cancelled. False when none
  // is under way.
  virtual bool CancelExchange() = 0;
};

// Is told of every exchange of a wrapper. Must not throw.
class ZAF_API IExchangeObserver {
 public:
  virtual ~IExchangeObserver() = default;
  // The exchange goes to the link, with its request.
  virtual void ExchangeStarts(const Exchange& exchange) = 0;
  // It has ended as its state tells; a Completed one has its reply. One that could not be sent ends
  // without a start.
  virtual void ExchangeEnds(const Exchange& exchange) = 0;
};

// Offered by wrappers that let one observer see their exchanges.
class ZAF_API IObservedExchanges {
 public:
  virtual ~IObservedExchanges() = default;
  // Not owned; takes the place of an earlier one.
  virtual void SetExchangeObserver(std::weak_ptr<IExchangeObserver> observer) = 0;
};

}  // namespace ZAFHartTypes
