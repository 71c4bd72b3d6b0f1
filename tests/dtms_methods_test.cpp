#include <algorithm>
#include <map>

#include "common/HartTables.h"
#include "gui/CDDDTMGUI.h"
#include "support/SampleDevice.h"
#include "support/StubGui.h"

// The sample DTM's methods on the emulated transmitter, on every way through them.
namespace {

using namespace test_support;  // NOLINT(google-build-using-namespace)

constexpr int kNever = 1000;
constexpr std::uint8_t kLoopCurrentFixed = 0x08;  // device status

// Answers what asks for a value from a table, in order; cancels the message of one number.
class User : public StubGui {
 public:
  std::int32_t ShowUserMessage(UserMessage& message) override {
    messages.push_back(message.prompt);
    message.displayId = static_cast<std::int32_t>(messages.size());
    if (messages.size() == cancelled) return kMessageCancelled;
    if (message.input && !answers.empty()) {
      message.input->SetValue(answers.front());
      answers.erase(answers.begin());
    }
    return 0;
  }
  std::vector<Variant> answers;
  std::size_t cancelled = kNever;  // from 1
};

struct Refusal {
  int command;
  int nth;  // time that the command is sent, from 1
  const char* fault;
};

// Keeps what is sent: the numbers, and of command 40 the current in whole mA. From one exchange on
// the device is silent for a while; refusals strike single commands.
class Line : public HartLinkSim::DeviceLink {
 public:
  using DeviceLink::DeviceLink;
  void Execute(const std::shared_ptr<Exchange>& exchange) override {
    const int number = exchange->CommandNumber();
    const int nth = ++counts_[number];
    if (++exchanges >= silentFrom && exchanges < silentFrom + silence)
      LinkFaults().Add("no-reply:1");
    if (exchanges == brokenOff) {
      LinkFaults().Add("latency:100");
      break_ = platform::Current().Loop().Post([this] { onBreak(); });
    }
    for (const Refusal& refusal : refusals) {
      if (refusal.command == number && refusal.nth == nth) LinkFaults().Add(refusal.fault);
    }
    const std::string data = exchange->RequestData();
    sent += (sent.empty() ? "" : " ") + std::to_string(number) + (number == 40 ? ":" + data : "");
    DeviceLink::Execute(exchange);
  }
  std::string sent;
  std::vector<Refusal> refusals;
  int exchanges = 0;
  int silentFrom = kNever;
  int silence = 1;
  int brokenOff = kNever;  // exchange that the user breaks off
  std::function<void()> onBreak;

 private:
  platform::Subscription break_;
  std::map<int, int> counts_;
};

constexpr const char* kRelease = "40:00000000";

std::size_t CountOf(std::string_view text, std::string_view part) {
  std::size_t count = 0;
  for (auto at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1))
    ++count;
  return count;
}

// One run of a method on a device of its own.
class MethodRun : public SampleDtm {
 public:
  MethodRun() {
    std::dynamic_pointer_cast<ILinkUser>(components_->HARTComm())->SetLink(line);
    std::dynamic_pointer_cast<ZAFHartLib::CDDDTMGUI>(components_->DDGUI())->SetMessageControl(user);
    for (const char* name : {"primary_variable", "loop_current"}) device_->SetValue(name, 300.5F);
    components_->DDKernel()->ReadVariable(VariableNamed("device_id"));  // connects
    line->sent.clear();
    line->exchanges = 0;
  }
  void Run(const char* method) {
    components_->DDKernel()->ExecuteMethod(dtmkit::MethodNamed(method), nullptr);
  }
  // Nothing that the method did not keep is left in the DTM, nothing is held in the device. What
  // could not be read has an error.
  void ExpectCleanEnd() {
    EXPECT_EQ(device_->Status() & kLoopCurrentFixed, 0) << line->sent;
    for (const char* name :
         {"trim_unit", "lower_trim_point", "upper_trim_point", "trim_operator"}) {
      EXPECT_FALSE(Get(name)->ToBeWritten()) << name;
      if (Get(name)->ErrorIndex() != 0) continue;
      EXPECT_EQ(components_->DDKernel()->ReadVariable(VariableNamed(name))->Value().ToText(),
                InDevice(name).ToText())
          << name;
    }
    for (const char* name : {"fixed_loop_current", "trim_reference"})
      EXPECT_TRUE(Get(name)->Value() == Get(name)->DefaultValue() ||
                  user->messages.back().starts_with("Trimmed"))
          << name;
  }

