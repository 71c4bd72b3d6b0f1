#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "interfaces/IDDExternalTracer.h"
#include "platform/Platform.h"
#include "settings/Settings.h"

namespace test_support {

// An external tracer that keeps its calls in order, and raises when it is told to.
class RecordingTracer : public platform::Object, public ZAFHartTypes::IDDExternalTracer {
 public:
  using Database = std::shared_ptr<ZAFHartTypes::IDDWorkerDB>;

  // Makes a new tracer the one that connections of this platform create.
  static std::shared_ptr<RecordingTracer> Install(platform::Platform& platform) {
    auto tracer = std::make_shared<RecordingTracer>();
    platform.Classes().Register("Test.Tracer", [tracer] { return tracer; });
    platform.Registry().SetValue(ZAFHartLib::kTracerKey, ZAFHartLib::kTracerClassName,
                                 "Test.Tracer");
    return tracer;
  }

  void AddStack(std::int32_t level, const std::string& text) override { Keep("Add", level, text); }
  void ReleaseStack(std::int32_t level, const std::string& text) override {
    Keep("Release", level, text);
  }
  void TraceStack(std::int32_t level, const std::string& text) override {
    Keep("Stack", level, text);
  }
  std::int32_t TraceStackBreak(std::int32_t level, const Database& database) override {
    Keep("StackBreak", level, database ? "db" : "no db");
    return 7;
  }
  void TraceText(std::int32_t level, const std::string& text) override {
    Keep("Text", level, text);
  }
  void TraceObjectError(const std::string& text) override { Keep("ObjectError", 0, text); }
  void TraceEvaluationError(const std::string& text) override { Keep("EvaluationError", 0, text); }
  void TraceResponseCodeError(const std::string& text) override {
    Keep("ResponseCodeError", 0, text);
  }
  std::int32_t TraceBreak(const Database& database) override {
    Keep("Break", 0, database ? "db" : "no db");
    return 8;
  }
  std::int32_t WatchBreak(const std::shared_ptr<ZAFHartTypes::DDObject>&,
                          const Database&) override {
    Keep("Watch", 0, "");
    return 9;
  }
  void SetCallBack(
      const std::shared_ptr<ZAFHartTypes::IDDExternalTracerCallBack>& newCallBack) override {
    callBack = newCallBack;
  }
  void Terminate() override {
    Keep("Terminate", 0, "");
    if (callBack) callBack->Terminate();
  }

  std::vector<std::string> TakeCalls() { return std::exchange(calls, {}); }

  std::shared_ptr<ZAFHartTypes::IDDExternalTracerCallBack> callBack;
  std::vector<std::string> calls;  // "<call> <level, 0 for none> <text>"
  bool raises = false;

 private:
  void Keep(const std::string& call, std::int32_t level, const std::string& text) {
    calls.push_back(call + " " + std::to_string(level) + " " + text);
    if (raises) throw std::runtime_error("the tracer's own failure");
  }
};

}  // namespace test_support
