#pragma once

#include <memory>

#include "debugger/Debugger.h"
#include "debugger/ExchangeLog.h"
#include "debugger/OperationStack.h"
#include "debugger/Watcher.h"
#include "interfaces/IDDCommWrapper.h"
#include "interfaces/IDDExternalTracer.h"
#include "platform/Object.h"

namespace ZAFHartDebugger {

// The external tracer of one DTM instance: shows its operations, counts them, stops at its breaks
// and watches its objects, all as its debugger says.
class Tracer : public platform::Object,
               public ZAFHartTypes::IDDExternalTracer,
               public ZAFHartTypes::IExchangeObserver,
               public std::enable_shared_from_this<Tracer> {
 public:
  using Database = std::shared_ptr<ZAFHartTypes::IDDWorkerDB>;
  using Object = std::shared_ptr<ZAFHartTypes::DDObject>;

  explicit Tracer(std::shared_ptr<Debugger> debugger) : debugger_(std::move(debugger)) {}

  // --- IDDExternalTracer; the breaks answer 0, as nobody asks for more ---
  void AddStack(std::int32_t stackLevel, const std::string& text) override;
  void ReleaseStack(std::int32_t stackLevel, const std::string& text) override;
  void TraceStack(std::int32_t stackLevel, const std::string& text) override;
  std::int32_t TraceStackBreak(std::int32_t stackLevel, const Database& database) override;
  void TraceText(std::int32_t traceLevel, const std::string& text) override;
  void TraceObjectError(const std::string& text) override { ShowError(text); }
  void TraceEvaluationError(const std::string& text) override { ShowError(text); }
  void TraceResponseCodeError(const std::string& text) override { ShowError(text); }
  std::int32_t TraceBreak(const Database& database) override;
  // The object may have changed.
  std::int32_t WatchBreak(const Object& object, const Database& database) override;
  void SetCallBack(
      const std::shared_ptr<ZAFHartTypes::IDDExternalTracerCallBack>& callBack) override;
  void Terminate() override;

  // --- IExchangeObserver ---
  void ExchangeStarts(const ZAFHartTypes::Exchange& exchange) override;
  void ExchangeEnds(const ZAFHartTypes::Exchange& exchange) override;

 protected:
  Debugger& Shared() { return *debugger_; }

 private:
  // Takes filters, detail and watched names from the debugger when they have changed.
  void Follow();
  void Attach(const Database& database);
  void Start(Operation& operation, const Database& database);
  // An object was computed by its getter, whose own line tells it.
  bool IsNoted(const std::string& object);
  void EndFrom(std::int32_t level, const std::string& exit);
  void CheckWatches(const Database& database);
  void TellChange(const ZAFHartTypes::DDObject& before, const ZAFHartTypes::DDObject& now);
  bool ShowsExchanges();
  void ShowError(const std::string& text);
  // `endedLevel`: of the operation that has ended, 0 when none has.
  void Stop(const std::string& reason, const Database& database, std::int32_t endedLevel = 0);
  TraceView& View() { return debugger_->View(); }

  std::shared_ptr<Debugger> debugger_;
  std::shared_ptr<ZAFHartTypes::IDDExternalTracerCallBack> callBack_;
  OperationStack operations_;
  ExchangeLog exchanges_;
  Watcher watcher_;
  std::string lastTitle_;    // of the operation that ended last
  std::string changed_;      // object whose change stops at the end of the check
  std::string errorReason_;  // of an error that stops at its break
  int followedVersion_ = 0;
  bool isAttached_ = false;
};

}  // namespace ZAFHartDebugger
