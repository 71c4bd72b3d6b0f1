// Reading and writing variables, and the execution of the commands that do it.

#include "support/KernelTest.h"

namespace {

using namespace test_support;
using testing::ElementsAre;
using testing::IsEmpty;

// Command 3 reads a and b, command 6 writes both, commands 0 and 1 read c; d has no command, "own"
// is the library's.
class KernelReadWrite : public KernelTest {
 protected:
  KernelReadWrite() {
    for (const char* name : {"a", "b", "c", "d"}) AddVariable(name);
    AddVariable("own").EditAttributes().SetFlag(VariableFlag::LibraryHeld, true);
    AddCommand("identify", 0, Operation::Read, {}, {Ref("c")});
    AddCommand("read_c", 1, Operation::Read, {}, {Ref("c"), Ref("b")});
    AddCommand("read", 3, Operation::Read, {}, {Ref("a"), Ref("b")});
    AddCommand("write", 6, Operation::Write, {Ref("a"), Ref("b")}, {Ref("a")});
    comm->memory = {{"a", std::int16_t{11}}, {"b", std::int16_t{12}}, {"c", std::int16_t{13}}};
  }
};

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
  try {
    kernel->AsyncReadVariable(Var("d"));
    FAIL();
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Number(), ErrorNumber::Unexpected);
    EXPECT_EQ(failure.Description(), "impossible to read variable from device");
  }
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

TEST_F(KernelReadWrite, AsyncReadTakesCommandZeroAsTheLastResort) {
  AddVariable("e");
  AddCommand("identify2", 0, Operation::Read, {}, {Ref("e")});
  Start();
  EXPECT_EQ(kernel->AsyncReadVariableEx(Var("e"))->Command()->Number(), 0);
}

TEST_F(KernelReadWrite, ReadsTheUnitFirst) {
  AddVariable("unit");
  AddCommand("read_unit", 4, Operation::Read, {}, {Ref("unit")});
  comm->memory["unit"] = std::int16_t{5};
  auto& relation = model->Add<UnitRelation>("r");
  relation.SetUnitVariable(Var("unit"));
  relation.DependentItems().Add(Var("a"));
  Start();
  EXPECT_EQ(kernel->ReadVariable(Var("a"))->UnitText(), "5");
  EXPECT_THAT(comm->TakeSent(), ElementsAre("4()", "3()"));
}

TEST_F(KernelReadWrite, WritesToTheDeviceAndMarksTheDataSetModified) {
  Start();
  SetClean("b", std::int16_t{2});
  kernel->WriteVariable(Var("a"), std::int16_t{9});
  EXPECT_THAT(comm->TakeSent(), ElementsAre("6(a=9, b=2)"));
  EXPECT_EQ(comm->memory["a"], std::int16_t{9});
  EXPECT_EQ(Value("a"), 9);
  EXPECT_FALSE(Stored("a")->ToBeWritten());
  EXPECT_EQ(Value("__ZAF__DATASETSTATE"), 1);
  EXPECT_THAT(TakeErrors(), ElementsAre("response 0"));
}

TEST_F(KernelReadWrite, WritesOnceInSynchronousMode) {
  Start();
  SetClean("b", std::int16_t{2});
  database->SetSynchronousMode(true);
  kernel->WriteVariable(Var("a"), std::int16_t{9});
  EXPECT_EQ(comm->TakeSent().size(), 1U);
  database->WriteValue(Var("a"), std::int16_t{10});
  EXPECT_THAT(comm->TakeSent(), ElementsAre("6(a=10, b=2)"));
}

TEST_F(KernelReadWrite, BringsAnUnavailableRequestVariableFromTheDeviceFirst) {
  Start();
  kernel->WriteVariable(Var("a"), std::int16_t{9});
  EXPECT_THAT(comm->TakeSent(), ElementsAre("1()", "6(a=9, b=12)"));
}

TEST_F(KernelReadWrite, WritesALibraryHeldVariableLocallyAndRunsItsRelations) {
  auto& relation = model->Add<RefreshRelation>("r");
  relation.TriggerItems().Add(Var("own"));
  relation.RefreshItems().Add(Var("a"));
  Start();
  kernel->ReadVariable(Var("a"));
  comm->sent.clear();
  kernel->WriteVariable(Var("own"), std::int16_t{3});
  EXPECT_THAT(comm->TakeSent(), IsEmpty());
  EXPECT_EQ(Value("own"), 3);
  EXPECT_FALSE(Stored("a")->Available());
  EXPECT_EQ(Value("__ZAF__DATASETSTATE"), 1);
}

