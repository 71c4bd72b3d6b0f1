#include "settings/Settings.h"
#include "support/WorkerDbFixture.h"

using namespace test_support;
using testing::ElementsAre;
using testing::IsEmpty;
using ZAFHartLib::CHartUnit;

namespace {

class WorkerDbRelations : public WorkerDbFixture {
 protected:
  void SetUp() override {
    for (const char* name : {"value", "other", "unit", "unit2"}) AddVariable(name);
    for (const char* name : {"unit", "unit2"}) {
      const auto unit = Read(name);
      unit->EditTypeInfo().SetTypeCode(TypeCode::Ascii);
      database->WriteObject(unit);
    }
  }
  void Refresh(const char* right, const char* left) {
    database->SetRefresh(VariableNamed(right), VariableNamed(left));
  }
  void Unit(const char* right, const char* left) {
    database->SetUnit(VariableNamed(right), VariableNamed(left));
  }
  // "value" is 10 in the unit that "unit" holds, "kg".
  void ReadValueInKg() {
    Write("unit", "kg|de|Kilogramm");
    Unit("value", "unit");
    Unit("value", "unit");
    Write("value", 10.0);
    database->SetVariableToBeWritten({}, false);
  }
  DefinitionList WriteDependencies() { return Read("value")->WriteDependencies(); }
};

}  // namespace

TEST_F(WorkerDbRelations, AreBetweenVariablesOnly) {
  database->AddObject(MakeObject<Menu>("menu"));
  const auto other = VariableNamed("other");
  for (const Definition& wrong :
       {Definition::Define("value", ObjectKind::Menu), VariableNamed("menu"), Definition()}) {
    EXPECT_EQ(NumberOfFailure([&] { database->SetRefresh(wrong, other); }),
              ErrorNumber::InvalidArgument);
    EXPECT_EQ(NumberOfFailure([&] { database->SetUnit(other, wrong); }),
              ErrorNumber::InvalidArgument);
  }
  Refresh("value", "unknown");
  Unit("unknown", "unit");
}

TEST_F(WorkerDbRelations, ARefreshTakesTheValueOnceForEachChange) {
  SetAvailable("value", true);
  Refresh("value", "other");  // which is not available
  EXPECT_TRUE(Read("value")->Available());
  for (const double change : {1.0, 2.0}) {
    Write("other", change);
    Refresh("value", "other");
    EXPECT_FALSE(Read("value")->Available());
    SetAvailable("value", true);
    Refresh("value", "other");
    EXPECT_TRUE(Read("value")->Available());
  }
  Write("value", 1.0);
  Refresh("value", "value");
  EXPECT_EQ(WriteDependencies(), DefinitionList{VariableNamed("other")});
}

TEST_F(WorkerDbRelations, ARefreshedUnitTakesTheValuesInIt) {
  Unit("value", "unit");
  Unit("other", "unit2");
  database->SetVariableAvailable({}, true);
  Write("unit2", "m");
  gui->shown.clear();
  Refresh("unit", "unit2");
  EXPECT_FALSE(Read("unit")->Available() || Read("value")->Available());
  EXPECT_TRUE(Read("other")->Available());
  EXPECT_THAT(gui->shown, ElementsAre("value"));
}

TEST_F(WorkerDbRelations, AUnitSourceIsTakenAndReplaced) {
  Write("value", 10.0);
  for (const char* name : {"unit", "unit2"}) {
    Write(name, name);
    Unit("value", name);
    EXPECT_EQ(Read("value")->UnitText(), name);
    EXPECT_TRUE(Read("value")->UnitSource().IsSameAs(VariableNamed(name)));
    EXPECT_EQ(WriteDependencies(), DefinitionList{VariableNamed(name)});
    EXPECT_EQ(gui->shown.back(), "value");
  }
  EXPECT_EQ(Read("value")->Value(), Variant(10.0));
  Unit("unit", "unit");
  EXPECT_TRUE(Read("unit")->UnitSource().IsEmpty());
  database->AddObject(std::make_shared<Variable>("late"));
  Unit("value", "late");
  EXPECT_THAT(kernel->calls, ElementsAre("GetVariable late"));  // its type was not known
}

