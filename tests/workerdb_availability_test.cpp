#include "support/WorkerDbFixture.h"

using namespace test_support;
using ZAFHartLib::VariableMark;

namespace {

// Dynamic values live 10 s, static ones 60 s.
class WorkerDbAvailability : public WorkerDbFixture {
 protected:
  void SetUp() override {
    AddVariable("__ZAF__StaticAvailTime", {VariableFlag::LibraryHeld});
    Write("__ZAF__StaticAvailTime", 60);
    AddVariable("dynamic", {VariableFlag::Dynamic});
    AddVariable("held", {VariableFlag::Dynamic, VariableFlag::LibraryHeld});
    AddVariable("static");
    database->SetVariableAvailable({}, true);
  }
  bool IsAvailable(const char* name) { return Read(name)->Available(); }
};

}  // namespace

TEST_F(WorkerDbAvailability, EndsWithItsInterval) {
  Advance(9'999);
  EXPECT_TRUE(IsAvailable("dynamic"));
  Advance(1);
  EXPECT_FALSE(database->Object("dynamic")->MakeVariable()->Available());
  EXPECT_FALSE(IsAvailable("dynamic"));
  Advance(49'999);
  EXPECT_TRUE(IsAvailable("static"));
  Advance(1);
  EXPECT_FALSE(IsAvailable("static"));
  EXPECT_TRUE(IsAvailable("held"));
}

TEST_F(WorkerDbAvailability, CountsFromWhenItWasLastGiven) {
  Advance(9'999);
  SetAvailable("dynamic", true);
  Advance(9'999);
  const auto snapshot = Read("dynamic");
  snapshot->SetAvailable(true);
  database->WriteObject(snapshot);
  Advance(9'999);
  EXPECT_TRUE(IsAvailable("dynamic"));
  snapshot->SetErrorIndex(1);
  database->WriteObject(snapshot);
  Advance(1);
  EXPECT_FALSE(IsAvailable("dynamic"));
}

TEST_F(WorkerDbAvailability, LastsWhileItMustNotEnd) {
  Advance(3'600'000);
  comm->emulate = true;
  EXPECT_TRUE(IsAvailable("dynamic"));
  comm->emulate = false;
  {
    const auto suspension = database->SuspendExpiry();
    EXPECT_TRUE(IsAvailable("dynamic"));
  }
  Write("dynamic", 1.0);
  Advance(3'600'000);
  EXPECT_TRUE(IsAvailable("dynamic"));  // to be written
  database->SetVariableToBeWritten({}, false);
  EXPECT_FALSE(IsAvailable("dynamic"));
}

TEST_F(WorkerDbAvailability, IsCountedAsItChanges) {
  const auto available = database->CountMarked(
      VariableMark::Available,
      {VariableNamed("dynamic"), VariableNamed("static"), VariableNamed("static")});
  const auto pending = database->CountMarked(VariableMark::ToBeWritten);
  database->Watch(*pending, VariableNamed("static"));
  EXPECT_EQ(available->Count(), 3U);
  Advance(10'000);
  Read("dynamic");
  EXPECT_EQ(available->Count(), 2U);
  SetAvailable("static", false);
  EXPECT_EQ(available->Count(), 0U);
  Write("static", 1.0);
  EXPECT_EQ(available->Count(), 2U);
  EXPECT_EQ(pending->Count(), 1U);
  const auto snapshot = Read("static");
  snapshot->SetToBeWritten(false);
  database->WriteObject(snapshot);
  EXPECT_EQ(pending->Count(), 0U);
}
