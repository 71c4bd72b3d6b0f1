#include "dtmkit/dtmkit.h"

#include <gmock/gmock.h>

#include "builtins/CDDBuiltinLib.h"
#include "support/ComputingKernel.h"
#include "support/FailureOf.h"
#include "workerdb/CDDWorkerDB.h"

namespace {

using namespace ZAFHartTypes;          // NOLINT(google-build-using-namespace)
using namespace ZAFHartTypes::dtmkit;  // NOLINT(google-build-using-namespace)
using test_support::ComputingKernel;

// A DTM instance on a description.
class Instance {
 public:
  explicit Instance(const Catalogue& catalogue)
      : model(std::make_shared<DataModelBase>(catalogue)) {
    components->kernel = kernel;
    kernel->SetComponentModel(components);
    kernel->SetDataModel(model);
    components->Use(std::make_shared<ZAFHartLib::CDDWorkerDB>());
    model->InitVariables(*components, commands, relations);
    model->InitCommands(*components, commands, relations);
    model->InitMenus(*components, commands, relations);
    model->InitEditDisplays(*components, commands, relations);
    model->InitMethods(*components, commands, relations);
    model->InitRelations(*components, commands, relations);
    model->InitArrays(*components, commands, relations);
    model->InitCollections(*components, commands, relations);
  }
  std::shared_ptr<Variable> Get(const char* name) {
    return kernel->GetVariable(VariableNamed(name));
  }
  std::shared_ptr<DDObject> Stored(const Definition& definition) {
    return components->database->ReadObject(definition);
  }
  void Write(const char* name, const Variant& value) {
    components->database->WriteValue(VariableNamed(name), value);
  }

