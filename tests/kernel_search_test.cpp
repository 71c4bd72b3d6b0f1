// Finding commands: order, continuation, arrays, and the index that dependency tracking allows.

#include <random>

#include "support/KernelTest.h"

namespace {

using namespace test_support;
using testing::ElementsAre;

struct SearchWorld : KernelWorld {
  // "<command>.<transaction>" of a result, "-" for none.
  static std::string Text(const std::shared_ptr<CommandRef>& result) {
    return result ? result->Command()->Definition().Name() + "." +
                        std::to_string(result->TransactionNumber())
                  : "-";
  }
  std::vector<std::string> AllReads(std::string_view name) {
    std::vector<std::string> found;
    std::shared_ptr<CommandRef> result;
    while ((result = kernel->FindReadCommand(Var(name), result)) && found.size() < 50) {
      found.push_back(Text(result));
    }
    return found;
  }
  // An array whose elements 0, 1, … are the named variables, and an index variable into it.
  void AddArray(const char* array, const char* index, std::vector<Definition> elements,
                bool isFixed = false) {
    auto& made = model->Add<ItemArray>(array);
    const auto object = std::static_pointer_cast<ItemArray>(model->objects.back());
    for (std::size_t i = 0; i < elements.size(); ++i) {
      made.Elements().push_back({static_cast<std::int32_t>(i), {}, elements[i]});
    }
    auto& variable = AddVariable(index);
    TypeInfo type;
    type.SetTypeCode(TypeCode::Index);
    type.SetSize(1);
    if (isFixed) type.SetIndexedArray(object);
    variable.SetTypeInfo(type);
    if (isFixed) return;
    model->OnCompute<Variable>(index, [array = std::string(array)](IDDKernel& k, Variable& v) {
      v.EditTypeInfo().SetIndexedArray(k.GetArray(Def(array, ObjectKind::ItemArray)));
    });
  }
  // A command whose value item is the element that the index variable selects.
  void AddArrayCommand(const char* name, Operation operation, const char* array, const char* index,
                       bool isInfo) {
    AddCommand(name, 50, operation, {}, {});
    model->OnCompute<Command>(name, [=](IDDKernel& k, Command& command) {
      const auto elements = k.GetArray(Def(array, ObjectKind::ItemArray));
      const auto* element = elements->Find(k.GetVariable(Var(index))->Value().ToLong());
      command.Transactions().Clear();
      AddTransaction(command, 0, {Ref(index).SetIsIndex().SetIsInfo(isInfo)}, {Ref(index)});
      if (!element) return;
      auto& transaction = *command.Transactions().Item(0);
      auto& items = operation == Operation::Read ? transaction.Reply() : transaction.Request();
      items.Add(DataItem::Reference(element->definition));
    });
  }
};

class KernelSearch : public testing::Test, public SearchWorld {};

TEST_F(KernelSearch, GoesThroughCommandsAndTransactionsInOrder) {
  AddVariable("a");
  AddVariable("b");
  AddCommand("write", 6, Operation::Write, {Ref("a")}, {Ref("a")});
  auto& first = AddCommand("first", 3, Operation::Read, {}, {Ref("b")});
  AddTransaction(first, 1, {}, {Ref("a")});
  AddTransaction(first, 2, {}, {Ref("b"), Ref("a")});
  AddCommand("info", 4, Operation::Read, {Ref("a").SetIsInfo()}, {Ref("a")});
  AddCommand("last", 5, Operation::Read, {}, {Ref("a")});
  Start();
  EXPECT_THAT(AllReads("A"), ElementsAre("first.1", "first.2", "last.0"));
  EXPECT_THAT(AllReads("b"), ElementsAre("first.0", "first.2"));
  EXPECT_EQ(Text(kernel->FindWriteCommand(Var("a"))), "write.0");
  EXPECT_EQ(Text(kernel->FindWriteCommand(Var("b"))), "-");
  const auto result = kernel->FindReadCommand(Var("a"));
  EXPECT_NE(result->Command(), kernel->GetCommand(Cmd("first"))) << "the caller's own copy";
  database->SetCommandInRecursion(Cmd("first"), true);
  EXPECT_THAT(AllReads("a"), ElementsAre("last.0"));
}

TEST_F(KernelSearch, AsksTheOptimisationRecordsFirst) {
  struct Record : ZAFHartLib::ICommandOptimization {
    std::shared_ptr<CommandRef> FindReadCommand(IDDComponents&, const Definition& item) override {
      return item.Name() == "a" ? result : nullptr;
    }
    std::shared_ptr<CommandRef> FindWriteCommand(IDDComponents&, const Definition&) override {
      return nullptr;
    }
    std::shared_ptr<CommandRef> result;
  };
  AddVariable("a");
  AddVariable("b");
  AddCommand("read", 3, Operation::Read, {}, {Ref("a"), Ref("b")});
  AddCommand("quick", 4, Operation::Read, {}, {Ref("a")});
  Start();
  const auto record = std::make_shared<Record>();
  record->result = std::make_shared<CommandRef>(kernel->GetCommand(Cmd("quick")), 0);
  kernel->SetOptimizationTable({record});
  EXPECT_EQ(Text(kernel->FindReadCommand(Var("a"))), "quick.0");
  EXPECT_EQ(Text(kernel->FindReadCommand(Var("b"))), "read.0");
  EXPECT_THAT(AllReads("a"), ElementsAre("quick.0")) << "the search goes on after it";
}

TEST_F(KernelSearch, SelectsTheArrayElementAndPutsInfoVariablesBack) {
  for (const char* name : {"x0", "x1", "x2"}) AddVariable(name);
  AddArray("xs", "ix", {Var("x0"), Var("x1"), Var("x2")});
  AddArrayCommand("read_x", Operation::Read, "xs", "ix", true);
  AddArrayCommand("write_x", Operation::Write, "xs", "ix", false);
  Start();
  SetClean("ix", std::int16_t{0});
  const auto read = kernel->FindReadCommand(Var("x2"));
  ASSERT_EQ(Text(read), "read_x.0");
  EXPECT_EQ(read->ReferredTransaction()->Request().Item(1).Variable()->Value(), std::int16_t{2});
  EXPECT_EQ(Value("ix"), 0) << "an INFO variable is put back";
  comm->memory["x2"] = std::int16_t{22};
  EXPECT_EQ(kernel->ReadVariable(Var("x2"))->Value(), std::int16_t{22});
  EXPECT_THAT(comm->TakeSent(), ElementsAre("50(ix INDEX INFO=2)"));

  EXPECT_EQ(Text(kernel->FindWriteCommand(Var("x1"))), "write_x.0");
  EXPECT_EQ(Value("ix"), 1) << "a stored variable keeps the selection";
  EXPECT_EQ(Text(kernel->FindWriteCommand(Var("ix"))), "write_x.0") << "directly";
}

TEST_F(KernelSearch, SelectsInOuterArraysAndInCollections) {
  for (const char* name : {"x0", "x1", "m"}) AddVariable(name);
  model->Add<ItemCollection>("col").Members() = {{"M", Var("m")}};
  AddArray("inner", "i", {Var("x0"), Var("x1"), Def("col", ObjectKind::Collection)});
  AddArray("outer", "o", {Var("x0"), Def("inner", ObjectKind::ItemArray)});
  AddCommand("read", 50, Operation::Read, {Ref("o").SetIsIndex(), Ref("i").SetIsIndex()}, {});
  Start();
  for (const char* name : {"i", "o"}) SetClean(name, std::int16_t{0});
  EXPECT_EQ(Text(kernel->FindReadCommand(Var("m"))), "-") << "not in the reply";
  EXPECT_EQ(Value("i"), 2) << "in the collection";
  EXPECT_EQ(Value("o"), 1) << "the inner array is an element of the outer one";
}

TEST_F(KernelSearch, AdvancesTheOtherIndexesToWhatIsStillToBeReadOrWritten) {
  for (const char* name : {"x0", "x1", "y0", "y1", "y2"}) AddVariable(name);
  AddArray("xs", "ix", {Var("x0"), Var("x1")});
  AddArray("ys", "iy", {Var("y0"), Var("y1"), Var("y2")});
  const DataItemList request{Ref("ix").SetIsIndex(), Ref("iy").SetIsIndex()};
  for (const auto& [name, operation] :
       {std::pair{"read", Operation::Read}, std::pair{"write", Operation::Write}}) {
    AddCommand(name, 50, operation, request, {});
    model->OnCompute<Command>(
        name, [=, isRead = operation == Operation::Read](IDDKernel& k, Command& command) {
          auto& transaction = *command.Transactions().Item(0);
          transaction.Request() = request;
          transaction.Reply() = {DataItem::Constant(0), DataItem::Constant(0)};
          auto& items = isRead ? transaction.Reply() : transaction.Request();
          items.Add(Ref("x" + k.GetVariable(Var("ix"))->Value().ToText()));
          items.Add(Ref("y" + k.GetVariable(Var("iy"))->Value().ToText()));
        });
  }
  Start();
  for (const char* name : {"ix", "iy", "y0", "y1", "y2"}) SetClean(name, std::int16_t{0});
  database->SetVariableAvailable(Var("y2"), false);
  EXPECT_EQ(Text(kernel->FindReadCommand(Var("x1"))), "read.0");
  EXPECT_EQ(Value("ix"), 1);
  EXPECT_EQ(Value("iy"), 2) << "the first one that is not available";
  Set("y1", std::int16_t{5});
  SetClean("ix", std::int16_t{0});
  EXPECT_EQ(Text(kernel->FindWriteCommand(Var("x1"))), "write.0");
  EXPECT_EQ(Value("iy"), 1) << "the first one that is to be written";
  SetClean("ix", std::int16_t{0});
  EXPECT_EQ(Text(kernel->FindWriteCommand(Var("x1"))), "write.0");
  EXPECT_EQ(Value("iy"), 1) << "it still is";
}

// A random data model with conditional commands, arrays, and INFO and INDEX items. The same seed
// makes the same one.
struct RandomWorld : SearchWorld {
  static constexpr int kVariables = 24;