  std::shared_ptr<Line> line = std::make_shared<Line>(device_);
  std::shared_ptr<User> user = std::make_shared<User>();
};

struct Script {
  const char* method;
  std::vector<Variant> answers;
  const char* sent;
  const char* last;  // message
};

const Script kScripts[] = {
    {"loop_test",
     {1, 2, 50.0, 12.0, 3},
     "40:41A00000 40:41400000 40:00000000",
     "The loop current follows the measurement again. Put the loop back into automatic control."},
    {"loop_current_trim",
     {4.02, 1, 19.98, 0, 20.0, 1},
     "40:40800000 45 40:41A00000 46 46 40:00000000",
     "The loop current follows the measurement again. Put the loop back into automatic control."},
    {"sensor_zero_trim", {}, "9 1 1 1 1 43 1", "Zero is trimmed: 300.50 K"},
    {"sensor_trim",
     {290.0, 295.0, 400.0, hart::Date(25, 11, 2026), "J. Doe"},
     "9 136 14 1 1 1 1 1 82 1 1 1 1 1 82 137",
     "Trimmed at 290.00 K and 400.00 K."},
    {"self_test", {1}, "41 48", "Apart from these messages"},
    {"show_status", {5, 0, 6, 7}, "48 48 48", "Status to show"},
    {"device_reset", {1}, "42 0", "The device has restarted."},
    {"watch_measurement", {2.0}, "1 2 1 2", "Sensor temperature: 300.50 K"},
};

class EachMethod : public testing::TestWithParam<Script> {};

TEST_P(EachMethod, RunsToItsEnd) {
  MethodRun run;
  run.user->answers = GetParam().answers;
  run.Run(GetParam().method);
  EXPECT_EQ(run.line->sent, GetParam().sent);
  EXPECT_TRUE(run.user->messages.back().starts_with(GetParam().last)) << run.user->messages.back();
  EXPECT_TRUE(run.user->answers.empty());
  run.ExpectCleanEnd();
}

// Cancelled at one message after the other: the current is released exactly once when it is held.
TEST_P(EachMethod, CanBeCancelledAtEveryMessage) {
  for (std::size_t cancelled = 1;; ++cancelled) {
    SCOPED_TRACE(cancelled);
    MethodRun run;
    run.user->answers = GetParam().answers;
    run.user->cancelled = cancelled;
    run.Run(GetParam().method);
    if (run.user->messages.size() < cancelled) break;
    EXPECT_EQ(CountOf(run.line->sent, kRelease), run.line->sent.find("40:4") != std::string::npos)
        << run.line->sent;
    run.ExpectCleanEnd();
  }
}

