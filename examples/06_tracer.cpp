// An external tracer: a plug-in that writes the library's outermost operations as JSON lines to
// standard error. A host uses it when its registry says so (tracer.ini) and the plug-in's folder is
// in its plug-in path.
#include <cstdio>

#include "dtmkit/Plugin.h"
#include "interfaces/IDDExternalTracer.h"

namespace {

using namespace ZAFHartTypes;

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') quoted += '\\';
    if (static_cast<unsigned char>(c) >= ' ') {
      quoted += c;
    } else {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(c));
      quoted += escape;
    }
  }
  return quoted + '"';
}

void Write(const char* event, const std::string& text) {
  std::fprintf(stderr, "{\"event\": \"%s\", \"text\": %s}\n", event, Quoted(text).c_str());
}

// One for each DTM instance. What its calls raise is ignored; the Break calls may keep the library
// waiting, which this one never does.
class JsonTracer : public platform::Object, public IDDExternalTracer {
 public:
  using Database = std::shared_ptr<IDDWorkerDB>;

  void AddStack(std::int32_t, const std::string& text) override { Write("begin", text); }
  void ReleaseStack(std::int32_t, const std::string& text) override { Write("end", text); }
  void TraceStack(std::int32_t, const std::string& text) override { Write("step", text); }
  void TraceText(std::int32_t, const std::string& text) override { Write("text", text); }
  void TraceObjectError(const std::string& text) override { Write("objectError", text); }
  void TraceEvaluationError(const std::string& text) override { Write("evaluationError", text); }
  void TraceResponseCodeError(const std::string& text) override {
    Write("responseCodeError", text);
  }
  std::int32_t TraceStackBreak(std::int32_t, const Database&) override { return 0; }
  std::int32_t TraceBreak(const Database&) override { return 0; }
  std::int32_t WatchBreak(const std::shared_ptr<DDObject>&, const Database&) override { return 0; }

  // What it wants to hear: the outermost operations, with short descriptions of objects.
  void SetCallBack(const std::shared_ptr<IDDExternalTracerCallBack>& callBack) override {
    if (!callBack) return;
    callBack->SetStackLevelFilter(1);
    callBack->SetTraceLevelFilter(0);
    callBack->SetTraceInfoLevel(0);
  }
  void Terminate() override {}
};

}  // namespace

ZAF_PLUGIN({"JsonLines.Tracer", &dtmkit::CreateObject<JsonTracer>})