TEST_F(WorkerDbRelations, AChangedUnitConvertsTheValueUntilItIsRead) {
  const auto method = MakeObject<Method>("__ZAF__init_unit_table");
  method->SetIsValid(false);
  database->InitUnitTable();
  database->AddObject(method);
  database->InitUnitTable();
  database->AddUnit(CHartUnit(1, 1, 0, "kg|de|Kilogramm", ""));
  database->AddUnit(CHartUnit(2, 2, 3, "g", ""));
  gui->language = "de";
  ReadValueInKg();
  Unit("value", "unit");  // unchanged
  EXPECT_TRUE(Read("value")->Available());
  EXPECT_THAT(kernel->calls, IsEmpty());
  for (const auto& [unit, value] : {std::pair("g", 26.0), {"kilogramm", 10.0}}) {
    Write("unit", unit);
    const std::int32_t generation = database->Generation();
    Unit("value", "unit");
    EXPECT_EQ(Read("value")->Value(), Variant(value));
    EXPECT_EQ(Read("value")->UnitText(), unit);
    EXPECT_FALSE(Read("value")->Available());
    EXPECT_EQ(database->Generation(), generation + 1);
  }
  method->SetIsValid(true);
  database->InitUnitTable();
  EXPECT_THAT(kernel->calls, ElementsAre("GetVariable value", "GetVariable value",
                                         "ExecuteMethod __ZAF__init_unit_table"));
}

TEST_F(WorkerDbRelations, AChangedUnitLeavesTheValueWhereItCannotBeConverted) {
  const std::function<void()> obstacles[] = {
      [&] { database->SetVariableToBeWritten(VariableNamed("value"), true); },
      [&] { SetAvailable("unit", false); }, [] {},  // no unit table
      [&] { database->AddUnit(CHartUnit(1, 1, 0, "kg", "")); },
      [&] {
        database->AddUnit(CHartUnit(2, 2, 3, "g", ""));
        const auto ownKey = std::string(ZAFHartLib::kDtmsKey) + "\\Device.DDDataModel";
        platform.Registry().SetValue(ownKey, ZAFHartLib::kDisableUnitRecalculation, "1");
        database->SetComponentModel(components);
      }};
  for (int i = 0; i < 5; ++i) {
    ReadValueInKg();
    Write("unit", "g");
    database->SetVariableToBeWritten({}, false);
    obstacles[i]();
    Unit("value", "unit");
    EXPECT_EQ(Read("value")->Value(), Variant(10.0)) << i;
    EXPECT_EQ(Read("value")->UnitText(), "g") << i;
    EXPECT_EQ(Read("value")->Available(), i < 2) << i;
  }
}

TEST(UnitTable, FindsUnitsByTheirTextsInEveryLanguage) {
  ZAFHartLib::UnitTable units;
  int code = 1;
  for (const char* name : {"  kg|de|Kilogramm ", "|en|lb|de|kg", "a|b", "", "°C"}) {
    units.Add(CHartUnit(code, 5 - code, 0, name, ""));
    ++code;
  }
  std::string found;
  for (const char* text : {"KG", "kilogramm", "lb", "a", "b", "de", "", "°c"}) {
    found += units.Find(text) ? std::to_string(units.Find(text)->Code()) : "-";
  }
  EXPECT_EQ(found, "1123---5");
  EXPECT_EQ(NumberOfFailure([&] { units.Add(CHartUnit(1, 1, 0, "t", "")); }),
            ErrorNumber::DuplicateKey);
  EXPECT_EQ(units.Convert(7, "°C", "kg"), 7);  // factor 0
}
