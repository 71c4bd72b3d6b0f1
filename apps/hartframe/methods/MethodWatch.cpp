#include "hartframe/methods/MethodWatch.h"

#include <algorithm>

#include "builtins/CDDBuiltinLib.h"
#include "platform/Platform.h"

namespace hartframe {

namespace {

using ZAFHartTypes::Definition;
using ZAFHartTypes::DefinitionList;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::Variant;

constexpr const char* kClass = "hartframe.CDDBuiltinLib";

}  // namespace

// The library's builtins, which tell the watch what becomes of their method.
class WatchedBuiltins : public ZAFHartLib::CDDBuiltinLib {
 public:
  explicit WatchedBuiltins(MethodWatch& watch) : watch_(watch) {}
  ~WatchedBuiltins() override { watch_.OnEnd(*this); }

  bool IsClosing() const { return isClosing_ || IsAbort(); }

  void Initialize(std::shared_ptr<ZAFHartTypes::DDObject>& currentObject,
                  const std::string& currentMethodName) override {
    CDDBuiltinLib::Initialize(currentObject, currentMethodName);
    watch_.OnStart(*this);
  }
  void ProcessAbort() override {
    watch_.OnAbort(*this);
    CDDBuiltinLib::ProcessAbort();
  }
  void Abort(bool userNotify) override {
    isClosing_ = true;  // the notice is part of it
    watch_.OnAbort(*this);
    CDDBuiltinLib::Abort(userNotify);
  }

  bool AssignDouble(const std::string& name, double value) override {
    return Note(name, CDDBuiltinLib::AssignDouble(name, value));
  }
  bool AssignFloat(const std::string& name, float value) override {
    return Note(name, CDDBuiltinLib::AssignFloat(name, value));
  }
  bool AssignLong(const std::string& name, std::int32_t value) override {
    return Note(name, CDDBuiltinLib::AssignLong(name, value));
  }
  bool AssignInt(const std::string& name, std::int16_t value) override {
    return Note(name, CDDBuiltinLib::AssignInt(name, value));
  }
  bool AssignVar(const std::string& destination, const std::string& source) override {
    return Note(destination, CDDBuiltinLib::AssignVar(destination, source));
  }
  std::int32_t GetDevVarValue(const std::string& prompt, const VariableIds& ids,
                              const std::string& name) override {
    const std::int32_t result = CDDBuiltinLib::GetDevVarValue(prompt, ids, name);
    Note(name, result == 0);
    return result;
  }
  Variant Func2(std::int32_t id, const Variant& par1, const Variant& par2) override {
    constexpr std::int32_t kAssignText = 3001;
    const Variant result = CDDBuiltinLib::Func2(id, par1, par2);
    if (id == kAssignText) Note(par1.ToText(), result.ToBoolean());
    return result;
  }
  std::int32_t SaveValues() override {
    const std::int32_t result = CDDBuiltinLib::SaveValues();
    watch_.OnSave(assigned_);
    assigned_.Clear();
    return result;
  }
  std::int32_t SelectFromList(const std::string& prompt, const VariableIds& ids,
                              const std::string& options) override {
    watch_.options_ = options;
    const std::int32_t choice = CDDBuiltinLib::SelectFromList(prompt, ids, options);
    watch_.options_.clear();
    return choice;
  }

 private:
  bool Note(const std::string& name, bool assigned) {
    const auto definition = ZAFHartTypes::Definition::Define(name, ObjectKind::Variable);
    if (assigned && !assigned_.Contains(definition)) assigned_.Add(definition);
    return assigned;
  }

  MethodWatch& watch_;
  bool isClosing_ = false;
  DefinitionList assigned_;  // since the last save
};

MethodWatch::MethodWatch(ZAFHartLib::CDDComponents& components)
    : components_(components), libraryClass_(components.DDBuitlinLibName()) {
  platform::Current().Classes().Register(
      kClass, [this] { return std::make_shared<WatchedBuiltins>(*this); });
  components_.SetDDBuitlinLibName(kClass);
}

MethodWatch::~MethodWatch() {
  components_.SetDDBuitlinLibName(libraryClass_);
}

bool MethodWatch::IsAborted() const {
  return isAborted_ || (first_ && first_->IsClosing());
}

bool MethodWatch::IsClosing() const {
  return isAborted_ || std::any_of(running_.begin(), running_.end(),
                                   [](const auto* method) { return method->IsClosing(); });
}

void MethodWatch::AbortAll() {
  if (IsClosing()) return;
  for (WatchedBuiltins* method : running_) method->CDDBuiltinLib::ProcessAbort();
}

void MethodWatch::OnStart(WatchedBuiltins& method) {
  running_.push_back(&method);
  if (isStarted_) return;
  isStarted_ = true;
  first_ = &method;
}

void MethodWatch::OnEnd(WatchedBuiltins& method) {
  std::erase(running_, &method);
  if (&method != first_) return;
  isAborted_ = method.IsAbort();
  lastResult_ = method.BiRc();
  first_ = nullptr;
}

void MethodWatch::OnAbort(const WatchedBuiltins& method) {
  if (&method == first_) abortedItself_ = true;
}

void MethodWatch::OnSave(const DefinitionList& assigned) {
  for (const Definition& definition : assigned) {
    if (!kept_.Contains(definition)) kept_.Add(definition);
  }
}

}  // namespace hartframe
