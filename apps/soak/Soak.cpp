#include "soak/Soak.h"

#include <numeric>

#include "components/LibraryClasses.h"
#include "gui/CDDDTMGUI.h"
#include "interfaces/ControlBase.h"
#include "interfaces/IGuiCtrl.h"
#include "interfaces/InternalNames.h"
#include "sampletemperature/SampleTemperature.h"

namespace soak {

using namespace ZAFHartTypes;

namespace {

// Takes every error for known, so that nobody is asked about it, and keeps whose write was refused.
class Handler : public IDDErrorHandler {
 public:
  explicit Handler(Names& refused) : refused_(refused) {}
  std::int32_t ObjectError(const std::shared_ptr<DDObject>& object, ItemIndex index) override {
    const bool isRefusal = index == ItemIndex::CannotWrite || index == ItemIndex::NotWritable;
    if (isRefusal) refused_.insert(object->ObjectDefinition().Name());
    return 1;
  }
  std::int32_t ResponseCodeError(const CommandStatus&,
                                 const std::shared_ptr<CommandRef>&) override {
    return 1;
  }
  std::int32_t EvaluationError(const std::string&) override { return 1; }

 private:
  Names& refused_;
};

// Answers messages at random; has live values refreshed. What it is shown as not writable for the
// moment has lost its mark for that reason.
class User : public ZAFHartTypes::ControlBase, public IGuiCont2 {
 public:
  using Answer = std::function<std::int32_t(UserMessage&)>;
  User(Answer answer, const std::vector<Definition>& live, Names& refused)
      : answer_(std::move(answer)), refused_(refused) {
    for (const Definition& definition : live) live_.Add(definition);
  }
  std::int32_t ShowUserMessage(UserMessage& message) override { return answer_(message); }
  void ShowObject(const std::shared_ptr<DDObject>& object) override {
    const auto variable = object->MakeVariable();
    if (variable && !variable->CheckHandling(AccessMode::Write)) {
      refused_.insert(variable->Definition().Name());
    }
  }
  std::uint64_t ThreadID() const override { return platform::ThreadId(); }
  std::uintptr_t hAppInstance() const override { return platform::ApplicationInstance(); }
  void CollectRefreshData(DefinitionList& dynData) override {
    for (const Definition& definition : live_) dynData.Add(definition);
  }
  void CollectObservedData(DefinitionList&) override {}

