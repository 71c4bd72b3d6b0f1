#pragma once

#include "platform/Object.h"
#include "trace/TracerCallBack.h"

namespace ZAFHartLib {

// A GUI manager's connection to the tracer component named by the value "ClassName" of the registry
// key "\HKEY_LOCAL_MACHINE\SOFTWARE\Quillbridge\HART\Tracer". Filters by level and passes on. A
// missing setting, or a tracer that cannot be created, means no tracer.
//
// Whatever the tracer raises is dropped: tracing never makes an operation fail.
class CExternalTraceConnection : public platform::Object,
                                 public ZAFHartTypes::IDDExternalTracer,
                                 public ZAFHartTypes::IDDExternalTracerCallBack {
 public:
  using Database = std::shared_ptr<ZAFHartTypes::IDDWorkerDB>;

  CExternalTraceConnection();
  ~CExternalTraceConnection() override;

  // A tracer is connected.
  bool CheckConnection() const { return tracer_ != nullptr; }
  // Detail level for Describe that the tracer asks for.
  std::int32_t GetTraceInfoLevel() const { return callBack_->TraceInfoLevel(); }
  // A tracer is connected and takes stack lines of that level.
  bool TakesStack(std::int32_t stackLevel) const {
    return tracer_ && stackLevel <= callBack_->StackLevelFilter();
  }
  // Each passes the text on and then gives the tracer a break.
  void TraceObjectError(const Database& database, const std::string& text);
  void TraceEvaluationError(const Database& database, const std::string& text);
  void TraceResponseCodeError(const Database& database, const std::string& text);
  // Ends the connection and tells the tracer; without effect when there is none.
  void PrepareTermination();

  // IDDExternalTracer: passed on when a tracer is connected and its filter takes the level. Breaks
  // answer what the tracer answers, 0 when nothing was passed on.
  void AddStack(std::int32_t stackLevel, const std::string& text) override;
  void ReleaseStack(std::int32_t stackLevel, const std::string& text) override;
  void TraceStack(std::int32_t stackLevel, const std::string& text) override;
  std::int32_t TraceStackBreak(std::int32_t stackLevel, const Database& database) override;
  void TraceText(std::int32_t traceLevel, const std::string& text) override;
  void TraceObjectError(const std::string& text) override;
  void TraceEvaluationError(const std::string& text) override;
  void TraceResponseCodeError(const std::string& text) override;
  std::int32_t TraceBreak(const Database& database) override;
  std::int32_t WatchBreak(const std::shared_ptr<ZAFHartTypes::DDObject>& object,
                          const Database& database) override;
  // Without effect: the connection hands the tracer its own.
  void SetCallBack(const std::shared_ptr<IDDExternalTracerCallBack>& callBack) override;
  // Of both interfaces: PrepareTermination.
  void Terminate() override { PrepareTermination(); }

  // IDDExternalTracerCallBack
  std::int32_t TraceLevelFilter() const override { return callBack_->TraceLevelFilter(); }
  void SetTraceLevelFilter(std::int32_t level) override { callBack_->SetTraceLevelFilter(level); }
  std::int32_t StackLevelFilter() const override { return callBack_->StackLevelFilter(); }
  void SetStackLevelFilter(std::int32_t level) override { callBack_->SetStackLevelFilter(level); }
  std::int32_t TraceInfoLevel() const override { return callBack_->TraceInfoLevel(); }
  void SetTraceInfoLevel(std::int32_t level) override { callBack_->SetTraceInfoLevel(level); }
  ZAFHartTypes::ObjectList& ObjectsToBeWatched() override {
    return callBack_->ObjectsToBeWatched();
  }

 private:
  // The answer of `call`, 0 when no tracer is connected or it raises.
  template <typename Call>
  std::int32_t Ask(Call&& call);
  template <typename Call>
  void Tell(Call&& call);

  std::shared_ptr<TracerCallBack> callBack_;
  std::shared_ptr<IDDExternalTracer> tracer_;
};

}  // namespace ZAFHartLib
