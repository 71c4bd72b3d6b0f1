// The kernel that traps failures.

#include "components/CSecureKernel.h"
#include "support/WorkerDbFixture.h"
#include "trace/CEmptyErrorHandler.h"

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

// Every operation fails with its own name as the source.
class FailingKernel : public StubKernel, public IDDKernel2 {
 public:
  ErrorNumber number = ErrorNumber::InvalidProcedureCall;

  [[noreturn]] void Fail(const char* operation) const { throw Failure(number, operation, "D"); }
  void SetDataModel(Ptr<IDDDataModel>) override { Fail(__func__); }
  Ptr<IDDDataModel> DataModel() const override { Fail(__func__); }
  void InitializeDB(const std::string&) override { Fail(__func__); }
  DefinitionList Commands() const override { Fail(__func__); }
  Ptr<Variable> GetVariable(const Definition&) override { Fail(__func__); }
  Ptr<Command> GetCommand(const Definition&) override { Fail(__func__); }
  Ptr<Menu> GetMenu(const Definition&) override { Fail(__func__); }
  Ptr<EditDisplay> GetEditDisplay(const Definition&) override { Fail(__func__); }
  Ptr<Method> GetMethod(const Definition&) override { Fail(__func__); }
  Ptr<WriteAsOne> GetWriteAsOne(const Definition&) override { Fail(__func__); }
  Ptr<ItemArray> GetArray(const Definition&) override { Fail(__func__); }
  Ptr<ItemCollection> GetCollection(const Definition&) override { Fail(__func__); }
  bool GetVariableValidity(const Definition&) override { Fail(__func__); }
  bool GetMethodValidity(const Definition&) override { Fail(__func__); }
  Ptr<Variable> CalculateVariableType(const Definition&) override { Fail(__func__); }
  Ptr<Command> GetSafeCommand(const Definition&) override { Fail(__func__); }
  Ptr<Variable> ReadVariable(const Definition&) override { Fail(__func__); }
  void AsyncReadVariable(const Definition&) override { Fail(__func__); }
  void WriteVariable(const Definition&, const Variant&) override { Fail(__func__); }
  Ptr<CommandRef> FindReadCommand(const Definition&, const Ptr<CommandRef>&) override {
    Fail(__func__);
  }
  Ptr<CommandRef> FindWriteCommand(const Definition&) override { Fail(__func__); }
  void ExecuteCommand(const Ptr<Command>&, std::int16_t) override { Fail(__func__); }
  void AsyncExecuteCommandStart(const Ptr<CommandRef>&) override { Fail(__func__); }
  void AsyncExecuteCommandEnd(const Ptr<CommandRef>&) override { Fail(__func__); }
  void ExecutePreReads(DataItemList&) override { Fail(__func__); }
  void ExecutePostReads(DataItemList&) override { Fail(__func__); }
  void ExecutePreWrites(DataItemList&) override { Fail(__func__); }
  void ExecutePostWrites(DataItemList&) override { Fail(__func__); }
  void ExecuteActions(const DefinitionList&, const Ptr<DDObject>&) override { Fail(__func__); }
  void ExecuteRelations(const Definition&) override { Fail(__func__); }
  void ExecuteRefresh(const Definition&, const Definition&) override { Fail(__func__); }
  void ExecuteUnit(const Definition&, const Definition&) override { Fail(__func__); }
  Ptr<WriteAsOne> StartWriteAsOne(const Definition&) override { Fail(__func__); }
  void ExecuteWriteAsOne(Ptr<WriteAsOne>&, Ptr<Variable>&, bool) override { Fail(__func__); }
  void ExecuteMethod(const Definition&, const Ptr<DDObject>&, bool) override { Fail(__func__); }
  Ptr<Menu> StartMenu(const Definition&) override { Fail(__func__); }
  void ExecuteMenu(const Ptr<Menu>&, const Ptr<DDObject>&, bool) override { Fail(__func__); }
  Ptr<EditDisplay> StartEditDisplay(const Definition&) override { Fail(__func__); }
  void ExecuteEditDisplay(const Ptr<EditDisplay>&, const Ptr<DDObject>&, bool) override {
    Fail(__func__);
  }
  Ptr<DDObject> ReadArrayElement(const Ptr<ItemArray>&, const Variant&) override { Fail(__func__); }
  Ptr<DDObject> ReadCollectionMember(const Ptr<ItemCollection>&, const Variant&) override {
    Fail(__func__);
  }
  Ptr<Menu> AsyncStartMenu(const Definition&) override { Fail(__func__); }
  void AsyncExecuteMenu(const Ptr<Menu>&, const Ptr<DDObject>&, bool) override { Fail(__func__); }
};

