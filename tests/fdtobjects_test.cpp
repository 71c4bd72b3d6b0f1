#include <gtest/gtest.h>

#include <algorithm>

#include "fdtobjects/CFDTDataModel.h"
#include "interfaces/InternalNames.h"
#include "support/ComputingKernel.h"
#include "support/RecordingControl.h"
#include "support/TestPlatform.h"
#include "workerdb/CDDWorkerDB.h"

namespace ZAFHartLib {
namespace {

using namespace ZAFHartTypes;  // NOLINT(google-build-using-namespace)
using namespace test_support;  // NOLINT(google-build-using-namespace)
namespace names = internal_names;

Definition Var(std::string_view name) {
  return Definition::Define(name, ObjectKind::Variable);
}
DataItem Ref(std::string_view name) {
  return DataItem::Reference(Var(name));
}

class Information : public StubInformation {
 public:
  std::string StandardName(ZAFHartTypes::StandardName index) override {
    return index == ZAFHartTypes::StandardName::OnlineParameters ? "online_menu" : "";
  }
};

// One DTM instance whose device's objects the test adds before Init().
struct Instance {
  Instance() {
    components->kernel = kernel;
    components->gui = gui;
    components->information = std::make_shared<Information>();
    kernel->SetComponentModel(components);
    kernel->SetDataModel(model);
    components->Use(database);
  }
  void Init() {
    DefinitionList commands;
    DefinitionList relations;
    model->InitVariables(*components, commands, relations);
    model->InitCommands(*components, commands, relations);
    model->InitMenus(*components, commands, relations);
    model->InitMethods(*components, commands, relations);
    EXPECT_TRUE(commands.IsEmpty());
  }
  void AddDeviceVariable(std::string_view name, bool readable = true, bool writable = true) {
    auto variable = MakeObject<Variable>(name);
    variable->SetHandling(readable, writable);
    database->AddObject(variable);
  }
  void AddMenu(std::string_view name, std::initializer_list<Definition> items) {
    auto menu = MakeObject<Menu>(name);
    for (const Definition& item : items) menu->Items().Add(MenuItem(item));
    database->AddObject(menu);
  }
  void AddCommand(std::string_view name, std::initializer_list<DataItem> reply) {
    auto command = MakeObject<Command>(name);
    command->Transactions().Add(0).Reply() = reply;
    command->Transactions().Add(1).Reply() = {Ref("unused")};
    database->AddObject(command);
  }
  std::shared_ptr<Variable> Stored(std::string_view name) {
    return database->ReadObject(Var(name))->MakeVariable();
  }
  std::shared_ptr<Variable> Compute(std::string_view name) {
    return kernel->GetVariable(Var(name));
  }
  // What the data model makes of the variable, before the database takes it over.
  std::shared_ptr<Variable> ComputeOnly(std::string_view name) {
    return model->ComputeVarType(*kernel, *components, std::string(name), Stored(name));
  }
  // Items as "name", "name R" when read-only, "name -" when they do not show their value.
  std::vector<std::string> MenuItemsOf(std::string_view name) {
    std::vector<std::string> items;
    for (const MenuItem& item :
         kernel->GetMenu(Definition::Define(name, ObjectKind::Menu))->Items()) {
      items.push_back(item.Definition().Name() + (item.IsReadOnly() ? " R" : "") +
                      (item.Qualifiers().Qualifier(MenuQualifier::DisplayValue) ? "" : " -"));
    }
    return items;
  }