  RandomWorld() {
    for (int i = 0; i < kVariables; ++i) names.push_back("v" + std::to_string(i));
    for (const std::string& name : names) AddVariable(name.c_str());
    AddVariable("mode");
    AddArray("xs", "ix", {Var("v0"), Var("v1"), Var("v2"), Var("v3")});
    AddArray("ys", "iy", {Var("v2"), Var("v4"), Var("v5"), Var("v6")});
    AddArray("zs", "iz", {Var("v8"), Var("v9"), Var("v10")});
    AddArray("fixed", "if", {Var("v11"), Var("v12"), Var("v13")}, true);
    for (int i = 0; i < 20; ++i) AddRandomCommand("c" + std::to_string(i));
    AddArrayCommand("ax", Operation::Read, "xs", "ix", true);
    AddArrayCommand("ay", Operation::Write, "ys", "iy", false);
    AddArrayCommand("az", Operation::Read, "ys", "iy", false);
    AddCommand("af", 7, Operation::Read, {Ref("if").SetIsIndex()}, {});
    AddCommand("read_mode", 9, Operation::Read, {}, {Ref("mode")});
    for (const auto& [array, position] : {std::pair{"ys", 3}, std::pair{"fixed", 2}}) {
      const std::size_t at = static_cast<std::size_t>(position);
      model->OnCompute<ItemArray>(array, [at](IDDKernel& k, ItemArray& made) {
        const bool odd = k.GetVariable(Var("mode"))->Value().ToLong() % 2 != 0;
        made.Elements()[at].definition = Var(odd ? "v7" : "v6");
      });
    }
    comm->memory["mode"] = std::int16_t{0};
    Start();
    database->SetTrackDependencies(true);
    for (const char* index : {"ix", "iy", "iz", "if"}) SetClean(index, std::int16_t{0});
  }
  int Pick(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }
  DataItem Some() { return Ref(names[static_cast<std::size_t>(Pick(kVariables))]); }

