#include "support/TempFolder.h"
#include "support/WorkerDbFixture.h"

using namespace test_support;
using testing::IsEmpty;

namespace {

class WorkerDbMethodValues : public WorkerDbFixture {
 protected:
  void SetUp() override {
    AddVariable("a");
    AddVariable("b", {VariableFlag::Dynamic});
    for (const char* name : {"a", "b"}) Write(name, 1.0);
    database->SetVariableToBeWritten({}, false);
  }
  // A method reads and assigns both variables.
  void AssignBoth() {
    for (const double value : {2.0, 3.0}) {
      for (const char* name : {"a", "b"}) {
        database->ReadForMethod(VariableNamed(name));
        Write(name, value);
      }
    }
    gui->shown.clear();
  }
};

class WorkerDbDefaults : public WorkerDbFixture {
 protected:
  void SetUp() override {
    platform.Classes().Register("Vendor.KernelInformation", [this] {
      struct Information : platform::Object, StubInformation {};
      const auto information = std::make_shared<Information>();
      information->folder = folder.Path().string();
      return information;
    });
    AddVariable("__ZAF__DynAvailTime", {VariableFlag::LibraryHeld});
  }
  // As the component model calls it.
  bool Load(const char* dataModelClass = "Vendor.Model") {
    const Variant arguments[] = {dataModelClass};
    return database->Invoke("InitDefaultData", arguments).ToBoolean();
  }
  support::TempFolder folder;
};

}  // namespace

TEST_F(WorkerDbMethodValues, AreRestoredInTheHouseAndKeepTheirAge) {
  SetAvailable("a", false);
  Advance(5'000);
  AssignBoth();
  database->SetSynchronousMode(true);
  kernel->calls.clear();
  database->RestoreValues();
  EXPECT_THAT(kernel->calls, IsEmpty());
  for (const char* name : {"a", "b"}) EXPECT_EQ(Read(name)->Value(), Variant(1.0));
  EXPECT_FALSE(Read("a")->Available());
  EXPECT_TRUE(Read("b")->Available());
  Advance(5'000);
  EXPECT_FALSE(Read("b")->Available());
}

TEST_F(WorkerDbDefaults, ComeFromTheIniFileBesideTheComponentFile) {
  folder.Write("Device.ini",
               "[Default]\n__ZAF__DynAvailTime.TYPE=3\n__ZAF__DynAvailTime.Value=20\n"
               "Span.TYPE=5\nSpan.Value=100\nburst_mode.TYPE=2\nburst_mode.Value=1\n"
               "later.TYPE=5\nlater.Value=7\n");
  for (const char* name : {"span", "burst_mode", "BURST_MODE_SELECT"}) AddVariable(name);
  const auto initial = Read("span")->Copy();  // a default that the data model has set as the value
  initial->SetValue(3.0);
  database->WriteObject(initial);
  EXPECT_TRUE(Load());
  EXPECT_EQ(database->Invoke("dynavailtime", {}), Variant(20));
  EXPECT_EQ(Read("span")->Value(), Variant(100.0));
  EXPECT_EQ(Read("burst_mode")->DefaultValue(), Variant(1));
  EXPECT_EQ(Read("burst_mode_select")->DefaultValue(), Variant(252));
  EXPECT_FALSE(Read("burst_mode_select")->Available());
  const auto computed = Read("span");
  computed->SetDefaultValue(7.0);
  database->WriteObject(computed);
  EXPECT_EQ(Read("span")->DefaultValue(), Variant(100.0));
  AddVariable("later");
  database->SetVariableAvailable({}, false);
  EXPECT_EQ(Read("later")->Value(), Variant(7.0));
}

TEST_F(WorkerDbDefaults, AreNoneWithoutAFileAClassOrSense) {
  EXPECT_FALSE(Load());
  EXPECT_FALSE(Load("Unknown"));
  folder.Write("Device.ini",
               "[Default]\n__ZAF__DynAvailTime.TYPE=8\n__ZAF__DynAvailTime.Value=soon\n");
  EXPECT_TRUE(Load());
  database->WriteObject(Read("__ZAF__DynAvailTime"));
  EXPECT_EQ(database->DynAvailTime(), 10);
  EXPECT_EQ(NumberOfFailure([&] { database->Invoke("Unknown", {}); }), ErrorNumber::MemberNotFound);
}
