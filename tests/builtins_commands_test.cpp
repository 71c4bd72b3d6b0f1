// Commands that a method sends, and what their status leads to.

#include "support/BuiltinsTest.h"

namespace {

using namespace test_support;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* kInternal = "DTM Internal Error!\r\nCurrent action aborted.\r\n";

class BuiltinCommands : public BuiltinsTest {};

TEST_F(BuiltinCommands, SendTheFirstOrTheNamedTransaction) {
  Start();
  comm->firstBytes = {0, 2, 0x88};
  comm->deviceStatus = 4;
  Run([&](CDDBuiltinLib& lib) {
    ByteBuffer status;
    EXPECT_EQ(lib.Send(7, status), 0);
    EXPECT_EQ(status.Bytes(), (std::vector<std::uint8_t>{0, 0, 4}));
    EXPECT_EQ(lib.SendTrans(7, 5, status), 0);
    EXPECT_EQ(status.Bytes(), (std::vector<std::uint8_t>{2, 0, 4}));
    EXPECT_FALSE(lib.IsAbort());
    EXPECT_EQ(lib.SendCommand(3), 0);
    EXPECT_TRUE(lib.IsAbort());
    // An aborted method's code may go on; the command is sent once.
    EXPECT_EQ(lib.SendCommandTrans(7, 2), 0);
    EXPECT_TRUE(lib.IsAbort());
  });
  EXPECT_THAT(comm->sent, SizeIs(4));
}

TEST_F(BuiltinCommands, NotInTheDescriptionAbortWithAMessage) {
  Start();
  Run([&](CDDBuiltinLib& lib) {
    lib.AddAbortMethod("release");
    EXPECT_EQ(lib.SendCommand(99), -1);
    EXPECT_TRUE(lib.IsAbort());
    EXPECT_TRUE(lib.AbortMethodsList().IsEmpty());
    EXPECT_EQ(lib.SendCommandTrans(3, 9), -1);
    lib.RemoveAbortMethod("release");
  });
  const std::string internal = kInternal;
  EXPECT_THAT(TakeErrors(), ElementsAre(internal + "Command \"99\" not found!",
                                        internal + "Command \"3, Transaction 9\" not found!",
                                        internal + "Method \"release\" not in list!"));
  EXPECT_THAT(comm->sent, IsEmpty());
}

TEST_F(BuiltinCommands, StatusMasksDecide) {
  using Prepare = void (*)(CDDBuiltinLib&);
  const auto nothing = [](CDDBuiltinLib&) {};
  struct {
    Prepare prepare;
    std::uint8_t first, device;
    bool replies, aborts;
    std::size_t sent;
  } const cases[] = {
      {nothing, 0, 0, true, false, 1},
      {nothing, 16, 0, true, true, 1},
      {nothing, 64, 0, true, true, 1},
      {nothing, 32, 0, true, false, 1},
      {nothing, 2, 0, true, false, 1},
      {nothing, 0x81, 0, true, true, 1},
      {nothing, 0, 0x80, true, true, 1},
      {nothing, 0, 0x7F, true, false, 1},
      {nothing, 0, 0, false, true, 1},
      {[](CDDBuiltinLib& lib) { lib.SetNoDevice(StatusHandling::Ignore); }, 0, 0, false, true, 1},
      {[](CDDBuiltinLib& lib) {
         lib.SetNoDevice(StatusHandling::Ignore);
         lib.SetCommStatus(0xFF, StatusHandling::Ignore);
       },
       0, 0, false, false, 1},
      {[](CDDBuiltinLib& lib) { lib.SetAllRespCode(StatusHandling::Ignore); }, 64, 0, true, false,
       1},
      {[](CDDBuiltinLib& lib) { lib.SetRespCode(2, StatusHandling::Abort); }, 2, 0, true, true, 1},
      {[](CDDBuiltinLib& lib) { lib.SetDeviceStatus(0x80, static_cast<StatusHandling>(3)); }, 0,
       0x80, true, true, 1},
      {[](CDDBuiltinLib& lib) {
         lib.SetCommStatus(0xFF, StatusHandling::Retry);
         lib.SETNUMBEROFRETRIES(3);
       },
       0x88, 0, true, false, 4},
      {[](CDDBuiltinLib& lib) { lib.SetDeviceStatus(0x20, StatusHandling::Retry); }, 0, 0x20, true,
       false, 1},
  };
  Start();
  for (const auto& test : cases) {
    SCOPED_TRACE(&test - cases);
    comm->firstBytes.assign(4, test.first);
    comm->deviceStatus = test.device;
    comm->replies = test.replies;
    comm->sent.clear();
    Run([&](CDDBuiltinLib& lib) {
      test.prepare(lib);
      EXPECT_EQ(lib.SendCommand(3), test.replies ? 0 : -3);
      EXPECT_EQ(lib.IsAbort(), test.aborts);
    });
    EXPECT_THAT(comm->sent, SizeIs(test.sent));
  }
}

// What an action sends of its own is not the result of the command that it belongs to.
TEST_F(BuiltinCommands, HaveTheirOwnResult) {
  model->Add<Method>("after");
  model->objects[0]
      ->MakeVariable()
      ->EditActions(ActionList::PostWrite)
      .Add(Def("after", ObjectKind::Method));
  model->bodies["after"] = [this](IDDKernel&, const std::shared_ptr<DDObject>&, bool) {
    comm->replies = true;
    Run([](CDDBuiltinLib& lib) { EXPECT_EQ(lib.SendCommand(7), 0); });
  };
  Start();
  SetClean("a", std::int16_t{3});
  comm->replies = false;
  Run([](CDDBuiltinLib& lib) {
    lib.SetCommStatus(0xFF, StatusHandling::Ignore);
    EXPECT_EQ(lib.SendCommand(6), -3);
    EXPECT_TRUE(lib.IsAbort());
  });
}

// What the device was given stands there: the old value is not shown as if it were the device's.
TEST_F(BuiltinCommands, SendWhatIsReadAgainUnlessItIsSaved) {
  Start();
  kernel->ReadVariable(Var("a"));
  Run([&](CDDBuiltinLib& lib) {
    lib.AssignLong("a", 5);
    EXPECT_EQ(lib.SendCommand(6), 0);
  });
  EXPECT_FALSE(Stored("a")->Available());
  EXPECT_EQ(kernel->ReadVariable(Var("a"))->Value(), Variant(5));
}

TEST_F(BuiltinCommands, FetchTheAdditionalStatusWhenThereIsSome) {
  Start();
  ByteBuffer status, more{9, 9}, info{7, 7, 7};
  Run([&](CDDBuiltinLib& lib) {
    EXPECT_EQ(lib.ExtSendCommand(3, status, more, info), 0);
    EXPECT_EQ(more.Bytes(), (std::vector<std::uint8_t>{0, 0}));
    EXPECT_EQ(info.Bytes(), (std::vector<std::uint8_t>{0, 0, 0}));
    EXPECT_THAT(comm->TakeSent(), SizeIs(1));
    comm->deviceStatus = 0x10;
    comm->lastData = {1, 2};
    EXPECT_EQ(lib.ExtSendCommandTrans(7, 5, status, more, info), 0);
    EXPECT_EQ(more.Bytes(), (std::vector<std::uint8_t>{0, 0, 0x10}));
    EXPECT_EQ(info.Bytes(), (std::vector<std::uint8_t>{1, 2}));
    EXPECT_THAT(comm->TakeSent(), ElementsAre(testing::StartsWith("7"), testing::StartsWith("48")));
    // Here retries that are used up abort.
    lib.SetXmtrDeviceStatus(0x10, StatusHandling::Retry);
    lib.SETNUMBEROFRETRIES(3);
    EXPECT_EQ(lib.GetMoreStatus(more, info), 0);
    EXPECT_THAT(comm->TakeSent(), SizeIs(4));
    EXPECT_TRUE(lib.IsAbort());
  });
  EXPECT_THAT(TakeErrors(), IsEmpty());
}

}  // namespace
