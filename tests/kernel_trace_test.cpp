// Whole operations as an external tracer sees them, and trace levels of operations that fail.

#include "support/KernelTest.h"

namespace {

using namespace test_support;
using testing::ElementsAre;

class KernelTrace : public KernelTest {
 protected:
  KernelTrace() {
    AddVariable("a");
    AddCommand("read", 3, Operation::Read, {}, {Ref("a")});
    AddCommand("write", 6, Operation::Write, {Ref("a")}, {Ref("a")});
    comm->memory = {{"a", std::int16_t{11}}};
  }
  // The calls without breaks; the nested levels as names only, each exit on its own line.
  std::vector<std::string> Calls() {
    std::vector<std::string> calls;
    for (const std::string& call : tracer->TakeCalls()) {
      if (call.find("Break ") == std::string::npos) calls.push_back(call);
    }
    return calls;
  }
  // "+<level> <operation>" and "-<exit text>" of every level.
  std::vector<std::string> Levels() {
    std::vector<std::string> levels;
    for (const std::string& call : Calls()) {
      if (call.starts_with("Add ")) levels.push_back("+" + call.substr(4, 1) + call.substr(7));
      if (call.starts_with("Release ")) levels.push_back("-" + call.substr(12));
    }
    return levels;
  }
};

TEST_F(KernelTrace, AGetterTellsItsInputProgressAndResult) {
  Start();
  SetClean("a", std::int16_t{7});
  TraceAll();
  kernel->GetVariable(Var("a"));
  EXPECT_THAT(Calls(), ElementsAre("Add 1 [ IDDKernel_GetVariable", "Stack 1 > Def: VARIABLE a",
                                   "Text 1 VARIABLE a calculated",
                                   "Text 2 VARIABLE a=VARIABLE a Value=7 available",
                                   "Stack 1 <Result: VARIABLE a Value=7 available",
                                   "Release 1 ] IDDKernel_GetVariable: Exit(2)"));
  tracer->callBack->SetTraceLevelFilter(1);
  kernel->GetVariable(Var("a"));
  EXPECT_THAT(Calls(), ElementsAre("Add 1 [ IDDKernel_GetVariable", "Stack 1 > Def: VARIABLE a",
                                   "Stack 1 <Result: VARIABLE a Value=7 available",
                                   "Release 1 ] IDDKernel_GetVariable: Exit(1)"));
}

TEST_F(KernelTrace, AReadTellsEveryLevel) {
  Start();
  TraceAll();
  kernel->GetVariable(Var("a"));
  kernel->GetCommand(Cmd("read"));
  tracer->calls.clear();
  kernel->ReadVariable(Var("a"));
  EXPECT_THAT(
      Levels(),
      ElementsAre("+1 IDDKernel_ReadVariable",                                             //
                  "+2 IDDKernel_GetVariable", "-IDDKernel_GetVariable: Exit(1)",           //
                  "+2 IDDKernel_FindReadCommand",                                          //
                  "+3 IDDKernel_GetCommand", "-IDDKernel_GetCommand: Exit(1)",             //
                  "-IDDKernel_FindReadCommand: Exit(1)",                                   //
                  "+2 IDDKernel_ExecuteCommand",                                           //
                  "+3 IDDKernel_GetVariable", "-IDDKernel_GetVariable: Exit(1)",           //
                  "+3 IDDKernel_ExecutePreReads",                                          //
                  "+4 IDDKernel_ExecuteActions", "-IDDKernel_ExecuteActions: Exit(1)",     //
                  "-IDDKernel_ExecutePreReads: Exit(1)",                                   //
                  "+3 IDDKernel_ExecutePostReads",                                         //
                  "+4 IDDKernel_ExecuteActions", "-IDDKernel_ExecuteActions: Exit(1)",     //
                  "-IDDKernel_ExecutePostReads: Exit(1)",                                  //
                  "+3 IDDKernel_WriteVariable",                                            //
                  "+4 IDDKernel_GetVariable", "-IDDKernel_GetVariable: Exit(2)",           //
                  "+4 IDDKernel_ExecuteRelations", "-IDDKernel_ExecuteRelation: Exit(1)",  //
                  "-IDDKernel_WriteVariable: Exit(2)",                                     //
                  "+3 IDDKernel_GetVariable", "-IDDKernel_GetVariable: Exit(2)",           //
                  "-IDDKernel_ExecuteCommand: Exit(2)",                                    //
                  "+2 IDDKernel_GetVariable", "-IDDKernel_GetVariable: Exit(1)",           //
                  "-IDDKernel_ReadVariable: Exit(3)"));
}

TEST_F(KernelTrace, AWriteTellsItsInputsAndTexts) {
  Start();
  SetClean("a", std::int16_t{1});
  tracer->callBack->SetTraceLevelFilter(2);
  kernel->WriteVariable(Var("a"), std::int16_t{9});
  std::vector<std::string> calls = Calls();
  std::erase_if(calls, [](const std::string& call) {
    return call.find("__ZAF__") != std::string::npos ||
           call.find("COMMAND read") != std::string::npos ||
           call.find("calculated") != std::string::npos ||
           call.find("a=VARIABLE") != std::string::npos || call.find("ResponseCode") == 0;
  });
  EXPECT_THAT(
      calls,
      ElementsAre("Add 1 [ IDDKernel_WriteVariable", "Stack 1 > Def: VARIABLE a",
                  "Stack 1 > Val: 9", "Text 2 COMMAND write=COMMAND write Number=6 Operation=1",
                  "Text 1 COMMAND write completed",
                  "Text 2 COMMAND write Result:TRANSACTION 0 REQUEST(a=9) REPLY(CONSTANT=0, "
                  "CONSTANT=0, a=9)",
                  "Text 1 Write VARIABLE a Completed",
                  "Text 2 VARIABLE a:VARIABLE a Value=9 available",
                  "Release 1 ] IDDKernel_WriteVariable: Exit(2)"));
}

TEST_F(KernelTrace, InputsThatAreAbsentAndOddExitsAreWorded) {
  model->Add<UnitRelation>("u");
  Start();
  TraceAll();
  kernel->FindReadCommand(Var("x"));
  kernel->ExecuteUnit(Def("u", ObjectKind::UnitRelation), {});
  const auto array = MakeObject<ItemArray>("array");
  kernel->ReadArrayElement(array, std::int16_t{1});
  const auto calls = Calls();
  for (const char* line :
       {"Stack 1 > Prev = Nothing", "Stack 1 <Result = Nothing ",
        "Release 1 ] IDDKernel_FindReadCommand: Exit(2)", "Stack 1 > Def: UNIT u",
        "Release 1 ] IDDKernel_ExecuteUnit: Exit(2)", "Stack 1 > Idx: 1",
        "Stack 1 <Result = Nothing", "Release 1 ] IDDKernel_ReadArrayElement: Exit(2)"}) {
    EXPECT_THAT(calls, testing::Contains(line));
  }
  EXPECT_THAT(calls, testing::Not(testing::Contains(testing::HasSubstr("> Context"))));
}

TEST_F(KernelTrace, EveryLevelIsReleasedOnceOnEveryNormalWayOut) {
  AddVariable("invalid").SetValidity(false);
  AddVariable("lonely");
  model->OnCompute<Variable>("lonely",
                             [](IDDKernel& k, Variable&) { k.GetVariable(Var("lonely")); });
  Start();
  TraceAll();
  const auto before = gui->StackInformation()->Count();
  kernel->ReadVariable(Var("invalid"));
  kernel->AsyncReadVariable(Var("invalid"));
  kernel->ReadVariable(Var("lonely"));
  kernel->WriteVariable(Var("lonely"), std::int16_t{1});
  kernel->WriteVariable(Var("a"), std::int16_t{100});
  comm->whileWaiting = [&] { kernel->ReadVariable(Var("a")); };
  kernel->ReadVariable(Var("a"));
  EXPECT_EQ(gui->StackInformation()->Count(), before);
  int open = 0;
  for (const std::string& level : Levels()) {
    open += level.starts_with("+") ? 1 : -1;
    ASSERT_GE(open, 0);
  }
  EXPECT_EQ(open, 0);
}

TEST_F(KernelTrace, AFailedOperationLeavesItsTextsForTheErrorReport) {
  model->OnCompute<Variable>("a", [](IDDKernel&, Variable&) {
    throw Failure(ErrorNumber::TypeMismatch, "model", "broken");
  });
  Start();
  EXPECT_THROW(kernel->ReadVariable(Var("a")), Failure);
  EXPECT_EQ(gui->StackInformation()->Text(),
            "\r\n[ IDDKernel_ReadVariable\r\n> Def: VARIABLE a\r\n[ IDDKernel_GetVariable\r\n"
            "> Def: VARIABLE a\r\n");
}

}  // namespace
