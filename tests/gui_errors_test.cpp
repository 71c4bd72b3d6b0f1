#include "support/FailureOf.h"
#include "support/GuiTest.h"

namespace test_support {
namespace {

constexpr const char* kStack = "Call Stack Information:\r\nNo Trace Info Available!";

class ErrorsTest : public GuiTest {
 protected:
  ErrorsTest() {
    gui->SetMessageControl(control);
    control->messageAnswer = 5;
    comm.lastResult = 99;
  }
  const UserMessage& Shown() const { return control->userMessages.back(); }
  bool NothingShown() const { return control->userMessages.empty(); }

  std::shared_ptr<RecordingControl> control = std::make_shared<RecordingControl>();
};

TEST_F(ErrorsTest, EvaluationErrorIsTracedAndShown) {
  gui->StackInformation()->Clear();
  gui->EvaluationError("bad");
  EXPECT_THAT(tracer->TakeCalls(),
              ElementsAre("EvaluationError 0 DD - Evaluation Error: bad\r\n", "Break 0 db"));
  EXPECT_EQ(Shown().title, "DD - Evaluation Error");
  EXPECT_EQ(Shown().prompt, "bad");
  EXPECT_EQ(Shown().help, "");
  EXPECT_EQ(Shown().icon, MessageIcon::Critical);
  EXPECT_EQ(Shown().delay, kWaitForUser);
  EXPECT_THAT(control->hiddenMessages, ElementsAre(5));
}

TEST_F(ErrorsTest, HandledErrorsAreTracedOnly) {
  struct Failing : CEmptyErrorHandler {
    std::int32_t EvaluationError(const std::string&) override {
      throw std::runtime_error("broken handler");
    }
  };
  gui->SetErrorHandler(std::make_shared<CEmptyErrorHandler>());
  gui->EvaluationError("bad");
  gui->ObjectError(MakeVariable("x"), ItemIndex::CyclicVariable);
  gui->ResponseCodeError({7, 0, 0}, std::make_shared<CommandRef>(MakeObject<Command>("c"), 0));
  EXPECT_TRUE(NothingShown());
  EXPECT_EQ(comm.lastResult, 99);
  EXPECT_EQ(tracer->TakeCalls().size(), 6U);
  gui->SetErrorHandler(std::make_shared<Failing>());
  gui->EvaluationError("bad");
  EXPECT_EQ(control->userMessages.size(), 1U);
}

TEST_F(ErrorsTest, ObjectErrorTextsNameTheObject) {
  gui->SetLanguageID("de");
  const auto variable = MakeVariable("x", "Range|de|Bereich");
  variable->SetToBeWritten(true);
  gui->ObjectError(variable, ItemIndex::CannotWrite);
  EXPECT_FALSE(variable->ToBeWritten());
  const std::string text =
      "Bereich (x):\r\nVariable konnte nicht in das Ger\xC3\xA4t geschrieben werden";
  EXPECT_EQ(Shown().prompt, text);
  EXPECT_EQ(Shown().title, "Objekt Fehler");
  EXPECT_EQ(Shown().help, kStack);
  EXPECT_THAT(tracer->TakeCalls(), ElementsAre("ObjectError 0 Object Error: " + text + "\r\n\r\n" +
                                                   variable->Describe(1) + "\r\n" + kStack,
                                               "Break 0 db"));
  Setting(kShowDDInformation, "0");
  gui->ObjectError(variable, ItemIndex::NotAllChecked);
  EXPECT_THAT(Shown().prompt, testing::StartsWith("Bereich:\r\n"));
  gui->ObjectError(MakeObject<Command>("cmd"), ItemIndex::UnknownMenuItem);
  EXPECT_THAT(Shown().prompt, testing::StartsWith("cmd:\r\n"));
  EXPECT_THROW(gui->ObjectError(nullptr, ItemIndex::ObjectError), Failure);
}

TEST_F(ErrorsTest, ObjectErrorIsRecordedOnItsVariable) {
  struct Case {
    ItemIndex index;
    std::int32_t before;  // error index
    std::int32_t after;
    bool shown;
    bool available;
  };
  constexpr Case kCases[] = {
      {ItemIndex::CannotRead, 0, 1, false, true},
      {ItemIndex::NoCommunication, 0, 2, true, false},
      {ItemIndex::ReadNotValid, 4, 0, false, false},
      {ItemIndex::CannotWrite, 9, 9, true, false},
      {ItemIndex::NotWritable, 0, 5, true, false},
      {ItemIndex::WriteNotValid, 0, 6, false, false},
      {ItemIndex::MethodNotValid, 0, 12, false, false},
      {ItemIndex::NotCurrentlyEditable, 0, 13, true, false},
  };
  for (const Case& each : kCases) {
    const std::string name = "v" + std::to_string(static_cast<int>(each.index));
    const auto variable = MakeVariable(name.c_str());
    database->AddObject(variable->GetCopy());
    variable->SetErrorIndex(each.before);
    control->userMessages.clear();
    gui->ObjectError(variable, each.index);
    const auto stored = database->ReadObject(variable->Definition())->MakeVariable();
    EXPECT_EQ(variable->ErrorIndex(), each.after) << name;
    EXPECT_EQ(stored->ErrorIndex(), each.after) << name;
    EXPECT_EQ(stored->ErrorText(), variable->ErrorText()) << name;
    EXPECT_EQ(control->userMessages.size(), each.shown ? 1U : 0U) << name;
    EXPECT_EQ(stored->Available(), each.available) << name;
    EXPECT_EQ(variable->Available(), each.available) << name;
  }
  EXPECT_EQ(comm.lastResult, 5);  // the answer to NoCommunication

  const auto held = MakeVariable("held");
  held->EditAttributes().SetFlag(VariableFlag::LibraryHeld, true);
  gui->ObjectError(held, ItemIndex::NotWritable);
  EXPECT_EQ(held->ErrorIndex(), 0);
}

TEST_F(ErrorsTest, CyclicEvaluationIsTracedAndRaised) {
  for (const auto& [index, text] :
       {std::pair(ItemIndex::CyclicVariable, "cyclic evaluation of variable"),
        {ItemIndex::CyclicCommand, "cyclic evaluation of command"}}) {
    const Failure failure = support::FailureOf(
        [&, index = index] { gui->ObjectError(MakeObject<Command>("c"), index); });
    EXPECT_EQ(failure.Number(), ErrorNumber::Unexpected);
    EXPECT_EQ(failure.Description(), std::string("c:\r\n") + text);
    EXPECT_THAT(tracer->TakeCalls(), testing::SizeIs(2));
  }
  EXPECT_TRUE(NothingShown());
}

class ResponseTest : public ErrorsTest {
 protected:
  ResponseTest() {
    command->SetNumber(35);
    command->EditResponseCodes() = {{5, ResponseCodeType::DataEntryError, "command's 5"},
                                    {9, ResponseCodeType::Success, "fine"}};
    command->Transactions().Add(2).EditResponseCodes() = {
        {5, ResponseCodeType::MiscError, "Lower|de|Unten", "Help me"},
        {8, ResponseCodeType::MiscWarning, "warning"}};
  }
  void Report(std::uint8_t code, std::uint8_t flags = 0) {
    control->userMessages.clear();
    gui->ResponseCodeError({code, flags, 0}, reference);
  }
  std::shared_ptr<Command> command = MakeObject<Command>("write_range");
  std::shared_ptr<CommandRef> reference = std::make_shared<CommandRef>(command, std::int16_t{2});
};

TEST_F(ResponseTest, DefinedCodesTellTheirTexts) {
  Report(5);
  const std::string text = "Command 35, Transaction 2\r\nResponse Code: 5\r\nLower";
  EXPECT_EQ(Shown().title, "Command Error");
  EXPECT_EQ(Shown().prompt, text);
  EXPECT_EQ(Shown().help, std::string("Help me\r\n\r\n") + kStack);
  EXPECT_EQ(Shown().icon, MessageIcon::Critical);
  EXPECT_EQ(comm.lastResult, 5);
  EXPECT_THAT(control->hiddenMessages, ElementsAre(5));
  EXPECT_THAT(tracer->TakeCalls(),
              ElementsAre("ResponseCodeError 0 Response Code Error: " + text + "\r\n" +
                              reference->Describe(1) + "\r\n" + kStack,
                          "Break 0 db"));
  Report(8);
  EXPECT_EQ(Shown().icon, MessageIcon::Information);
  for (const auto shownNowhere : {std::uint8_t{9}, std::uint8_t{0}}) {
    comm.lastResult = 99;
    Report(shownNowhere);
    EXPECT_TRUE(NothingShown());
    EXPECT_EQ(comm.lastResult, 0);
  }
}

TEST_F(ResponseTest, OtherCodesTellWhatTheStandardSays) {
  struct Case {
    std::uint8_t code;
    std::uint8_t flags;
    const char* detailed;
    const char* brief;
  };
  constexpr Case kCases[] = {
      {32, 0, "Command 35, Transaction 2\r\nResponse Code: 32\r\nDevice is busy",
       "Command 35(2): \r\nDevice is busy"},
      {99, 0, "Command 35, Transaction 2\r\nResponse Code: 99\r\nDevice is busy",
       "Command 35(2): \r\nDevice is busy"},
      {15, 0, "Command 35, Transaction 2\r\nResponse Code: 15\r\nspecific error",
       "Command 35(2): \r\nspecific error"},
      {0, 136, "Command 35, Transaction 2\r\nCommunication error: 136\r\n",
       "Command 35(2)\r\nCommunication error: 136"},
  };
  for (const Case& each : kCases) {
    Report(each.code, each.flags);
    EXPECT_EQ(Shown().prompt, each.detailed);
    EXPECT_EQ(Shown().help, kStack);
  }
  Setting(kShowDDInformation, "0");
  for (const Case& each : kCases) {
    Report(each.code, each.flags);
    EXPECT_EQ(Shown().prompt, each.brief);
  }
  reference->SetTransactionNumber(7);  // unknown: the command's codes stand
  Report(5);
  EXPECT_THAT(Shown().prompt, testing::EndsWith("command's 5"));
  EXPECT_THROW(gui->ResponseCodeError({1, 0, 0}, nullptr), Failure);
}

}  // namespace
}  // namespace test_support
