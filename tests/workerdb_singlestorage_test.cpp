// The pair of an offline and an online data set.

#include "support/WorkerDbFixture.h"
#include "workerdb/CDDSiStorManager.h"

namespace {

using namespace test_support;
using testing::ElementsAre;
using testing::IsEmpty;
using ZAFHartLib::CDDSiStorManager;

constexpr const char* kShared = "xZAFsingleStorage_Retries";
constexpr const char* kOwn = "xzafsinglestorage_other";

class SingleStorage : public WorkerDbFixture {
 protected:
  SingleStorage() {
    online->Use(onlineDatabase);
    for (const char* name : {kShared, kOwn, "plain"}) {
      AddVariable(name);
      auto variable = std::make_shared<Variable>(name);
      variable->EditTypeInfo().SetTypeCode(TypeCode::Float);
      onlineDatabase->AddObject(variable);
    }
  }
  Variant Online(const char* name) {
    return onlineDatabase->ReadObject(VariableNamed(name))->MakeVariable()->Value();
  }
  StubGui& OnlineGui() { return static_cast<StubGui&>(*online->gui); }
  StubKernel& OnlineKernel() { return static_cast<StubKernel&>(*online->kernel); }

  std::shared_ptr<StubComponents> online = StubComponents::Create();
  std::shared_ptr<ZAFHartLib::CDDWorkerDB> onlineDatabase =
      std::make_shared<ZAFHartLib::CDDWorkerDB>();
};

TEST_F(SingleStorage, SharesOneValueInBothDirections) {
  const auto pair = CDDSiStorManager::Pair(components, online);
  OnlineGui().shown.clear();
  for (const char* name : {kShared, kOwn, "plain"}) Write(name, 2.5);
  EXPECT_EQ(Online(kShared), Variant(2.5));
  EXPECT_TRUE(Online(kOwn).IsEmpty());
  EXPECT_TRUE(Online("plain").IsEmpty());
  EXPECT_THAT(OnlineGui().shown, ElementsAre(kShared));

  gui->shown.clear();
  onlineDatabase->WriteValue(VariableNamed(kShared), 4.0);
  EXPECT_EQ(Read(kShared)->Value(), Variant(4.0));
  EXPECT_TRUE(Read(kShared)->Available());
  EXPECT_THAT(gui->shown, ElementsAre(kShared));  // once: it does not come back

  pair->Part();
  Write(kShared, 1.0);
  EXPECT_EQ(Online(kShared), Variant(4.0));
  EXPECT_EQ(database->GetStorageMode(), StorageMode::NotPaired);
  EXPECT_FALSE(pair->IsSingleStorageObject(VariableNamed(kShared)));
}

TEST_F(SingleStorage, UploadsIntoTheOfflineDataSet) {
  const auto pair = CDDSiStorManager::Pair(components, online);
  pair->UploadVariableValue(VariableNamed("plain"), 7.0);
  pair->UploadVariableValue(VariableNamed(kShared), 8.0);
  pair->UploadVariableValue(VariableNamed("unknown"), 9.0);
  EXPECT_EQ(Read("plain")->Value(), Variant(7.0));
  EXPECT_TRUE(Online("plain").IsEmpty());
  EXPECT_EQ(Online(kShared), Variant(8.0));
}

TEST_F(SingleStorage, WritesThroughTheKernelOfTheDataSet) {
  const auto pair = CDDSiStorManager::Pair(components, online);
  for (const std::int32_t mode : {0, 1, 2, -1}) {
    pair->WriteVariableValue(static_cast<StorageMode>(mode), VariableNamed("plain"), mode);
  }
  EXPECT_THAT(kernel->calls, ElementsAre("WriteVariable plain 0"));
  EXPECT_THAT(OnlineKernel().calls, ElementsAre("WriteVariable plain 1"));
}

TEST_F(SingleStorage, OutlivesItsDataSets) {
  const auto pair = CDDSiStorManager::Pair(components, online);
  online.reset();
  onlineDatabase.reset();
  Write(kShared, 2.5);
  EXPECT_EQ(NumberOfFailure([&] { CDDSiStorManager::Pair(components, nullptr); }),
            ErrorNumber::InvalidArgument);
  EXPECT_EQ(database->GetSingleStorage(), pair);
}

}  // namespace
