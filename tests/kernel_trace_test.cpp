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
  // "+<level> <operation> " and "-<exit text> " of every level.
  std::string Levels() {
    std::string levels;
    const std::size_t prefix = std::string_view("IDDKernel_").size();
    for (const std::string& call : Calls()) {
      if (call.starts_with("Add ")) {
        levels += "+" + call.substr(4, 2) + call.substr(8 + prefix) + " ";
      } else if (call.starts_with("Release ")) {
        levels += "-" + call.substr(12 + prefix) + " ";
      }
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
  EXPECT_EQ(Levels(),
            "+1 ReadVariable "
            "+2 GetVariable -GetVariable: Exit(1) "
            "+2 FindReadCommand +3 GetCommand -GetCommand: Exit(1) -FindReadCommand: Exit(1) "
            "+2 ExecuteCommand "
            "+3 GetVariable -GetVariable: Exit(1) "
            "+3 ExecutePreReads +4 ExecuteActions -ExecuteActions: Exit(1) "
            "-ExecutePreReads: Exit(1) "
            "+3 ExecutePostReads +4 ExecuteActions -ExecuteActions: Exit(1) "
            "-ExecutePostReads: Exit(1) "
            "+3 WriteVariable +4 GetVariable -GetVariable: Exit(2) "
            "+4 ExecuteRelations -ExecuteRelation: Exit(1) -WriteVariable: Exit(2) "
            "+3 GetVariable -GetVariable: Exit(2) -ExecuteCommand: Exit(2) "
            "+2 GetVariable -GetVariable: Exit(1) -ReadVariable: Exit(3) ");
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
  for (const char c : Levels()) {
    open += c == '+' ? 1 : c == '-' ? -1 : 0;
    ASSERT_GE(open, 0);
  }
  EXPECT_EQ(open, 0);
}

}  // namespace