 private:
  Answer answer_;
  Names& refused_;
  DefinitionList live_;
};

bool IsInternal(const Definition& definition) {
  return definition.Name().starts_with(internal_names::kPrefix);
}

}  // namespace

Soak::Soak(std::uint64_t seed)
    : random_(seed),
      model_(std::make_shared<DeviceModel>(std::make_shared<HartLinkSim::EmulatedDevice>())),
      operations_{{"read", 400, &Soak::ReadOne},
                  {"edit", 300, &Soak::EditOne},
                  {"write changes", 60, &Soak::WriteChanges},
                  {"upload", 4, &Soak::Upload},
                  {"method", 6, &Soak::RunMethod},
                  {"new faults", 30, &Soak::ChangeFaults},
                  {"time", 100, &Soak::LetTimePass}} {
  ZAFHartLib::RegisterLibraryClasses(platform_.Classes());
  RegisterSampleTemperature(platform_.Classes());
  components_->SetDataModelClass("SampleTemperature.DataModel");
  components_->SetCommWrapperClass("ZAFHartLib.CDDTestCommWrapper");
  components_->Initialize();
  std::dynamic_pointer_cast<ILinkUser>(components_->HARTComm())->SetLink(model_);
  database_ = std::dynamic_pointer_cast<ZAFHartLib::CDDWorkerDB>(components_->DDWorkerDB());
  database_->SetTrackDependencies(true);
  std::vector<Definition> live;
  for (const auto& object : database_->NewEnum()) {
    const Definition& definition = object->ObjectDefinition();
    if (IsInternal(definition)) continue;
    if (definition.Kind() == ObjectKind::Method) methods_.push_back(definition);
    if (definition.Kind() != ObjectKind::Variable) continue;
    variables_.push_back(definition);
    if (object->MakeVariable()->Attributes().IsDynamic()) live.push_back(definition);
  }
  const auto user = std::make_shared<User>(
      [this](UserMessage& message) {
        if (message.input && Chance(0.5)) {
          const Variant value = AcceptableValue(*message.input);
          if (!value.IsEmpty()) message.input->SetValue(value);
        }
        return Chance(0.2) ? kMessageCancelled : 0;
      },
      live, refused_);
  user->SetComponentModel(components_);
  const auto gui = std::dynamic_pointer_cast<ZAFHartLib::CDDDTMGUI>(components_->DDGUI());
  gui->SetErrorHandler(std::make_shared<Handler>(refused_));
  gui->SetMessageControl(user);
  gui->RegisterCtrl(user);
}

Soak::~Soak() {
  components_->PrepareTermination();  // the error handler refers to this object
}

bool Soak::RunUntil(std::uint64_t commands) {
  while (Commands() < commands && problem_.empty()) Step();
  if (problem_.empty()) problem_ = model_->Difference();
  return problem_.empty();
}

std::string Soak::Account() const {
  std::string text = std::to_string(model_->Count()) + " values in the device";
  for (const Operation& operation : operations_) {
    text += ", " + std::to_string(operation.count) + " " + operation.name;
  }
  return text;
}

void Soak::Step() {
  const int all = std::accumulate(operations_.begin(), operations_.end(), 0,
                                  [](int sum, const Operation& o) { return sum + o.weight; });
  int drawn = static_cast<int>(Below(static_cast<std::size_t>(all)));
  auto operation = operations_.begin();
  while (drawn >= operation->weight) drawn -= (operation++)->weight;
  const Names before = Pending();
  model_->TakeAttempted();
  refused_.clear();
  mayClearMarks_ = false;
  ++operation->count;
  if (!IgnoreFailures([&] { (this->*operation->run)(); })) database_->ResetInRecursionFlags();
  CheckMarks(before);
  if (!problem_.empty()) problem_ += " (" + std::string(operation->name) + ")";
}

// --- what is done ---

void Soak::ReadOne() {
  components_->DDKernel()->ReadVariable(Any(variables_));
}

void Soak::EditOne() {
  const Definition& definition = Any(variables_);
  const auto variable = components_->DDKernel()->GetVariable(definition);
  if (!variable->Validity() || !variable->CheckHandling(AccessMode::Write)) return;
  const Variant value = AcceptableValue(*variable);
  if (value.IsEmpty()) return;
  database_->WriteValue(definition, value);
  components_->DDKernel()->ExecuteRelations(definition);
}

void Soak::WriteChanges() {
  components_->WriteChanges();
}

void Soak::Upload() {
  mayClearMarks_ = true;
  Definition menu;
  components_->Upload(menu);
}

void Soak::RunMethod() {
  mayClearMarks_ = true;
  components_->DDKernel()->ExecuteMethod(Any(methods_), nullptr);
}

void Soak::ChangeFaults() {
  constexpr const char* kFaults[] = {
      "no-reply:2",          "comm-error:136:1", "response:7:1", "response:16:1",   "busy:3",
      "device-status:128:2", "overlong:4",       "truncated:1",  "wrong-command:1", "no-reply:20"};
  if (Chance(0.3)) {
    model_->LinkFaults().Clear();
  } else {
    model_->LinkFaults().Clear();
    model_->LinkFaults().Add(kFaults[Below(std::size(kFaults))]);
  }
}

void Soak::LetTimePass() {
  for (int i = 0; i < 6; ++i) {
    clock_->Advance(platform::Milliseconds(200));
    platform_.Loop().Pump();
  }
}

// --- choosing ---

std::size_t Soak::Below(std::size_t count) {
  return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
}

bool Soak::Chance(double probability) {
  return std::uniform_real_distribution<>(0, 1)(random_) < probability;
}

const Definition& Soak::Any(const std::vector<Definition>& definitions) {
  return definitions[Below(definitions.size())];
}

Variant Soak::AcceptableValue(const Variable& variable) {
  const TypeInfo& type = variable.TypeInfo();
  for (int attempt = 0; attempt < 20; ++attempt) {
    Variant value;
    if (type.EnumItems().Count() > 0) {
      auto item = type.EnumItems().begin();
      std::advance(item, Below(type.EnumItems().Count()));
      value = item->Value();
    } else if (IsText(type.TypeCode())) {
      value = std::string(1, static_cast<char>('A' + Below(26))) + std::to_string(Below(1000));
    } else if (type.TypeCode() == TypeCode::Float || type.TypeCode() == TypeCode::Double) {
      value = static_cast<float>(Below(100000)) / 64.0F - 400.0F;
    } else {
      value = static_cast<std::int32_t>(Below(Chance(0.5) ? 4 : 250));
    }
    if (variable.CheckValue(value, true)) return value;
  }
  return {};
}

// --- what must hold ---

Names Soak::Pending() const {
  Names pending;
  for (const Definition& definition : variables_) {
    const auto object = database_->ReadObject(definition);
    if (object->MakeVariable()->ToBeWritten()) pending.insert(definition.Name());
  }
  return pending;
}

// A mark goes only with an attempt to write, an upload, a refusal, or a method that has its own
// say.
void Soak::CheckMarks(const Names& before) {
  if (mayClearMarks_) return;
  const Names after = Pending();
  const Names attempted = model_->TakeAttempted();
  for (const std::string& name : before) {
    if (after.contains(name) || attempted.contains(name) || IsRefused(name)) continue;
    problem_ = name + " is no longer to be written, and nobody tried to write it";
    return;
  }
}

bool Soak::IsRefused(const std::string& name) const {
  const auto variable =
      components_->DDKernel()->GetVariable(Definition::Define(name, ObjectKind::Variable));
  return refused_.contains(name) || !variable->CheckHandling(AccessMode::Write);
}

}  // namespace soak
