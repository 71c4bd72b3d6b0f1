#pragma once

#include <deque>

#include "comm/CommWrapper.h"
#include "comm/DeviceSearch.h"
#include "interfaces/IDeviceConnection.h"
#include "platform/Clock.h"

namespace ZAFHartLib {

// The communication wrapper for links to real devices. It finds the device by commands of its own,
// takes its identity from the bytes of the reply and compares it with what the DTM is for (see
// ISupportedDevices); the online state follows:
//
//   not connected -> connecting -> checking the device type -> connected
//                        |                 |                       | no reply to a command
//                        v                 v                       v
//                 no device found    wrong device           no device found
//
// No device found: the next command looks for it again, "__ZAF__…RECONNECTRETRYNO" times more than
// once when it has been there before, and after kSearchPause of a search in vain. Wrong device, and
// another unit than the one met before: every command ends unsent, until Connect or AcceptDevice.
//
// A command that ends unsent keeps what the user typed: a read leaves its values alone and records
// the reason on them; one that would write a value to be written raises NotConnected with the
// reason before anything is changed, so that the value stays to be written. The reason is shown
// once.
class CHARTCommWrapper : public CommWrapper, public ZAFHartTypes::IDeviceConnection {
 public:
  // Time after a search in vain in which commands end unsent at once, so that an upload of many
  // variables does not wait for each.
  static constexpr platform::TickCount kSearchPause = 1000;  // ms

  CHARTCommWrapper();

  // --- IDDCommWrapper ---
  void SetComponentModel(const std::shared_ptr<IDDComponents>& components) override;
  void Initialize() override;
  // Also ends the connection and forgets the unit met before. Raises InvalidArgument for a long
  // address that is neither empty nor ten hexadecimal digits. With an addressing other than
  // LongAddress, a long address names the unit that is expected there.
  void SetAddressInformation(std::int32_t pollingAddress, const std::string& tagName,
                             const std::string& longAddress) override;

  // --- ILinkUser ---
  // Another way to the device: the connection ends.
  void SetLinkClass(const std::string& className) override;
  void SetLink(std::shared_ptr<ILink> link) override;

  // --- IDeviceConnection ---
  bool Connect() override;
  void Disconnect() override;
  ZAFHartTypes::DtmOnlineState OnlineState() const override { return state_; }
  std::string ConnectionError() const override { return problem_; }
  const std::optional<ZAFHartTypes::hart::DeviceIdentity>& Device() const override {
    return device_;
  }
  bool AcceptDevice() override;
  void SetAddressing(ZAFHartTypes::Addressing addressing) override {
    target_.addressing = addressing;
  }

  // --- IExchangeCompletion ---
  void CompleteExchange(const std::shared_ptr<Exchange>& exchange) override;

 protected:
  const char* ClassName() const override { return "CHARTCommWrapper"; }
  bool Reach(Exchange& exchange) override;
  void StartInBackground(const std::shared_ptr<Exchange>& exchange) override;
  void TakeReplyOf(Exchange& exchange, const HartLinkSim::Frame& reply) override;
  void TakeNoReply(Exchange& exchange, Transaction& transaction) override;
  void LearnLongAddress() override;
  void ApplyEmulate(bool emulate) override;

 private:
  using State = ZAFHartTypes::DtmOnlineState;

  bool IsConnected() const { return state_ == State::Connected; }
  void SetState(State state);

  // --- one command ---
  void SetDeviceAddress(Exchange& exchange);
  void PassBusyAttempts();
  [[noreturn]] void RefuseWrite() const;

  // --- looking for the device ---
  bool EnsureConnected();
  // A command may look for the device by itself.
  bool MayConnect() const;
  DeviceSearch NewSearch() const;
  // Looks for the device and waits for the end; a search in the background gives way.
  bool ConnectNow();
  void StartSearch();
  void SendProbe();
  void EndBackgroundSearch();
  void StopBackgroundSearch();
  // Judges who was found.
  void Conclude(const DeviceSearch& search);
  void TakeDevice();
  void Fail(State state, std::string problem);
  void LoseConnection();
  void EndConnection();
  // Sends what waited for the connection, or ends it unsent.
  void ReleaseQueue();
  void ShowProblem();
  std::string WrongTypeText() const;
  std::string LinkError();
  std::int32_t InternalNumber(std::string_view name, std::int32_t otherwise) const;

  DeviceTarget target_;
  State state_ = State::NotConnected;
  std::optional<ZAFHartTypes::hart::DeviceIdentity> device_;  // answered last
  std::string unit_;                                          // met before; "" when none was
  std::string problem_;            // why there is no connection; "" with one
  std::optional<State> shownFor_;  // the state that problem_ has been shown for
  bool connectsByItself_ = true;
  std::optional<platform::TickCount> failedAt_;  // a search ended in vain
  int waitingSearches_ = 0;                      // that are waited for
  std::optional<DeviceSearch> search_;           // in the background
  std::shared_ptr<Exchange> probe_;              // of search_, under way
  std::deque<std::shared_ptr<Exchange>> queue_;  // wait for a connection
};

}  // namespace ZAFHartLib
