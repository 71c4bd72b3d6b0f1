#include "debugger/Tracer.h"

#include <utility>

#include "interfaces/IDDComponents.h"
#include "types/Failure.h"

namespace ZAFHartDebugger {

namespace {

using ZAFHartTypes::DDObject;
using ZAFHartTypes::Exchange;
using ZAFHartTypes::IDDExternalTracerCallBack;
using ZAFHartTypes::IgnoreFailures;
using ZAFHartTypes::IObservedExchanges;

constexpr std::string_view kRelease = ": ";
constexpr std::string_view kComputed = " calculated";
constexpr std::string_view kCallStack = "Call Stack Information:";

// "Exit(3)" of "] IDDKernel_ReadVariable: Exit(3)".
std::string ExitOf(const std::string& text) {
  const auto at = text.rfind(kRelease);
  return at == std::string::npos ? text : text.substr(at + kRelease.size());
}

std::int32_t DepthOf(std::string_view callStack) {
  std::int32_t depth = 0;
  for (auto at = callStack.find("\n[ "); at != std::string_view::npos;
       at = callStack.find("\n[ ", at + 1))
    ++depth;
  return depth;
}

// The text without its call stack when the tree shows all of that.
std::string_view ErrorText(std::string_view text, const Settings& settings) {
  const auto stack = text.find(kCallStack);
  if (stack == std::string_view::npos || !settings.filter.empty()) return text;
  return DepthOf(text.substr(stack)) <= settings.depth ? text.substr(0, stack) : text;
}

std::string FirstLine(std::string_view text) {
  return std::string(text.substr(0, text.find_first_of("\r\n")));
}

}  // namespace

void Tracer::SetCallBack(const std::shared_ptr<IDDExternalTracerCallBack>& callBack) {
  callBack_ = callBack;
  followedVersion_ = 0;
  Follow();
}

void Tracer::Terminate() {
  EndFrom(1, {});
  debugger_->NoteMissing(watcher_.Missing());
  callBack_.reset();
}

void Tracer::Follow() {
  if (!callBack_ || followedVersion_ == debugger_->Version()) return;
  followedVersion_ = debugger_->Version();
  callBack_->SetTraceLevelFilter(debugger_->NeededLevel());
  callBack_->SetStackLevelFilter(debugger_->NeededDepth());
  callBack_->SetTraceInfoLevel(debugger_->Shown().detail);
  watcher_.Watch(callBack_, debugger_->Watched());
}

// The component model comes with the database, and its wrapper later than the first operations.
void Tracer::Attach(const Database& database) {
  if (isAttached_ || !database) return;
  const auto components = database->ComponentModel();
  if (!components) return;
  if (const auto gui = components->DDGUI()) debugger_->SetDefaultLanguage(gui->LanguageID());
  const auto wrapper = std::dynamic_pointer_cast<IObservedExchanges>(components->HARTComm());
  if (!wrapper) return;
  wrapper->SetExchangeObserver(weak_from_this());
  isAttached_ = true;
}

// --- operations ---

void Tracer::AddStack(std::int32_t stackLevel, const std::string& text) {
  // What is still open there has ended by a failure.
  EndFrom(stackLevel, {});
  operations_.Open(stackLevel, text, debugger_->Now());
}

void Tracer::TraceStack(std::int32_t stackLevel, const std::string& text) {
  Operation* const operation = operations_.At(stackLevel);
  if (!operation) return;
  (operation->isStarted ? operation->results : operation->inputs).push_back(text);
}

void Tracer::ReleaseStack(std::int32_t stackLevel, const std::string& text) {
  EndFrom(stackLevel + 1, {});
  if (operations_.At(stackLevel)) EndFrom(stackLevel, ExitOf(text));
}

void Tracer::EndFrom(std::int32_t level, const std::string& exit) {
  while (operations_.Innermost() && operations_.Innermost()->level >= level) {
    Operation operation = operations_.TakeInnermost();
    operation.exit = exit;
    operation.duration = debugger_->Now() - operation.start;
    debugger_->Count(operation);
    View().End(operation, operations_);
    if (debugger_->Steps().IsStepping()) lastTitle_ = operation.Title() + "  " + exit;
  }
}

std::int32_t Tracer::TraceStackBreak(std::int32_t stackLevel, const Database& database) {
  Attach(database);
  Operation* const operation = operations_.At(stackLevel);
  const bool isStart = operation && !operation->isStarted;
  if (isStart) Start(*operation, database);
  CheckWatches(database);
  if (!isStart && !operation && debugger_->Steps().StopsAtEnd(stackLevel))
    Stop(lastTitle_, database, stackLevel);
  Follow();
  return 0;
}

void Tracer::Start(Operation& operation, const Database& database) {
  Operation* const caller = operations_.At(operation.level - 1);
  View().Choose(operation, caller);
  operation.isStarted = true;
  const Breakpoint* const hit = debugger_->Breaks().Starting(operation);
  if (!hit && !debugger_->Steps().StopsAtStart(operation.level)) return;
  Stop((hit ? "break " + hit->text + ": " : std::string()) + operation.Title(), database);
}

// --- free lines and errors ---

void Tracer::TraceText(std::int32_t traceLevel, const std::string& text) {
  const Settings& settings = debugger_->Shown();
  if (text.ends_with(kComputed)) {
    const std::string object = text.substr(0, text.size() - kComputed.size());
    if (settings.top > 0) debugger_->Counts().AddComputation(object);
    if (IsNoted(object)) return;
  }
  const bool isAlways = traceLevel < 0;
  if (isAlways || (traceLevel <= settings.level && View().Shows(operations_)))
    View().Text(operations_, isAlways ? Colour::Notice : Colour::Plain, text);
}

bool Tracer::IsNoted(const std::string& object) {
  Operation* const getter = operations_.Innermost();
  if (!getter || !getter->name.starts_with("Get") || !View().IsInTree(*getter)) return false;
  if (getter->inputs.empty() || getter->inputs.front() != "> Def: " + object) return false;
  getter->results.emplace_back("calculated");
  return true;
}

void Tracer::ShowError(const std::string& text) {
  View().Text(operations_, Colour::Error, ErrorText(text, debugger_->Shown()));
  if (debugger_->Breaks().OnError()) errorReason_ = FirstLine(text);
}

std::int32_t Tracer::TraceBreak(const Database& database) {
  Attach(database);
  CheckWatches(database);
  if (!errorReason_.empty()) Stop(std::exchange(errorReason_, {}), database);
  Follow();
  return 0;
}

// --- watches ---

std::int32_t Tracer::WatchBreak(const Object&, const Database& database) {
  CheckWatches(database);
  Follow();
  return 0;
}

void Tracer::CheckWatches(const Database& database) {
  if (debugger_->Watched().empty() || !callBack_ || !database) return;
  Follow();
  watcher_.Check(callBack_, *database,
                 [this](const Object& before, const Object& now) { TellChange(*before, *now); });
  if (!changed_.empty()) Stop("break changed: " + std::exchange(changed_, {}), database);
}

void Tracer::TellChange(const DDObject& before, const DDObject& now) {
  const std::string& name = now.ObjectDefinition().Name();
  std::string line = name + ": " + StateText(before) + "  ->  " + StateText(now);
  const Operation* const innermost = operations_.Innermost();
  if (innermost && !View().IsInTree(*innermost)) line += "  (" + operations_.Path() + ")";
  View().Text(operations_, Colour::Change, line);
  if (debugger_->Breaks().Changing(name)) changed_ = name;
}

void Tracer::Stop(const std::string& reason, const Database& database, std::int32_t endedLevel) {
  const Operation* const innermost = operations_.Innermost();
  const std::int32_t running = innermost ? innermost->level : 0;
  debugger_->Ask({&operations_, database, debugger_->Now(), endedLevel > 0 ? endedLevel : running},
                 reason);
  Follow();
}

// --- exchanges ---

bool Tracer::ShowsExchanges() {
  return debugger_->Shown().depth > 0 && View().Shows(operations_);
}

// It may take a while: what is running is told before.
void Tracer::ExchangeStarts(const Exchange& exchange) {
  if (ShowsExchanges()) View().Announce(operations_);
  exchanges_.Start(exchange, debugger_->Now());
}

void Tracer::ExchangeEnds(const Exchange& exchange) {
  IgnoreFailures([&] {
    const EndedExchange ended = exchanges_.End(exchange, debugger_->Now());
    debugger_->Counts().AddCommand(ended.number, ended.Figures());
    if (ShowsExchanges()) View().Timed(operations_, ended.duration, ended.Line(View()));
  });
}

}  // namespace ZAFHartDebugger
