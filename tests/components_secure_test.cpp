// The kernel that traps failures.

#include "components/CSecureKernel.h"
#include "support/WorkerDbFixture.h"

namespace {

using namespace test_support;
using testing::ElementsAre;
using testing::IsEmpty;
using ZAFHartLib::CSecureKernel;

class SecureKernel : public WorkerDbFixture {
 protected:
  SecureKernel() {
    AddVariable("a");
    database->AddObject(MakeObject<Command>("command"));
    secure->SetComponentModel(components);
  }
  std::shared_ptr<CSecureKernel> secure = std::make_shared<CSecureKernel>();
};

struct FailingKernel : StubKernel {
  std::shared_ptr<Variable> ReadVariable(const Definition&) override {
    throw Failure(number, "S", "D");
  }
  ErrorNumber number = ErrorNumber::InvalidProcedureCall;
};

TEST_F(SecureKernel, HandsOnWhatWorks) {
  EXPECT_EQ(secure->ReadVariable(VariableNamed("a"))->Definition().Name(), "a");
  secure->WriteVariable(VariableNamed("a"), 2.5);
  secure->ExecuteMethod(Definition::Define("m", ObjectKind::Method), nullptr);
  EXPECT_THAT(kernel->calls,
              ElementsAre("ReadVariable a", "WriteVariable a 2.5", "ExecuteMethod m"));
  EXPECT_THAT(gui->evaluationErrors, IsEmpty());
}

TEST_F(SecureKernel, ReportsAFailureInItsOwnWords) {
  const auto failing = std::make_shared<FailingKernel>();
  components->kernel = failing;
  EXPECT_EQ(secure->ReadVariable(VariableNamed("a")), nullptr);
  EXPECT_THAT(gui->evaluationErrors, ElementsAre("5 : D\r\nin S\r\nPlease report this Error!"));
  // The user's own break is no error.
  failing->number = ErrorNumber::Cancelled;
  EXPECT_EQ(FailureOf([&] { secure->ReadVariable(VariableNamed("a")); }), ErrorNumber::Cancelled);
  EXPECT_THAT(gui->evaluationErrors, testing::SizeIs(1));
}

// Every member but DataModel: the flags are cleared, the error handler is gone, the answer is
// empty.
TEST_F(SecureKernel, TrapsEveryMember) {
  struct Handler : IDDErrorHandler {
    std::int32_t ObjectError(const std::shared_ptr<DDObject>&, ItemIndex) override { return 1; }
    std::int32_t ResponseCodeError(const CommandStatus&,
                                   const std::shared_ptr<CommandRef>&) override {
      return 1;
    }
    std::int32_t EvaluationError(const std::string&) override { return 1; }
  };
  const Definition def = VariableNamed("a");
  const Definition command = Definition::Define("command", ObjectKind::Command);
  DataItemList items;
  std::shared_ptr<WriteAsOne> group;
  std::shared_ptr<Variable> variable;
  CSecureKernel& k = *secure;
  const std::pair<const char*, std::function<bool()>> members[] = {
      {"InitializeDB", [&] { return k.InitializeDB("x"), true; }},
      {"Commands", [&] { return k.Commands().IsEmpty(); }},
      {"GetVariable", [&] { return !k.GetVariable(def); }},
      {"GetCommand", [&] { return !k.GetCommand(def); }},
      {"GetMenu", [&] { return !k.GetMenu(def); }},
      {"GetEditDisplay", [&] { return !k.GetEditDisplay(def); }},
      {"GetMethod", [&] { return !k.GetMethod(def); }},
      {"GetWriteAsOne", [&] { return !k.GetWriteAsOne(def); }},
      {"GetArray", [&] { return !k.GetArray(def); }},
      {"GetCollection", [&] { return !k.GetCollection(def); }},
      {"GetVariableValidity", [&] { return !k.GetVariableValidity(def); }},
      {"GetMethodValidity", [&] { return !k.GetMethodValidity(def); }},
      {"CalculateVariableType", [&] { return !k.CalculateVariableType(def); }},
      {"GetSafeCommand", [&] { return !k.GetSafeCommand(def); }},
      {"ReadVariable", [&] { return !k.ReadVariable(def); }},
      {"AsyncReadVariable", [&] { return k.AsyncReadVariable(def), true; }},
      {"WriteVariable", [&] { return k.WriteVariable(def, 1), true; }},
      {"FindReadCommand", [&] { return !k.FindReadCommand(def); }},
      {"FindWriteCommand", [&] { return !k.FindWriteCommand(def); }},
      {"ExecuteCommand", [&] { return k.ExecuteCommand({}, 0), true; }},
      {"AsyncExecuteCommandStart", [&] { return k.AsyncExecuteCommandStart({}), true; }},
      {"AsyncExecuteCommandEnd", [&] { return k.AsyncExecuteCommandEnd({}), true; }},
      {"ExecutePreReads", [&] { return k.ExecutePreReads(items), true; }},
      {"ExecutePostReads", [&] { return k.ExecutePostReads(items), true; }},
      {"ExecutePreWrites", [&] { return k.ExecutePreWrites(items), true; }},
      {"ExecutePostWrites", [&] { return k.ExecutePostWrites(items), true; }},
      {"ExecuteActions", [&] { return k.ExecuteActions({}, {}), true; }},
      {"ExecuteRelations", [&] { return k.ExecuteRelations(def), true; }},
      {"ExecuteRefresh", [&] { return k.ExecuteRefresh(def, def), true; }},
      {"ExecuteUnit", [&] { return k.ExecuteUnit(def, def), true; }},
      {"StartWriteAsOne", [&] { return !k.StartWriteAsOne(def); }},
      {"ExecuteWriteAsOne", [&] { return k.ExecuteWriteAsOne(group, variable, true), true; }},
      {"ExecuteMethod", [&] { return k.ExecuteMethod(def, {}), true; }},
      {"StartMenu", [&] { return !k.StartMenu(def); }},
      {"ExecuteMenu", [&] { return k.ExecuteMenu({}, {}, true), true; }},
      {"StartEditDisplay", [&] { return !k.StartEditDisplay(def); }},
      {"ExecuteEditDisplay", [&] { return k.ExecuteEditDisplay({}, {}, true), true; }},
      {"ReadArrayElement", [&] { return !k.ReadArrayElement({}, 1); }},
      {"ReadCollectionMember", [&] { return !k.ReadCollectionMember({}, 1); }},
      {"AsyncStartMenu", [&] { return !k.AsyncStartMenu(def); }},
      {"AsyncExecuteMenu", [&] { return k.AsyncExecuteMenu({}, {}), true; }},
  };
  components->kernel = nullptr;
  for (const auto& [name, isEmpty] : members) {
    SCOPED_TRACE(name);
    database->SetCommandInRecursion(command, true);
    database->SetVariableInRecursion(def, true);
    gui->SetErrorHandler(std::make_shared<Handler>());
    gui->evaluationErrors.clear();
    EXPECT_TRUE(isEmpty());
    ASSERT_THAT(gui->evaluationErrors, testing::SizeIs(1));
    EXPECT_THAT(gui->evaluationErrors[0], testing::EndsWith("Please report this Error!"));
    EXPECT_EQ(gui->ErrorHandler(), nullptr);
    EXPECT_FALSE(database->IsCommandInRecursion(command));
    EXPECT_FALSE(database->IsVariableInRecursion(def));
  }
  EXPECT_EQ(FailureOf([&] { secure->DataModel(); }), ErrorNumber::ObjectNotSet);
  EXPECT_EQ(FailureOf([&] { secure->SetDataModel(nullptr); }), ErrorNumber::ObjectNotSet);
  secure->SetComponentModel(nullptr);
  gui->evaluationErrors.clear();
  EXPECT_EQ(secure->GetMenu(def), nullptr);
  EXPECT_THAT(gui->evaluationErrors, IsEmpty());
}

}  // namespace
