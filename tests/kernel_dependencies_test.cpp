// Dependency tracking: what is noted while attributes are computed, and what makes them stale.

#include "support/KernelTest.h"

namespace {

using namespace test_support;

class KernelDependencies : public KernelTest {
 protected:
  KernelDependencies() {
    for (const char* name : {"x", "y", "z", "other"}) AddVariable(name);
  }
  void StartTracking() {
    Start();
    database->SetTrackDependencies(true);
    tracer->callBack->SetStackLevelFilter(0);
  }
  // How often asking for x computes it.
  int Computed(const char* name = "x") {
    const int before = model->computed[name];
    kernel->GetVariable(Var(name));
    return model->computed[name] - before;
  }
};

TEST_F(KernelDependencies, OnlyWhatWasReadMakesAttributesStale) {
  model->OnCompute<Variable>("x", [&](IDDKernel& k, Variable& x) {
    x.SetLabel(k.GetVariable(Var("y"))->Value().ToText());
    if (k.GetVariableValidity(Var("z"))) x.SetHelp("valid");
    components->DDWorkerDB()->ReadObject(Var("other"));  // a data model may look there itself
  });
  AddVariable("unread");
  StartTracking();
  EXPECT_EQ(Computed(), 1);
  EXPECT_EQ(Computed(), 0);
  for (const char* name : {"y", "z", "other"}) {
    Set(name, std::int16_t{5});
    EXPECT_EQ(Computed(), 1) << name;
    EXPECT_EQ(Computed(), 0) << name;
  }
  Set("unread", std::int16_t{5});
  EXPECT_EQ(Computed(), 0);
}

TEST_F(KernelDependencies, AVariableMayDependOnItsOwnValue) {
  model->OnCompute<Variable>("x", [](IDDKernel&, Variable& x) { x.SetLabel(x.Value().ToText()); });
  model->OnCompute<Variable>("z", [this](IDDKernel&, Variable& z) {
    z.SetLabel(Stored("z")->Value().ToText());  // a data model may look itself up
  });
  StartTracking();
  for (const char* name : {"x", "z"}) {
    Computed(name);
    Set(name, std::int16_t{7});
    EXPECT_EQ(Computed(name), 1);
    EXPECT_EQ(kernel->GetVariable(Var(name))->Label(), "7");
    EXPECT_EQ(Computed(name), 0);
  }
  Computed("y");
  Set("y", std::int16_t{7});
  EXPECT_EQ(Computed("y"), 0) << "does not ask for its own value";
}

TEST_F(KernelDependencies, PassOnThroughVariablesArraysAndCollections) {
  model->OnCompute<Variable>("x", [](IDDKernel& k, Variable& x) {
    x.SetLabel(k.GetVariable(Var("y"))->Label());
    k.GetArray(Def("array", ObjectKind::ItemArray));
  });
  model->OnCompute<Variable>("y", [](IDDKernel& k, Variable& y) {
    y.SetLabel(k.GetVariable(Var("z"))->Value().ToText());
  });
  model->Add<ItemArray>("array");
  model->OnCompute<ItemArray>("array",
                              [](IDDKernel& k, ItemArray&) { k.GetVariable(Var("other")); });
  StartTracking();
  Computed();
  EXPECT_EQ(Computed(), 0);
  Set("z", std::int16_t{7});
  EXPECT_EQ(Computed(), 1);
  EXPECT_EQ(kernel->GetVariable(Var("x"))->Label(), "7");
  Set("other", std::int16_t{7});
  EXPECT_EQ(Computed(), 1);
}

TEST_F(KernelDependencies, AValueReadFromTheDeviceCountsWhileItIsNotAvailable) {
  AddCommand("read", 3, Operation::Read, {}, {Ref("y")});
  comm->memory["y"] = std::int16_t{1};
  model->OnCompute<Variable>("x", [](IDDKernel& k, Variable& x) {
    x.SetLabel(k.ReadVariable(Var("y"))->Value().ToText());
  });
  StartTracking();
  Computed();
  EXPECT_EQ(Computed(), 0);
  database->SetVariableAvailable(Var("y"), false);
  comm->memory["y"] = std::int16_t{2};
  EXPECT_EQ(Computed(), 1);
  EXPECT_EQ(kernel->GetVariable(Var("x"))->Label(), "2");
}

TEST_F(KernelDependencies, RecomputingReplacesTheList) {
  model->OnCompute<Variable>("x", [](IDDKernel& k, Variable&) {
    if (k.GetVariable(Var("y"))->Value() == std::int16_t{0}) k.GetVariable(Var("z"));
  });
  StartTracking();
  Computed();
  Set("y", std::int16_t{1});
  EXPECT_EQ(Computed(), 1);
  Set("z", std::int16_t{1});
  EXPECT_EQ(Computed(), 0) << "not read the last time";
}

TEST_F(KernelDependencies, AChangeDuringTheComputationIsNotMissed) {
  bool changes = true;
  model->OnCompute<Variable>("x", [&](IDDKernel& k, Variable&) {
    k.GetVariable(Var("y"));
    if (std::exchange(changes, false)) Set("y", std::int16_t{9});
  });
  StartTracking();
  Computed();
  EXPECT_EQ(Computed(), 1) << "computed from a value that is gone";
  EXPECT_EQ(Computed(), 0);
}

TEST_F(KernelDependencies, TheUnitVariableAndTheMenusRestrictionCountAsRead) {
  auto& relation = model->Add<UnitRelation>("r");
  relation.SetUnitVariable(Var("y"));
  relation.DependentItems().Add(Var("x"));
  model->Add<Menu>("menu").Items().Add(MenuItem(Var("x")));
  const auto menu = Def("menu", ObjectKind::Menu);
  StartTracking();
  SetClean("y", std::int16_t{1});
  Computed();
  EXPECT_EQ(Computed(), 0);
  SetClean("y", std::int16_t{2});
  EXPECT_EQ(kernel->GetVariable(Var("x"))->UnitText(), "2");
  kernel->GetMenu(menu);
  EXPECT_TRUE(database->IsDependent(menu, Var("__ZAF__DATASETLOCKSTATE")));
  Set("__ZAF__FDTUserLevel", std::int16_t{0});
  EXPECT_TRUE(kernel->GetMenu(menu)->Items().Item(1).IsReadOnly());
  Set("__ZAF__FDTUserLevel", std::int16_t{1});
  EXPECT_FALSE(kernel->GetMenu(menu)->Items().Item(1).IsReadOnly());
}

TEST_F(KernelDependencies, WhatAnOperationReadsOnItsWayIsNotNoted) {
  AddCommand("read", 3, Operation::Read, {Ref("z").SetIsInfo()}, {Ref("y")});
  comm->memory["y"] = std::int16_t{1};
  model->OnCompute<Variable>("x", [](IDDKernel& k, Variable&) { k.ReadVariable(Var("y")); });
  StartTracking();
  Computed();
  EXPECT_FALSE(database->IsDependent(Var("x"), Var("z")));
  bool nested = false;
  comm->whileWaiting = [&] {
    nested = true;
    kernel->GetVariable(Var("other"));
  };
  database->SetVariableAvailable(Var("y"), false);
  Computed();
  EXPECT_TRUE(nested);
  EXPECT_FALSE(database->IsDependent(Var("x"), Var("other"))) << "a timer's business in a wait";
}

}  // namespace
