// Refresh and unit relations, write-as-one groups, and the index of relations.

#include <random>

#include "support/KernelTest.h"

namespace {

using namespace test_support;
using testing::ElementsAre;
using testing::IsEmpty;

// A database that keeps what the relations did to it.
class RelationDatabase : public ZAFHartLib::CDDWorkerDB {
 public:
  void SetRefresh(const Definition& right, const Definition& left) override {
    calls.push_back("refresh " + right.Name() + " by " + left.Name());
    CDDWorkerDB::SetRefresh(right, left);
  }
  void SetUnit(const Definition& right, const Definition& left) override {
    calls.push_back("unit " + right.Name() + " by " + left.Name());
    CDDWorkerDB::SetUnit(right, left);
  }
  std::vector<std::string> TakeCalls() { return std::exchange(calls, {}); }
  std::vector<std::string> calls;
};

struct RelationWorld : KernelWorld {
  RelationWorld() {
    database = recorded;
    components->Use(database);
    for (const char* name : {"a", "b", "c", "u", "w", "mode"}) AddVariable(name);
  }
  void AddRefresh(const char* name, std::initializer_list<const char*> triggers,
                  std::initializer_list<const char*> items) {
    auto& relation = model->Add<RefreshRelation>(name);
    for (const char* trigger : triggers) relation.TriggerItems().Add(Var(trigger));
    for (const char* item : items) relation.RefreshItems().Add(Var(item));
  }
  void AddUnit(const char* name, const char* unit, std::initializer_list<const char*> items) {
    auto& relation = model->Add<UnitRelation>(name);
    relation.SetUnitVariable(Var(unit));
    for (const char* item : items) relation.DependentItems().Add(Var(item));
  }
  // "u1" gives a its unit by u, in mode 1 by w.
  void AddUnitByMode() {
    AddUnit("u1", "u", {"a"});
    model->OnCompute<UnitRelation>("u1", [](IDDKernel& k, UnitRelation& relation) {
      const bool odd = k.GetVariable(Var("mode"))->Value() == std::int16_t{1};
      relation.SetUnitVariable(Var(odd ? "w" : "u"));
    });
  }
  std::vector<std::string> Execute(std::string_view variable) {
    recorded->calls.clear();
    kernel->ExecuteRelations(Var(variable));
    return recorded->TakeCalls();
  }
  std::shared_ptr<RelationDatabase> recorded = std::make_shared<RelationDatabase>();
};

class KernelRelations : public testing::Test, public RelationWorld {};

TEST_F(KernelRelations, RefreshAndGiveUnitsForTheirVariableInListOrder) {
  AddRefresh("r1", {"a", "b"}, {"c", "b"});
  AddUnit("u1", "u", {"a", "c"});
  AddRefresh("r2", {"u"}, {"w"});
  kernel->InitializeDB("Test.Model");
  EXPECT_THAT(recorded->TakeCalls(), ElementsAre("unit a by u", "unit c by u"));
  EXPECT_THAT(Execute("a"), ElementsAre("refresh c by a", "refresh b by a"));
  EXPECT_THAT(Execute("U"), ElementsAre("unit a by u", "unit c by u", "refresh w by U"));
  EXPECT_THAT(Execute("c"), IsEmpty()) << "a dependent item";
  EXPECT_THAT(Execute("w"), IsEmpty());
}

TEST_F(KernelRelations, AnswerToTheUnitVariableThatTheComputationLeavesBehind) {
  AddUnitByMode();
  Start();
  EXPECT_THAT(Execute("u"), ElementsAre("unit a by u"));
  Set("mode", std::int16_t{1});
  EXPECT_THAT(Execute("u"), ElementsAre("unit a by w"));
  EXPECT_THAT(Execute("u"), IsEmpty());
  EXPECT_THAT(Execute("w"), ElementsAre("unit a by w"));
  const int before = model->computed["u1"];
  Execute("w");
  Execute("w");
  EXPECT_EQ(model->computed["u1"] - before, 2) << "afresh at every execution";
}

TEST_F(KernelRelations, NoticeAChangeWhileTheyGiveTheUnit) {
  AddUnitByMode();
  bool changes = false;
  model->OnCompute<Variable>("a", [&](IDDKernel& k, Variable&) {
    k.GetVariable(Var("b"));
    if (std::exchange(changes, false)) Set("mode", std::int16_t{1});
  });
  Start();
  recorded->SetTrackDependencies(true);
  tracer->callBack->SetStackLevelFilter(0);
  Execute("u");
  Set("b", std::int16_t{1});  // a is to be computed again
  changes = true;
  Set("u", std::int16_t{5});
  Execute("u");
  EXPECT_FALSE(changes) << "computed while the unit was given";
  EXPECT_THAT(Execute("w"), ElementsAre("unit a by w"));
}

TEST_F(KernelRelations, KeepAContextThatArrivesWhileTheyAreComputed) {
  AddRefresh("r", {"a"}, {"c"});
  AddUnit("s", "u", {"b"});
  bool nested = false;
  const auto again = [&](IDDKernel& k, DDObject&) {
    if (std::exchange(nested, false)) {
      k.ExecuteRelations(Var("a"));
      k.ExecuteRelations(Var("u"));
    }
  };
  model->OnCompute<RefreshRelation>("r", again);
  model->OnCompute<UnitRelation>("s", again);
  comm->memory["u"] = std::int16_t{2};
  AddCommand("read_u", 5, Operation::Read, {}, {Ref("u")});
  Start();
  nested = true;
  EXPECT_THAT(Execute("w"), ElementsAre("unit b by u", "refresh c by a"))
      << "the inner call found r re-entered, the outer one took its context up";
  EXPECT_THAT(Execute("w"), IsEmpty()) << "and dropped it";

  Set("mode", std::int16_t{1});
  const auto unit = [&] {
    nested = true;
    recorded->calls.clear();
    kernel->ExecuteUnit(Def("s", ObjectKind::UnitRelation), Var("w"));
    return recorded->TakeCalls();
  };
  SetClean("u", std::int16_t{1});
  EXPECT_THAT(unit(), ElementsAre("refresh c by a", "unit b by u"));
  Set("mode", std::int16_t{2});
  database->SetVariableAvailable(Var("u"), false);
  EXPECT_THAT(unit(), ElementsAre("refresh c by a"));
  EXPECT_THAT(comm->TakeSent(), ElementsAre("5()")) << "the unit variable is read";
}

TEST_F(KernelRelations, SkipUnitRelationsThatHaveNoUnitVariable) {
  model->Add<UnitRelation>("u1").DependentItems().Add(Var("a"));
  EXPECT_NO_THROW(Start());
  EXPECT_THAT(Execute("u"), IsEmpty());
}

// Random relations between five variables, and random changes of these.
struct RandomWorld : RelationWorld {
  RandomWorld() {
    constexpr const char* kNames[] = {"a", "b", "c", "u", "w"};
    const auto some = [&] { return kNames[random() % std::size(kNames)]; };
    for (int i = 0; i < 12; ++i) {
      const std::string name = "r" + std::to_string(i);
      const bool isUnit = random() % 2 == 0;
      const char* first = some();
      const char* second = some();
      if (isUnit) {
        AddUnit(name.c_str(), first, {some()});
      } else {
        AddRefresh(name.c_str(), {first}, {some()});
      }
      if (random() % 2 == 0) continue;
      model->computes[name] = [=](IDDKernel& k, DDObject& object) {
        const bool odd = k.ReadVariable(Var("mode"))->Value().ToLong() % 2 != 0;
        const Definition chosen = Var(odd ? first : second);
        if (isUnit) return static_cast<UnitRelation&>(object).SetUnitVariable(chosen);
        static_cast<RefreshRelation&>(object).TriggerItems() = {chosen};
      };
    }
    AddCommand("read_mode", 5, Operation::Read, {}, {Ref("mode")});
    comm->memory["mode"] = std::int16_t{0};
    Start();
    database->SetTrackDependencies(true);
  }
  std::vector<std::string> Step() {
    constexpr const char* kNames[] = {"a", "b", "c", "u", "w"};
    const char* name = kNames[random() % std::size(kNames)];
    const auto value = static_cast<std::int16_t>(random() % 6);
    switch (random() % 5) {
      case 0:
        comm->memory["mode"] = value;
        comm->emulate = random() % 2 == 0;
        database->SetVariableAvailable(Var("mode"), false);
        return {};
      case 1:
        SetClean("mode", value);
        return {};
      case 2:
        Set(name, value);
        return {};
      default:
        return Execute(name);
    }
  }
  std::mt19937 random{7};
};

// With the index the same relations take effect in the same order as with the full walk.
TEST(KernelRelationIndex, RunsWhatTheFullWalkRuns) {
  RandomWorld indexed;
  indexed.tracer->callBack->SetStackLevelFilter(0);
  RandomWorld walked;
  walked.TraceAll();
  for (int step = 0; step < 1000; ++step) {
    const auto done = indexed.Step();
    ASSERT_EQ(done, walked.Step()) << "in step " << step;
    walked.tracer->calls.clear();
  }
  int computedIndexed = 0;
  int computedWalked = 0;
  for (int i = 0; i < 12; ++i) {
    computedIndexed += indexed.model->computed["r" + std::to_string(i)];
    computedWalked += walked.model->computed["r" + std::to_string(i)];
  }
  EXPECT_LT(computedIndexed * 2, computedWalked);
}

class KernelWriteAsOne : public KernelRelations {
 protected:
  KernelWriteAsOne() {
    auto& items = model->Add<WriteAsOne>("group");
    items.Items() = {{Var("a"), nullptr}, {Var("b"), nullptr}};
    auto& a = static_cast<Variable&>(*model->objects[0]);
    a.EditActions(ActionList::PreEdit).Add(Def("pre", ObjectKind::Method));
    a.EditActions(ActionList::PostEdit).Add(Def("post", ObjectKind::Method));
    model->Add<Method>("pre");
    model->Add<Method>("post");
    AddCommand("read", 3, Operation::Read, {}, {Ref("a"), Ref("b")});
    comm->memory = {{"a", std::int16_t{1}}, {"b", std::int16_t{2}}};
    gui->RegisterCtrl(control);
  }
  void Leave(const char* name, const Variant& value) {
    control->editedValue = value;
    variable = Stored(name);
    kernel->ExecuteWriteAsOne(group, variable, false);
  }
  std::shared_ptr<RecordingControl> control = std::make_shared<RecordingControl>();
  std::shared_ptr<WriteAsOne> group;
  std::shared_ptr<Variable> variable;
};

TEST_F(KernelWriteAsOne, IsCompleteWhenEveryMemberHasBeenChecked) {
  Start();
  group = kernel->StartWriteAsOne(Def("group", ObjectKind::WriteAsOne));
  EXPECT_TRUE(group->IsEditing());
  EXPECT_FALSE(group->IsComplete());
  EXPECT_EQ(group->Items()[1].variable->Value(), std::int16_t{2}) << "read";

  variable = Stored("a");
  kernel->ExecuteWriteAsOne(group, variable, true);
  kernel->ExecuteWriteAsOne(group, variable, true);
  EXPECT_THAT(model->methodRuns, ElementsAre("pre")) << "once per edit";
  EXPECT_FALSE(group->IsComplete());
  Leave("a", std::int16_t{10});
  EXPECT_EQ(Value("a"), 10);
  EXPECT_THAT(model->methodRuns, ElementsAre("pre", "post"));
  EXPECT_FALSE(group->IsComplete());
  Leave("b", Variant::Null());
  EXPECT_FALSE(group->IsComplete()) << "no value, no mark";
  Leave("b", std::int16_t{20});
  EXPECT_TRUE(group->IsComplete());
}

TEST_F(KernelWriteAsOne, RefusesOtherVariablesAndValuesOutOfRange) {
  Start();
  group = kernel->StartWriteAsOne(Def("group", ObjectKind::WriteAsOne));
  Leave("c", std::int16_t{1});
  EXPECT_THAT(TakeErrors(), ElementsAre("c 13"));
  Leave("a", std::int16_t{100});
  EXPECT_EQ(Value("a"), 1);
  EXPECT_EQ(Stored("a")->ErrorIndex(), 5);
  EXPECT_EQ(Stored("a")->ErrorText(), "variable cannot be written (0 ... 99)");
  EXPECT_FALSE(Stored("a")->IsChecked());
  EXPECT_THAT(model->methodRuns, IsEmpty()) << "no post-edit actions";
}

}  // namespace
