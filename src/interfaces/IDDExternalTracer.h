#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ddobjects/ObjectList.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

class IDDWorkerDB;

// What an external tracer may ask of the library. It may be kept beyond Terminate, without effect
// then.
class ZAF_API IDDExternalTracerCallBack {
 public:
  virtual ~IDDExternalTracerCallBack() = default;
  // Highest level passed on by TraceText; 1 at the start. The library writes 1 for what has been
  // done, 2 for details, and -1, which passes always, for failures.
  virtual std::int32_t TraceLevelFilter() const = 0;
  virtual void SetTraceLevelFilter(std::int32_t level) = 0;
  // Highest stack level passed on; 1 is the outermost operation, and the start value.
  virtual std::int32_t StackLevelFilter() const = 0;
  virtual void SetStackLevelFilter(std::int32_t level) = 0;
  // Detail level for Describe; 1 at the start, 0 tells least.
  virtual std::int32_t TraceInfoLevel() const = 0;
  virtual void SetTraceInfoLevel(std::int32_t level) = 0;
  // Objects that the tracer watches, for its own use: the library neither fills nor reads the list.
  virtual ObjectList& ObjectsToBeWatched() = 0;
  // The tracer goes away: its connection ends, and its own Terminate is called.
  virtual void Terminate() = 0;
};

// A tracer component named in the registry, one object per DTM instance. Break calls may block the
// thread until the user goes on; `database` may be looked at meanwhile, and is nothing without a
// data set. Answers of breaks are not used. What any call raises is ignored: tracing never makes an
// operation fail.
class ZAF_API IDDExternalTracer {
 public:
  virtual ~IDDExternalTracer() = default;
  // An operation begins, ends, tells a line. Levels count from 1, the outermost operation; those
  // above StackLevelFilter are left out. TraceStackBreak comes after the inputs and after the end.
  virtual void AddStack(std::int32_t stackLevel, const std::string& text) = 0;
  virtual void ReleaseStack(std::int32_t stackLevel, const std::string& text) = 0;
  virtual void TraceStack(std::int32_t stackLevel, const std::string& text) = 0;
  virtual std::int32_t TraceStackBreak(std::int32_t stackLevel,
                                       const std::shared_ptr<IDDWorkerDB>& database) = 0;
  // A free line; TraceBreak follows.
  virtual void TraceText(std::int32_t traceLevel, const std::string& text) = 0;
  // The text of an error report, call stack included, with lines separated by CR LF; also of an
  // error that the error handler has handled. TraceBreak follows.
  virtual void TraceObjectError(const std::string& text) = 0;
  virtual void TraceEvaluationError(const std::string& text) = 0;
  virtual void TraceResponseCodeError(const std::string& text) = 0;
  virtual std::int32_t TraceBreak(const std::shared_ptr<IDDWorkerDB>& database) = 0;
  // A watched object may have changed. The library never calls it by itself.
  virtual std::int32_t WatchBreak(const std::shared_ptr<DDObject>& object,
                                  const std::shared_ptr<IDDWorkerDB>& database) = 0;
  // The first call. The callback may be held.
  virtual void SetCallBack(const std::shared_ptr<IDDExternalTracerCallBack>& callBack) = 0;
  // The last call: the DTM instance goes, or the tracer has asked for it.
  virtual void Terminate() = 0;
};

}  // namespace ZAFHartTypes
