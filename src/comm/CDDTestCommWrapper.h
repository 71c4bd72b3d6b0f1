#pragma once

#include <cstdint>
#include <memory>
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

// The communication wrapper of the library. Every command either is completed locally against the
// values of the worker database (while Emulate is on, or UseHartEmulator is off), or goes through a
// link: to the emulator at first, to whatever link the host sets. It also holds the device's
// address, keeps the online state and sends the life signals of a wait.
//
// ExecuteCommand and AsyncExecuteCommand trap nothing: what the link or the coding of a value
// raises reaches the caller.
class CDDTestCommWrapper : public platform::Object,
                           public ZAFHartTypes::IDDCommWrapper,
                           public ZAFHartTypes::ILinkUser,
                           public ZAFHartTypes::ICommCallback,
                           public IExchangeCompletion,
                           public std::enable_shared_from_this<CDDTestCommWrapper> {
 public:
  CDDTestCommWrapper();
  ~CDDTestCommWrapper() override;

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
  // Finds the address variables, builds the connection menu and goes online. A missing variable is
  // reported to the GUI manager as an evaluation error.
  void Initialize() override;
  bool Emulate() const override { return emulate_; }
  void SetEmulate(bool emulate) override;
  // Learns the long address by command 0 when it is not known. Failures end it silently; the
  // results are what is known by then.
  void GetAddressInformation(std::int32_t& pollingAddress, std::string& tagName,
                             std::string& longAddress) override;
  void SetAddressInformation(std::int32_t pollingAddress, const std::string& tagName,
                             const std::string& longAddress) override;

  // --- ILinkUser ---
  std::string LinkClass() const override { return linkClass_; }
  void SetLinkClass(const std::string& className) override;
  void SetLink(std::shared_ptr<ILink> link) override;
  bool CancelExchange() override;

  // --- ICommCallback, IExchangeCompletion ---
  void CommCallback_Finisched(const std::shared_ptr<Exchange>& exchange) override;
  void CompleteExchange(const std::shared_ptr<Exchange>& exchange) override;

  // Name under which Initialize creates the connection menu; "__ZAF__connection_menu" at first.
  const std::string& CommunicationMenu() const { return communicationMenu_; }
  void SetCommunicationMenu(std::string name) { communicationMenu_ = std::move(name); }
  // Commands go through a link (the default); off: every command is completed locally.
  bool UseHartEmulator() const { return useHartEmulator_; }
  void SetUseHartEmulator(bool use) { useHartEmulator_ = use; }
  // Number of the command most recently executed.
  std::int16_t LastCommandNumber() const { return lastCommandNumber_; }
  // Defers the completion of asynchronous exchanges.
  frmAsynchronizer& Asynchronizer() { return asynchronizer_; }

 private:
  struct UnderWay {
    std::shared_ptr<Exchange> exchange;
    std::shared_ptr<ILink> link;
  };
  class Waiting;

  // --- one command ---
  bool CompletesLocally() const { return emulate_ || !useHartEmulator_; }
  bool CompleteLocally(std::int16_t number, Transaction& transaction);
  std::shared_ptr<Exchange> BuildExchange(std::int16_t number,
                                          const std::shared_ptr<Transaction>& transaction);
  void CodeData(Exchange& exchange, const Transaction& transaction);
  // Raises Cancelled after CancelExchange and ObjectNotSet after a tear-down.
  void ExecuteAndWait(const std::shared_ptr<Exchange>& exchange,
                      const std::shared_ptr<Transaction>& transaction);
  // True when the exchange ended with a reply that could be used.
  bool ProcessReply(std::int16_t number, Exchange& exchange, Transaction& transaction);
  bool TakeReply(std::int16_t number, Exchange& exchange, Transaction& transaction);
  void TakeNoReply(Transaction& transaction);
  void LearnFrom(Exchange& exchange, const HartLinkSim::Frame& reply);
  std::shared_ptr<ILink> Link();

  // --- asynchronous commands ---
  void FinishAsync(const std::shared_ptr<Exchange>& exchange);
  void ForgetBackground(const std::shared_ptr<Exchange>& exchange);
  void EndBackground();

  // --- address ---
  // Executes command 0 through the kernel. Without effect while that is going on already.
  void LearnLongAddress();
  void ShowConnectionError(ErrorSeverity severity);

  ZAFHartTypes::ModelReference model_;
  std::vector<std::uint8_t> replyBytes_;  // of the last reply, status bytes included
  CommandStatus status_;
  std::int16_t lastCommandNumber_ = 0;
  std::int32_t lastResult_ = 0;
  bool emulate_ = false;
  bool useHartEmulator_ = true;
  bool hadErrors_ = false;  // the status items of some command may hold an error
  std::string communicationMenu_;
  AddressVariables address_;
  std::string longAddress_;  // hexadecimal; "" until known
  bool isLearning_ = false;
  std::string linkClass_;
  std::shared_ptr<ILink> hostLink_;
  std::shared_ptr<ILink> ownLink_;    // made from linkClass_
  std::vector<UnderWay> waiting_;     // synchronous exchanges, the innermost last
  std::vector<UnderWay> background_;  // asynchronous exchanges
  frmAsynchronizer asynchronizer_;
};

}  // namespace ZAFHartLib
