#include <gmock/gmock.h>

#include <algorithm>

#include "support/CommTest.h"
#include "support/FailureOf.h"

// Local completion, the online state, addresses, waiting, and asynchronous execution.
namespace test_support {
namespace {

using support::NumberOfFailure;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct CommWrapperTest : CommTest {
  std::shared_ptr<Variable> pv = MakeVariable("pv", TypeCode::Float, 4, 12.5F);

  std::shared_ptr<CommandRef> NewReference(std::int16_t number) {
    auto command = MakeObject<Command>("async_" + std::to_string(number));
    command->SetNumber(number);
    command->Transactions().Put(MakeTransaction({}, {BoundItem(pv)}));
    return std::make_shared<CommandRef>(command, std::int16_t{0});
  }
  std::ptrdiff_t Finished() {
    return std::ranges::count(Gui().lifeSignals, LifeSignalCode::ExchangeFinished);
  }
};

TEST_F(CommWrapperTest, LocalCompletion) {
  for (const bool byEmulation : {true, false}) {
    Execute({}, {BoundItem(pv)}, "8810");
    EXPECT_THAT(comm->LastData(), IsEmpty());
    comm->SetEmulate(byEmulation);
    comm->SetUseHartEmulator(byEmulation);
    pv->SetAvailable(false);
    pv->SetErrorIndex(5);
    pv->SetErrorText("old");
    link->requests.clear();
    EXPECT_FALSE(comm->ExecuteCommand(3, transaction));
    EXPECT_THAT(link->requests, IsEmpty());
    EXPECT_EQ(pv->Value(), Variant(12.5F));
    EXPECT_TRUE(pv->Available());
    EXPECT_EQ(pv->ErrorIndex(), 0);
    EXPECT_EQ(pv->ErrorText(), "");
    EXPECT_EQ(Status() + std::to_string(comm->LastResult()), "0000000");
    EXPECT_EQ(transaction->Reply().Item(1).Value(), Variant(0));
    EXPECT_EQ(Stored("__ZAF__OnlineMode"), Variant(byEmulation ? 0 : 1));
    EXPECT_EQ(Stored("__ZAF__OnlineMode").Type(), VariantType::Int16);
    EXPECT_EQ(Stored("__ZAF__DTMOnlineState"), Variant(byEmulation ? 0 : 100));
    comm->SetEmulate(false);
    comm->SetUseHartEmulator(true);
  }
}

struct AddressTest : CommWrapperTest {
  AddressTest() { comm->SetAddressInformation(0, "", ""); }
  std::string Address() {
    std::int32_t polling = -1;
    std::string tag;
    std::string longAddress;
    comm->GetAddressInformation(polling, tag, longAddress);
    return std::to_string(polling) + "/" + tag + "/" + longAddress;
  }
  void AddIdentity() {
    AddCommand("read_unique_identifier", 0, {}, MakeTransaction({}, {})->Reply());
    Add(MakeVariable("response_code", TypeCode::Enumerated, 1));
    Add(MakeVariable("device_status", TypeCode::BitEnumerated, 1));
  }
  void AddAddressVariables() {
    Add(MakeVariable("polling_address", TypeCode::Unsigned, 1, std::int32_t{5}));
    Add(MakeVariable("tag", TypeCode::PackedAscii, 8, "PT 101"));
  }
};

TEST_F(AddressTest, InitializeBuildsTheConnectionMenu) {
  AddAddressVariables();
  Add(MakeObject<Menu>("__ZAF__connection_menu"));
  comm->Initialize();
  const auto menu =
      database->ReadObject(Definition::Define("__ZAF__connection_menu", ObjectKind::Menu))
          ->MakeMenu();
  EXPECT_EQ(menu->Label(), ResText(1500));
  std::vector<std::string> items;
  for (const MenuItem& item : menu->Items()) items.push_back(item.Definition().Name());
  EXPECT_THAT(items, ElementsAre("tag", "polling_address", "__ZAF__DynAvailTime"));
  EXPECT_EQ(Stored("__ZAF__DTMOnlineState"), Variant(100));
  comm->SetEmulate(true);
  EXPECT_EQ(Address(), "5/PT 101/");
  comm->SetAddressInformation(7, "NEW", "A1");
  EXPECT_EQ(Address(), "7/NEW/A1");
  EXPECT_EQ(Stored("tag"), Variant("NEW"));
  const auto tag = database->ReadObject(Definition::Define("tag", ObjectKind::Variable));
  EXPECT_FALSE(tag->MakeVariable()->ToBeWritten());
}

TEST_F(AddressTest, InitializeFindsTheVariablesOfCommands6And13) {
  AddCommand("empty", 6, {}, {});
  comm->Initialize();
  EXPECT_THAT(Gui().evaluationErrors, ElementsAre("No variable for HART polling address found!",
                                                  "No variable for HART tag found!"));
  Gui().evaluationErrors.clear();
  NewDatabase();
  const auto item = [](const char* name) {
    return DataItem::Reference(Definition::Define(name, ObjectKind::Variable));
  };
  AddCommand("write_poll", 6, {item("address_x")}, {});
  AddCommand("read_tag", 13, {}, {item("rc"), item("ds"), item("tag_x")});
  Add(MakeVariable("address_x", TypeCode::Unsigned, 1, std::int32_t{9}));
  Add(MakeVariable("tag_x", TypeCode::PackedAscii, 8, "X"));
  comm->Initialize();
  comm->SetEmulate(true);
  EXPECT_EQ(Address(), "9/X/");
  EXPECT_THAT(Gui().evaluationErrors, IsEmpty());
}

TEST_F(AddressTest, Command0TellsTheLongAddress) {
  AddAddressVariables();
  AddIdentity();
  comm->Initialize();
  struct {
    const char* reply;
    const char* longAddress;
  } const cases[] = {
      {"0000FEE606050507010108001234", "2606001234"},  // 14 bytes; the manufacturer's low 6 bits
      {"0000FEE6060505070101080012", ""},              // 13 bytes
      {"000005", "05"},                                // no identity: the polling address
      {"0000", ""},
      {"8800FEE606050507010108001234", ""},  // broken on the way
  };
  for (const auto& test : cases) {
    comm->SetAddressInformation(5, "PT 101", "");
    link->replies = {test.reply};
    EXPECT_EQ(Address(), std::string("5/PT 101/") + test.longAddress) << test.reply;
  }
  // Three replies told nothing.
  EXPECT_THAT(Gui().messages, ElementsAre(ResText(1051), ResText(1051), ResText(1051)));
}

TEST_F(AddressTest, TheFirstCommandLearnsTheLongAddress) {
  AddAddressVariables();
  AddIdentity();
  comm->Initialize();
  link->replies = {"0000", "0000FEE606050507010108001234"};
  link->onExecute = [&] {  // an action of command 0 that sends a command of its own
    if (link->requests.size() == 1) comm->ExecuteCommand(9, MakeTransaction({}, {}));
  };
  EXPECT_TRUE(Execute({}, {}, "0000"));
  EXPECT_THAT(link->requests, ElementsAre("0:", "9:", "3:"));
  EXPECT_EQ(link->last->LongAddress(), "2606001234");
  EXPECT_EQ(link->last->PollAddress(), 5);
  EXPECT_EQ(link->last->Tag(), "PT 101");
  Execute({}, {});
  EXPECT_THAT(link->requests, SizeIs(4));
}

TEST_F(AddressTest, ALongAddressThatCannotBeLearnt) {
  AddIdentity();
  link->replies = {"-"};
  EXPECT_TRUE(Execute({}, {}, "0000"));  // sent all the same
  EXPECT_THAT(link->requests, ElementsAre("0:", "3:"));
  EXPECT_THAT(Gui().messages, ElementsAre(ResText(1051)));
  EXPECT_EQ(comm->LastResult(), 0);
  link->onExecute = [] { throw Failure(ErrorNumber::Unexpected, "Link", "gone"); };
  EXPECT_EQ(Address(), "0//");
  EXPECT_EQ(NumberOfFailure([&] { Execute({}, {}); }), ErrorNumber::Unexpected);
  EXPECT_THAT(Gui().messages, SizeIs(1));
}

TEST_F(CommWrapperTest, AWaitSendsLifeSignalsAndHoldsTheLock) {
  link->latency = platform::Milliseconds{50};
  bool isLocked = false;
  const auto look =
      platform.Loop().StartOnce(platform::Milliseconds{45}, [&] { isLocked = Gui().IsUILocked(); });
  EXPECT_TRUE(Execute({}, {BoundItem(pv)}));
  EXPECT_TRUE(isLocked);
  EXPECT_FALSE(Gui().IsUILocked());
  // After 20, 40, 45 (the timer) and 50 ms.
  EXPECT_THAT(Gui().lifeSignals, SizeIs(4));
  EXPECT_EQ(Gui().lifeSignals.front(), LifeSignalCode::Waiting);
}

TEST_F(CommWrapperTest, CancelEndsTheWait) {
  EXPECT_FALSE(comm->CancelExchange());
  for (const bool ignored : {false, true}) {
    link->latency = platform::Milliseconds{1000};
    link->ignoresCancel = ignored;
    const auto user = platform.Loop().StartOnce(platform::Milliseconds{30},
                                                [&] { EXPECT_TRUE(comm->CancelExchange()); });
    EXPECT_EQ(NumberOfFailure([&] { Execute({}, {BoundItem(pv)}); }), ErrorNumber::Cancelled);
    EXPECT_FALSE(Gui().IsUILocked());
    EXPECT_FALSE(pv->Available());
    EXPECT_FALSE(comm->CancelExchange());
  }
}

TEST_F(CommWrapperTest, TearDownInTheWaitEndsTheOperation) {
  link->latency = platform::Milliseconds{1000};
  const auto host = platform.Loop().StartOnce(platform::Milliseconds{30}, [&] {
    comm->SetComponentModel(nullptr);
    components->comm.reset();
    comm.reset();
  });
  const auto waiting = comm.get();
  transaction = MakeTransaction({}, {BoundItem(pv)});
  EXPECT_EQ(NumberOfFailure([&] { waiting->ExecuteCommand(3, transaction); }),
            ErrorNumber::ObjectNotSet);
  EXPECT_EQ(link->cancels, 1);
  EXPECT_FALSE(pv->Available());
}

TEST_F(CommWrapperTest, ACommandInTheWaitOfAnother) {
  link->latency = platform::Milliseconds{50};
  const auto inner = MakeTransaction({}, {});
  bool innerDone = false;
  const auto timer = platform.Loop().StartOnce(platform::Milliseconds{10}, [&] {
    link->replies = {"000041480000", "-"};  // the outer exchange ends first
    EXPECT_FALSE(comm->ExecuteCommand(9, inner));
    innerDone = true;
  });
  pv->SetValue(1.0F);
  EXPECT_TRUE(Execute({}, {BoundItem(pv)}));
  EXPECT_TRUE(innerDone);
  EXPECT_EQ(comm->LastResult(), 0);
  EXPECT_EQ(pv->Value(), Variant(12.5F));
  EXPECT_EQ(Status(), "000000");
}

TEST_F(CommWrapperTest, AsynchronousExchangesCompleteOnePerTickInOrder) {
  const auto first = NewReference(1);
  const auto second = NewReference(2);
  link->replies = {"000041480000", "-"};
  EXPECT_FALSE(comm->AsyncExecuteCommand(first));
  EXPECT_FALSE(comm->AsyncExecuteCommand(second));
  EXPECT_THAT(kernel->ended, IsEmpty());
  Advance(10);
  EXPECT_THAT(kernel->ended, ElementsAre(first));
  EXPECT_TRUE(first->ReferredTransaction()->Completed());
  EXPECT_EQ(Finished(), 1);
  Advance(10);
  EXPECT_THAT(kernel->ended, ElementsAre(first, second));
  EXPECT_FALSE(second->ReferredTransaction()->Completed());
  EXPECT_EQ(comm->LastResult(), -3);
  EXPECT_EQ(comm->LastCommandNumber(), 2);
  EXPECT_FALSE(comm->Asynchronizer().TimerEnabled());
}

TEST_F(CommWrapperTest, AsynchronousLocalCompletion) {
  Execute({}, {}, "-");
  comm->SetEmulate(true);
  comm->AsyncExecuteCommand(NewReference(1));
  EXPECT_FALSE(pv->Available());
  Advance(10);
  EXPECT_TRUE(pv->Available());
  EXPECT_EQ(Status() + std::to_string(comm->LastResult()), "0000000");
  EXPECT_EQ(Finished(), 1);
}

TEST_F(CommWrapperTest, AsynchronousFailures) {
  kernel->fails = true;
  comm->AsyncExecuteCommand(NewReference(1));
  Advance(10);
  EXPECT_EQ(Finished(), 1);  // signalled all the same
  // Without a window the completion runs at once, and the failure reaches the link's event.
  comm->Asynchronizer().SetCanBeShown(false);
  EXPECT_EQ(NumberOfFailure([&] { comm->AsyncExecuteCommand(NewReference(2)); }),
            ErrorNumber::Unexpected);
  EXPECT_EQ(Finished(), 2);
  // A start that fails leaves nothing behind.
  comm->Asynchronizer().SetCanBeShown(true);
  kernel->ended.clear();
  link->onExecute = [&] {
    link->last->Finish(ExchangeState::NoReply, ExchangeResult::None);
    throw Failure(ErrorNumber::Unexpected, "Link", "gone");
  };
  EXPECT_EQ(NumberOfFailure([&] { comm->AsyncExecuteCommand(NewReference(3)); }),
            ErrorNumber::Unexpected);
  EXPECT_EQ(NumberOfFailure([&] { comm->AsyncExecuteCommand(nullptr); }),
            ErrorNumber::InvalidArgument);
  Advance(10);
  EXPECT_THAT(kernel->ended, IsEmpty());
}

TEST_F(CommWrapperTest, TearDownEndsAsynchronousExchanges) {
  link->latency = platform::Milliseconds{30};
  comm->AsyncExecuteCommand(NewReference(1));
  comm->SetComponentModel(nullptr);
  EXPECT_EQ(link->cancels, 1);
  Advance(100);
  EXPECT_THAT(kernel->ended, IsEmpty());
  EXPECT_EQ(Finished(), 0);
}

}  // namespace
}  // namespace test_support