  std::shared_ptr<test_support::StubComponents> components = test_support::StubComponents::Create();
  std::shared_ptr<ComputingKernel> kernel = std::make_shared<ComputingKernel>();
  std::shared_ptr<DataModelBase> model;
  DefinitionList commands;
  DefinitionList relations;
};

TEST(Catalogue, RefusesWhatContradictsItself) {
  DeviceDescription dd;
  dd.Variable("level").Float();
  dd.Menu("setup");
  const std::pair<std::function<void()>, const char*> cases[] = {
      {[&] { dd.Menu("LEVEL"); }, "\"LEVEL\" twice"},
      {[&] { dd.Variable("slot").Index(1, "nothing"); }, "nothing"},
      {[&] { dd.OnCompute<Variable>("setup", {}); }, "setup"},  // of another kind
      {[&] { dd.Command("read", 9, Operation::Read).Reply({Element("level", "slot")}); }, "level"},
  };
  for (const auto& [action, text] : cases) {
    EXPECT_THAT(support::FailureOf(action).Description(), testing::HasSubstr(text));
  }
}

TEST(DescriptionCheck, NamesEveryMistake) {
  DeviceDescription dd;
  dd.Variable("response_code").Unsigned(1).Local();
  dd.Variable("device_status").Unsigned(1).Local();
  dd.Variable("unit").Enumerated(1, MakeEnums({{7, "bar"}, {255, "special"}})).Default(7);
  dd.Variable("level").Float().Range(0, 60).Default(1.5F);
  dd.Command("read", 128, Operation::Read).Reply({Byte(1), "unit", "level"});
  dd.Menu("root_menu").Variables({"level", "__ZAF__OnlineMode"});
  RequireConsistent(dd);

  dd.Variable("bare");
  dd.Variable("wide").Unsigned(9);
  dd.Variable("code").Enumerated(1, MakeEnums({{700, "kPa"}}));
  dd.Variable("delay").Float().Range(0, 60).Default(99);
  dd.Variable("later").OnCompute([](Context&, Variable& variable) { variable.SetValue(1); });
  dd.Variable("acting").Float().Actions(ActionList::PreEdit, {"warn"});
  dd.Command("write", 129, Operation::Write).Request({"lvel"}).Reply({"level"});
  dd.Variable("since").DateAndTime();
  dd.Command("age", 130, Operation::Read).Reply({"since", "level"});
  dd.Menu("setup").Menus({"level"});
  dd.UnitRelation("units").Unit("unt").Dependents({"level"});
  const std::string mistakes =
      support::FailureOf([&dd] { RequireConsistent(dd); }).Description() + "\n";
  EXPECT_THAT(mistakes, testing::MatchesRegex("VARIABLE \"bare\" .*no type.*\n"
                                              "VARIABLE \"wide\" .*9 bytes.*\n"
                                              "VARIABLE \"code\" .*700.*\n"
                                              "VARIABLE \"delay\" .*\"99\".*\n"
                                              "VARIABLE \"acting\" .*METHOD \"warn\".*\n"
                                              "COMMAND \"write\" .*VARIABLE \"lvel\".*\n"
                                              "COMMAND \"age\" .*VARIABLE \"since\".*wire.*\n"
                                              "MENU \"setup\" .*MENU \"level\".*\n"
                                              "UNIT \"units\" .*VARIABLE \"unt\".*\n"));
}

void DescribeSlots(DeviceDescription& dd) {
  auto slots = dd.Array("slots");
  for (const std::string n : {"1", "2"}) {
    slots.Collection(std::stoi(n) * 10, "slot_" + n, "Slot " + n);
    dd.Collection("slot_" + n).Variable("VALUE", "value_" + n).Variable("STATUS", "status_" + n);
    dd.Variable("value_" + n).Float();
    dd.Variable("status_" + n).Unsigned(1);
  }
  dd.Variable("slot").Index(1, "slots").Default(10).Local();
  dd.Command("read_slot", 9, Operation::Read)
      .Request({Index("slot")})
      .Reply({Index("slot"), Element("slots", "slot", "value"),
              Element("slots", "slot", "STATUS", 0xF0)});
}

TEST(ElementItems, FollowTheIndexOfTheirInstance) {
  DeviceDescription dd;
  DescribeSlots(dd);
  Instance instance(dd);
  Instance other(dd);
  const auto replyOf = [](Instance& asked) {
    return asked.kernel->GetCommand(Definition::Define("read_slot", ObjectKind::Command))
        ->Transactions()
        .Item(0)
        ->Reply();
  };
  const std::string first = "(response_code, device_status, slot INDEX INFO, value_1, status_1)";
  EXPECT_EQ(replyOf(instance).Describe(0), first);
  instance.Write("slot", 20);
  EXPECT_EQ(replyOf(instance).Describe(0),
            "(response_code, device_status, slot INDEX INFO, value_2, status_2)");
  EXPECT_EQ(replyOf(instance).Item(5).Mask(), 0xF0U);
  EXPECT_EQ(replyOf(other).Describe(0), first);
  instance.Write("slot", 33);
  EXPECT_EQ(replyOf(instance).Item(4).VariableDefinition().Name(), "value_2") << "no such element";
}

TEST(DataModel, InstancesShareAllThatIsStatic) {
  DeviceDescription dd;
  dd.Variable("mode").Label("Mode|de|Betriebsart").Enumerated(1, MakeEnums({{0, "Off"}}));
  dd.Command("read", 1, Operation::Read)
      .Reply({"mode"})
      .Codes(MakeCodes({{0, ResponseCodeType::Success, "Success"}}));
  Instance one(dd);
  Instance other(dd);
  EXPECT_EQ(&one.Get("mode")->Label(), &other.Get("mode")->Label());
  EXPECT_EQ(&one.Get("mode")->TypeInfo(), &other.Get("mode")->TypeInfo()) << "one block";
  const auto codes = [](Instance& instance) {
    return &instance.Stored(Definition::Define("read", ObjectKind::Command))
                ->MakeCommand()
                ->ResponseCodes();
  };
  EXPECT_EQ(codes(one), codes(other));
}

TEST(DataModel, ConditionsFollowValues) {
  DeviceDescription dd;
  dd.Variable("sensor").Unsigned(1).Default(1);
  dd.Variable("wires")
      .Unsigned(1)
      .ValidWhen([](Context& context) { return context.Long("sensor") == 1; })
      .WritableWhen([](Context& context) { return context.Number("sensor") < 2; })
      .OnCompute([](Context& context, Variable& variable) {
        if (!context.IsValid("sensor")) return;
        variable.SetLabel("Wires of sensor " + context.Text("sensor"));
      });
  Instance instance(dd);
  EXPECT_TRUE(instance.Get("wires")->Validity());
  EXPECT_TRUE(instance.Get("wires")->CheckHandling(AccessMode::Write));
  instance.Write("sensor", 2);
  const auto wires = instance.Get("wires");
  EXPECT_FALSE(wires->Validity());
  EXPECT_FALSE(wires->CheckHandling(AccessMode::Write));
  EXPECT_TRUE(wires->CheckHandling(AccessMode::Read));
  EXPECT_EQ(wires->Label(), "Wires of sensor 2");
  EXPECT_FALSE(
      instance.model->ComputeVarValidity(*instance.kernel, *instance.components, "wires", wires));
}

// Runs abort methods; the one called "first" fails.
class AbortingKernel : public ComputingKernel {
 public:
  void ExecuteMethod(const Definition& method, const std::shared_ptr<DDObject>&,
                     bool inAbort) override {
    runs += method.Name() + (inAbort ? " in abort; " : "; ");
    if (method.Name() == "first") throw Failure(ErrorNumber::Unexpected, "AbortingKernel");
  }
  std::string runs;
};

struct WayOut {
  const char* name;
  MethodBody body;
  std::string abortMethodsRun;
  ErrorNumber raised{};
};

const std::string kBoth = "first in abort; second in abort; ";

const WayOut kWaysOut[] = {
    {"to its end", [](IDDBuiltinLib&) {}, ""},
    {"aborted", [](IDDBuiltinLib& dd) { dd.Abort(); }, kBoth},
    {"failed", [](IDDBuiltinLib&) { throw Failure(ErrorNumber::Cancelled, "test"); }, kBoth,
     ErrorNumber::Cancelled},
    {"user told", [](IDDBuiltinLib& dd) { dd.GetDevVarValue("", {}, "missing"); }, ""},
    {"user told, guarded",
     [](IDDBuiltinLib& dd) {
       AbortGuard guard(dd, "second");
       dd.GetDevVarValue("", {}, "missing");
     },
     "second in abort; "},
    {"user not told",
     [](IDDBuiltinLib& dd) {
       AbortGuard guard(dd, "second");
       std::string text;
       dd.GetDictionaryString("", text);
     },
     kBoth, ErrorNumber::NotImplemented},
    {"guard left behind", [](IDDBuiltinLib& dd) { AbortGuard guard(dd, "second"); }, kBoth},
    {"guard done", [](IDDBuiltinLib& dd) { AbortGuard(dd, "third").Done(); }, ""},
};

TEST(MethodBody, IsEndedOnEveryWayOut) {
  for (const auto& [name, body, abortMethodsRun, raised] : kWaysOut) {
    SCOPED_TRACE(name);
    DeviceDescription dd;
    dd.Variable("level").Float().Default(2.5F);
    dd.Method("test").Body([&body = body](IDDBuiltinLib& builtins) {
      builtins.AddAbortMethod("first");
      builtins.AddAbortMethod("second");
      builtins.AssignFloat("level", 9);
      body(builtins);
    });
    Instance instance(dd);
    const auto kernel = std::make_shared<AbortingKernel>();
    kernel->SetComponentModel(instance.components);
    kernel->SetDataModel(instance.model);
    instance.components->kernel = kernel;
    const auto run = [&, raised = raised](bool inAbort) {
      auto builtins = std::make_shared<ZAFHartLib::CDDBuiltinLib>();
      builtins->SetComponentModel(instance.components);
      instance.components->builtins = std::move(builtins);
      EXPECT_EQ(support::NumberOfFailure([&] {
                  instance.model->ExecuteMethodBody(*kernel, *instance.components, "TEST", {},
                                                    inAbort);
                }),
                raised);
      EXPECT_EQ(instance.Get("level")->Value().ToDouble(), 2.5);  // undone
    };
    run(true);
    EXPECT_EQ(kernel->runs, "");
    run(false);
    EXPECT_EQ(kernel->runs, abortMethodsRun);
  }
}

struct Throwing : platform::Object {
  Throwing() { throw std::runtime_error("no memory for the table"); }
};
struct ThrowingNumber : platform::Object {
  ThrowingNumber() { throw 42; }
};

TEST(Plugin, LetsNothingOut) {
  std::shared_ptr<platform::Object> object;
  EXPECT_STREQ(CreateObject<Throwing>(&object), "no memory for the table");
  EXPECT_STREQ(CreateObject<ThrowingNumber>(&object),
               "its code threw what is no exception of the standard library");
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(CreateObject<platform::Object>(&object), nullptr);
  EXPECT_NE(object, nullptr);
}

}  // namespace
