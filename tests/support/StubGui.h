#pragma once

#include <string>
#include <vector>

#include "interfaces/IDDDTMGUI.h"

namespace test_support {

using namespace ZAFHartTypes;  // NOLINT(google-build-using-namespace)

// A GUI manager that shows nothing and keeps what it was told. Derive to answer otherwise.
class StubGui : public IDDDTMGUI {
 public:
  void SetErrorHandler(std::shared_ptr<IDDErrorHandler> handler) override {
    errorHandler = std::move(handler);
  }
  std::shared_ptr<IDDErrorHandler> ErrorHandler() const override { return errorHandler; }
  void SetComponentModel(const std::shared_ptr<IDDComponents>& model) override {
    components = model;
  }
  std::shared_ptr<IDDComponents> ComponentModel() const override { return components.lock(); }
  void SetLanguageID(const std::string& code) override { language = code; }
  std::string LanguageID() const override { return language; }
  std::shared_ptr<IDDDebugTracer> TraceObject() override { return tracer; }
  void ShowObject(const std::shared_ptr<DDObject>& object) override { Keep(shown, object); }
  void HideObject(const std::shared_ptr<DDObject>& object) override { Keep(hidden, object); }
  void ObjectError(const std::shared_ptr<DDObject>& object, ItemIndex index) override {
    objectErrors.emplace_back(object->ObjectDefinition().Name(), index);
  }
  void ResponseCodeError(const CommandStatus&, const std::shared_ptr<CommandRef>&) override {
    ++responseCodeErrors;
  }
  void EvaluationError(const std::string& message) override { evaluationErrors.push_back(message); }
  Variant GetObjectValue(const std::shared_ptr<DDObject>&) override { return editedValue; }
  std::int32_t ShowUserMessage(UserMessage& message) override {
    messages.push_back(message.prompt);
    if (messageAnswer > 0) message.displayId = messageAnswer;
    return messageAnswer;
  }
  void HideUserMessage(std::int32_t) override {}
  void LifeSignal(LifeSignalCode code, const SignalObject&) override {
    lifeSignals.push_back(code);
  }
  void StopCurrentEditing() override { ++editingStops; }
  std::int32_t SetUILock() override { return ++uiLocks; }
  bool IsUILocked() const override { return uiLocks > 0; }
  void ReleaseUILock(std::int32_t) override { --uiLocks; }

  // Answers.
  std::string language = "en";
  Variant editedValue = Variant::Null();
  std::int32_t messageAnswer = 0;
  std::shared_ptr<IDDDebugTracer> tracer;
  std::shared_ptr<IDDErrorHandler> errorHandler;
  std::weak_ptr<IDDComponents> components;

  // What it was told, in order.
  std::vector<std::string> shown;  // names
  std::vector<std::string> hidden;
  std::shared_ptr<DDObject> lastShown;
  std::vector<std::pair<std::string, ItemIndex>> objectErrors;
  std::vector<std::string> evaluationErrors;
  std::vector<std::string> messages;
  std::vector<LifeSignalCode> lifeSignals;
  int responseCodeErrors = 0;
  int editingStops = 0;
  std::int32_t uiLocks = 0;

 private:
  void Keep(std::vector<std::string>& names, const std::shared_ptr<DDObject>& object) {
    names.push_back(object->ObjectDefinition().Name());
    lastShown = object;
  }
};

}  // namespace test_support
