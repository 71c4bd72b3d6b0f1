#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ddobjects/ObjectList.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

class IDDWorkerDB;

// What an external tracer may ask of the library.
class ZAF_API IDDExternalTracerCallBack {
 public:
  virtual ~IDDExternalTracerCallBack() = default;
  // Highest level passed on by TraceText; 1 at the start.
  virtual std::int32_t TraceLevelFilter() const = 0;
  virtual void SetTraceLevelFilter(std::int32_t level) = 0;
  // Highest stack level passed on; 1 is the outermost operation, and the start value.
  virtual std::int32_t StackLevelFilter() const = 0;
  virtual void SetStackLevelFilter(std::int32_t level) = 0;
  // Detail level for Describe; 1 at the start.
  virtual std::int32_t TraceInfoLevel() const = 0;
  virtual void SetTraceInfoLevel(std::int32_t level) = 0;
  // Objects that WatchBreak is asked about.
  virtual ObjectList& ObjectsToBeWatched() = 0;
  // The tracer goes away.
  virtual void Terminate() = 0;
};

// A tracer component named in the registry. Break calls may block the thread until the user goes
// on; their failures are ignored. Tracing never makes an operation fail.
class ZAF_API IDDExternalTracer {
 public:
  virtual ~IDDExternalTracer() = default;
  virtual void AddStack(std::int32_t stackLevel, const std::string& text) = 0;
  virtual void ReleaseStack(std::int32_t stackLevel, const std::string& text) = 0;
  virtual void TraceStack(std::int32_t stackLevel, const std::string& text) = 0;
  virtual std::int32_t TraceStackBreak(std::int32_t stackLevel,
                                       const std::shared_ptr<IDDWorkerDB>& database) = 0;
  virtual void TraceText(std::int32_t traceLevel, const std::string& text) = 0;
  virtual void TraceObjectError(const std::string& text) = 0;
  virtual void TraceEvaluationError(const std::string& text) = 0;
  virtual void TraceResponseCodeError(const std::string& text) = 0;
  virtual std::int32_t TraceBreak(const std::shared_ptr<IDDWorkerDB>& database) = 0;
  virtual std::int32_t WatchBreak(const std::shared_ptr<DDObject>& object,
                                  const std::shared_ptr<IDDWorkerDB>& database) = 0;
  // Nothing ends the connection. The callback is not owned and dies before the tracer's Terminate.
  virtual void SetCallBack(const std::shared_ptr<IDDExternalTracerCallBack>& callBack) = 0;
  virtual void Terminate() = 0;
};

}  // namespace ZAFHartTypes