TEST_F(KernelReadWrite, LeavesTheDataSetStateAloneForInternalVariables) {
  Start();
  Set("__ZAF__DATASETSTATE", std::int32_t{0});
  kernel->WriteVariable(Var("__ZAF__OnlineMode"), std::int16_t{1});
  EXPECT_EQ(Value("__ZAF__OnlineMode"), 1);
  EXPECT_EQ(Value("__ZAF__DATASETSTATE"), 0);
}

TEST_F(KernelReadWrite, RefusesValuesAndReportsMissingWriteCommands) {
  Start();
  SetClean("a", std::int16_t{1});
  Set("a", std::int16_t{2});
  kernel->WriteVariable(Var("a"), std::int16_t{100});
  EXPECT_EQ(Value("a"), 2);
  EXPECT_FALSE(Stored("a")->ToBeWritten());
  kernel->WriteVariable(Var("d"), std::int16_t{5});
  EXPECT_EQ(Value("d"), 5) << "kept locally";
  EXPECT_FALSE(Stored("d")->ToBeWritten());
  EXPECT_THAT(TakeErrors(), ElementsAre("a 5", "d 4"));
}

TEST_F(KernelReadWrite, ReadsBackAfterAResponseCodeAndGivesUpTheWholeRequest) {
  Start();
  SetClean("b", std::int16_t{2});
  Set("b", std::int16_t{22});
  comm->firstBytes = {7};
  kernel->WriteVariable(Var("a"), std::int16_t{9});
  EXPECT_THAT(comm->TakeSent(), ElementsAre("6(a=9, b=22)", "3()"));
  EXPECT_EQ(Value("a"), 11);
  EXPECT_EQ(Value("b"), 12) << "read back as well";
  EXPECT_FALSE(Stored("b")->ToBeWritten());
  EXPECT_EQ(Value("__ZAF__DATASETSTATE"), 1);
  EXPECT_THAT(TakeErrors(), ElementsAre("response 7"));
}

TEST_F(KernelReadWrite, TakesAWriteWithoutReplyForACommunicationError) {
  Start();
  SetClean("b", std::int16_t{2});
  Set("__ZAF__DATASETSTATE", std::int32_t{0});
  comm->replies = false;
  kernel->WriteVariable(Var("a"), std::int16_t{9});
  EXPECT_THAT(TakeErrors(), ElementsAre("a 4"));
  EXPECT_FALSE(Stored("a")->ToBeWritten());
  EXPECT_EQ(Stored("a")->ErrorIndex(), 128);
  EXPECT_EQ(Stored("b")->ErrorIndex(), 4) << "not in the reply";
  EXPECT_TRUE(LastError().starts_with("impossibe to communicate with device"));
  EXPECT_EQ(Value("__ZAF__DATASETSTATE"), 0);
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

TEST_F(KernelReadWrite, KeepsTheMarkOfAValueThatIsNewerThanTheOneSent) {
  Start();
  SetClean("b", std::int16_t{2});
  comm->whileWaiting = [&] { Set("a", std::int16_t{10}); };
  kernel->WriteVariable(Var("a"), std::int16_t{9});
  EXPECT_EQ(Value("a"), 10);
  EXPECT_TRUE(Stored("a")->ToBeWritten());

  comm->replies = false;  // nor does a failed write take it away
  comm->whileWaiting = [&] { Set("a", std::int16_t{30}); };
  kernel->WriteVariable(Var("a"), std::int16_t{20});
  EXPECT_EQ(Value("a"), 30);
  EXPECT_TRUE(Stored("a")->ToBeWritten());
}

TEST_F(KernelReadWrite, PassesAFailedExchangeOnFromAWriteAndSwallowsItInARead) {
  Start();
  SetClean("b", std::int16_t{2});
  comm->failure = ErrorNumber::Unexpected;
  EXPECT_THROW(kernel->WriteVariable(Var("a"), std::int16_t{9}), Failure);
  EXPECT_TRUE(Stored("a")->ToBeWritten());
  EXPECT_NO_THROW(kernel->ReadVariable(Var("c")));
  EXPECT_FALSE(Stored("c")->Available());
  comm->failure = ErrorNumber::Cancelled;  // the user's break ends a read, too
  EXPECT_THROW(kernel->ReadVariable(Var("c")), Failure);
  EXPECT_FALSE(database->IsVariableInReadRecursion(Var("c")));
}

TEST_F(KernelReadWrite, FailsAfterATearDownInAWait) {
  Start();
  comm->whileWaiting = [&] { kernel->SetComponentModel(nullptr); };
  try {
    kernel->ReadVariable(Var("a"));
    FAIL();
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Number(), ErrorNumber::ObjectNotSet);
  }
  EXPECT_FALSE(database->IsVariableInReadRecursion(Var("a")));
}

