#include <cmath>

#include "support/WorkerDbFixture.h"

using namespace test_support;
using testing::ElementsAre;

namespace {

const char* const kDyn = "__ZAF__DynAvailTime";
const char* const kStatic = "__ZAF__StaticAvailTime";
constexpr auto kHeld = VariableFlag::LibraryHeld;

class WorkerDbValues : public WorkerDbFixture {};

}  // namespace

TEST_F(WorkerDbValues, NewOnesAreToldFromOldOnes) {
  const Variant nan = std::nan("");
  const Variant one = 1.0;
  for (const auto& [what, before, available, written, changes] :
       {std::tuple("other", one, true, Variant(2.0), true),
        {"same", one, true, one, false},
        {"same of another type", one, true, 1, false},
        {"same, not available", one, false, one, true},
        {"NaN over a number", one, true, nan, true},
        {"number over NaN", nan, true, one, true},
        {"infinity over NaN, not available", nan, false, HUGE_VALF, false}}) {
    auto variable = std::make_shared<Variable>(what);
    variable->SetValue(before);
    variable->SetAvailable(available);
    database->AddObject(variable);
    Write(what, written);
    const auto after = Read(what);
    EXPECT_EQ(after->ToBeWritten(), changes) << what;
    EXPECT_EQ(after->Available(), available || changes) << what;
    EXPECT_TRUE(after->IsChecked()) << what;
    EXPECT_EQ(after->ChangeStamp(), database->Generation()) << what;
    EXPECT_EQ(gui->shown.back(), what);
    EXPECT_NE(gui->lastShown, variable) << "the stored variable was handed out";
  }
}

TEST_F(WorkerDbValues, GoToTheDeviceIfItCanTakeThemSynchronousOnesOnce) {
  AddVariable("a");
  AddVariable("held", {kHeld});
  AddVariable("read_only");
  const auto readOnly = Read("read_only");
  readOnly->SetHandling(true, false);
  database->WriteObject(readOnly);
  database->SetSynchronousMode(true);
  for (const char* name : {"a", "a", "held", "read_only", "unknown"}) Write(name, 1.0);
  for (const bool pending : {true, false}) {
    database->SetVariableToBeWritten({}, pending);
    EXPECT_EQ(Read("a")->ToBeWritten(), pending);
    EXPECT_FALSE(Read("held")->ToBeWritten() || Read("read_only")->ToBeWritten());
  }
  database->WriteValueLocally(VariableNamed("a"), 2.0);
  EXPECT_THAT(kernel->calls, ElementsAre("WriteVariable a 1"));
  EXPECT_EQ(Read("a")->Value(), Variant(2.0));
  database->SetIsSynchronized(true);
  comm->emulate = true;
  Write("a", 3.0);
  EXPECT_EQ(kernel->calls.size(), 1U);
  EXPECT_FALSE(database->IsSynchronized());
}

TEST_F(WorkerDbValues, TheOnlineModeFollowsTheSynchronousMode) {
  AddVariable("__ZAF__OnlineMode", {kHeld});
  for (const auto& [mode, synchronous, expected] :
       {std::tuple(0, true, 0), {1, true, 2}, {2, true, 2}, {2, false, 1}, {3, true, 3}}) {
    Write("__ZAF__OnlineMode", mode);
    database->SetSynchronousMode(synchronous);
    EXPECT_EQ(Read("__ZAF__OnlineMode")->Value(), Variant(expected)) << mode;
  }
}

TEST_F(WorkerDbValues, OfDataItemsAreReadAndWrittenInOrder) {
  AddVariable("a");
  const DataItemList items{DataItem::Constant(5.0), DataItem::Reference(VariableNamed("a")),
                           DataItem::Reference(VariableNamed("unknown"))};
  database->WriteValues(items, {1.0, 2.0, 3.0});
  EXPECT_THAT(database->ReadValues(items), ElementsAre(Variant(5.0), Variant(2.0), Variant()));
  const auto failure = NumberOfFailure([&] { database->WriteValues(items, {1.0}); });
  EXPECT_EQ(failure, ErrorNumber::SubscriptOutOfRange);
}

