#pragma once

#include "interfaces/IDDDTMGUI.h"

namespace hartframe {

// A control of a DTM that shows nothing; the program's own override what they show.
class Control : public ZAFHartTypes::IDDDTMGUI {
 public:
  void SetErrorHandler(std::shared_ptr<ZAFHartTypes::IDDErrorHandler>) override {}
  std::shared_ptr<ZAFHartTypes::IDDErrorHandler> ErrorHandler() const override { return nullptr; }
  void SetComponentModel(const std::shared_ptr<ZAFHartTypes::IDDComponents>& components) override {
    components_ = components;
  }
  std::shared_ptr<ZAFHartTypes::IDDComponents> ComponentModel() const override {
    return components_.lock();
  }
  void SetLanguageID(const std::string& language) override { language_ = language; }
  std::string LanguageID() const override { return language_; }
  std::shared_ptr<ZAFHartTypes::IDDDebugTracer> TraceObject() override { return nullptr; }
  void ShowObject(const std::shared_ptr<ZAFHartTypes::DDObject>&) override {}
  void HideObject(const std::shared_ptr<ZAFHartTypes::DDObject>&) override {}
  void ObjectError(const std::shared_ptr<ZAFHartTypes::DDObject>&,
                   ZAFHartTypes::ItemIndex) override {}
  void ResponseCodeError(const ZAFHartTypes::CommandStatus&,
                         const std::shared_ptr<ZAFHartTypes::CommandRef>&) override {}
  void EvaluationError(const std::string&) override {}
  ZAFHartTypes::Variant GetObjectValue(const std::shared_ptr<ZAFHartTypes::DDObject>&) override {
    return {};
  }
  std::int32_t ShowUserMessage(ZAFHartTypes::UserMessage&) override { return 0; }
  void HideUserMessage(std::int32_t) override {}
  void LifeSignal(ZAFHartTypes::LifeSignalCode, const ZAFHartTypes::SignalObject&) override {}
  void StopCurrentEditing() override {}
  std::int32_t SetUILock() override { return 0; }
  bool IsUILocked() const override { return false; }
  void ReleaseUILock(std::int32_t) override {}

 private:
  std::weak_ptr<ZAFHartTypes::IDDComponents> components_;
  std::string language_;
};

}  // namespace hartframe
