// Menus, edit displays, methods, elements and members.

#include "support/KernelTest.h"

namespace {

using namespace test_support;
using testing::ElementsAre;
using testing::IsEmpty;

Definition MenuDef(const char* name) {
  return Definition::Define(name, ObjectKind::Menu);
}
Definition MethodDef(const char* name) {
  return Definition::Define(name, ObjectKind::Method);
}
Definition DisplayDef(const char* name) {
  return Definition::Define(name, ObjectKind::EditDisplay);
}

class KernelMenus : public KernelTest {
 protected:
  KernelMenus() {
    auto& a = AddVariable("a");
    a.EditActions(ActionList::PreEdit).Add(MethodDef("pre"));
    a.EditActions(ActionList::PostEdit).Add(MethodDef("post"));
    AddVariable("b");
    AddVariable("c");
    for (const char* name : {"pre", "post", "run", "d_pre", "d_post"}) model->Add<Method>(name);
    auto& refresh = model->Add<RefreshRelation>("r");
    refresh.TriggerItems().Add(Var("a"));
    refresh.RefreshItems().Add(Var("b"));
    auto& items = model->Add<Menu>("menu").Items();
    items.Add(MenuItem(Var("a")));
    items.Add(MenuItem(Var("b"), true));
    items.Add(MenuItem(MenuDef("sub"), true));
    items.Add(MenuItem(MethodDef("run")));
    items.Add(MenuItem(DisplayDef("display")));
    model->Add<Menu>("sub").Items().Add(MenuItem(Var("c")));
    model->Add<WriteAsOne>("group").Items() = {{Var("c"), nullptr}};
    auto& display = model->Add<EditDisplay>("display");
    display.DisplayItems() = {{Var("b"), nullptr}};
    display.EditItems() = {{Var("a"), nullptr}, {Def("group", ObjectKind::WriteAsOne), nullptr}};
    display.PreEditActions().Add(MethodDef("d_pre"));
    display.PostEditActions().Add(MethodDef("d_post"));
    AddCommand("read", 3, Operation::Read, {}, {Ref("a"), Ref("b")});
    AddCommand("read_c", 4, Operation::Read, {}, {Ref("c")});
    AddCommand("write", 6, Operation::Write, {Ref("a")}, {Ref("a")});
    comm->memory = {{"a", std::int16_t{1}}, {"b", std::int16_t{2}}, {"c", std::int16_t{3}}};
    gui->RegisterCtrl(control);
  }
  void StartMenu() {
    Start();
    menu = kernel->StartMenu(MenuDef("menu"));
    Set("__ZAF__DATASETSTATE", std::int32_t{0});
    comm->sent.clear();
    control->shown.clear();
    model->methodRuns.clear();
  }
  void Enter(std::string_view name) { kernel->ExecuteMenu(menu, Stored(name), true); }
  void Leave(std::string_view name, const Variant& value) {
    control->editedValue = value;
    kernel->ExecuteMenu(menu, Stored(name), false);
  }
  void Execute(const Definition& item, bool entered) {
    kernel->ExecuteMenu(menu, database->ReadObject(item), entered);
  }

