// What a method shows, asks and tells when it ends.

#include "support/BuiltinsTest.h"

namespace {

using namespace test_support;
using namespace std::string_literals;
using testing::ElementsAre;
using testing::HasSubstr;

class BuiltinMessages : public BuiltinsTest {
 protected:
  BuiltinMessages() {
    auto& bits = *model->objects[3]->MakeVariable();
    bits.EditAttributes().SetFlag(VariableFlag::LibraryHeld, true);
    bits.EditTypeInfo().SetTypeCode(TypeCode::BitEnumerated);
    bits.EditTypeInfo().SetBitItems(
        std::make_shared<const BitList>(BitList{{1, "Hot|de|Heiß"}, {6, "Cold"}}));
    model->objects[1]->MakeVariable()->SetLabel("Level|de|Stand");
  }
};

TEST_F(BuiltinMessages, AreShownOneAtATimeAndHiddenAtTheEnd) {
  Start();
  Run([](CDDBuiltinLib& lib) {
    const VariableIds ids = {lib.VARID("b"), 0};
    EXPECT_EQ(lib.Acknowledge("%[L]{0} is %[4d]{0}%{1}", ids), 0);
    lib.PutMessage("Two\0 cut"s);
    lib.Delay(7, "");
    lib.Delay(3, "Kept\0xy"s);
    lib.Abort(true);
  });
  EXPECT_THAT(messages->Take(),
              ElementsAre("64 -1 Test: Level is    2", "hide 1", "64 2 Test: Two", "hide 2",
                          "64 7 Test: Waiting ...", "hide 3", "64 3 Test: Kept\0xy"s, "hide 4",
                          "48 -1 Test: Process Aborted", "hide 5"));
}

TEST_F(BuiltinMessages, SpeakTheUsersLanguage) {
  Start();
  gui->SetLanguageID("de");
  Run(
      [](CDDBuiltinLib& lib) {
        const auto state = std::make_shared<PromptValues>();
        state->Set("who", "wir");
        lib.SetCurrentMethodState(state);
        lib.Acknowledge("One|de|Eins %{who} %[L]{0}", {lib.VARID("b")});
        lib.Abort(true);
      },
      {}, "b");  // not a method: it has no label
  EXPECT_THAT(messages->Take(), ElementsAre("64 -1 Nachricht: Eins wir Stand", "hide 1",
                                            "48 -1 Nachricht: Vorgang abgebrochen", "hide 2"));
}

// A reference whose variable has no value shows nothing, not the value of an earlier prompt.
TEST_F(BuiltinMessages, ShowNoValueThatIsNotTheVariables) {
  Start();
  comm->replies = false;
  SetClean("b", std::int16_t{2});
  Run([](CDDBuiltinLib& lib) {
    const std::int32_t b = lib.VARID("b");
    const std::int32_t a = lib.VARID("a");
    lib.PutMessage("%{0}", {b});
    lib.PutMessage("%[L]{0}=%{0}.", {a});
    lib.PutMessage("%{0}.", {-1});
    lib.Display("%{0}.", {99, -1});
  });
  TakeErrors();
  EXPECT_THAT(messages->Take(), ElementsAre("64 2 Test: 2", "hide 1", "64 2 Test: =.", "hide 2",
                                            "64 2 Test: .", "hide 3", "64 1 Test: .", "hide 4"));
}

TEST_F(BuiltinMessages, CancelledAbortTheMethod) {
  using Body = void (*)(CDDBuiltinLib&);
  const Body bodies[] = {
      [](CDDBuiltinLib& lib) { EXPECT_EQ(lib.Acknowledge("x"), -2); },
      [](CDDBuiltinLib& lib) { lib.PutMessage("x"); },
      [](CDDBuiltinLib& lib) { lib.Display("x"); },
      [](CDDBuiltinLib& lib) { lib.Delay(1, "x"); },
      [](CDDBuiltinLib& lib) { EXPECT_EQ(lib.GetDevVarValue("x", {}, "a"), -2); },
      [](CDDBuiltinLib& lib) { EXPECT_EQ(lib.SelectFromList("x", {}, "A;B"), 0); },
      [](CDDBuiltinLib& lib) {
        Variant local = 3.5;
        EXPECT_EQ(lib.GetLocalVarValue("x", {}, local), 0);
        EXPECT_EQ(local, Variant(3.5));
      },
      [](CDDBuiltinLib& lib) { lib.DisplayDeviceStatus(1); },
  };
  Start();
  for (const Body body : bodies) {
    messages->answers = {{kMessageCancelled, std::int32_t{1}}};
    Run([&](CDDBuiltinLib& lib) {
      lib.AddAbortMethod("release");
      lib.AddAbortMethod("RELEASE");
      body(lib);
      EXPECT_TRUE(lib.IsAbort());
      EXPECT_EQ(lib.AbortMethodsList().Count(), 1U);
    });
  }
  EXPECT_EQ(Value("a"), 1);
}

TEST_F(BuiltinMessages, DisplayHasItsVariablesReadAgain) {
  Start();
  for (const std::int32_t result : {0, kMessageTimedOut, 5}) {
    kernel->ReadVariable(Var("b"));
    messages->answers = {{result, {}}};
    Run([](CDDBuiltinLib& lib) { lib.Display("%{0}", {lib.VARID("b"), 0}); });
    EXPECT_EQ(Stored("b")->Available(), result == 5);
    EXPECT_EQ(messages->Take().front(), "64 1 Test: 2");
  }
}

TEST_F(BuiltinMessages, AskForValues) {
  Start();
  messages->answers = {{0, std::int16_t{42}}, {0, 2.5}, {0, 7}, {0, "new"}, {0, 2}};
  Run([&](CDDBuiltinLib& lib) {
    EXPECT_EQ(lib.GetDevVarValue("Value of %{0}", {lib.VARID("b")}, "a"), 0);
    EXPECT_EQ(lib.LongValue("a"), 42);
    lib.SaveValues();
    struct {
      Variant local, expected;
      TypeCode type;
    } const cases[] = {{1.5F, 2.5, TypeCode::Double},
                       {std::int16_t{1}, 7, TypeCode::Integer},
                       {"old", "new", TypeCode::Ascii}};
    for (const auto& test : cases) {
      Variant local = test.local;
      EXPECT_EQ(lib.GetLocalVarValue("Local", {}, local), 0);
      EXPECT_EQ(local, test.expected);
      const auto input = messages->inputs.back();
      EXPECT_EQ(input->TypeInfo().TypeCode(), test.type);
      EXPECT_TRUE(input->CheckValue(test.expected, true));
    }
    gui->SetLanguageID("de");
    EXPECT_EQ(lib.SelectFromList("Mode", {}, "Off;On;Auto|de|Aus;Ein;Auto"), 2);
    const auto input = messages->inputs.back();
    EXPECT_EQ(input->TypeInfo().EnumItems(), (EnumList{{0, "Aus"}, {1, "Ein"}, {2, "Auto"}}));
    EXPECT_EQ(input->TypeInfo().MaxEnumValue(), 2);
    EXPECT_TRUE(input->Available());
  });
  EXPECT_THAT(messages->Take(),
              ElementsAre("80 -1 Input Message: Value of 2", "hide 1", "80 -1 Input Message: Local",
                          "hide 2", "80 -1 Input Message: Local", "hide 3",
                          "80 -1 Input Message: Local", "hide 4", "32 -1 Prüfung: Mode", "hide 5"));
  EXPECT_EQ(Value("a"), 42);
}

TEST_F(BuiltinMessages, TellTheMeaningOfStatus) {
  Start();
  Run([](CDDBuiltinLib& lib) {
    lib.DisplayDeviceStatus(0x81);
    lib.DisplayCommStatus(0x82);
    lib.DisplayResponseStatus(3, 5);
    lib.DisplayXmtrStatus("bits", 3);
    std::string text;
    lib.GetStatusCodeString("bits", 4, text);
    EXPECT_EQ(text, "Cold");
    ByteBuffer bytes;
    lib.RspcodeString(3, 5, bytes, 5);
    EXPECT_EQ(bytes.Text(), "Too h");
    EXPECT_FALSE(lib.IsAbort());
  });
  EXPECT_THAT(
      messages->Take(),
      ElementsAre("48 -1 Hardware Device Status: Process applied to the primary variable is "
                  "outside the operating limits of the field device\r\nField device has "
                  "malfunctioned due to a hardware error or failure",
                  "hide 1", "48 -1 Communication error: Buffer overflow\r\nMessage Time-out",
                  "hide 2", "64 -1 Data Response Codes: Too high", "hide 3",
                  "64 -1 Hardware Device Status: Hot\r\nCold", "hide 4"));
}

TEST_F(BuiltinMessages, AndFailForWhatHasNoMeaning) {
  struct {
    void (*body)(CDDBuiltinLib&);
    const char* message;
  } const cases[] = {
      {[](CDDBuiltinLib& lib) { lib.DisplayDeviceStatus(0); }, "Device status \"0\" not found!"},
      {[](CDDBuiltinLib& lib) { lib.DisplayCommStatus(1); }, "Comm status \"1\" not found!"},
      {[](CDDBuiltinLib& lib) { lib.DisplayResponseStatus(98, 1); }, "Command \"98\" not found!"},
      {[](CDDBuiltinLib& lib) { lib.DisplayResponseStatus(3, 9); },
       "Response code \"9\" for command \"3\" not found!"},
      {[](CDDBuiltinLib& lib) { lib.DisplayXmtrStatus("a", 1); },
       "Variable \"a\" has the wrong type!"},
      {[](CDDBuiltinLib& lib) { lib.DisplayXmtrStatus("bits", 8); },
       "Status \"8\" in status variable \"bits\" not found!"},
      {[](CDDBuiltinLib& lib) {
         std::string text;
         lib.GetStatusCodeString("bits", 8, text);
       },
       "Response code \"8\" in status variable \"bits\" not found!"},
      {[](CDDBuiltinLib& lib) { EXPECT_THROW(lib.GetDevVarValue("x", {}, "nowhere"), Failure); },
       "Variable \"nowhere\" not defined!"},
  };
  Start();
  for (const auto& test : cases) {
    Run([&](CDDBuiltinLib& lib) {
      lib.PutMessage("before");
      test.body(lib);
      EXPECT_TRUE(lib.IsAbort());
    });
    EXPECT_THAT(TakeErrors(), ElementsAre(HasSubstr(test.message)));
    const auto lines = messages->Take();
    EXPECT_EQ(lines.size(), 2U) << test.message;  // the one before, hidden
  }
}

}  // namespace
