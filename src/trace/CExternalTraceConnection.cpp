#include "trace/CExternalTraceConnection.h"

#include <utility>

#include "platform/Platform.h"
#include "settings/Settings.h"
#include "trace/QuietCall.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::DDObject;
using ZAFHartTypes::IDDExternalTracer;
using ZAFHartTypes::IDDExternalTracerCallBack;

std::shared_ptr<IDDExternalTracer> CreateTracer() {
  const std::string className = GetSetting(kTracerKey, {}, kTracerClassName, {});
  std::shared_ptr<IDDExternalTracer> tracer;
  if (className.empty()) return tracer;
  CallQuietly(
      [&] { tracer = platform::Current().Classes().CreateAs<IDDExternalTracer>(className); });
  return tracer;
}

}  // namespace

CExternalTraceConnection::CExternalTraceConnection()
    : callBack_(std::make_shared<TracerCallBack>(*this)), tracer_(CreateTracer()) {
  Tell([&](IDDExternalTracer& tracer) { tracer.SetCallBack(callBack_); });
}

CExternalTraceConnection::~CExternalTraceConnection() {
  callBack_->Detach();
  PrepareTermination();
}

// The tracer is held through the call: it may end the connection meanwhile.
template <typename Call>
void CExternalTraceConnection::Tell(Call&& call) {
  if (const auto tracer = tracer_) CallQuietly([&] { call(*tracer); });
}

template <typename Call>
std::int32_t CExternalTraceConnection::Ask(Call&& call) {
  std::int32_t answer = 0;
  Tell([&](IDDExternalTracer& tracer) { answer = call(tracer); });
  return answer;
}

void CExternalTraceConnection::TraceObjectError(const Database& database, const std::string& text) {
  TraceObjectError(text);
  TraceBreak(database);
}

void CExternalTraceConnection::TraceEvaluationError(const Database& database,
                                                    const std::string& text) {
  TraceEvaluationError(text);
  TraceBreak(database);
}

void CExternalTraceConnection::TraceResponseCodeError(const Database& database,
                                                      const std::string& text) {
  TraceResponseCodeError(text);
  TraceBreak(database);
}

void CExternalTraceConnection::PrepareTermination() {
  if (const auto tracer = std::exchange(tracer_, nullptr)) {
    CallQuietly([&] { tracer->Terminate(); });
  }
}

void CExternalTraceConnection::AddStack(std::int32_t stackLevel, const std::string& text) {
  if (!TakesStack(stackLevel)) return;
  Tell([&](IDDExternalTracer& tracer) { tracer.AddStack(stackLevel, text); });
}

void CExternalTraceConnection::ReleaseStack(std::int32_t stackLevel, const std::string& text) {
  if (!TakesStack(stackLevel)) return;
  Tell([&](IDDExternalTracer& tracer) { tracer.ReleaseStack(stackLevel, text); });
}

void CExternalTraceConnection::TraceStack(std::int32_t stackLevel, const std::string& text) {
  if (!TakesStack(stackLevel)) return;
  Tell([&](IDDExternalTracer& tracer) { tracer.TraceStack(stackLevel, text); });
}

std::int32_t CExternalTraceConnection::TraceStackBreak(std::int32_t stackLevel,
                                                       const Database& database) {
  if (!TakesStack(stackLevel)) return 0;
  return Ask(
      [&](IDDExternalTracer& tracer) { return tracer.TraceStackBreak(stackLevel, database); });
}

void CExternalTraceConnection::TraceText(std::int32_t traceLevel, const std::string& text) {
  if (traceLevel > TraceLevelFilter()) return;
  Tell([&](IDDExternalTracer& tracer) { tracer.TraceText(traceLevel, text); });
}

void CExternalTraceConnection::TraceObjectError(const std::string& text) {
  Tell([&](IDDExternalTracer& tracer) { tracer.TraceObjectError(text); });
}

void CExternalTraceConnection::TraceEvaluationError(const std::string& text) {
  Tell([&](IDDExternalTracer& tracer) { tracer.TraceEvaluationError(text); });
}

void CExternalTraceConnection::TraceResponseCodeError(const std::string& text) {
  Tell([&](IDDExternalTracer& tracer) { tracer.TraceResponseCodeError(text); });
}

std::int32_t CExternalTraceConnection::TraceBreak(const Database& database) {
  return Ask([&](IDDExternalTracer& tracer) { return tracer.TraceBreak(database); });
}

std::int32_t CExternalTraceConnection::WatchBreak(const std::shared_ptr<DDObject>& object,
                                                  const Database& database) {
  return Ask([&](IDDExternalTracer& tracer) { return tracer.WatchBreak(object, database); });
}

void CExternalTraceConnection::SetCallBack(const std::shared_ptr<IDDExternalTracerCallBack>&) {}

}  // namespace ZAFHartLib