// A single lost exchange is repeated and makes no difference; a device that stays silent ends the
// method, after the release has been tried.
TEST_P(EachMethod, SurvivesSilence) {
  for (int from = 1;; ++from) {
    for (const int silence : {1, kNever}) {
      SCOPED_TRACE(std::to_string(from) + ", " + std::to_string(silence) + " exchanges lost");
      MethodRun run;
      run.user->answers = GetParam().answers;
      run.line->silentFrom = from;
      run.line->silence = silence;
      run.Run(GetParam().method);
      if (run.line->exchanges < from) return;
      const auto& messages = run.user->messages;
      const auto lost = std::count_if(messages.begin(), messages.end(), [](const auto& message) {
        return message.starts_with("The loop current could not be released");
      });
      const bool held = run.line->sent.find("40:4") != std::string::npos;
      EXPECT_EQ(lost, held && silence == kNever ? 1 : 0) << run.line->sent;
      run.line->silentFrom = kNever;
      if (!lost) run.ExpectCleanEnd();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Sample, EachMethod, testing::ValuesIn(kScripts),
                         [](const auto& script) { return std::string(script.param.method); });

struct RefusedRun {
  const char* method;
  std::vector<Variant> answers;
  Refusal refusal;
  const char* shown;
  const char* sent;
};

// 44 is a code that the DD does not know: the builtins end the method and forget its abort methods.
const RefusedRun kRefusedRuns[] = {
    {"loop_test",
     {1, 0, 3},
     {40, 1, "response:3:1"},
     "Value was too high",
     "40:41A00000 40:40800000 40:00000000"},
    {"loop_test",
     {1, 0, 3},
     {40, 2, "response:11:1"},
     "Loop current not active",
     "40:41A00000 40:40800000 40:00000000"},
    {"loop_test",
     {1, 0, 3},
     {40, 2, "response:44:1"},
     "Response code \"44\" for command \"40\"",
     "40:41A00000 40:40800000 40:00000000"},
    {"loop_test", {1, 3}, {40, 2, "response:32:1"}, "Busy", "40:41A00000 40:00000000 40:00000000"},
    {"loop_current_trim",
     {4.02, 1},
     {40, 2, "response:7:1"},
     "In write protect mode",
     "40:40800000 45 40:41A00000 40:00000000"},
    {"sensor_zero_trim",
     {1},
     {43, 1, "response:9:1"},
     "Applied process too high",
     "9 1 1 1 1 43 43 1"},
    {"sensor_trim",
     {290.0, 0},
     {82, 1, "response:13:1"},
     "Trim fails, nothing is changed",
     "9 136 14 1 1 1 1 1 82"},
    {"sensor_trim",
     {290.0, 400.0, 0, "X"},
     {137, 1, "response:68:1"},
     "Trim points too close",
     "9 136 14 1 1 1 1 1 82 1 1 1 1 1 82 137"},
    {"self_test", {1}, {41, 1, "response:16:1"}, "Access restricted", "41 48"},
};

TEST(Methods, ShowWhatTheDeviceRefusesAndLeaveNothingBehind) {
  for (const RefusedRun& refused : kRefusedRuns) {
    SCOPED_TRACE(std::string(refused.method) + " " + refused.refusal.fault);
    MethodRun run;
    run.user->answers = refused.answers;
    run.line->refusals = {refused.refusal};
    run.Run(refused.method);
    EXPECT_EQ(run.line->sent, refused.sent);
    const auto& messages = run.user->messages;
    EXPECT_TRUE(std::any_of(messages.begin(), messages.end(), [&](const std::string& message) {
      return message.find(refused.shown) != std::string::npos;
    })) << testing::PrintToString(messages);
    run.ExpectCleanEnd();
  }
}

TEST(Methods, ReleaseTheLoopCurrentWhenTheUserBreaksOff) {
  for (const int exchange : {1, 2}) {
    MethodRun run;
    run.user->answers = {1, 2, 12.0, 3};
    run.line->brokenOff = exchange;
    run.line->onBreak = [&] {
      std::dynamic_pointer_cast<ILinkUser>(run.components_->HARTComm())->CancelExchange();
    };
    try {
      run.Run("loop_test");
      FAIL() << "the break is raised on";
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Number(), ErrorNumber::Cancelled);
    }
    EXPECT_EQ(CountOf(run.line->sent, kRelease), 1U) << run.line->sent;
    run.ExpectCleanEnd();
  }
}

TEST(Methods, SpeakGerman) {
  for (const Script& script : kScripts) {
    MethodRun english;
    MethodRun german;
    german.components_->DDGUI()->SetLanguageID("de");
    for (MethodRun* run : {&german, &english}) {
      run->user->answers = script.answers;
      run->Run(script.method);
    }
    ASSERT_EQ(german.user->messages.size(), english.user->messages.size());
    for (std::size_t i = 0; i < german.user->messages.size(); ++i)
      EXPECT_NE(german.user->messages[i], english.user->messages[i]);
  }
}

}  // namespace