  std::shared_ptr<RecordingControl> control = std::make_shared<RecordingControl>();
  std::shared_ptr<Menu> menu;
};

TEST_F(KernelMenus, StartReadsTheVariablesAndAsyncStartDoesNot) {
  Start();
  menu = kernel->AsyncStartMenu(MenuDef("menu"));
  EXPECT_THAT(comm->TakeSent(), IsEmpty());
  menu = kernel->StartMenu(MenuDef("menu"));
  EXPECT_THAT(comm->TakeSent(), ElementsAre("3()"));
  for (const MenuItem& item : menu->Items()) {
    ASSERT_NE(item.DDObject(), nullptr);
    EXPECT_TRUE(item.DDObject()->ObjectDefinition().IsSameAs(item.Definition()));
  }
}

TEST_F(KernelMenus, EnteringAVariableReadsItAndRunsItsPreEditActionsOnce) {
  StartMenu();
  database->SetVariableAvailable(Var("a"), false);
  const auto field = Stored("a");
  kernel->ExecuteMenu(menu, field, true);
  EXPECT_TRUE(field->Available());
  Enter("a");
  EXPECT_THAT(model->methodRuns, ElementsAre("pre"));
  Enter("b");
  Enter("a");
  EXPECT_THAT(model->methodRuns, ElementsAre("pre", "pre"));
}

TEST_F(KernelMenus, LeavingAVariableTakesTheEditOver) {
  StartMenu();
  Leave("a", std::int16_t{50});
  EXPECT_EQ(Value("a"), 50);
  EXPECT_TRUE(Stored("a")->ToBeWritten());
  EXPECT_FALSE(Stored("b")->Available()) << "its relations ran";
  EXPECT_THAT(model->methodRuns, ElementsAre("post"));
  EXPECT_EQ(Value("__ZAF__DATASETSTATE"), 1);
  EXPECT_THAT(comm->TakeSent(), IsEmpty());
}

TEST_F(KernelMenus, LeavingWithoutAnEditOrAReadOnlyItemChangesNothing) {
  StartMenu();
  Leave("a", Variant::Null());
  Leave("b", std::int16_t{50});
  EXPECT_EQ(Value("a"), 1);
  EXPECT_EQ(Value("b"), 2);
  EXPECT_EQ(Value("__ZAF__DATASETSTATE"), 0);
  EXPECT_THAT(model->methodRuns, IsEmpty());
}

TEST_F(KernelMenus, LeavingInSynchronousModeWritesToTheDevice) {
  StartMenu();
  database->SetSynchronousMode(true);
  Leave("a", std::int16_t{50});
  EXPECT_THAT(comm->TakeSent(), ElementsAre("6(a=50)"));
  EXPECT_FALSE(Stored("a")->ToBeWritten());
}

TEST_F(KernelMenus, ARefusedEditIsRecordedAndTheDevicesValueComesBack) {
  StartMenu();
  std::string recorded;
  model->bodies["post"] = [&](IDDKernel&, const auto&, bool) {
    recorded = Stored("a")->ErrorText();
  };
  Leave("a", std::int16_t{100});
  EXPECT_EQ(recorded, "variable cannot be written (0 ... 99)");
  EXPECT_EQ(Value("a"), 1);
  EXPECT_FALSE(Stored("a")->ToBeWritten());
  EXPECT_THAT(comm->TakeSent(), ElementsAre("3()"));
}

TEST_F(KernelMenus, ReportItemsThatTheyDoNotHold) {
  StartMenu();
  Leave("c", std::int16_t{5});
  kernel->AsyncExecuteMenu(kernel->GetMenu(MenuDef("sub")), database->ReadObject(MenuDef("menu")),
                           true);
  EXPECT_THAT(TakeErrors(), ElementsAre("c 7", "menu 7"));
  EXPECT_EQ(Value("c"), 0);
}

TEST_F(KernelMenus, EnterAndLeaveSubMenusMethodsAndEditDisplays) {
  StartMenu();
  Execute(MenuDef("sub"), true);
  EXPECT_TRUE(kernel->GetMenu(MenuDef("sub"))->IsReadOnly());
  EXPECT_THAT(comm->TakeSent(), ElementsAre("4()"));
  database->SetVariableAvailable(Var("c"), false);
  kernel->AsyncExecuteMenu(menu, database->ReadObject(MenuDef("sub")), true);
  EXPECT_THAT(comm->TakeSent(), IsEmpty());
  control->hidden.clear();
  Execute(MenuDef("sub"), false);
  std::string context;
  model->bodies["run"] = [&](IDDKernel&, const std::shared_ptr<DDObject>& object, bool inAbort) {
    context = object->ObjectDefinition().Name() + (inAbort ? " aborted" : "");
  };
  Execute(MethodDef("run"), true);
  EXPECT_EQ(context, "menu");
  Execute(DisplayDef("display"), true);
  Execute(DisplayDef("display"), false);
  EXPECT_THAT(model->methodRuns, ElementsAre("run", "d_pre", "d_post"));
}

TEST_F(KernelMenus, EditDisplaysTakeEditsOfTheirEditItems) {
  Start();
  const auto display = kernel->StartEditDisplay(DisplayDef("display"));
  EXPECT_THAT(model->methodRuns, ElementsAre("d_pre"));
  EXPECT_NE(display->EditItems()[1].object, nullptr);
  const auto execute = [&](const Definition& item, bool entered) {
    kernel->ExecuteEditDisplay(display, database->ReadObject(item), entered);
  };
  execute(Var("a"), true);
  control->editedValue = std::int16_t{50};
  execute(Var("a"), false);
  EXPECT_EQ(Value("a"), 50);
  EXPECT_THAT(model->methodRuns, ElementsAre("d_pre", "pre", "post"));
  execute(Var("b"), false);
  const auto group = kernel->StartWriteAsOne(Def("group", ObjectKind::WriteAsOne));
  execute(group->Definition(), false);
  EXPECT_TRUE(group->IsEditing());
  group->SetIsComplete(true);
  execute(group->Definition(), false);
  EXPECT_FALSE(group->IsEditing());
  EXPECT_THAT(TakeErrors(), ElementsAre("b 10", "group 11"));
}

TEST_F(KernelMenus, EditDisplaysReportItemsOfTheWrongKind) {
  model->Add<EditDisplay>("bad1").DisplayItems() = {{MethodDef("run"), nullptr}};
  model->Add<EditDisplay>("bad2").EditItems() = {{MethodDef("run"), nullptr}};
  Start();
  kernel->StartEditDisplay(DisplayDef("bad1"));
  kernel->StartEditDisplay(DisplayDef("bad2"));
  EXPECT_THAT(TakeErrors(), ElementsAre("bad1 8", "bad2 9"));
}

TEST_F(KernelMenus, FindElementsAndMembers) {
  const auto collection = Def("col", ObjectKind::Collection);
  model->Add<ItemArray>("array").Elements() = {{3, {}, Var("a")}, {4, {}, collection}};
  model->Add<ItemCollection>("col").Members() = {{"B", Var("b")}, {"5", Var("c")}};
  Start();
  const auto array = kernel->GetArray(Def("array", ObjectKind::ItemArray));
  const auto element = [&](const Variant& index) {
    const auto object = kernel->ReadArrayElement(array, index);
    return object ? object->ObjectDefinition().Name() : "nothing";
  };
  EXPECT_EQ(element(std::uint8_t{3}), "a");
  EXPECT_EQ(element(4.0), "col");
  EXPECT_EQ(element(std::int16_t{5}), "nothing");
  const auto member = [&](const Variant& name) {
    const auto object = kernel->ReadCollectionMember(kernel->GetCollection(collection), name);
    return object ? object->ObjectDefinition().Name() : "nothing";
  };
  EXPECT_EQ(member("B"), "b");
  EXPECT_EQ(member(std::int16_t{5}), "c");
  EXPECT_EQ(member("A"), "nothing");
}

TEST_F(KernelMenus, RefuseMissingObjectsAndObjectsOfAnotherKind) {
  StartMenu();
  EXPECT_THROW(kernel->ExecuteMenu(nullptr, Stored("a"), true), Failure);
  EXPECT_THROW(kernel->ExecuteMenu(menu, nullptr, true), Failure);
  EXPECT_THROW(kernel->ExecuteMenu(menu, MakeObject<Method>("a"), true), Failure);
  EXPECT_THROW(kernel->ReadArrayElement(nullptr, std::int16_t{0}), Failure);
}

}  // namespace
