#pragma once

#include "builtins/CDDBuiltinLib.h"
#include "support/KernelTest.h"

namespace test_support {

using ZAFHartLib::CDDBuiltinLib;

// Shows a method's messages: keeps "<icon> <delay> <title>: <prompt>" and "hide <display>", answers
// what the test has put there, else 0. Every message stays on display.
class MessageLog : public StubGui {
 public:
  struct Answer {
    std::int32_t result = 0;
    Variant value;  // put into the input variable unless empty
  };

  std::int32_t ShowUserMessage(UserMessage& message) override {
    lines.push_back(std::to_string(static_cast<std::int32_t>(message.icon)) + " " +
                    std::to_string(message.delay) + " " + message.title + ": " + message.prompt);
    EXPECT_EQ(message.displayId, kNoDisplay);
    EXPECT_EQ(message.help, "");
    message.displayId = ++lastDisplay;
    inputs.push_back(message.input);
    if (answers.empty()) return 0;
    const Answer answer = answers.front();
    answers.erase(answers.begin());
    if (message.input && !answer.value.IsEmpty()) message.input->SetValue(answer.value);
    return answer.result;
  }
  void HideUserMessage(std::int32_t display) override {
    lines.push_back("hide " + std::to_string(display));
  }
  std::vector<std::string> Take() { return std::exchange(lines, {}); }

  std::vector<std::string> lines;
  std::vector<std::shared_ptr<Variable>> inputs;
  std::vector<Answer> answers;
  std::int32_t lastDisplay = 0;
};

// Variables a, b, c (8 bit), n (float), text, bits; commands 3 (reads a and b), 6 (writes a),
// 7 (two transactions, 2 and 5), 48 (additional status); the method "method".
class BuiltinsTest : public KernelTest {
 protected:
  BuiltinsTest() {
    for (const char* name : {"a", "b", "c", "bits"}) AddVariable(name);
    model->Add<Variable>("n").EditTypeInfo().SetTypeCode(TypeCode::Float);
    auto& text = model->Add<Variable>("text");
    text.EditTypeInfo().SetTypeCode(TypeCode::Ascii);
    text.EditAttributes().SetFlag(VariableFlag::LibraryHeld, true);
    model->Add<Method>("method").SetLabel("Test|de|Prüfung");
    Command& read = AddCommand("read", 3, Operation::Read, {}, {Ref("a"), Ref("b")});
    read.EditResponseCodes().Add(
        ResponseCode(5, ResponseCodeType::DataEntryError, "Too high|de|Zu hoch"));
    AddCommand("write", 6, Operation::Write, {Ref("a")}, {Ref("a")});
    auto& two = model->Add<Command>("two");
    two.SetNumber(7);
    two.SetOperation(Operation::Command);
    AddTransaction(two, 2, {}, {});
    AddTransaction(two, 5, {}, {});
    AddCommand("status", 48, Operation::Command, {}, {});
    comm->memory = {{"a", std::int16_t{1}}, {"b", std::int16_t{2}}};
    gui->SetMessageControl(messages);
  }
  // Runs `body` as the method `name`, started from `object`.
  template <typename Body>
  void Run(Body body, std::shared_ptr<DDObject> object = {}, const char* name = "method") {
    CDDBuiltinLib lib;
    lib.SetComponentModel(components);
    lib.Initialize(object, name);
    body(lib);
  }
  void Start() {
    KernelTest::Start();
    messages->Take();
  }

  std::shared_ptr<MessageLog> messages = std::make_shared<MessageLog>();
};

}  // namespace test_support