  std::shared_ptr<StubComponents> components = StubComponents::Create();
  std::shared_ptr<CFDTDataModel> model = std::make_shared<CFDTDataModel>();
  std::shared_ptr<ComputingKernel> kernel = std::make_shared<ComputingKernel>();
  std::shared_ptr<RecordingControl> gui = std::make_shared<RecordingControl>();
  std::shared_ptr<CDDWorkerDB> database = std::make_shared<CDDWorkerDB>();
};

struct InternalObjectsTest : testing::Test, TestPlatform, Instance {};

using Names = std::vector<std::string>;

TEST_F(InternalObjectsTest, ComputesTheCatalogue) {
  Init();
  struct Case {
    std::string_view name;
    TypeCode type;
    std::size_t enumCount;
    Variant defaultValue;
    bool available;
  };
  const Case cases[] = {{"__ZAF__DynAvailTime", TypeCode::Enumerated, 6, std::int16_t{10}, false},
                        {"__ZAF__ProgressSubTitle", TypeCode::NotComputed, 0, {}, false},
                        {"__ZAF__DTMOnlineState", TypeCode::Enumerated, 9, std::int16_t{0}, true},
                        {"__ZAF__InterfaceVersion", TypeCode::Enumerated, 3, 252, true},
                        {"__ZAF__FDTUserName", TypeCode::Ascii, 0, "", true}};
  for (const Case& entry : cases) {
    const auto variable = ComputeOnly(entry.name);
    EXPECT_EQ(variable->TypeInfo().TypeCode(), entry.type) << entry.name;
    EXPECT_EQ(variable->TypeInfo().EnumItems().Count(), entry.enumCount) << entry.name;
    EXPECT_EQ(variable->DefaultValue().Type(), entry.defaultValue.Type()) << entry.name;
    EXPECT_EQ(variable->DefaultValue(), entry.defaultValue) << entry.name;
    EXPECT_EQ(variable->Available(), entry.available) << entry.name;
    EXPECT_TRUE(!entry.available || variable->Value() == entry.defaultValue) << entry.name;
  }
  EXPECT_EQ(database->ListOfKind(ObjectKind::Variable).Count(), 30U);
  for (const auto& [key, definition] : database->ListOfKind(ObjectKind::Variable)) {
    EXPECT_TRUE(Compute(definition.Name())->Attributes().IsLibraryHeld());
    EXPECT_FALSE(Compute(definition.Name())->Label().empty()) << definition.Name();
  }
  const auto retries = Compute("__ZAF__RETRYNO");
  EXPECT_FALSE(retries->CheckValue(4, true));
  EXPECT_TRUE(retries->CheckValue(100, true));
}

TEST_F(InternalObjectsTest, ComputingAgainKeepsValuesAndDefaultsSetSince) {
  Init();
  EXPECT_EQ(Compute(names::kFDTUserLevel)->Value(), Variant(0));
  database->WriteValue(Var(names::kFDTUserLevel), std::int16_t{3});
  database->SetVariableAvailable({}, false);
  const auto computed = Compute(names::kFDTUserLevel);
  EXPECT_EQ(computed->Value(), Variant(3));
  EXPECT_TRUE(computed->Available());
  EXPECT_FALSE(computed->ToBeWritten());

  auto retries = Compute("__ZAF__RETRYNO");
  retries->SetDefaultValue(20);
  database->WriteObject(retries);
  EXPECT_EQ(Compute("__ZAF__RETRYNO")->DefaultValue(), Variant(20));
}

TEST_F(InternalObjectsTest, InstancesShareTheCatalogue) {
  Instance other;
  Init();
  other.Init();
  const auto one = Compute(names::kBusCategory);
  const auto two = other.Compute(names::kBusCategory);
  EXPECT_EQ(&one->Attributes(), &two->Attributes());
  one->SetLabel("changed");
  EXPECT_EQ(two->Label(), "Bus Type");
  EXPECT_EQ(&one->TypeInfo().EnumItems(), &two->TypeInfo().EnumItems());
}

TEST_F(InternalObjectsTest, RefreshOnConnectNeedsTheFdtInterface) {
  Init();
  for (const auto& [version, valid] : {std::pair{252, false}, {0, false}, {1, true}}) {
    database->WriteValue(Var(names::kInterfaceVersion), version);
    EXPECT_EQ(model->ComputeVarValidity(*kernel, *components, std::string(names::kRefreshOnConnect),
                                        Stored(names::kRefreshOnConnect)),
              valid)
        << version;
  }
}

TEST_F(InternalObjectsTest, LeavesItemsOfTheDeviceAlone) {
  auto own = MakeObject<Variable>(names::kOnlineMode);
  own->SetLabel("Device's own");
  database->AddObject(own);
  AddMenu("__zaf__connection_menu", {Var("own")});
  auto method = MakeObject<Method>(names::kRefreshDataSet);
  method->SetIsValid(false);
  database->AddObject(method);
  Init();

  EXPECT_EQ(Compute(names::kOnlineMode)->Label(), "Device's own");
  EXPECT_FALSE(Stored(names::kOnlineMode)->Attributes().IsLibraryHeld());
  EXPECT_EQ(MenuItemsOf("__zaf__connection_menu"), Names{"own -"});
  EXPECT_EQ(MenuItemsOf(names::kConnectionMenu), Names{"own -"});

  // The method is stored once, and is the library's all the same.
  const std::string name(names::kRefreshDataSet);
  EXPECT_TRUE(model->ComputeMethodValidity(*kernel, *components, name, method));
  model->ComputeMethodAttrs(*kernel, *components, name, method);
  EXPECT_EQ(method->Label(), "Refresh Dataset");
  EXPECT_EQ(method->Help(), "Call refresh of the online dataset");
}

TEST_F(InternalObjectsTest, LaysOutCommand38OnceHoweverOftenItIsComputed) {
  Init();
  const auto definition =
      Definition::Define("reset_configuration_change_flag", ObjectKind::Command);
  kernel->GetCommand(definition);
  const auto command = kernel->GetCommand(definition);
  EXPECT_EQ(command->Number(), 38);
  ASSERT_EQ(command->Transactions().Count(), 1U);
  const auto& transaction = *command->Transactions().Item(0);
  EXPECT_EQ(transaction.Request().Describe(0) + transaction.Reply().Describe(0),
            "()(response_code, device_status)");
}

TEST_F(InternalObjectsTest, ConnectionMenuKeepsItsFirstTwoItems) {
  Init();
  const Names refresh = {"__ZAF__DynAvailTime", "__ZAF__StaticAvailTime",
                         "__ZAF__RefreshOnConnect"};
  EXPECT_EQ(MenuItemsOf(names::kConnectionMenu), refresh);
  const auto menu = kernel->GetMenu(Definition::Define(names::kConnectionMenu, ObjectKind::Menu));
  MenuItems items;
  for (const char* name : {"tag", "polling_address", "__ZAF__DynAvailTime"}) {
    items.Add(MenuItem(Var(name)));
  }
  menu->SetItems(items);
  const Names all = {"tag -", "polling_address -", refresh[0], refresh[1], refresh[2]};
  EXPECT_EQ(MenuItemsOf(names::kConnectionMenu), all);
  EXPECT_EQ(MenuItemsOf(names::kConnectionMenu), all) << "computed again";
}

TEST_F(InternalObjectsTest, UploadMenusListTheDevicesVariables) {
  AddDeviceVariable("plain");
  AddDeviceVariable("constant", true, false);
  AddDeviceVariable("secret", false, true);
  auto live = MakeObject<Variable>("live");
  live->EditAttributes().SetFlag(VariableFlag::Dynamic, true);
  database->AddObject(live);

  auto group = MakeObject<WriteAsOne>("group");
  group->Items() = {{Var("constant"), nullptr}, {Var("secret"), nullptr}};
  database->AddObject(group);
  auto display = MakeObject<EditDisplay>("display");
  display->DisplayItems() = {{Var("live"), nullptr}};
  display->EditItems() = {{group->ObjectDefinition(), nullptr}};
  database->AddObject(display);
  const auto onlineMenu = Definition::Define("online_menu", ObjectKind::Menu);
  AddMenu("upload_variables", {Var("plain")});
  AddMenu("online_menu", {display->ObjectDefinition(), onlineMenu, Var("plain"), Var("unknown"),
                          Var(names::kOnlineMode)});
  AddCommand("read_dynamic_variables_and_pv_current",
             {Ref("response_code"), Ref("device_status"), DataItem::Constant(7), Ref("live")});
  Init();

  EXPECT_EQ(MenuItemsOf(names::kUploadVariables), (Names{"plain", "constant R"}));
  EXPECT_EQ(MenuItemsOf(names::kUploadVariablesExt), (Names{"plain -", "live R", "constant R"}));
  EXPECT_EQ(MenuItemsOf(names::kUploadVariablesDyn), Names{"live R"});
}

TEST_F(InternalObjectsTest, StatusMenusFollowTheDevicesCommands) {
  Init();
  for (const auto name :
       {names::kProcessVariables, names::kTransmitterStatus, names::kStatusDisplay}) {
    EXPECT_EQ(MenuItemsOf(name), Names{}) << name;
  }
  const auto status = Ref("device_status");
  AddCommand("read_unique_identifier", {DataItem::Constant(0), status, status});
  AddCommand("read_additional_transmitter_status",
             {DataItem::Constant(0), status, Ref("device_specific_status")});
  database->AddObject(MakeObject<Method>(names::kResetCcfMethod));
  EXPECT_EQ(MenuItemsOf(names::kTransmitterStatus),
            (Names{"device_status R", "device_specific_status R"}));
  EXPECT_EQ(MenuItemsOf(names::kStatusDisplay),
            (Names{"device_status R", "__ZAF__ResetCCFMethod", "__ZAF__transmitter_status"}));
}

TEST_F(InternalObjectsTest, RefreshesTheOnlineDataSetOnly) {
  AddDeviceVariable("value");
  Init();
  database->WriteValue(Var("value"), 5);
  const auto run = [&](StorageMode mode, std::string_view method) {
    database->SetStorageMode(mode);
    gui->shown.clear();
    model->ExecuteMethodBody(*kernel, *components, std::string(method), nullptr, false);
    return Stored("value");
  };
  for (const StorageMode mode : {StorageMode::NotPaired, StorageMode::Offline}) {
    EXPECT_TRUE(run(mode, names::kRefreshDataSet)->ToBeWritten());
  }
  EXPECT_TRUE(run(StorageMode::Online, "other_method")->Available());
  EXPECT_EQ(gui->editingStops, 0);

  const auto variable = run(StorageMode::Online, names::kRefreshDataSet);
  EXPECT_FALSE(variable->Available());
  EXPECT_FALSE(variable->ToBeWritten());
  EXPECT_EQ(variable->Value(), Variant(5));
  EXPECT_EQ(gui->shown, Names{"value"});
  EXPECT_EQ(gui->editingStops, 1);
  EXPECT_EQ(std::ranges::count(gui->calls, "RefreshView"), 1);
}

}  // namespace
}  // namespace ZAFHartLib