TEST_F(WorkerDbValues, AnObjectCarriesItsChangesOnceAndIsStampedAsItChanges) {
  AddVariable("a");
  const auto snapshot = Read("a");
  Write("a", 5.0);
  std::int32_t expected = database->Generation();
  const auto write = [&](bool isChange) {
    database->WriteObject(snapshot);
    expected += isChange ? 1 : 0;
    EXPECT_EQ(database->Generation(), expected);
    EXPECT_EQ(Read("a")->ChangeStamp(), expected);
    EXPECT_EQ(Read("a")->SyncStamp(), expected);
  };
  snapshot->SetLabel("Label");
  snapshot->SetChangeStamp(99);  // of another database
  write(false);
  EXPECT_EQ(Read("a")->Label(), "Label");
  EXPECT_EQ(Read("a")->Value(), Variant(5.0));
  EXPECT_TRUE(Read("a")->ToBeWritten());
  snapshot->SetValue(5.0);
  write(false);
  snapshot->SetToBeWritten(false);
  write(true);
  snapshot->SetValue(6.0);
  write(true);
  Write("a", 7.0);
  ++expected;
  write(false);
  EXPECT_EQ(Read("a")->Value(), Variant(7.0));
  database->WriteObject(std::make_shared<Variable>("unknown"));
  database->WriteObject(nullptr);
  EXPECT_EQ(NumberOfFailure([&] { database->WriteObject(MakeObject<Menu>("a")); }),
            ErrorNumber::InvalidArgument);
}

TEST_F(WorkerDbValues, TheRefreshIntervalReachesEveryVariable) {
  AddVariable("a");
  AddVariable(kDyn, {kHeld});
  EXPECT_EQ(Read(kDyn)->Value(), Variant(10));  // not available: taken from the database
  for (const auto& [written, interval] : {std::pair(Variant(30), 30), {0, -1}, {"45", 45}}) {
    Write(kDyn, written);
    EXPECT_EQ(database->DynAvailTime(), interval);
    EXPECT_EQ(Read("a")->DynAvailTime(), interval);
  }
  EXPECT_EQ(NumberOfFailure([&] { Write(kDyn, "soon"); }), ErrorNumber::TypeMismatch);
  EXPECT_EQ(Read(kDyn)->Value(), Variant(45));
  AddVariable(kStatic, {kHeld});
  const std::int32_t generation = database->Generation();
  database->SetVariableAvailable({}, false);
  EXPECT_EQ(database->Generation(), generation + 1);
  EXPECT_TRUE(Read(kDyn)->Available());
  EXPECT_FALSE(Read(kStatic)->Available());
  database->WriteObject(Read(kStatic));  // library-held
  EXPECT_TRUE(Read(kStatic)->Available());
  gui->shown.clear();
  database->WriteObject(Read(kDyn));
  EXPECT_THAT(gui->shown, ElementsAre(kDyn));
}

TEST_F(WorkerDbValues, OfSingleStorageVariablesArePassedOnAsCopies) {
  struct Storage : ZAFHartLib::ISingleStorage {
    bool IsSingleStorageObject(const Definition& d) const override { return d.Name() == "shared"; }
    void Update(StorageMode, const std::shared_ptr<DDObject>& object) override {
      updates.push_back(object->MakeVariable());
    }
    void UploadVariableValue(const Definition&, const Variant&) override {}
    std::vector<std::shared_ptr<Variable>> updates;
  };
  const auto storage = std::make_shared<Storage>();
  database->SetSingleStorage(storage);
  for (const char* name : {"a", "shared"}) {
    AddVariable(name);
    Write(name, 1.0);
  }
  database->WriteObject(Read("shared"));
  ASSERT_EQ(storage->updates.size(), 2U);
  EXPECT_EQ(storage->updates[0]->Changes() & Variable::kAttributes, 0U);
  storage->updates[0]->SetValue(3.0);
  database->WriteObjectWithoutPropagation(storage->updates[0]);
  EXPECT_EQ(storage->updates.size(), 2U);
  EXPECT_EQ(Read("shared")->Value(), Variant(3.0));
}
