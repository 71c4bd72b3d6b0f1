#include "hartframe/trace/Tracing.h"

#include <fstream>

#include "debugger/StandardTerminal.h"
#include "debugger/Tracer.h"
#include "hartframe/ExitCode.h"
#include "platform/Platform.h"
#include "settings/Settings.h"

namespace hartframe {

namespace {

using ZAFHartDebugger::Debugger;

constexpr const char* kTracerClass = "Hartframe.Tracer";

// The frame's terminal; the trace itself may go to a file.
class FrameTerminal : public ZAFHartDebugger::Terminal {
 public:
  FrameTerminal(Console& console, SignalWatch& signals, const std::filesystem::path& file)
      : console_(console), signals_(signals) {
    if (file.empty()) return;
    file_.open(file);
    if (file_) return;
    throw CommandFailure(ExitCode::FileBroken, "The trace cannot be written to \"" + file.string() +
                                                   "\"; name a file that can be made.");
  }

  void Write(std::string_view line) override {
    if (file_.is_open())
      file_ << line << std::endl;
    else
      console_.Trace(line);
  }
  std::optional<std::string> ReadLine(std::string_view prompt) override {
    return console_.Prompt(prompt, [this] { return signals_.Interrupted(); });
  }
  bool ShowsColours() const override { return showsColours_ && !file_.is_open(); }

 private:
  Console& console_;
  SignalWatch& signals_;
  std::ofstream file_;
  bool showsColours_ = ZAFHartDebugger::StandardErrorShowsColours();
};

ZAFHartDebugger::Settings SettingsOf(const Options& options) {
  const TraceOptions& trace = options.trace;
  ZAFHartDebugger::Settings settings;
  settings.level = trace.level.value_or(0);
  settings.depth = trace.depth.value_or(settings.level);
  settings.detail = trace.detail;
  settings.filter = trace.filter;
  settings.top = trace.level ? static_cast<std::size_t>(trace.top) : 0;
  settings.language = options.language;
  return settings;
}

}  // namespace

std::shared_ptr<Debugger> StartTracing(const Options& options, Console& console,
                                       SignalWatch& signals) {
  const auto debugger = std::make_shared<Debugger>(
      std::make_shared<FrameTerminal>(console, signals, options.trace.file), SettingsOf(options));
  for (const std::string& place : options.trace.breaks) debugger->Break(place);
  for (const std::string& name : options.trace.watched) debugger->Watch(name);
  debugger->SetOnQuit([&signals](const ZAFHartDebugger::StopPlace&) { signals.Interrupt(); });
  auto& platform = platform::Current();
  platform.Classes().Register(
      kTracerClass, [debugger] { return std::make_shared<ZAFHartDebugger::Tracer>(debugger); });
  platform.Registry().SetValue(ZAFHartLib::kTracerKey, ZAFHartLib::kTracerClassName, kTracerClass);
  return debugger;
}

}  // namespace hartframe
