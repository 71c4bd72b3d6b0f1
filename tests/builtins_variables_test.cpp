// Variables that a method reads and assigns, and the numbered functions.

#include <bit>
#include <cmath>
#include <limits>
#include <numbers>

#include "support/BuiltinsTest.h"

namespace {

using namespace test_support;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class BuiltinVariables : public BuiltinsTest {
 protected:
  BuiltinVariables() {
    for (const char* name : {"action", "inner"}) model->Add<Method>(name);
    variable("c").EditActions(ActionList::PostRead).Add(Def("action", ObjectKind::Method));
  }
  Variable& variable(const char* name) {
    for (const auto& object : model->objects) {
      if (object->ObjectDefinition().Name() == name) return *object->MakeVariable();
    }
    throw std::logic_error(name);
  }
};

TEST_F(BuiltinVariables, AssignmentsAreSeenAtOnceAndUndoneUnlessSaved) {
  Start();
  SetClean("c", std::int16_t{7});
  Run([&](CDDBuiltinLib& lib) {
    EXPECT_TRUE(lib.AssignInt("a", 5));
    EXPECT_TRUE(lib.AssignFloat("n", 1.5F));
    EXPECT_EQ(lib.LongValue("a"), 5);
    EXPECT_EQ(lib.FvarValue("n"), 1.5);
    EXPECT_TRUE(lib.AssignVar("c", "b"));
    EXPECT_EQ(lib.IntValue("c"), 2);
    EXPECT_EQ(Stored("n")->Value().Type(), VariantType::Single);
    EXPECT_EQ(Stored("a")->Value().Type(), VariantType::Int32);
    EXPECT_TRUE(Stored("a")->ToBeWritten());
    EXPECT_EQ(lib.SaveValues(), 0);
    EXPECT_TRUE(lib.AssignLong("a", 9));
  });
  EXPECT_EQ(Value("a"), 5);
  EXPECT_EQ(Value("c"), 2);
  Run([&](CDDBuiltinLib& lib) { EXPECT_TRUE(lib.Lassign("c", 8)); });
  EXPECT_EQ(Value("c"), 2);
}

// A method that is run by another one does not undo what that one has assigned, and undoes its own.
TEST_F(BuiltinVariables, OfAMethodWithinAMethodKeepApart) {
  Start();
  const auto inner = [this](bool saves) {
    Run([&](CDDBuiltinLib& lib) {
      EXPECT_EQ(lib.LongValue("a"), 5);
      lib.AssignLong("a", 6);
      if (saves) lib.SaveValues();
    });
  };
  Run([&](CDDBuiltinLib& outer) {
    outer.AssignLong("a", 5);
    inner(false);
    EXPECT_EQ(outer.LongValue("a"), 5);
    EXPECT_TRUE(Stored("a")->ToBeWritten());
    inner(true);
    EXPECT_EQ(outer.LongValue("a"), 6);
    outer.AssignLong("a", 7);
  });
  EXPECT_EQ(Value("a"), 6);
}

TEST_F(BuiltinVariables, ThatWereOnlyReadKeepWhatOthersWrote) {
  Start();
  Run([&](CDDBuiltinLib& lib) {
    EXPECT_EQ(lib.LongValue("a"), 1);
    Set("a", std::int16_t{33});  // the user, while a message is shown
  });
  EXPECT_EQ(Value("a"), 33);
  EXPECT_TRUE(Stored("a")->ToBeWritten());
}

// A value that a method three levels down has saved stays.
TEST_F(BuiltinVariables, SavedWithinStaySavedOnEveryLevel) {
  Start();
  Run([this](CDDBuiltinLib& outer) {
    outer.AssignLong("a", 5);
    Run([this](CDDBuiltinLib& middle) {
      middle.AssignLong("a", 6);
      Run([](CDDBuiltinLib& inner) {
        inner.AssignLong("a", 7);
        inner.SaveValues();
      });
    });
    EXPECT_EQ(Value("a"), 7);
  });
  EXPECT_EQ(Value("a"), 7);
}

TEST_F(BuiltinVariables, ThatAreNotDefinedAbortTheMethod) {
  Start();
  Run([&](CDDBuiltinLib& lib) {
    EXPECT_EQ(lib.FloatValue("x"), 0);
    EXPECT_TRUE(lib.IsAbort());
    EXPECT_FALSE(lib.AssignDouble("x", 1));
    EXPECT_EQ(lib.VARID("x"), -1);
    EXPECT_EQ(lib.VARID("b"), 1);
    EXPECT_EQ(lib.VARID("B"), 1);
    EXPECT_TRUE(std::isnan(lib.FloatValue("___ZAF___NaN")));
    EXPECT_EQ(std::bit_cast<std::uint32_t>(lib.NaNValue()), 0x7FA00000U);
  });
  const auto errors = TakeErrors();
  ASSERT_THAT(errors, SizeIs(3));
  EXPECT_THAT(errors[0], HasSubstr("Variable \"x\" not defined!"));
}

TEST_F(BuiltinVariables, AnActionReadsAndSetsItsOwn) {
  Start();
  SetClean("c", std::int16_t{7});
  Run(
      [&](CDDBuiltinLib& lib) {
        EXPECT_EQ(lib.Igetval(), 7);
        EXPECT_EQ(lib.Fsetval(2.5), 2.5);
        EXPECT_EQ(lib.Fgetval(), 2.5);
      },
      Stored("c"), "action");
  EXPECT_EQ(Stored("c")->Value(), Variant(2.5));
  EXPECT_FALSE(Stored("c")->ToBeWritten());
  EXPECT_TRUE(Stored("c")->Available());

  // It stays when the action also shows its variable, and is never sent.
  database->SetSynchronousMode(true);
  comm->sent.clear();
  Run(
      [&](CDDBuiltinLib& lib) {
        lib.PutMessage("%{0}", {lib.VARID("c")});
        lib.Lsetval(9);
      },
      Stored("c"), "action");
  EXPECT_EQ(Value("c"), 9);
  EXPECT_THAT(comm->sent, IsEmpty());
  Run([](CDDBuiltinLib& lib) { lib.Fsetval(2.5); }, Stored("c"), "action");

  Run([&](CDDBuiltinLib& lib) { EXPECT_EQ(lib.Lgetval(), 0); },
      database->ReadObject(Def("method", ObjectKind::Method)));
  EXPECT_THAT(TakeErrors(), IsEmpty());
  Run(
      [&](CDDBuiltinLib& lib) {
        EXPECT_EQ(lib.Lsetval(3), 0);
        EXPECT_TRUE(lib.IsAbort());
      },
      Stored("c"));
  EXPECT_THAT(TakeErrors(), ElementsAre(HasSubstr("Wrong context!")));
  EXPECT_EQ(Stored("c")->Value(), Variant(2.5));
}

// An action after the edit corrects what the user has typed, who wants it in the device.
TEST_F(BuiltinVariables, ACorrectedEditIsStillToBeWritten) {
  variable("a").EditActions(ActionList::PostEdit).Add(Def("action", ObjectKind::Method));
  Start();
  Set("a", std::int16_t{4});
  Run([](CDDBuiltinLib& lib) { lib.Lsetval(5); }, Stored("a"), "action");
  EXPECT_EQ(Value("a"), 5);
  EXPECT_TRUE(Stored("a")->ToBeWritten());
}

// Neither a break nor a torn-down instance lets the method's loop go on.
TEST_F(BuiltinVariables, EndTheMethodWithTheirInstance) {
  Start();
  comm->failure = ErrorNumber::Cancelled;
  Run([](CDDBuiltinLib& lib) {
    EXPECT_EQ(lib.LongValue("a"), 0);
    EXPECT_TRUE(lib.IsAbort());
  });
  comm->failure.reset();
  Run([&](CDDBuiltinLib& lib) {
    components->database = nullptr;
    EXPECT_EQ(lib.LongValue("b"), 0);
    EXPECT_TRUE(lib.IsAbort());
  });
  components->database = database;
}

// The variable that a method was started from is read again when the method's code changed it.
TEST_F(BuiltinVariables, ChangedOnTheContextAreReadAgain) {
  Start();
  kernel->ReadVariable(Var("a"));
  comm->sent.clear();
  std::shared_ptr<DDObject> context = Stored("a");
  const auto run = [&](const std::function<void()>& change) {
    CDDBuiltinLib lib;
    lib.SetComponentModel(components);
    lib.Initialize(context, "method");
    change();
  };
  run([&] { Set("b", std::int16_t{4}); });  // somebody else's change is not the method's
  EXPECT_THAT(comm->sent, IsEmpty());
  run([&] { context->MakeVariable()->SetValue(std::int16_t{9}); });
  EXPECT_THAT(comm->sent, SizeIs(1));
  EXPECT_EQ(Value("a"), 1);
}

TEST_F(BuiltinVariables, Func1Calculates) {
  constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kAborted = -77;
  constexpr double kPi = std::numbers::pi;
  constexpr double kLn2 = std::numbers::ln2;
  struct {
    std::int32_t id;
    double argument, result;
  } const cases[] = {
      {1000, 0, 1},        {1001, kPi / 2, 1},   {1002, kPi / 4, 1},    {1003, 1, 0},
      {1003, 2, kAborted}, {1004, 0.5, kPi / 6}, {1005, kLn2, 1.25},    {1006, kLn2, 0.75},
      {1007, kLn2, 0.6},   {1008, kLn2, 2},      {1008, 1e4, kAborted}, {1009, 1, 0},
      {1009, 0, kAborted}, {1010, 1000, 3},      {1011, 8, 3},          {1012, -2.5, 2.5},
      {1013, 9, 3},        {1013, -1, kAborted}, {1014, 27, 3},         {1015, 1.2, 2},
      {1016, 1, kAborted}, {1017, 2.5, 2},       {1017, 1e5, kAborted}, {1018, -1.2, -2},
      {1019, 0, 4},        {1019, kNaN, 3},      {1019, kInfinity, 2},  {1019, -0.5, 1},
      {1021, 4, 4},        {77, 1, kAborted}};
  Start();
  const auto call = [&](std::int32_t id, const Variant& argument) {
    Variant result;
    Run([&](CDDBuiltinLib& lib) {
      result = lib.Func1(id, argument);
      EXPECT_EQ(lib.IsAbort(), result.IsEmpty());
    });
    return result;
  };
  for (const auto& [id, argument, expected] : cases) {
    const Variant result = call(id, argument);
    EXPECT_NEAR(result.IsEmpty() ? kAborted : result.ToDouble(), expected, 1e-12)
        << id << " of " << argument;
  }
  EXPECT_EQ(call(1020, "2"), Variant(2.0));
  EXPECT_TRUE(call(1009, "no").IsEmpty());
  EXPECT_EQ(call(1012, std::int16_t{-3}).Type(), VariantType::Int16);
  EXPECT_TRUE(call(1012, std::int16_t{-32768}).IsEmpty()) << "has no positive counterpart";
}

TEST_F(BuiltinVariables, Func1RunsMethodsAndUploads) {
  struct Storage : ZAFHartLib::ISingleStorage {
    bool IsSingleStorageObject(const Definition&) const override { return false; }
    void Update(StorageMode, const std::shared_ptr<DDObject>&) override {}
    void UploadVariableValue(const Definition& definition, const Variant& value) override {
      uploads.push_back(definition.Name() + "=" + value.ToText());
    }
    std::vector<std::string> uploads;
  };
  const auto storage = std::make_shared<Storage>();
  Start();
  database->SetSingleStorage(storage);
  Run([&](CDDBuiltinLib& lib) {
    EXPECT_EQ(lib.Func1(4001, "Inner"), Variant(true));
    EXPECT_EQ(lib.Func1(4001, "nowhere"), Variant(false));
    lib.Func1(4002, "b");
    database->SetStorageMode(StorageMode::Online);
    EXPECT_TRUE(lib.Func1(4002, "b").IsEmpty());
    EXPECT_FALSE(lib.IsAbort());
  });
  EXPECT_THAT(model->methodRuns, ElementsAre("inner"));
  EXPECT_THAT(storage->uploads, ElementsAre("b=2"));
}

TEST_F(BuiltinVariables, Func2AndUnits) {
  Start();
  Run([&](CDDBuiltinLib& lib) {
    EXPECT_EQ(lib.Func2(1016, 2.5, 0), Variant(2.0));
    EXPECT_EQ(lib.Func2(1016, 1.25, 1), Variant(1.2));
    EXPECT_EQ(lib.Func2(3000, "x", "X"), Variant(false));
    EXPECT_EQ(lib.Func2(3001, "text", "hello"), Variant(true));
    EXPECT_EQ(Stored("text")->Value(), Variant("hello"));
    EXPECT_TRUE(lib.Func2(1, 1, 1).IsEmpty());
    lib.SaveValues();
    lib.AddUnit(32, 1, 0, "C", "");
    lib.AddUnit(33, 1.8, 17.777777777777779, "F", "");
    EXPECT_FALSE(lib.IsAbort());
    lib.Func2(4000, "Broken: %{0}", std::vector<Variant>{lib.VARID("b")});
    EXPECT_TRUE(lib.IsAbort());
    EXPECT_THAT(messages->Take(), ElementsAre("16 -1 Test: Broken: 2"));
    std::string text;
    EXPECT_THROW(lib.GetDictionaryString("x", text), Failure);
  });
  auto degrees = Stored("n")->Copy();
  degrees->SetValue(100.0);
  degrees->SetUnitText("C");
  EXPECT_NEAR(database->ConvertUnit(*degrees, "F"), 212, 1e-9);
}

}  // namespace
