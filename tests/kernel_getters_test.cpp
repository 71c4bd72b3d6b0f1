// The kernel's core: building the database, typed getters, cycles, access restrictions.

#include "support/KernelTest.h"
#include "trace/CEmptyErrorHandler.h"

namespace {

using namespace test_support;
using namespace ZAFHartLib;
using testing::ElementsAre;

using KernelGetters = KernelTest;

TEST_F(KernelGetters, BuildTheDatabaseAndLeaveVariablesUnavailable) {
  AddVariable("a").SetDefaultValue(std::int16_t{1});
  AddCommand("read", 1, Operation::Read, {}, {Ref("a")});
  auto before = std::make_shared<RecordingHandler>();
  gui->SetErrorHandler(before);
  kernel->InitializeDB("Test.Model");
  EXPECT_EQ(gui->ErrorHandler(), before);
  EXPECT_FALSE(Stored("a")->Available());
  auto commands = kernel->Commands();
  EXPECT_EQ(commands.Count(), 1U);
  commands.Clear();
  EXPECT_EQ(kernel->Commands().Count(), 1U);
  EXPECT_THROW(kernel->InitializeDB("Test.Missing"), Failure);
}

TEST_F(KernelGetters, RunTheUnitTableMethodOnceTheDatabaseIsBuilt) {
  model->Add<Method>("__ZAF__init_unit_table");
  kernel->InitializeDB("Test.Model");
  EXPECT_THAT(model->methodRuns, ElementsAre("__ZAF__init_unit_table"));
}

TEST_F(KernelGetters, ComputeOnceWhileNothingChangesAndStartFromTheStaticAttributes) {
  AddVariable("a").EditActions(ActionList::PreRead).Add(Def("static", ObjectKind::Method));
  AddVariable("b");
  model->OnCompute<Variable>("a", [](IDDKernel&, Variable& a) {
    a.SetLabel("A");
    a.EditActions(ActionList::PreRead).Add(Def("computed", ObjectKind::Method));
  });
  Start();
  for (int i = 0; i < 2; ++i) {
    const auto a = kernel->GetVariable(Var("A"));
    EXPECT_EQ(a->Label(), "A");
    EXPECT_EQ(a->PreReadActions().Count(), 2U);
    EXPECT_EQ(model->computed["a"], i + 1);
    kernel->GetVariable(Var("a"));
    EXPECT_EQ(model->computed["a"], i + 1) << "attributes are current";
    Set("b", std::int16_t{1});
  }
  EXPECT_TRUE(
      kernel->CalculateVariableType(Var("a"))->HasSameState(*kernel->GetVariable(Var("a"))));
}

TEST_F(KernelGetters, NameTheItemAndTheOperationWhenItIsUnknownOrOfAnotherKind) {
  AddVariable("a");
  Start();
  const auto failure = [](auto get) {
    const Failure raised = FailureOf(get);
    EXPECT_EQ(raised.Number(), ErrorNumber::ObjectNotSet);
    return raised.Source() + ": " + raised.Description();
  };
  EXPECT_EQ(failure([&] { kernel->GetVariable(Var("nope")); }),
            "IDDKernel_GetVariable: The data set has no VARIABLE \"nope\".");
  EXPECT_EQ(failure([&] { kernel->GetMenu(Def("a", ObjectKind::Menu)); }),
            "IDDKernel_GetMenu: The data set has no MENU \"a\".");
  model->OnCompute<Variable>("a", [](IDDKernel& k, Variable&) { k.ReadVariable(Var("gone")); });
  EXPECT_EQ(
      failure([&] { kernel->GetVariable(Var("a")); }),
      "IDDKernel_GetVariable: The data set has no VARIABLE \"gone\", which the computation of "
      "\"a\" asks for.");
}

TEST_F(KernelGetters, TolerateOneReEntryOfAVariableAndReportTheNext) {
  AddVariable("a");
  model->OnCompute<Variable>("a", [](IDDKernel& k, Variable& a) {
    a.SetLabel(a.Label() + "x");
    k.GetVariable(Var("a"));
  });
  Start();
  EXPECT_EQ(kernel->GetVariable(Var("a"))->Label(), "x");
  EXPECT_EQ(model->computed["a"], 2);
  EXPECT_THAT(TakeErrors(), ElementsAre("a -1"));
  EXPECT_FALSE(Stored("a")->InRecursion());
  EXPECT_EQ(kernel->ReadVariable(Var("a"))->ErrorIndex(), -1) << "reads are not held back any more";
}

TEST_F(KernelGetters, GoOnAfterFailuresInsideAToleratedCycle) {
  AddVariable("a");
  int calls = 0;
  model->OnCompute<Variable>("a", [&](IDDKernel& k, Variable& a) {
    a.SetLabel("label");
    if (++calls == 2) throw Failure(ErrorNumber::Unexpected, "model");
    k.GetVariable(Var("a"));
  });
  Start();
  EXPECT_EQ(kernel->GetVariable(Var("a"))->Label(), "label");
}

TEST_F(KernelGetters, PutRecursionMarksBackWhenADataModelFails) {
  AddVariable("a");
  AddCommand("c", 1, Operation::Read, {}, {});
  const auto fail = [](IDDKernel&, DDObject&) {
    throw Failure(ErrorNumber::TypeMismatch, "model", "broken");
  };
  model->OnCompute<Variable>("a", fail);
  model->OnCompute<Command>("c", fail);
  Start();
  EXPECT_THROW(kernel->GetVariable(Var("a")), Failure);
  EXPECT_FALSE(database->IsVariableInRecursion(Var("a")));
  EXPECT_THROW(kernel->GetCommand(Cmd("c")), Failure);
  EXPECT_FALSE(database->IsCommandInRecursion(Cmd("c")));
  EXPECT_EQ(kernel->GetSafeCommand(Cmd("c")), nullptr);
  EXPECT_EQ(gui->ErrorHandler(), handler);
}

TEST_F(KernelGetters, EndAMenuThatIsMadeOfItself) {
  model->Add<Menu>("m");
  model->OnCompute<Menu>("m", [](IDDKernel& k, Menu&) { k.GetMenu(Def("m", ObjectKind::Menu)); });
  Start();
  EXPECT_THROW(kernel->GetMenu(Def("m", ObjectKind::Menu)), Failure);
}

TEST_F(KernelGetters, GiveAVariableItsUnitAndTheUnitsAvailability) {
  AddVariable("pv");
  auto& unit = AddVariable("unit");
  TypeInfo type;
  type.SetTypeCode(TypeCode::Enumerated);
  type.SetSize(1);
  type.SetEnumItems({{1, "mbar"}, {2, "bar"}});
  unit.SetTypeInfo(type);
  auto& relation = model->Add<UnitRelation>("r");
  relation.SetUnitVariable(Var("unit"));
  relation.DependentItems().Add(Var("pv"));
  Start();
  SetClean("unit", std::int16_t{2});
  SetClean("pv", std::int16_t{7});
  EXPECT_EQ(kernel->GetVariable(Var("pv"))->UnitText(), "bar");
  EXPECT_TRUE(kernel->GetVariable(Var("pv"))->Available());
  database->SetVariableAvailable(Var("unit"), false);
  Set("__ZAF__OnlineMode", std::int16_t{1});  // all attributes are stale
  EXPECT_FALSE(kernel->GetVariable(Var("pv"))->Available());
  EXPECT_EQ(kernel->GetVariable(Var("pv"))->UnitText(), "bar");
}

TEST_F(KernelGetters, EndUnitsThatNameEachOther) {
  AddVariable("a").SetUnitSource(Var("b"));
  AddVariable("b").SetUnitSource(Var("a"));
  Start();
  EXPECT_NO_THROW(kernel->GetVariable(Var("a")));
}

TEST_F(KernelGetters, HoldACycleOfCommandsBackAndPassTheMarkOn) {
  AddCommand("c", 1, Operation::Read, {}, {});
  model->OnCompute<Command>("c", [](IDDKernel& k, Command&) { k.GetCommand(Cmd("c")); });
  Start();
  auto outer = std::make_shared<CEmptyErrorHandler>();
  gui->SetErrorHandler(outer);
  EXPECT_EQ(kernel->GetSafeCommand(Cmd("c")), nullptr);
  EXPECT_TRUE(outer->CriticalErrors());
  gui->SetErrorHandler(handler);
  Set("__ZAF__OnlineMode", std::int16_t{1});  // all attributes are stale
  kernel->GetCommand(Cmd("c"));
  EXPECT_THAT(TakeErrors(), ElementsAre("c -2"));
}

TEST_F(KernelGetters, TreatAnInfoItemOfTheRequestAsInfoInTheReply) {
  AddVariable("i");
  AddVariable("v");
  AddCommand("c", 1, Operation::Read, {Ref("i").SetIsInfo()}, {Ref("i"), Ref("v")});
  Start();
  const auto& reply = kernel->GetCommand(Cmd("c"))->Transactions().Item(0)->Reply();
  EXPECT_TRUE(reply.Item(3).IsInfo());
  EXPECT_FALSE(reply.Item(4).IsInfo());
}

TEST_F(KernelGetters, RestrictMenusWhileLockedAndForObserversAndLiftItAgain) {
  AddVariable("a");
  auto& menu = model->Add<Menu>("m");
  menu.Items().Add(MenuItem(Var("a")));
  menu.Items().Add(MenuItem(Var("a"), true));
  Start();
  const auto readOnly = [&] {
    const auto m = kernel->GetMenu(Def("m", ObjectKind::Menu));
    return std::vector<bool>{m->Items().Item(1).IsReadOnly(), m->Items().Item(2).IsReadOnly()};
  };
  EXPECT_THAT(readOnly(), ElementsAre(false, true));
  for (const std::int32_t lock : {1, 2}) {
    Set("__ZAF__DATASETLOCKSTATE", lock);
    EXPECT_THAT(readOnly(), ElementsAre(true, true));
  }
  Set("__ZAF__DATASETLOCKSTATE", std::int16_t{0});
  EXPECT_THAT(readOnly(), ElementsAre(false, true));
  Set("__ZAF__FDTUserLevel", std::int16_t{0});
  EXPECT_THAT(readOnly(), ElementsAre(true, true));
  Set("__ZAF__FDTUserLevel", std::int16_t{2});
  EXPECT_THAT(readOnly(), ElementsAre(false, true));
}

}  // namespace
