#include "gui/CDDDTMGUI.h"

#include <utility>

#include "interfaces/IDDComponents.h"
#include "trace/CTraceObj.h"

namespace ZAFHartLib {
namespace {

using platform::NumberText;
using ZAFHartTypes::Failure;
using ZAFHartTypes::IDDComponents;
using ZAFHartTypes::IDDDebugTracer;
using ZAFHartTypes::IDDDTMGUI;
using ZAFHartTypes::IDDErrorHandler;
using ZAFHartTypes::IDDWorkerDB;
using ZAFHartTypes::IgnoreFailures;
using ZAFHartTypes::IGuiContainer;

constexpr std::int32_t kFailureTraceLevel = -1;  // passes every filter

}  // namespace

CDDDTMGUI::CDDDTMGUI()
    : stack_(std::make_shared<ZAFHartLib::StackInformation>()),
      tracer_(std::make_shared<CExternalTraceConnection>()),
      controls_([this](std::string_view operation, const Failure& failure) {
        TraceFailure(std::string(operation) + ": Control forces an error", failure);
      }),
      refresh_(*this, controls_),
      threadGuis_(ThreadGuis::OfThisThread()) {
  threadGuis_->Add(*this);
}

CDDDTMGUI::~CDDDTMGUI() {
  threadGuis_->Remove(*this);
  refresh_.Stop();
  if (tracer_) tracer_->PrepareTermination();
}

// --- set-up ---

void CDDDTMGUI::SetErrorHandler(std::shared_ptr<IDDErrorHandler> handler) {
  errorHandler_ = std::move(handler);
}

std::shared_ptr<IDDErrorHandler> CDDDTMGUI::ErrorHandler() const {
  return errorHandler_;
}

void CDDDTMGUI::SetComponentModel(const std::shared_ptr<IDDComponents>& components) {
  errorHandler_.reset();
  model_.Set(components);
  if (components) {
    threadGuis_->Add(*this);
    settings_ = ReadGuiSettings(components->KernelInformation());
    controls_.SetTrapFailures(settings_.useErrorHandler);
    HandOnComponentModel(components);
    if (!IsUILocked()) refresh_.Start();
  } else {
    threadGuis_->Remove(*this);
    refresh_.Reset();
    HandOnComponentModel(components);
  }
}

std::shared_ptr<IDDComponents> CDDDTMGUI::ComponentModel() const {
  return model_.Get();
}

void CDDDTMGUI::HandOnComponentModel(const std::shared_ptr<IDDComponents>& components) {
  constexpr std::string_view kOperation = "IDDDTMGUI_ComponentModel";
  controls_.ForEachOffering<IGuiContainer>(
      kOperation, [&](IGuiContainer& container) { container.SetComponentModel(components); });
  if (const Control control = messageControl_) {
    controls_.Call(kOperation, [&] { control->SetComponentModel(components); });
  }
}

void CDDDTMGUI::SetExternalTracer(std::shared_ptr<CExternalTraceConnection> tracer) {
  tracer_ = std::move(tracer);
}

void CDDDTMGUI::SetStackInformation(std::shared_ptr<ZAFHartLib::StackInformation> stack) {
  stack_ = stack ? std::move(stack) : std::make_shared<ZAFHartLib::StackInformation>();
}

std::shared_ptr<IDDWorkerDB> CDDDTMGUI::Database() const {
  const auto components = model_.Get();
  return components ? components->DDWorkerDB() : nullptr;
}

// --- controls ---

void CDDDTMGUI::RegisterCtrl(const Control& nobj) {
  if (!nobj) return;
  UnregisterCtrl(nobj);
  controls_.Add(nobj);
  const auto call = [](auto&& step) {
    IgnoreFailures([&] { platform::CallForeign("RegisterCtrl", step); });
  };
  call([&] { nobj->SetLanguageID(language_); });
  auto* container = dynamic_cast<IGuiContainer*>(nobj.get());
  if (container && IsUILocked()) call([&] { container->SetLockControls(true); });
}

void CDDDTMGUI::UnregisterCtrl(const Control& nobj) {
  // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): one of those cleared here, maybe
  const Control control = nobj;
  controls_.Remove(control);
  if (activeControl_ == control) activeControl_.reset();
  if (messageControl_ == control) messageControl_.reset();
}

void CDDDTMGUI::SetMessageControl(Control control) {
  messageControl_ = control;
  const auto components = model_.Get();
  if (!control || !components) return;
  controls_.Call("MessageControl", [&] { control->SetComponentModel(components); });
}

void CDDDTMGUI::SetLanguageID(const std::string& language) {
  constexpr std::string_view kOperation = "IDDDTMGUI_LanguageID";
  language_ = language;
  controls_.ForEach(kOperation,
                    [&](CGUIObj&, IDDDTMGUI& control) { control.SetLanguageID(language); });
  if (const Control control = messageControl_) {
    controls_.Call(kOperation, [&] { control->SetLanguageID(language); });
  }
}

std::shared_ptr<IDDDebugTracer> CDDDTMGUI::TraceObject() {
  return std::make_shared<CTraceObj>(weak_from_this(), stack_, tracer_);
}

void CDDDTMGUI::TraceFailure(const std::string& heading, const Failure& failure) {
  const auto trace = TraceObject();
  if (!trace->WantsText(kFailureTraceLevel)) return;
  trace->TraceText(kFailureTraceLevel, heading + kLineBreak + failure.Source() + ":" +
                                           NumberText(failure.Number()) + "=" +
                                           failure.Description());
}

// --- UI lock ---

std::int32_t CDDDTMGUI::SetUILock() {
  auto lockId = static_cast<std::int32_t>(locks_.size()) + 1;
  while (locks_.contains(lockId)) ++lockId;
  const bool isFirst = locks_.empty();
  locks_[lockId];
  try {
    if (isFirst) {
      refresh_.Stop();
      LockControls("IDDDTMGUI_SetUILock", true);
    }
    LockOthers(lockId);
  } catch (...) {
    IgnoreFailures([&] { ReleaseUILock(lockId); });
    throw;
  }
  return lockId;
}

void CDDDTMGUI::LockOthers(std::int32_t lockId) {
  threadGuis_->ForOthers(*this, [&](const std::shared_ptr<CDDDTMGUI>& gui) {
    const auto lock = std::make_shared<CLockObject>();
    lock->SetLock(gui);
    const auto held = locks_.find(lockId);
    if (held != locks_.end()) held->second.push_back(lock);
  });
}

void CDDDTMGUI::ReleaseUILock(std::int32_t lockId) {
  auto released = locks_.extract(lockId);
  if (released.empty()) return;
  released.mapped().clear();  // the other managers' locks
  if (!locks_.empty()) return;
  if (model_.Get()) refresh_.Start();
  LockControls("IDDDTMGUI_ReleaseUILock", false);
}

void CDDDTMGUI::LockControls(std::string_view operation, bool locked) {
  controls_.ForEachOffering<IGuiContainer>(
      operation, [&](IGuiContainer& container) { container.SetLockControls(locked); });
}

}  // namespace ZAFHartLib
