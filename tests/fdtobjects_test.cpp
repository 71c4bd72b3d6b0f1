#include <gtest/gtest.h>

#include "fdtobjects/CFDTDataModel.h"
#include "fdtobjects/StateSetters.h"
#include "interfaces/InternalNames.h"
#include "platform/Platform.h"
#include "support/StubComponents.h"
#include "text/LangText.h"
#include "workerdb/CDDWorkerDB.h"

namespace ZAFHartLib {
namespace {

using namespace ZAFHartTypes;  // NOLINT(google-build-using-namespace)
namespace names = internal_names;

Definition VariableNamed(std::string_view name) {
  return Definition::Define(name, ObjectKind::Variable);
}

// Getters that compute the attributes with the internal data model, as the kernel does last.
class ComputingKernel : public test_support::StubKernel {
 public:
  explicit ComputingKernel(CFDTDataModel& model) : model_(model) {}
  std::shared_ptr<Variable> GetVariable(const Definition& definition) override {
    auto variable = Read(definition)->MakeVariable();
    variable->BeginAttributeComputation();
    variable = model_.ComputeVarAttrs(*this, *components.lock(), definition.Name(), variable);
    components.lock()->DDWorkerDB()->WriteObject(variable);
    return variable;
  }
  std::shared_ptr<Variable> ReadVariable(const Definition& definition) override {
    return GetVariable(definition);
  }
  std::shared_ptr<Command> GetCommand(const Definition& definition) override {
    return model_.ComputeCmdAttrs(*this, *components.lock(), definition.Name(),
                                  Read(definition)->MakeCommand());
  }
  std::shared_ptr<Menu> GetMenu(const Definition& definition) override {
    return model_.ComputeMenuAttrs(*this, *components.lock(), definition.Name(),
                                   Read(definition)->MakeMenu());
  }

