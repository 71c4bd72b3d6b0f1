// Writing variables, and the execution of the commands that do it.

#include "support/KernelTest.h"

namespace {

using namespace test_support;
using testing::ElementsAre;
using testing::IsEmpty;

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

  Set("__ZAF__DATASETSTATE", std::int32_t{0});  // which internal variables leave alone
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