  void AddRandomCommand(const std::string& name) {
    const auto operation = static_cast<Operation>(Pick(3));
    const bool isInfo = Pick(2) == 0;
    const DataItem items[] = {Some(), Some().SetIsInfo(isInfo), Some(), Some(), Some(), Some()};
    auto& command =
        AddCommand(name.c_str(), 3, operation, {items[0], items[1]}, {items[2], items[3]});
    AddTransaction(command, 1, {}, {items[4]});
    if (Pick(3) != 0) return;
    model->OnCompute<Command>(name, [other = items[5]](IDDKernel& k, Command& c) {
      const std::int32_t mode = k.ReadVariable(Var("mode"))->Value().ToLong();
      auto& transaction = *c.Transactions().Item(1);
      transaction.Reply() = {DataItem::Constant(0), DataItem::Constant(0)};
      if (mode % 2 == 0) transaction.Reply().Add(other);
      transaction.Request() = {};
      if (mode > 2) transaction.Request().Add(Ref("iz").SetIsIndex());
      c.SetOperation(mode % 3 == 0 ? Operation::Read : Operation::Write);
    });
  }
  // One random step; what came of it as text.
  std::string Step() {
    const std::string name = names[static_cast<std::size_t>(Pick(kVariables))];
    switch (Pick(8)) {
      case 0:
        comm->memory["mode"] = static_cast<std::int16_t>(Pick(6));
        comm->emulate = Pick(2) == 0;
        database->SetVariableAvailable(Var("mode"), false);
        break;
      case 1:
        SetClean("mode", static_cast<std::int16_t>(Pick(6)));
        break;
      case 2:
        database->SetVariableAvailable(Var(name), Pick(2) == 0);
        database->SetVariableToBeWritten(Var(name), Pick(2) == 0);
        break;
      case 3:
        kernel->GetArray(Def("fixed", ObjectKind::ItemArray));
        break;
      case 4:
        return name + " write: " + Text(kernel->FindWriteCommand(Var(name))) + Indexes();
      default:
        return name + " read: " + testing::PrintToString(AllReads(name)) + Indexes();
    }
    return {};
  }
  std::string Indexes() {
    std::string text;
    for (const char* index : {"ix", "iy", "iz", "if"}) text += " " + std::to_string(Value(index));
    return text;
  }

