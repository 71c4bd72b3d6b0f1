#include "support/WorkerDbFixture.h"

using namespace test_support;

namespace {
class WorkerDbObjects : public WorkerDbFixture {};
}  // namespace

TEST_F(WorkerDbObjects, AreFoundByPositionNameAndKind) {
  AddVariable("a");
  database->AddObject(MakeObject<Menu>("m"));
  AddVariable("b_ZAFsingleStorage_1");
  AddVariable("B_zafSINGLESTORAGE_1");  // differs in case only: dropped
  AddVariable("c_zafSINGLESTORAGE_1");
  const auto find = [&](std::int32_t start) {
    return std::tuple(database->FindNextObject(start),
                      database->FindNextObject(start, ObjectKind::Variable),
                      database->FindNextObject(start, ObjectKind::Menu));
  };
  EXPECT_EQ(find(0), std::tuple(1, 1, 2));
  EXPECT_EQ(find(2), std::tuple(2, 3, 2));
  EXPECT_EQ(find(4), std::tuple(4, 4, -1));
  EXPECT_EQ(find(5), std::tuple(-1, -1, -1));
  EXPECT_EQ(database->Object("A")->ObjectDefinition().Name(), "a");
  EXPECT_EQ(database->ListOfKind(ObjectKind::Variable).At(2).Name(), "b_ZAFsingleStorage_1");
  EXPECT_EQ(database->SingleStorageVariables().Count(), 1U);
  database->Object(1)->MakeVariable()->SetValue(6.0);
  EXPECT_TRUE(Read("a")->Value().IsEmpty());
  EXPECT_EQ(database->ReadObject(VariableNamed("unknown")), nullptr);
  for (const std::int32_t position : {-1, 0, 5}) {
    EXPECT_EQ(NumberOfFailure([&] { database->Object(position); }),
              ErrorNumber::SubscriptOutOfRange);
  }
  EXPECT_EQ(NumberOfFailure([&] { database->Object("x"); }), ErrorNumber::InvalidProcedureCall);
  const auto notAMenu = std::make_shared<Menu>(VariableNamed("x"));
  EXPECT_EQ(NumberOfFailure([&] { database->AddObject(nullptr); }), ErrorNumber::InvalidArgument);
  EXPECT_EQ(NumberOfFailure([&] { database->AddObject(notAMenu); }), ErrorNumber::InvalidArgument);
}

TEST_F(WorkerDbObjects, EveryTwentySixthReadIsALifeSignal) {
  for (std::size_t read = 1; read <= 78; ++read) {
    database->ReadObject(VariableNamed("any"));
    EXPECT_EQ(gui->lifeSignals.size(), read / 26) << read;
  }
  database->SetComponentModel(nullptr);
  for (int read = 0; read < 26; ++read) database->ReadObject(VariableNamed("any"));
}

TEST_F(WorkerDbObjects, FlagsAreSetOnOneOrOnAll) {
  for (const char* name : {"v", "v2"}) AddVariable(name);
  for (const char* name : {"c", "c2"}) database->AddObject(MakeObject<Command>(name));
  for (const char* name : {"r", "r2"}) database->AddObject(MakeObject<RefreshRelation>(name));
  for (const char* name : {"u", "u2"}) database->AddObject(MakeObject<UnitRelation>(name));
  using DB = IDDWorkerDB;
  for (const auto& [set, is, name, emptyIsAll] :
       {std::tuple(&DB::SetVariableInRecursion, &DB::IsVariableInRecursion, "v", true),
        {&DB::SetVariableInReadRecursion, &DB::IsVariableInReadRecursion, "v", true},
        {&DB::SetCommandInRecursion, &DB::IsCommandInRecursion, "c", true},
        {&DB::SetRefreshInRecursion, &DB::IsRefreshInRecursion, "r", false},
        {&DB::SetUnitInRecursion, &DB::IsUnitInRecursion, "u", false}}) {
    const auto other = VariableNamed(name + std::string("2"));
    for (const char* target : {name, "m", "unknown"}) {
      ((*database).*set)(VariableNamed(target), true);
    }
    EXPECT_TRUE(((*database).*is)(VariableNamed(name)));
    EXPECT_FALSE(((*database).*is)(other) || ((*database).*is)(VariableNamed("unknown")));
    ((*database).*set)({}, true);
    EXPECT_EQ(((*database).*is)(other), emptyIsAll);
    database->ResetInRecursionFlags();
    EXPECT_EQ(((*database).*is)(VariableNamed(name)), !emptyIsAll);
  }
  EXPECT_FALSE(database->IsCommandInRecursion(VariableNamed("r")));  // of another kind
  database->SetVariableError(VariableNamed("v"), 4, "bad");
  EXPECT_EQ(Read("v")->ErrorText(), "bad");
  EXPECT_EQ(Read("v2")->ErrorIndex(), 0);
}

TEST_F(WorkerDbObjects, AttributesGoStaleWithTheGenerationUnlessNamedStatic) {
  for (const char* name : {"a", "b"}) {
    AddVariable(name);
    database->WriteObject(Read(name));
    EXPECT_TRUE(Read(name)->AttributesAvailable());
  }
  database->SetStaticAttributeNames({VariableNamed("b").Key()});
  Write("a", 1.0);
  EXPECT_FALSE(Read("a")->AttributesAvailable());
  EXPECT_TRUE(Read("b")->AttributesAvailable());
}

TEST_F(WorkerDbObjects, AfterTheLastGenerationEverythingStartsAnew) {
  EXPECT_TRUE(database->IsDirty());
  components->Use(database = std::make_shared<ZAFHartLib::CDDWorkerDB>(2'000'000'000));
  AddVariable("a");
  Write("a", 1.0);
  EXPECT_EQ(Read("a")->ChangeStamp(), 2'000'000'001);
  database->SetIsDirty(false);
  database->SetIsDirty(true);
  EXPECT_FALSE(database->IsDirty());
  SetAvailable("", false);
  EXPECT_EQ(database->Generation(), 1);
  EXPECT_EQ(Read("a")->ChangeStamp(), 0);
  EXPECT_TRUE(database->IsDirty());
}

TEST_F(WorkerDbObjects, AreUnboundFromOneAnotherWhenTheDatabaseEnds) {
  const auto menu = MakeObject<Menu>("m");
  menu->Items().Add(MenuItem(menu->Definition()));
  menu->Items().Item(1).SetDDObject(menu);
  database->AddObject(menu);
  components->database.reset();
  database.reset();
  EXPECT_EQ(menu->Items().Item(1).DDObject(), nullptr);
}
