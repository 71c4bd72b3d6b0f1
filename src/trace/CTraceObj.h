#pragma once

#include "interfaces/IDDDTMGUI.h"
#include "interfaces/IDDExternalTracer.h"
#include "platform/Object.h"
#include "trace/StackInformation.h"

namespace ZAFHartLib {

class CExternalTraceConnection;

// The trace object of one running operation. It keeps the operation's entry in the GUI manager's
// StackInformation and passes every line on to the external tracer. Let go of with its level open,
// it merges the entry into the caller's: the operation failed.
//
// Holds the GUI manager weakly. Without one it keeps no entry. Nothing it does ever raises.
class CTraceObj : public platform::Object, public ZAFHartTypes::IDDDebugTracer {
 public:
  CTraceObj() = default;
  // Connected to a GUI manager; what TraceObject() makes.
  CTraceObj(std::weak_ptr<ZAFHartTypes::IDDDTMGUI> gui, std::shared_ptr<StackInformation> stack,
            std::shared_ptr<CExternalTraceConnection> tracer);
  ~CTraceObj() override;

  // The GUI manager whose StackInformation is kept; set it before the level is opened.
  std::shared_ptr<ZAFHartTypes::IDDDTMGUI> MainGuiClass() const { return gui_.lock(); }
  void SetMainGuiClass(const std::shared_ptr<ZAFHartTypes::IDDDTMGUI>& gui);
  std::shared_ptr<ZAFHartTypes::IDDExternalTracer> ExternalTracer() const { return tracer_; }
  void SetExternalTracer(std::shared_ptr<ZAFHartTypes::IDDExternalTracer> tracer);
  // Every entry of the stack, each preceded by CR LF.
  std::string GetStackInformation() const;

  std::int32_t TraceInfoLevel() const override { return traceInfoLevel_; }
  void SetTraceInfoLevel(std::int32_t newLevel) override { traceInfoLevel_ = newLevel; }
  std::int32_t AddStack(const std::string& text) override;
  void OpenStack(const ZAFHartTypes::ITracedOperation& operation) override;
  void FixStack() override;
  std::int32_t TraceStack(const std::string& text) override;
  std::int32_t ReleaseStack(const std::string& text) override;
  std::int32_t TraceText(std::int32_t level, const std::string& text) override;
  bool WantsStack() const override;
  // True while a tracer is connected, whatever its filter: each free line gives it a break.
  bool WantsText(std::int32_t level) const override;

 private:
  bool IsOpen() const { return position_ >= 2; }
  // 1 is the outermost operation.
  std::int32_t StackLevel() const { return position_ - 1; }
  bool TracerTakes(std::int32_t stackLevel) const;
  void StackBreak();
  std::shared_ptr<ZAFHartTypes::IDDWorkerDB> Database() const;

  std::weak_ptr<ZAFHartTypes::IDDDTMGUI> gui_;
  std::shared_ptr<StackInformation> stack_;
  std::shared_ptr<ZAFHartTypes::IDDExternalTracer> tracer_;
  // The same when it is a connection, which knows its tracer's filter.
  const CExternalTraceConnection* connection_ = nullptr;
  std::int32_t traceInfoLevel_ = 1;
  std::int32_t position_ = 0;  // of the entry; 0 for none
};

}  // namespace ZAFHartLib