TEST_F(SecureKernel, HandsOnWhatWorks) {
  EXPECT_EQ(secure->ReadVariable(VariableNamed("a"))->Definition().Name(), "a");
  secure->WriteVariable(VariableNamed("a"), 2.5);
  secure->ExecuteMethod(Definition::Define("m", ObjectKind::Method), nullptr);
  EXPECT_THAT(kernel->calls,
              ElementsAre("ReadVariable a", "WriteVariable a 2.5", "ExecuteMethod m"));
  EXPECT_THAT(gui->evaluationErrors, IsEmpty());
}

TEST_F(SecureKernel, LeavesTheUsersBreakToTheCaller) {
  const auto failing = std::make_shared<FailingKernel>();
  failing->number = ErrorNumber::Cancelled;
  components->kernel = failing;
  EXPECT_EQ(NumberOfFailure([&] { secure->ReadVariable(VariableNamed("a")); }),
            ErrorNumber::Cancelled);
  EXPECT_THAT(gui->evaluationErrors, IsEmpty());
}

// Every member but DataModel: the failure is reported, the flags are cleared, the error handler is
// gone, the answer is empty.
TEST_F(SecureKernel, TrapsEveryMember) {
  const Definition def = VariableNamed("a");
  const Definition command = Definition::Define("command", ObjectKind::Command);
  DataItemList items;
  std::shared_ptr<WriteAsOne> group;
  std::shared_ptr<Variable> variable;
  components->kernelExtension = secure;
  IDDKernel& k = *components->DDKernelExtension();
  auto& k2 = dynamic_cast<IDDKernel2&>(k);
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
      {"AsyncStartMenu", [&] { return !k2.AsyncStartMenu(def); }},
      {"AsyncExecuteMenu", [&] { return k2.AsyncExecuteMenu({}, {}), true; }},
  };
  components->kernel = std::make_shared<FailingKernel>();
  for (const auto& [name, isEmpty] : members) {
    SCOPED_TRACE(name);
    database->SetCommandInRecursion(command, true);
    database->SetVariableInRecursion(def, true);
    database->SetVariableInReadRecursion(def, true);
    gui->SetErrorHandler(std::make_shared<ZAFHartLib::CEmptyErrorHandler>());
    gui->evaluationErrors.clear();
    EXPECT_TRUE(isEmpty());
    EXPECT_THAT(gui->evaluationErrors,
                ElementsAre(std::string("5 : D\r\nin ") + name + "\r\nPlease report this Error!"));
    EXPECT_EQ(gui->ErrorHandler(), nullptr);
    EXPECT_FALSE(database->IsCommandInRecursion(command));
    EXPECT_FALSE(database->IsVariableInRecursion(def));
    EXPECT_FALSE(database->IsVariableInReadRecursion(def));
  }
  EXPECT_EQ(NumberOfFailure([&] { k.DataModel(); }), ErrorNumber::InvalidProcedureCall);
  EXPECT_EQ(NumberOfFailure([&] { k.SetDataModel(nullptr); }), ErrorNumber::InvalidProcedureCall);
  secure->SetComponentModel(nullptr);
  gui->evaluationErrors.clear();
  EXPECT_EQ(secure->GetMenu(def), nullptr);
  EXPECT_THAT(gui->evaluationErrors, IsEmpty());
}

}  // namespace
