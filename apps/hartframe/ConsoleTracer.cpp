#include "hartframe/ConsoleTracer.h"

#include "hartframe/LanguageSegments.h"
#include "hartframe/Speech.h"
#include "platform/Platform.h"

namespace hartframe {

namespace {

constexpr const char* kTracerKey = R"(\HKEY_LOCAL_MACHINE\SOFTWARE\Quillbridge\HART\Tracer)";
constexpr const char* kTracerClass = "Hartframe.ConsoleTracer";

}  // namespace

ConsoleTracer::ConsoleTracer(Console& console, const Options& options)
    : console_(console),
      language_(options.language),
      level_(options.trace.value_or(0)),
      depth_(options.traceDepth),
      detail_(options.traceDetail) {}

void ConsoleTracer::Connect(Console& console, const Options& options) {
  platform::Current().Classes().Register(kTracerClass, [&console, &options] {
    return std::make_shared<ConsoleTracer>(console, options);
  });
  platform::Current().Registry().SetValue(kTracerKey, "ClassName", kTracerClass);
}

void ConsoleTracer::SetCallBack(
    const std::shared_ptr<ZAFHartTypes::IDDExternalTracerCallBack>& callBack) {
  if (!callBack) return;
  callBack->SetTraceLevelFilter(level_);
  callBack->SetStackLevelFilter(depth_);
  callBack->SetTraceInfoLevel(detail_);
}

void ConsoleTracer::AddStack(std::int32_t stackLevel, const std::string& text) {
  current_ = stackLevel;
  Print(stackLevel - 1, text);
}

void ConsoleTracer::ReleaseStack(std::int32_t stackLevel, const std::string& text) {
  Print(stackLevel - 1, text);
  current_ = stackLevel - 1;
}

void ConsoleTracer::TraceStack(std::int32_t stackLevel, const std::string& text) {
  Print(stackLevel, text);
}

void ConsoleTracer::TraceText(std::int32_t, const std::string& text) {
  Print(current_, text);
}

void ConsoleTracer::Print(std::int32_t depth, std::string_view text) {
  const std::string indent(static_cast<std::size_t>(std::max(depth, 0)) * 2, ' ');
  while (!text.empty()) {
    const auto end = text.find('\n');
    std::string_view line = text.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (!line.empty()) console_.Trace(indent + OneLine(InLanguage(line, language_)));
    if (end == std::string_view::npos) return;
    text.remove_prefix(end + 1);
  }
}

}  // namespace hartframe
