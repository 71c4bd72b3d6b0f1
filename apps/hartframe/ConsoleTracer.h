#pragma once

#include "hartframe/Console.h"
#include "hartframe/Options.h"
#include "interfaces/IDDExternalTracer.h"
#include "platform/Object.h"

namespace hartframe {

// Prints what the library traces to standard error.
class ConsoleTracer : public platform::Object, public ZAFHartTypes::IDDExternalTracer {
 public:
  ConsoleTracer(Console& console, const Options& options);

  // Makes a tracer for every instance created from now on.
  static void Connect(Console& console, const Options& options);

  void AddStack(std::int32_t stackLevel, const std::string& text) override;
  void ReleaseStack(std::int32_t stackLevel, const std::string& text) override;
  void TraceStack(std::int32_t stackLevel, const std::string& text) override;
  std::int32_t TraceStackBreak(std::int32_t,
                               const std::shared_ptr<ZAFHartTypes::IDDWorkerDB>&) override {
    return 0;
  }
  void TraceText(std::int32_t traceLevel, const std::string& text) override;
  void TraceObjectError(const std::string& text) override { Print(0, text); }
  void TraceEvaluationError(const std::string& text) override { Print(0, text); }
  void TraceResponseCodeError(const std::string& text) override { Print(0, text); }
  std::int32_t TraceBreak(const std::shared_ptr<ZAFHartTypes::IDDWorkerDB>&) override { return 0; }
  std::int32_t WatchBreak(const std::shared_ptr<ZAFHartTypes::DDObject>&,
                          const std::shared_ptr<ZAFHartTypes::IDDWorkerDB>&) override {
    return 0;
  }
  void SetCallBack(
      const std::shared_ptr<ZAFHartTypes::IDDExternalTracerCallBack>& callBack) override;
  void Terminate() override {}

 private:
  // Each line of the text, indented by the depth of the operation it belongs to.
  void Print(std::int32_t depth, std::string_view text);

  Console& console_;
  std::string language_;
  int level_;
  int depth_;
  int detail_;
  std::int32_t current_ = 0;  // stack level of the innermost operation shown
};

}  // namespace hartframe