  std::mt19937 random{20261124};
  std::vector<std::string> names;
};

// A tracer that is shown all levels gets the full walk.
TEST(KernelCommandIndex, AnswersAsTheFullWalkDoes) {
  RandomWorld indexed;
  indexed.tracer->callBack->SetStackLevelFilter(0);
  RandomWorld walked;
  walked.TraceAll();
  for (int step = 0; step < 1000; ++step) {
    const std::string answer = indexed.Step();
    ASSERT_EQ(answer, walked.Step()) << "in step " << step;
    walked.tracer->calls.clear();
  }
}

TEST_F(KernelSearch, VisitsOnlyTheCommandsThatCountOnceAllAreKnown) {
  struct CountingDatabase : ZAFHartLib::CDDWorkerDB {
    std::shared_ptr<DDObject> ReadObject(const Definition& definition) override {
      ++reads;
      return CDDWorkerDB::ReadObject(definition);
    }
    int reads = 0;
  };
  const auto counting = std::make_shared<CountingDatabase>();
  database = counting;
  components->Use(database);
  for (int i = 0; i < 200; ++i) {
    const std::string name = "v" + std::to_string(i);
    AddVariable(name.c_str());
    AddCommand(("read_" + name).c_str(), 3, Operation::Read, {}, {Ref(name)});
  }
  Start();
  database->SetTrackDependencies(true);
  tracer->callBack->SetStackLevelFilter(0);
  EXPECT_EQ(Text(kernel->FindReadCommand(Var("v199"))), "read_v199.0");
  counting->reads = 0;
  EXPECT_EQ(Text(kernel->FindReadCommand(Var("v198"))), "read_v198.0");
  EXPECT_LE(counting->reads, 3);
}

}  // namespace
