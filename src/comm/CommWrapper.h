#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "comm/AddressVariables.h"
#include "comm/ErrorDisplay.h"
#include "gui/frmAsynchronizer.h"
#include "interfaces/ComponentBase.h"
#include "interfaces/IDDCommWrapper.h"
#include "linksim/Frame.h"
#include "platform/Object.h"

namespace ZAFHartLib {

using ZAFHartTypes::CommandRef;
using ZAFHartTypes::CommandStatus;
using ZAFHartTypes::Exchange;
using ZAFHartTypes::IDDComponents;
using ZAFHartTypes::ILink;
using ZAFHartTypes::Transaction;

// What the library's communication wrappers have in common. Every command either is completed
// locally against the values of the worker database (while Emulate is on, say), or goes through the
// link that the host sets. A wrapper also holds the device's address, keeps the online state and
// sends the life signals of a wait.
//
// ExecuteCommand and AsyncExecuteCommand trap nothing: what the link or the coding of a value
// raises reaches the caller.
class CommWrapper : public platform::Object,
                    public ZAFHartTypes::IDDCommWrapper,
                    public ZAFHartTypes::ILinkUser,
                    public ZAFHartTypes::IObservedExchanges,
                    public ZAFHartTypes::ICommCallback,
                    public IExchangeCompletion,
                    public std::enable_shared_from_this<CommWrapper> {
 public:
  ~CommWrapper() override;

  // --- IDDCommWrapper ---
  // Nothing also ends what is under way: a waiting ExecuteCommand fails with ObjectNotSet.
  void SetComponentModel(const std::shared_ptr<IDDComponents>& components) override;
  std::shared_ptr<IDDComponents> ComponentModel() const override { return model_.Get(); }
  bool ExecuteCommand(std::int16_t number,
                      const std::shared_ptr<Transaction>& transaction) override;
  bool AsyncExecuteCommand(const std::shared_ptr<CommandRef>& reference) override;
  std::int32_t LastResult() const override { return lastResult_; }
  void SetLastResult(std::int32_t result) override { lastResult_ = result; }
  CommandStatus LastStatus() const override { return status_; }
  std::vector<std::uint8_t> LastData() const override;
  // Finds the address variables, builds the connection menu and ends emulating. A missing variable
  // is reported to the GUI manager as an evaluation error.
  void Initialize() override;
  bool Emulate() const override { return emulate_; }
  // Takes the DTM offline or online, as "__ZAF__OnlineMode" and "__ZAF__DTMOnlineState" tell.
  void SetEmulate(bool emulate) override;
  // Learns the long address when it is not known. Failures end it silently; the results are what is
  // known by then.
  void GetAddressInformation(std::int32_t& pollingAddress, std::string& tagName,
                             std::string& longAddress) override;
  void SetAddressInformation(std::int32_t pollingAddress, const std::string& tagName,
                             const std::string& longAddress) override;

  // --- ILinkUser ---
  std::string LinkClass() const override { return linkClass_; }
  void SetLinkClass(const std::string& className) override;
  void SetLink(std::shared_ptr<ILink> link) override;
  bool CancelExchange() override;

  // --- IObservedExchanges ---
  void SetExchangeObserver(std::weak_ptr<ZAFHartTypes::IExchangeObserver> observer) override {
    observer_ = std::move(observer);
  }

  // --- ICommCallback, IExchangeCompletion ---
  void CommCallback_Finisched(const std::shared_ptr<Exchange>& exchange) override;
  void CompleteExchange(const std::shared_ptr<Exchange>& exchange) override;

  // Name under which Initialize creates the connection menu; "__ZAF__connection_menu" at first.
  const std::string& CommunicationMenu() const { return communicationMenu_; }
  void SetCommunicationMenu(std::string name) { communicationMenu_ = std::move(name); }
  // Number of the command most recently executed.
  std::int16_t LastCommandNumber() const { return lastCommandNumber_; }
  // Defers the completion of asynchronous exchanges.
  frmAsynchronizer& Asynchronizer() { return asynchronizer_; }

 protected:
  explicit CommWrapper(std::string linkClass);

  // --- what the wrappers differ in ---
  virtual const char* ClassName() const = 0;
  virtual bool CompletesLocally() const { return emulate_; }
  // Runs before an exchange of the command is built.
  virtual void PrepareExchange(std::int16_t /*number*/) {}
  // Reply data of the exchange before it is sent, for links that echo.
  virtual std::string ReplyTemplate(const Transaction& /*transaction*/) { return {}; }
  // The exchange is about to be waited for. False when it cannot be sent: it has ended as NotSent.
  virtual bool Reach(Exchange& /*exchange*/) { return true; }
  // Starts an exchange whose end comes through CommCallback_Finisched.
  virtual void StartInBackground(const std::shared_ptr<Exchange>& exchange);
  // A reply came that can be used; LastStatus() is its status.
  virtual void TakeReplyOf(Exchange& /*exchange*/, const HartLinkSim::Frame& /*reply*/) {}
  // Sets the status of an exchange without reply, or with one that cannot be used.
  virtual void TakeNoReply(Exchange& exchange, Transaction& transaction);
  // Learns the long address when it is not known; not called while emulating.
  virtual void LearnLongAddress() = 0;
  // Stores the online state that `emulate` leads to.
  virtual void ApplyEmulate(bool emulate) = 0;

  // --- for the wrappers ---
  std::string Source(const char* member) const { return std::string(ClassName()) + "." + member; }
  const ZAFHartTypes::ModelReference& Model() const { return model_; }
  AddressVariables& Address() { return address_; }
  const std::string& LongAddress() const { return longAddress_; }
  void SetLongAddress(std::string address) { longAddress_ = std::move(address); }
  std::span<const std::uint8_t> ReplyBytes() const { return replyBytes_; }
  std::shared_ptr<ILink> Link();
  // Lets go of the link that was made from LinkClass.
  void ReleaseOwnLink() { ownLink_.reset(); }
  // Nothing as `transaction`: the wait is for a command that is not the kernel's. Raises Cancelled
  // after CancelExchange and ObjectNotSet after a tear-down.
  void ExecuteAndWait(const std::shared_ptr<Exchange>& exchange,
                      const std::shared_ptr<Transaction>& transaction);
  // Forgets an exchange that was started in the background; one still under way is cancelled.
  void DropBackground(const std::shared_ptr<Exchange>& exchange);
  // Ends the exchanges in the background as Cancelled; their completion goes on.
  void CancelBackground();
  void StoreOnlineState(ZAFHartTypes::OnlineMode mode, ZAFHartTypes::DtmOnlineState state);
  void ShowConnectionError(ErrorSeverity severity);

 private:
  struct UnderWay {
    std::shared_ptr<Exchange> exchange;
    std::shared_ptr<ILink> link;
  };
  class Waiting;

  void Send(const UnderWay& underWay);
  void TellEnd(const Exchange& exchange) const;

  // --- one command ---
  bool CompleteLocally(std::int16_t number, Transaction& transaction);
  std::shared_ptr<Exchange> BuildExchange(std::int16_t number,
                                          const std::shared_ptr<Transaction>& transaction);
  // True when the exchange ended with a reply that could be used.
  bool ProcessReply(std::int16_t number, Exchange& exchange, Transaction& transaction);
  bool TakeReply(std::int16_t number, Exchange& exchange, Transaction& transaction);
  void FinishAsync(const std::shared_ptr<Exchange>& exchange);
  void EndBackground();
  void ForgetBackground(const std::shared_ptr<Exchange>& exchange);

  ZAFHartTypes::ModelReference model_;
  std::vector<std::uint8_t> replyBytes_;  // of the last reply, status bytes included
  CommandStatus status_;
  std::int16_t lastCommandNumber_ = 0;
  std::int32_t lastResult_ = 0;
  bool emulate_ = false;
  bool hadErrors_ = false;  // the status items of some command may hold an error
  std::string communicationMenu_;
  AddressVariables address_;
  std::string longAddress_;  // hexadecimal; "" until known
  std::string linkClass_;
  std::shared_ptr<ILink> hostLink_;
  std::shared_ptr<ILink> ownLink_;    // made from linkClass_
  std::vector<UnderWay> waiting_;     // synchronous exchanges, the innermost last
  std::vector<UnderWay> background_;  // asynchronous exchanges
  std::weak_ptr<ZAFHartTypes::IExchangeObserver> observer_;
  frmAsynchronizer asynchronizer_;
};

}  // namespace ZAFHartLib
