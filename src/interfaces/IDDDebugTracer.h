#pragma once

#include <cstdint>
#include <string>

namespace ZAFHartTypes {

// The trace object of one running operation, handed out by IDDDTMGUI::TraceObject. It opens one
// level of the trace stack at most. Results carry no information (0).
class IDDDebugTracer {
 public:
  virtual ~IDDDebugTracer() = default;
  // Detail level to pass to Describe.
  virtual std::int32_t TraceInfoLevel() const = 0;
  virtual void SetTraceInfoLevel(std::int32_t level) = 0;
  // Opens this object's level; without effect when it is open.
  virtual std::int32_t AddStack(const std::string& text) = 0;
  // Adds a line to the open level; "" ends the inputs.
  virtual std::int32_t TraceStack(const std::string& text) = 0;
  // Closes the open level and what was left open below it.
  virtual std::int32_t ReleaseStack(const std::string& text) = 0;
  // A free line, kept nowhere. Level -1 passes every filter.
  virtual std::int32_t TraceText(std::int32_t level, const std::string& text) = 0;

  // Whether anybody would see a stack line of this object's level beyond the error report, and a
  // free line of `level`: callers build no texts for nobody.
  virtual bool WantsStack() const = 0;
  virtual bool WantsText(std::int32_t level) const = 0;
};

}  // namespace ZAFHartTypes
