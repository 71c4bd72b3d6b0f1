#pragma once

#include "comm/CommWrapper.h"

namespace ZAFHartLib {

// The communication wrapper for links to the emulator: the data set gives each exchange the reply
// that a link may echo, live values drifting. The DTM is online unless it emulates, whether or not
// somebody answers; the long address is learnt by the DTM's own command 0.
class CDDTestCommWrapper : public CommWrapper {
 public:
  CDDTestCommWrapper();

  // Commands go through a link (the default); off: every command is completed locally.
  bool UseHartEmulator() const { return useHartEmulator_; }
  void SetUseHartEmulator(bool use) { useHartEmulator_ = use; }

 protected:
  const char* ClassName() const override { return "CDDTestCommWrapper"; }
  bool CompletesLocally() const override { return Emulate() || !useHartEmulator_; }
  void PrepareExchange(std::int16_t number) override;
  std::string ReplyTemplate(const Transaction& transaction) override;
  void TakeReplyOf(Exchange& exchange, const HartLinkSim::Frame& reply) override;
  void LearnLongAddress() override;
  void ApplyEmulate(bool emulate) override;

 private:
  // Executes command 0 through the kernel; a long address that this does not tell is shown as an
  // error. Without effect when it is known.
  void Learn(ErrorSeverity severity);
  // Without effect while it is going on already.
  void ExecuteCommand0();

  bool useHartEmulator_ = true;
  bool isLearning_ = false;
};

}  // namespace ZAFHartLib
