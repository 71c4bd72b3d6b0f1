#include "hartframe/browse/FrameControl.h"

#include "platform/Platform.h"

namespace hartframe::browse {

using ZAFHartTypes::DDObject;
using ZAFHartTypes::LifeSignalCode;
using ZAFHartTypes::Variant;

void FrameControl::ShowObject(const std::shared_ptr<DDObject>& object) {
  // RefreshView comes at the end of what locks the update.
  if (frame_ && !updateLocked_) frame_->OnShown(object);
}

void FrameControl::HideObject(const std::shared_ptr<DDObject>& object) {
  ShowObject(object);
}

Variant FrameControl::GetObjectValue(const std::shared_ptr<DDObject>& object) {
  return frame_ && object ? frame_->EditedValue(object->ObjectDefinition()) : Variant();
}

std::int32_t FrameControl::ShowUserMessage(ZAFHartTypes::UserMessage& message) {
  return frame_ ? frame_->ShowMessage(message) : 0;
}

void FrameControl::HideUserMessage(std::int32_t displayId) {
  if (frame_) frame_->HideMessage(displayId);
}

void FrameControl::LifeSignal(LifeSignalCode code, const ZAFHartTypes::SignalObject&) {
  if (frame_ && code != LifeSignalCode::DatabaseRead)
    frame_->OnExchange(code == LifeSignalCode::ExchangeFinished);
}

void FrameControl::SetLockControls(bool locked) {
  locked_ = locked;
  if (frame_) frame_->OnLocked();
}

std::uint64_t FrameControl::ThreadID() const {
  return platform::ThreadId();
}

std::uintptr_t FrameControl::hAppInstance() const {
  return platform::ApplicationInstance();
}

void FrameControl::CollectRefreshData(ZAFHartTypes::DefinitionList& dynData) {
  if (frame_) frame_->CollectShown(dynData);
}

void FrameControl::RefreshView() {
  if (frame_) frame_->OnRefreshView();
}

}  // namespace hartframe::browse
