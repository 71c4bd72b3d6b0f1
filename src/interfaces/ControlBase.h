#pragma once

#include "interfaces/IDDDTMGUI.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

// A control of a DTM that shows nothing and answers no message; controls override what they show.
// It keeps the component model weakly, and the language. Everything else does nothing: it answers
// nothing, an empty value, 0 or false, and never raises.
class ZAF_API ControlBase : public IDDDTMGUI {
 public:
  void SetErrorHandler(std::shared_ptr<IDDErrorHandler>) override {}
  std::shared_ptr<IDDErrorHandler> ErrorHandler() const override { return nullptr; }
  void SetComponentModel(const std::shared_ptr<IDDComponents>& components) override {
    components_ = components;
  }
  std::shared_ptr<IDDComponents> ComponentModel() const override { return components_.lock(); }
  void SetLanguageID(const std::string& language) override { language_ = language; }
  std::string LanguageID() const override { return language_; }
  std::shared_ptr<IDDDebugTracer> TraceObject() override { return nullptr; }
  void ShowObject(const std::shared_ptr<DDObject>&) override {}
  void HideObject(const std::shared_ptr<DDObject>&) override {}
  void ObjectError(const std::shared_ptr<DDObject>&, ItemIndex) override {}
  void ResponseCodeError(const CommandStatus&, const std::shared_ptr<CommandRef>&) override {}
  void EvaluationError(const std::string&) override {}
  Variant GetObjectValue(const std::shared_ptr<DDObject>&) override { return {}; }
  std::int32_t ShowUserMessage(UserMessage&) override { return 0; }
  void HideUserMessage(std::int32_t) override {}
  void LifeSignal(LifeSignalCode, const SignalObject&) override {}
  void StopCurrentEditing() override {}
  std::int32_t SetUILock() override { return 0; }
  bool IsUILocked() const override { return false; }
  void ReleaseUILock(std::int32_t) override {}

 private:
  std::weak_ptr<IDDComponents> components_;
  std::string language_;
};

}  // namespace ZAFHartTypes
