#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Export.h"

namespace ZAFHartTypes {

// A running operation that tells its trace lines when somebody wants them: its name line first,
// then its inputs.
class ZAF_API ITracedOperation {
 public:
  virtual ~ITracedOperation() = default;
  // `infoLevel`: detail level for Describe.
  virtual std::vector<std::string> TraceLines(std::int32_t infoLevel) const = 0;
};

// The trace object of one running operation, handed out by IDDDTMGUI::TraceObject. It opens one
// level of the trace stack at most. Results carry no information (0).
class ZAF_API IDDDebugTracer {
 public:
  virtual ~IDDDebugTracer() = default;
  // Detail level to pass to Describe; at first what the external tracer asks for, 1 without one.
  virtual std::int32_t TraceInfoLevel() const = 0;
  virtual void SetTraceInfoLevel(std::int32_t level) = 0;
  // Opens this object's level; without effect when it is open.
  virtual std::int32_t AddStack(const std::string& text) = 0;
  // The same for an operation whose lines are not built unless somebody reads them: the error
  // report, a tracer that accepts the level (which gets them at once, the empty line after the
  // inputs included), or FixStack. `operation` must outlive the level or FixStack.
  virtual void OpenStack(const ITracedOperation& operation) = 0;
  // Keeps the open level's lines as text and lets go of its operation. Called before an operation
  // ends without ReleaseStack, so that its texts reach the error report.
  virtual void FixStack() = 0;
  // Adds a line to the open level; "" ends the inputs, and the tracer may stop the thread there.
  // Without effect when no level is open.
  virtual std::int32_t TraceStack(const std::string& text) = 0;
  // Closes the open level and what was left open below it; `text` goes to the external tracer.
  // Without effect when no level is open. An object that goes with its level open leaves its lines
  // to the error report.
  virtual std::int32_t ReleaseStack(const std::string& text) = 0;
  // A free line, kept nowhere. Level -1 passes every filter.
  virtual std::int32_t TraceText(std::int32_t level, const std::string& text) = 0;

  // Whether an external tracer takes stack lines of the open level, and free lines of `level`:
  // callers build no texts for nobody.
  virtual bool WantsStack() const = 0;
  virtual bool WantsText(std::int32_t level) const = 0;
};

}  // namespace ZAFHartTypes
