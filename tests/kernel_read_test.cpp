// Reading variables, at once and in the background, and what a wait may bring.

#include "support/KernelTest.h"

namespace {

using namespace test_support;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(KernelReadWrite, ReadsFromTheDeviceOnlyWhatItDoesNotKnow) {
  Start();
  EXPECT_EQ(kernel->ReadVariable(Var("a"))->Value(), std::int16_t{11});
  EXPECT_THAT(comm->TakeSent(), ElementsAre("3()"));
  EXPECT_EQ(Value("b"), 12) << "the reply brought it";
  kernel->ReadVariable(Var("a"));
  kernel->ReadVariable(Var("b"));
  EXPECT_THAT(comm->TakeSent(), IsEmpty()) << "available";

  database->SetVariableAvailable(Var("a"), false);
  Set("a", std::int16_t{50});
  database->SetVariableAvailable(Var("a"), false);
  EXPECT_EQ(kernel->ReadVariable(Var("a"))->Value(), std::int16_t{50});
  EXPECT_THAT(comm->TakeSent(), IsEmpty()) << "a pending change";

  database->SetVariableToBeWritten(Var("a"), false);
  comm->emulate = true;
  kernel->ReadVariable(Var("a"));
  EXPECT_THAT(comm->TakeSent(), IsEmpty()) << "emulating";
  EXPECT_FALSE(Stored("a")->InReadRecursion());
}

TEST_F(KernelReadWrite, AReadDoesNotOverwriteAPendingChangeOfAnotherVariable) {
  Start();
  Set("b", std::int16_t{77});
  kernel->ReadVariable(Var("a"));
  EXPECT_EQ(Value("b"), 77);
  EXPECT_TRUE(Stored("b")->ToBeWritten());
  database->SetVariableToBeWritten(Var("b"), false);
  database->SetVariableAvailable(Var("a"), false);
  comm->whileWaiting = [&] { Set("b", std::int16_t{78}); };
  kernel->ReadVariable(Var("a"));
  EXPECT_EQ(Value("b"), 78) << "made while the reply was on its way";
}

TEST_F(KernelReadWrite, GivesAnInvalidVariableItsSubstitute) {
  model->OnCompute<Variable>("a", [](IDDKernel&, Variable& a) {
    a.SetValidity(false);
    a.SetDefaultValue(std::int16_t{42});
  });
  Start();
  EXPECT_EQ(kernel->ReadVariable(Var("a"))->Value(), std::int16_t{42});
  EXPECT_TRUE(Stored("a")->Available());
  kernel->AsyncReadVariable(Var("a"));
  EXPECT_EQ(kernel->AsyncReadVariableEx(Var("a")), nullptr);
  EXPECT_THAT(TakeErrors(), ElementsAre("a 3", "a 3", "a 3"));
  EXPECT_THAT(comm->TakeSent(), IsEmpty());
}

TEST_F(KernelReadWrite, MarksAVariableThatNoCommandReads) {
  Start();
  const auto d = kernel->ReadVariable(Var("d"));
  EXPECT_EQ(d->ErrorIndex(), -1);
  EXPECT_EQ(Stored("d")->ErrorText(), "impossible to read variable from device");
  EXPECT_TRUE(Stored("d")->Available());
  EXPECT_THAT(TakeErrors(), ElementsAre("d 1"));

  database->SetVariableAvailable(Var("d"), false);
  const Failure failure = FailureOf([&] { kernel->AsyncReadVariable(Var("d")); });
  EXPECT_EQ(failure.Number(), ErrorNumber::Unexpected);
  EXPECT_EQ(failure.Description(), "impossible to read variable from device");
  EXPECT_TRUE(Stored("d")->Available());
}

TEST_F(KernelReadWrite, AsyncReadPrefersCommandsFromTwoOnAndThenCommandOne) {
  Start();
  const auto reference = kernel->AsyncReadVariableEx(Var("b"));
  ASSERT_NE(reference, nullptr);
  EXPECT_EQ(reference->Command()->Number(), 3);
  kernel->AsyncReadVariable(Var("c"));
  EXPECT_THAT(comm->TakeSent(), ElementsAre("3()", "1()"));
  EXPECT_FALSE(Stored("b")->Available());
  comm->FinishAsync(*kernel);
  EXPECT_EQ(Value("b"), 12);
  EXPECT_TRUE(Stored("a")->Available());
  EXPECT_EQ(kernel->AsyncReadVariableEx(Var("b")), nullptr) << "available";
}

TEST_F(KernelReadWrite, RecordsWhatTheResponseSaysUntilTheVariableIsWritten) {
  Start();
  comm->firstBytes = {0x90};
  kernel->ReadVariable(Var("a"));
  EXPECT_EQ(Stored("a")->ErrorIndex(), 0x90);
  EXPECT_TRUE(Stored("a")->ErrorText().starts_with("Framing error"));
  EXPECT_TRUE(Stored("a")->Available()) << "not tried again";
  EXPECT_TRUE(LastError().starts_with("Framing error"));
  comm->replies = false;
  kernel->ReadVariable(Var("c"));
  EXPECT_EQ(Stored("c")->ErrorIndex(), 128);
  EXPECT_TRUE(Stored("c")->Available());
  comm->replies = true;
  SetClean("b", std::int16_t{2});
  kernel->WriteVariable(Var("a"), std::int16_t{9});
  EXPECT_EQ(Stored("a")->ErrorText(), "");
  EXPECT_EQ(LastError(), "");
}

TEST_F(KernelReadWrite, LetsAnErrorThatTheWrapperRecordedStand) {
  Start();
  comm->firstBytes = {8, 8};
  kernel->ReadVariable(Var("c"));
  EXPECT_EQ(Stored("c")->ErrorIndex(), 8);
  comm->recordedError = "recorded";
  kernel->ReadVariable(Var("a"));
  EXPECT_EQ(Stored("a")->ErrorIndex(), 99);
  EXPECT_EQ(Stored("a")->ErrorText(), "recorded");
}

TEST_F(KernelReadWrite, FailsAfterATearDownInAWait) {
  Start();
  comm->whileWaiting = [&] { kernel->SetComponentModel(nullptr); };
  EXPECT_EQ(FailureOf([&] { kernel->ReadVariable(Var("a")); }).Number(), ErrorNumber::ObjectNotSet);
  EXPECT_FALSE(database->IsVariableInReadRecursion(Var("a")));
}

TEST_F(KernelReadWrite, ATimerInAWaitIsNotHeldBackByTheCycleThatWaits) {
  bool nested = false;
  model->OnCompute<Variable>("own", [&](IDDKernel& k, Variable&) {
    if (std::exchange(nested, true)) {
      SetClean("b", std::int16_t{2});
      k.WriteVariable(Var("a"), std::int16_t{9});
    } else {
      k.GetVariable(Var("own"));
    }
  });
  Start();
  nested = false;
  comm->whileWaiting = [&] { kernel->ReadVariable(Var("c")); };
  Set("__ZAF__OnlineMode", std::int16_t{1});  // all attributes are stale
  kernel->GetVariable(Var("own"));
  EXPECT_THAT(comm->TakeSent(), ElementsAre("6(a=9, b=2)", "0()"));
}

}  // namespace
