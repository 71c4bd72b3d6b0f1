// The DTM's optimisation file, and the searches that it saves.

#include <fstream>

#include "components/COptDataReader.h"
#include "support/KernelTest.h"
#include "support/TempFolder.h"

namespace {

using namespace test_support;
using testing::ElementsAre;
using testing::HasSubstr;
using ZAFHartLib::COptDataReader;

// An array of two variables, read and written by commands whose request selects the element.
class OptimizationData : public KernelTest {
 protected:
  OptimizationData() {
    const auto information = std::make_shared<StubInformation>();
    information->folder = folder.Path().string();
    components->information = information;
    for (const char* name : {"p0", "p1", "other"}) AddVariable(name);
    auto& array = model->Add<ItemArray>("points");
    array.Elements() = {{10, "", Var("p0")}, {11, "", Var("p1")}};
    auto& slot = model->Add<Variable>("slot");
    slot.EditTypeInfo().SetTypeCode(TypeCode::Index);
    slot.EditTypeInfo().SetSize(1);
    slot.EditTypeInfo().SetIndexedArray(std::static_pointer_cast<const ItemArray>(array.Entry()));
    slot.EditAttributes().SetFlag(VariableFlag::LibraryHeld, true);
    Element("read_point", 70, Operation::Read);
    Element("write_point", 71, Operation::Write);
  }
  // As a generated data model does it: the element's item follows the index variable.
  void Element(const char* name, std::int16_t number, Operation operation) {
    const bool isWrite = operation == Operation::Write;
    AddCommand(name, number, operation, {Ref("slot").SetIsIndex()}, {Ref("slot").SetIsIndex()});
    model->OnCompute<Command>(name, [this, isWrite](IDDKernel& k, Command& command) {
      ++computations;
      const std::int32_t index = k.GetVariable(Var("slot"))->Value().ToLong();
      const DataItem item = Ref(index == 11 ? "p1" : "p0");
      Transaction& transaction = *command.Transactions().Item(0);
      transaction.Request() = {Ref("slot").SetIsIndex()};
      if (isWrite) transaction.Request().Add(item);
      transaction.Reply() = {DataItem::Constant(0), DataItem::Constant(0), item};
    });
  }
  void WriteFile(const std::string& content) {
    const auto path = folder.Path() / "Device" / "OptData.Ini";
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path) << content;
  }
  std::string Configure() {
    COptDataReader reader;
    EXPECT_TRUE(reader.ConfigureOptimization(*components));
    return reader.ErrorReport();
  }

  support::TempFolder folder;
  int computations = 0;
};

// With the file and without it the same is found; the file saves the search that computes commands
// for their elements.
TEST_F(OptimizationData, LeadsStraightToTheCommand) {
  Start();
  using Found = std::tuple<std::int32_t, std::int32_t, std::int32_t>;
  const auto search = [&](bool reads) {
    Set("slot", std::int32_t{10});
    computations = 0;
    const auto found =
        reads ? kernel->FindReadCommand(Var("p1")) : kernel->FindWriteCommand(Var("p1"));
    return Found(found->Command()->Number(), found->TransactionNumber(), Value("slot"));
  };
  EXPECT_EQ(search(true), Found(70, 0, 11));
  EXPECT_GT(computations, 2);
  EXPECT_EQ(search(false), Found(71, 0, 11));
  EXPECT_GT(computations, 2);
  WriteFile("[arraycommands]\nread_point # 0 : points , slot\r\n write_point#0:points,slot\n");
  EXPECT_EQ(Configure(), "");
  kernel->FindReadCommand(Var("p0"));  // looks the names up once
  kernel->FindWriteCommand(Var("p0"));
  EXPECT_EQ(search(true), Found(70, 0, 11));
  EXPECT_EQ(computations, 1);
  EXPECT_EQ(search(false), Found(71, 0, 11));
  EXPECT_EQ(computations, 1);
  EXPECT_EQ(kernel->FindReadCommand(Var("other")), nullptr);
}

TEST_F(OptimizationData, NamesStaticObjects) {
  Start();
  WriteFile("; comment\n[STATICOBJECTS]\n p0 ,P1\n");
  EXPECT_EQ(Configure(), "");
  for (const char* name : {"p0", "p1", "other"}) kernel->GetVariable(Var(name));
  Set("slot", std::int32_t{11});
  model->computed.clear();
  for (const char* name : {"p0", "p1", "other"}) kernel->GetVariable(Var(name));
  EXPECT_THAT(model->computed, ElementsAre(testing::Pair("other", 1)));
}

TEST_F(OptimizationData, ReportsWhatIsWrong) {
  Start();
  WriteFile(
      "ignored\n\n[staticobjects]\na,a,,b\n[ARRAYCOMMANDS]\nno separators\nx # x : points , slot\n"
      "x # 1 : , slot\nx # -1 : points , slot\nx : 1 # points , slot\n[]\nstill "
      "array\n[ARRAYCOMMANDS]\nread_point # 0, 1 : points , slot\n[other]\nno\n");
  EXPECT_EQ(Configure(),
            "Line 4:This key is already associated with an element of this collection\r\n"
            "Line 4:Invalid procedure call or argument\r\n"
            "Line 6: wrong format\r\nLine 8: attribute missing\r\nLine 9: attribute missing\r\n"
            "Line 10: wrong format\r\nLine 12: wrong format\r\nLine 14: wrong format\r\n");
  EXPECT_EQ(kernel->FindReadCommand(Var("p1"))->Command()->Number(), 70);

  std::filesystem::remove_all(folder.Path() / "Device");
  EXPECT_THAT(Configure(), HasSubstr(" - "));
  components->database = nullptr;
  components->kernel = nullptr;
  EXPECT_THAT(Configure(), HasSubstr("Static objects list could not be stored.\r\nWrong private "
                                     "object. Array commands list could not be stored.\r\n"));
  components->database = database;
  components->kernel = kernel;
}

TEST_F(OptimizationData, ThatDoesNotFitIsToldToTheTrace) {
  Start();
  WriteFile("[ARRAYCOMMANDS]\nread_point # 7 : points , slot\nmissing # 0 : points , slot\n");
  EXPECT_EQ(Configure(), "");
  TraceAll();
  EXPECT_EQ(kernel->FindReadCommand(Var("p1"))->Command()->Number(), 70);
  EXPECT_THAT(tracer->calls,
              testing::Contains(HasSubstr("Command Optimization: Transaction found, but searched "
                                          "variable not part of the operation")));
}

}  // namespace
