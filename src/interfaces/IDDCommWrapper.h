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
  virtual void SetComponentModel(const std::shared_ptr<IDDComponents>& components) = 0;
  virtual std::shared_ptr<IDDComponents> ComponentModel() const = 0;
  // Executes a transaction of the command `number` and waits for its end; the message loop runs
  // meanwhile. Fills the bound reply items. True when a reply came.
  virtual bool ExecuteCommand(std::int16_t number,
                              const std::shared_ptr<Transaction>& transaction) = 0;
  // Starts an execution; its end reaches the kernel's AsyncExecuteCommandEnd with the same object.
  virtual bool AsyncExecuteCommand(const std::shared_ptr<CommandRef>& reference) = 0;
  // 0 when the last exchange had a reply, -3 when it had none; callers may set other values.
  virtual std::int32_t LastResult() const = 0;
  virtual void SetLastResult(std::int32_t result) = 0;
  virtual CommandStatus LastStatus() const = 0;
  // Data bytes of the last reply, without the two status bytes.
  virtual std::vector<std::uint8_t> LastData() const = 0;
  virtual void Initialize() = 0;
  // While emulating, every command is completed locally and the DTM is offline.
  virtual bool Emulate() const = 0;
  virtual void SetEmulate(bool emulate) = 0;
  virtual void GetAddressInformation(std::int32_t& pollingAddress, std::string& tagName,
                                     std::string& longAddress) = 0;
  virtual void SetAddressInformation(std::int32_t pollingAddress, const std::string& tagName,
                                     const std::string& longAddress) = 0;
};

// Offered by wrappers whose exchanges go through a link that the host chooses.
class ZAF_API ILinkUser {
 public:
  virtual ~ILinkUser() = default;
  // Class name from which a link is created when none is given; at first "HartLinkSim.EchoLink",
  // for a wrapper for real links "HartModem.Link".
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
