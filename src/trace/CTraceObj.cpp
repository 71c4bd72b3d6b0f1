#include "trace/CTraceObj.h"

#include <utility>

#include "interfaces/IDDComponents.h"
#include "trace/CExternalTraceConnection.h"
#include "trace/QuietCall.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::IDDDTMGUI;
using ZAFHartTypes::IDDExternalTracer;
using ZAFHartTypes::IDDWorkerDB;
using ZAFHartTypes::ITracedOperation;

}  // namespace

CTraceObj::CTraceObj(std::weak_ptr<IDDDTMGUI> gui, std::shared_ptr<StackInformation> stack,
                     std::shared_ptr<CExternalTraceConnection> tracer)
    : gui_(std::move(gui)), stack_(std::move(stack)), connection_(tracer.get()) {
  if (tracer) traceInfoLevel_ = tracer->GetTraceInfoLevel();
  tracer_ = std::move(tracer);
}

CTraceObj::~CTraceObj() {
  if (IsOpen()) stack_->MergeFrom(position_);
}

void CTraceObj::SetMainGuiClass(const std::shared_ptr<IDDDTMGUI>& gui) {
  const auto owner = std::dynamic_pointer_cast<IStackInformationOwner>(gui);
  gui_ = gui;
  stack_ = owner ? owner->StackInformation() : nullptr;
  position_ = 0;
}

void CTraceObj::SetExternalTracer(std::shared_ptr<IDDExternalTracer> tracer) {
  connection_ = dynamic_cast<const CExternalTraceConnection*>(tracer.get());
  tracer_ = std::move(tracer);
}

std::string CTraceObj::GetStackInformation() const {
  return stack_ ? stack_->Text() : std::string();
}

std::int32_t CTraceObj::AddStack(const std::string& text) {
  if (IsOpen() || !stack_) return 0;
  stack_->Add(text);
  position_ = stack_->Count();
  if (TracerTakes(StackLevel())) CallQuietly([&] { tracer_->AddStack(StackLevel(), text); });
  return 0;
}

void CTraceObj::OpenStack(const ITracedOperation& operation) {
  if (IsOpen() || !stack_) return;
  position_ = stack_->Open(operation, traceInfoLevel_);
  if (!WantsStack()) return;
  CallQuietly([&] {
    const std::vector<std::string> lines = operation.TraceLines(traceInfoLevel_);
    for (const std::string& line : lines) {
      const bool isName = &line == lines.data();
      isName ? tracer_->AddStack(StackLevel(), line) : tracer_->TraceStack(StackLevel(), line);
    }
  });
  StackBreak();
}

void CTraceObj::FixStack() {
  if (IsOpen()) stack_->Fix(position_);
}

std::int32_t CTraceObj::TraceStack(const std::string& text) {
  if (!IsOpen()) return 0;
  if (text.empty()) {
    if (WantsStack()) StackBreak();
    return 0;
  }
  stack_->AppendLine(position_, text);
  if (WantsStack()) CallQuietly([&] { tracer_->TraceStack(StackLevel(), text); });
  return 0;
}

std::int32_t CTraceObj::ReleaseStack(const std::string& text) {
  if (!IsOpen()) return 0;
  stack_->CloseFrom(position_);
  if (WantsStack()) {
    CallQuietly([&] { tracer_->ReleaseStack(StackLevel(), text); });
    StackBreak();
  }
  position_ = 0;
  return 0;
}

std::int32_t CTraceObj::TraceText(std::int32_t level, const std::string& text) {
  if (!WantsText(level)) return 0;
  CallQuietly([&] { tracer_->TraceText(level, text); });
  CallQuietly([&] { tracer_->TraceBreak(Database()); });
  return 0;
}

bool CTraceObj::WantsStack() const {
  return IsOpen() && TracerTakes(StackLevel());
}

bool CTraceObj::WantsText(std::int32_t) const {
  return tracer_ && (!connection_ || connection_->CheckConnection());
}

bool CTraceObj::TracerTakes(std::int32_t stackLevel) const {
  return tracer_ && (!connection_ || connection_->TakesStack(stackLevel));
}

void CTraceObj::StackBreak() {
  CallQuietly([&] { tracer_->TraceStackBreak(StackLevel(), Database()); });
}

std::shared_ptr<IDDWorkerDB> CTraceObj::Database() const {
  const auto gui = gui_.lock();
  const auto components = gui ? gui->ComponentModel() : nullptr;
  return components ? components->DDWorkerDB() : nullptr;
}

}  // namespace ZAFHartLib