TEST_F(KernelReadWrite, AReadInAWaitOfTheSameVariableReturnsAtOnce) {
  Start();
  bool available = true;
  comm->whileWaiting = [&] { available = kernel->ReadVariable(Var("a"))->Available(); };
  kernel->ReadVariable(Var("a"));
  EXPECT_FALSE(available);
  EXPECT_THAT(comm->TakeSent(), ElementsAre("3()"));
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

TEST_F(KernelReadWrite, RunsActionsAroundTheExchangeInOrder) {
  for (const char* name : {"pre_r", "post_r", "pre_w", "post_w"}) model->Add<Method>(name);
  auto& a = static_cast<Variable&>(*model->objects[0]);
  const auto action = [&](ActionList list, const char* name) {
    a.EditActions(list).Add(Def(name, ObjectKind::Method));
  };
  action(ActionList::PreRead, "pre_r");
  action(ActionList::PostRead, "post_r");
  action(ActionList::PreWrite, "pre_w");
  action(ActionList::PostWrite, "post_w");
  model->bodies["pre_w"] = [&](IDDKernel&, const auto& context, bool inAbort) {
    EXPECT_EQ(context->ObjectDefinition().Name(), "a");
    EXPECT_FALSE(inAbort);
    SetClean("b", std::int16_t{3});  // bound again before it is sent
  };
  Start();
  kernel->ReadVariable(Var("a"));
  kernel->WriteVariable(Var("a"), std::int16_t{9});
  EXPECT_THAT(model->methodRuns, ElementsAre("pre_r", "post_r", "pre_w", "post_w"));
  EXPECT_THAT(comm->TakeSent(), ElementsAre("3()", "6(a=9, b=3)"));
}

TEST_F(KernelReadWrite, SendsAConvertedValueWhoseUnitIsAboutToBeWritten) {
  AddVariable("unit");
  AddCommand("read_unit", 4, Operation::Read, {}, {Ref("unit")});
  AddCommand("write_pair", 7, Operation::Write, {Ref("unit"), Ref("d")}, {});
  auto& relation = model->Add<UnitRelation>("r");
  relation.SetUnitVariable(Var("unit"));
  relation.DependentItems().Add(Var("d"));
  Start();
  SetClean("unit", std::int16_t{1});
  SetClean("d", std::int16_t{40});
  Set("unit", std::int16_t{2});
  kernel->ExecuteRelations(Var("unit"));
  EXPECT_FALSE(Stored("d")->Available());
  kernel->WriteVariable(Var("unit"), std::int16_t{2});
  EXPECT_THAT(comm->TakeSent(), ElementsAre("7(unit=2, d=40)"));
}

TEST_F(KernelReadWrite, ExecutesTheCommandGivenAndLeavesTheStatusInItsReply) {
  Start();
  const auto command = kernel->GetCommand(Cmd("read"))->CommandCopy();
  comm->firstBytes = {16};
  kernel->ExecuteCommand(command, 0);
  EXPECT_EQ(command->Transactions().Item(0)->Reply().Item(1).Value(), std::int16_t{16});
  comm->replies = false;
  kernel->ExecuteCommand(command, 0);
  EXPECT_EQ(command->Transactions().Item(0)->Reply().Item(1).Value(), std::int16_t{144});
  EXPECT_THROW(kernel->ExecuteCommand(command, 5), Failure);
  EXPECT_THROW(kernel->ExecuteCommand(nullptr, 0), Failure);
  EXPECT_EQ(kernel->GetCommand(Cmd("read"))->Transactions().Item(0)->Reply().Item(3).Variable(),
            nullptr)
      << "the stored command is not bound";
}

TEST_F(KernelReadWrite, ReportsInvalidVariablesOfACommandAndSendsItAllTheSame) {
  model->OnCompute<Variable>("b", [](IDDKernel&, Variable& b) { b.SetValidity(false); });
  Start();
  kernel->WriteVariable(Var("a"), std::int16_t{9});
  EXPECT_EQ(comm->TakeSent().size(), 1U);
  kernel->ReadVariable(Var("c"));
  database->SetVariableAvailable(Var("a"), false);
  kernel->ReadVariable(Var("a"));
  EXPECT_THAT(TakeErrors(), ElementsAre("b 3", "response 0", "b 6"));
}

}  // namespace
