#pragma once

#include "interfaces/IDDExternalTracer.h"
#include "platform/Export.h"

namespace ZAFHartLib {

class CExternalTraceConnection;

// What a connection hands to its tracer: filters, detail level and watch list. A tracer may keep it
// beyond the connection's life.
class ZAF_API TracerCallBack final : public ZAFHartTypes::IDDExternalTracerCallBack {
 public:
  explicit TracerCallBack(CExternalTraceConnection& connection) : connection_(&connection) {}
  // The connection goes away; Terminate has no effect from now on.
  void Detach() { connection_ = nullptr; }

  std::int32_t TraceLevelFilter() const override { return traceLevelFilter_; }
  void SetTraceLevelFilter(std::int32_t level) override { traceLevelFilter_ = level; }
  std::int32_t StackLevelFilter() const override { return stackLevelFilter_; }
  void SetStackLevelFilter(std::int32_t level) override { stackLevelFilter_ = level; }
  std::int32_t TraceInfoLevel() const override { return traceInfoLevel_; }
  void SetTraceInfoLevel(std::int32_t level) override { traceInfoLevel_ = level; }
  ZAFHartTypes::ObjectList& ObjectsToBeWatched() override { return objectsToBeWatched_; }
  void Terminate() override;

 private:
  CExternalTraceConnection* connection_;
  std::int32_t traceLevelFilter_ = 1;
  std::int32_t stackLevelFilter_ = 1;
  std::int32_t traceInfoLevel_ = 1;
  ZAFHartTypes::ObjectList objectsToBeWatched_;
};

}  // namespace ZAFHartLib