 private:
  CFDTDataModel& model_;
};

class Information : public test_support::StubInformation {
 public:
  std::string StandardName(ZAFHartTypes::StandardName index) override {
    return index == ZAFHartTypes::StandardName::OnlineParameters ? "online_menu" : "";
  }
};

class RefreshingGui : public test_support::StubGui, public IDDDTMGUIUpdateControl {
 public:
  bool LockUpdate() const override { return false; }
  void SetLockUpdate(bool) override {}
  void RefreshView() override { ++refreshes; }
  int refreshes = 0;
};

// One DTM instance whose device's objects the test adds before Init().
struct Instance {
  Instance() {
    components->kernel = kernel;
    components->gui = gui;
    components->information = std::make_shared<Information>();
    kernel->SetComponentModel(components);
    components->Use(database);
  }
  void Init() {
    DefinitionList commands;
    DefinitionList relations;
    model.InitVariables(*components, commands, relations);
    model.InitCommands(*components, commands, relations);
    model.InitMenus(*components, commands, relations);
    model.InitMethods(*components, commands, relations);
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
    command->Transactions().Add(1).Reply() = {DataItem::Reference(VariableNamed("unused"))};
    database->AddObject(command);
  }
  std::shared_ptr<Variable> Compute(std::string_view name) {
    return kernel->GetVariable(VariableNamed(name));
  }
  // What the data model makes of the variable, before the database takes it over.
  std::shared_ptr<Variable> ComputeOnly(std::string_view name) {
    return model.ComputeVarType(*kernel, *components, std::string(name),
                                database->ReadObject(VariableNamed(name))->MakeVariable());
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

  CFDTDataModel model;
  std::shared_ptr<test_support::StubComponents> components = test_support::StubComponents::Create();
  std::shared_ptr<ComputingKernel> kernel = std::make_shared<ComputingKernel>(model);
  std::shared_ptr<RefreshingGui> gui = std::make_shared<RefreshingGui>();
  std::shared_ptr<CDDWorkerDB> database = std::make_shared<CDDWorkerDB>();
};

class InternalObjectsTest : public testing::Test {
 protected:
  platform::Platform platform_;
  platform::PlatformScope scope_{platform_};
  Instance dtm_;
};

using Names = std::vector<std::string>;

TEST_F(InternalObjectsTest, ComputesTheCatalogue) {
  dtm_.Init();
  struct Case {
    std::string_view name;
    const char* label;
    TypeCode type;
    std::int32_t size;
    std::int32_t maxEnum;
    std::size_t enumCount;
    Variant defaultValue;
    bool available;
  };
  const Case cases[] = {
      {"__ZAF__DynAvailTime", "Dynamic Parameter Refresh", TypeCode::Enumerated, 4, 60, 6,
       std::int16_t{10}, false},
      {"__ZAF__ProgressValue", "Progress", TypeCode::Double, 0, 0, 0, -1.0, false},
      {"__ZAF__ProgressTitle", "Action", TypeCode::Ascii, 512, 0, 0, {}, false},
      {"__ZAF__ProgressSubTitle", "Step", TypeCode::NotComputed, 0, 0, 0, {}, false},
      {"__ZAF__DTMOnlineState", "Online Mode", TypeCode::Enumerated, 0, 100, 9, std::int16_t{0},
       true},
      {"__ZAF__InterfaceVersion", "Interface Version", TypeCode::Enumerated, 0, 252, 3, 252, true},
      {"__ZAF__FDTUserName", "User Name", TypeCode::Ascii, 50, 0, 0, "", true},
      {"__ZAF__BUSCATEGORY", "Bus Type", TypeCode::Enumerated, 0, 7, 7, std::int16_t{1}, true},
      {"__ZAF__FDTDTMState", "FDT DTM State", TypeCode::Enumerated, 0, 11, 12, 0, false},
      {"__ZAF__RETRYNO", "Retry No.", TypeCode::Unsigned, 1, 0, 0, std::int16_t{5}, false},
      {"__ZAF__HostLocale", "Regional and Language options", TypeCode::Integer, 4, 0, 0,
       std::int16_t{0}, false},
      {"__ZAF__DISABLEDFUNCTIONIDS", "Active function IDs", TypeCode::Ascii, 512, 0, 0, "", true}};
  for (const Case& entry : cases) {
    const auto variable = dtm_.ComputeOnly(entry.name);
    EXPECT_EQ(LangText(variable->Label(), "en"), entry.label);
    EXPECT_EQ(variable->TypeInfo().TypeCode(), entry.type) << entry.name;
    EXPECT_EQ(variable->TypeInfo().Size(), entry.size) << entry.name;
    EXPECT_EQ(variable->TypeInfo().MaxEnumValue(), entry.maxEnum) << entry.name;
    EXPECT_EQ(variable->TypeInfo().EnumItems().Count(), entry.enumCount) << entry.name;
    EXPECT_EQ(variable->DefaultValue().Type(), entry.defaultValue.Type()) << entry.name;
    EXPECT_EQ(variable->DefaultValue(), entry.defaultValue) << entry.name;
    EXPECT_EQ(variable->Available(), entry.available) << entry.name;
    if (!entry.available) continue;
    EXPECT_EQ(variable->Value(), entry.defaultValue) << entry.name;
  }
  EXPECT_EQ(dtm_.database->ListOfKind(ObjectKind::Variable).Count(), 30U);
  for (const auto& [key, definition] : dtm_.database->ListOfKind(ObjectKind::Variable)) {
    EXPECT_TRUE(dtm_.Compute(definition.Name())->Attributes().IsLibraryHeld());
    EXPECT_FALSE(dtm_.Compute(definition.Name())->Label().empty()) << definition.Name();
  }
  const auto retries = dtm_.Compute("__ZAF__RETRYNO");
  EXPECT_FALSE(retries->CheckValue(4, true));
  EXPECT_TRUE(retries->CheckValue(100, true));
  const EnumItem* hart = dtm_.Compute("__ZAF__BUSCATEGORY")->TypeInfo().EnumItems().Find(1);
  ASSERT_NE(hart, nullptr);
  EXPECT_EQ(hart->Description(), "036D1498-387B-11D4-86E1-00E0987270B9");
  EXPECT_EQ(hart->Help(), "HART");
}

TEST_F(InternalObjectsTest, ComputingAgainKeepsValuesAndDefaultsSetSince) {
  dtm_.Init();
  const auto level = VariableNamed(names::kFDTUserLevel);
  EXPECT_EQ(dtm_.Compute(names::kFDTUserLevel)->Value(), Variant(0));
  dtm_.database->WriteValue(level, std::int16_t{3});
  dtm_.database->SetVariableAvailable({}, false);
  const auto computed = dtm_.Compute(names::kFDTUserLevel);
  EXPECT_EQ(computed->Value(), Variant(3));
  EXPECT_TRUE(computed->Available());
  EXPECT_FALSE(computed->ToBeWritten());

  auto retries = dtm_.Compute("__ZAF__RETRYNO");
  retries->SetDefaultValue(20);
  dtm_.database->WriteObject(retries);
  EXPECT_EQ(dtm_.Compute("__ZAF__RETRYNO")->DefaultValue(), Variant(20));
}

TEST_F(InternalObjectsTest, InstancesShareTheCatalogue) {
  Instance other;
  dtm_.Init();
  other.Init();
  const auto one = dtm_.Compute(names::kBusCategory);
  const auto two = other.Compute(names::kBusCategory);
  EXPECT_EQ(&one->Attributes(), &two->Attributes());
  one->SetLabel("changed");
  EXPECT_EQ(two->Label(), "Bus Type");
  EXPECT_EQ(&one->TypeInfo().EnumItems(), &two->TypeInfo().EnumItems());
}

TEST_F(InternalObjectsTest, RefreshOnConnectNeedsTheFdtInterface) {
  dtm_.Init();
  for (const auto& [version, valid] : {std::pair{252, false}, {0, false}, {1, true}}) {
    dtm_.database->WriteValue(VariableNamed(names::kInterfaceVersion), version);
    EXPECT_EQ(
        dtm_.model.ComputeVarValidity(
            *dtm_.kernel, *dtm_.components, std::string(names::kRefreshOnConnect),
            dtm_.database->ReadObject(VariableNamed(names::kRefreshOnConnect))->MakeVariable()),
        valid)
        << version;
  }
}

TEST_F(InternalObjectsTest, LeavesItemsOfTheDeviceAlone) {
  auto own = MakeObject<Variable>(names::kOnlineMode);
  own->SetLabel("Device's own");
  dtm_.database->AddObject(own);
  dtm_.AddMenu("__zaf__connection_menu", {VariableNamed("own")});
  auto method = MakeObject<Method>(names::kRefreshDataSet);
  method->SetIsValid(false);
  dtm_.database->AddObject(method);
  dtm_.Init();

  const auto variable = dtm_.Compute(names::kOnlineMode);
  EXPECT_EQ(variable->Label(), "Device's own");
  EXPECT_FALSE(variable->Attributes().IsLibraryHeld());
  EXPECT_EQ(dtm_.MenuItemsOf("__zaf__connection_menu"), Names{"own -"});
  EXPECT_EQ(dtm_.MenuItemsOf(names::kConnectionMenu), Names{"own -"});

  // The method is stored once, and is the library's all the same.
  const std::string name(names::kRefreshDataSet);
  EXPECT_TRUE(dtm_.model.ComputeMethodValidity(*dtm_.kernel, *dtm_.components, name, method));
  dtm_.model.ComputeMethodAttrs(*dtm_.kernel, *dtm_.components, name, method);
  EXPECT_EQ(method->Label(), "Refresh Dataset");
  EXPECT_EQ(method->Help(), "Call refresh of the online dataset");
}

TEST_F(InternalObjectsTest, LaysOutCommand38) {
  dtm_.Init();
  const auto definition =
      Definition::Define("reset_configuration_change_flag", ObjectKind::Command);
  dtm_.kernel->GetCommand(definition);
  const auto command = dtm_.kernel->GetCommand(definition);
  EXPECT_EQ(command->Number(), 38);
  ASSERT_EQ(command->Transactions().Count(), 1U);
  const auto& transaction = *command->Transactions().Item(0);
  EXPECT_EQ(transaction.Request().Count(), 0U);
  ASSERT_EQ(transaction.Reply().Count(), 2U);
  EXPECT_EQ(transaction.Reply().Item(1).VariableDefinition().Name(), "response_code");
  EXPECT_EQ(transaction.Reply().Item(2).VariableDefinition().Name(), "device_status");
  EXPECT_EQ(command->ResponseCodes().Item(7).CodeType(), ResponseCodeType::DataEntryWarning);
  EXPECT_EQ(LangText(command->ResponseCodes().Item(16).Description(), "kt"),
            "siyouseigennsareteimasu");
}

TEST_F(InternalObjectsTest, ConnectionMenuKeepsItsFirstTwoItems) {
  dtm_.Init();
  const Names refresh = {"__ZAF__DynAvailTime", "__ZAF__StaticAvailTime",
                         "__ZAF__RefreshOnConnect"};
  EXPECT_EQ(dtm_.MenuItemsOf(names::kConnectionMenu), refresh);
  const auto menu =
      dtm_.kernel->GetMenu(Definition::Define(names::kConnectionMenu, ObjectKind::Menu));
  MenuItems items;
  for (const char* name : {"tag", "polling_address", "__ZAF__DynAvailTime"}) {
    items.Add(MenuItem(VariableNamed(name)));
  }
  menu->SetItems(items);
  const Names all = {"tag -", "polling_address -", refresh[0], refresh[1], refresh[2]};
  EXPECT_EQ(dtm_.MenuItemsOf(names::kConnectionMenu), all);
  EXPECT_EQ(dtm_.MenuItemsOf(names::kConnectionMenu), all) << "computed again";
}

TEST_F(InternalObjectsTest, UploadMenusListTheDevicesVariables) {
  dtm_.AddDeviceVariable("plain");
  dtm_.AddDeviceVariable("constant", true, false);
  dtm_.AddDeviceVariable("secret", false, true);
  auto live = MakeObject<Variable>("live");
  live->EditAttributes().SetFlag(VariableFlag::Dynamic, true);
  dtm_.database->AddObject(live);

  auto group = MakeObject<WriteAsOne>("group");
  group->Items() = {{VariableNamed("constant"), nullptr}, {VariableNamed("secret"), nullptr}};
  dtm_.database->AddObject(group);
  auto display = MakeObject<EditDisplay>("display");
  display->DisplayItems() = {{VariableNamed("live"), nullptr}};
  display->EditItems() = {{group->ObjectDefinition(), nullptr}};
  dtm_.database->AddObject(display);
  const auto onlineMenu = Definition::Define("online_menu", ObjectKind::Menu);
  dtm_.AddMenu("upload_variables", {VariableNamed("plain")});
  dtm_.AddMenu("online_menu", {display->ObjectDefinition(), onlineMenu, VariableNamed("plain"),
                               VariableNamed("unknown"), VariableNamed(names::kOnlineMode)});
  dtm_.AddCommand("read_dynamic_variables_and_pv_current",
                  {DataItem::Reference(VariableNamed("response_code")),
                   DataItem::Reference(VariableNamed("device_status")), DataItem::Constant(7),
                   DataItem::Reference(VariableNamed("live"))});
  dtm_.Init();

  EXPECT_EQ(dtm_.MenuItemsOf(names::kUploadVariables), (Names{"plain", "constant R"}));
  EXPECT_EQ(dtm_.MenuItemsOf(names::kUploadVariablesExt),
            (Names{"plain -", "live R", "constant R"}));
  EXPECT_EQ(dtm_.MenuItemsOf(names::kUploadVariablesDyn), Names{"live R"});
}

TEST_F(InternalObjectsTest, StatusMenusFollowTheDevicesCommands) {
  dtm_.Init();
  for (const auto name :
       {names::kProcessVariables, names::kTransmitterStatus, names::kStatusDisplay}) {
    EXPECT_EQ(dtm_.MenuItemsOf(name), Names{}) << name;
  }
  const auto status = DataItem::Reference(VariableNamed("device_status"));
  dtm_.AddCommand("read_unique_identifier", {DataItem::Constant(0), status, status});
  dtm_.AddCommand("read_additional_transmitter_status",
                  {DataItem::Constant(0), status,
                   DataItem::Reference(VariableNamed("device_specific_status"))});
  dtm_.database->AddObject(MakeObject<Method>(names::kResetCcfMethod));
  EXPECT_EQ(dtm_.MenuItemsOf(names::kTransmitterStatus),
            (Names{"device_status R", "device_specific_status R"}));
  EXPECT_EQ(dtm_.MenuItemsOf(names::kStatusDisplay),
            (Names{"device_status R", "__ZAF__ResetCCFMethod", "__ZAF__transmitter_status"}));
}

TEST_F(InternalObjectsTest, RefreshesTheOnlineDataSetOnly) {
  dtm_.AddDeviceVariable("value");
  dtm_.Init();
  dtm_.database->WriteValue(VariableNamed("value"), 5);
  const auto run = [&](StorageMode mode, std::string_view method) {
    dtm_.database->SetStorageMode(mode);
    dtm_.gui->shown.clear();
    dtm_.model.ExecuteMethodBody(*dtm_.kernel, *dtm_.components, std::string(method), nullptr,
                                 false);
    return dtm_.database->ReadObject(VariableNamed("value"))->MakeVariable();
  };
  for (const StorageMode mode : {StorageMode::NotPaired, StorageMode::Offline}) {
    EXPECT_TRUE(run(mode, names::kRefreshDataSet)->ToBeWritten());
  }
  EXPECT_TRUE(run(StorageMode::Online, "other_method")->Available());
  EXPECT_EQ(dtm_.gui->editingStops, 0);

  const auto variable = run(StorageMode::Online, names::kRefreshDataSet);
  EXPECT_FALSE(variable->Available());
  EXPECT_FALSE(variable->ToBeWritten());
  EXPECT_EQ(variable->Value(), Variant(5));
  EXPECT_EQ(dtm_.gui->shown, Names{"value"});
  EXPECT_EQ(dtm_.gui->editingStops, 1);
  EXPECT_EQ(dtm_.gui->refreshes, 1);
}

TEST_F(InternalObjectsTest, StateSettersWriteTheirVariables) {
  dtm_.Init();
  SetDataSetState(*dtm_.database, DataSetState::ValidModified);
  SetStorageState(*dtm_.database, true);
  const auto value = [&](std::string_view name) {
    return dtm_.database->ReadObject(VariableNamed(name))->MakeVariable()->Value();
  };
  EXPECT_EQ(value(names::kDataSetState), Variant(1));
  EXPECT_EQ(value(names::kStorageState), Variant(1));
  SetStorageState(*dtm_.database, false);
  EXPECT_EQ(value(names::kStorageState), Variant(0));
}

}  // namespace
}  // namespace ZAFHartLib
