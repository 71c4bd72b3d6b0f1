#include <gtest/gtest.h>
#include <unistd.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "platform/MessageLoop.h"

namespace platform {
namespace {

using namespace std::chrono_literals;

struct MessageLoopTest : testing::Test {
  ManualClock clock{1000ms};
  std::optional<MessageLoop> loop{std::in_place, clock};
  std::string log;

  MessageLoop::Handler Log(char c) {
    return [this, c] { log += c; };
  }
  bool PumpAfter(Milliseconds time) {
    clock.Advance(time);
    return loop->Pump();
  }
};

TEST_F(MessageLoopTest, RunsInOrderOfTimeAndPostingAndLeavesWhatHandlersAdd) {
  Subscription added;
  const auto late = loop->StartOnce(30ms, Log('l'));
  const auto early = loop->StartTimer(20ms, [&] { added = loop->Post(Log('a')); });
  const auto first = loop->Post(Log('1'));
  const auto second = loop->Post(Log('2'));
  EXPECT_TRUE(PumpAfter(35ms));
  EXPECT_EQ(log, "12l");
  EXPECT_FALSE(first.IsActive());
  EXPECT_TRUE(loop->Pump());
  EXPECT_FALSE(loop->Pump());
  EXPECT_EQ(log, "12la");
}

TEST_F(MessageLoopTest, ALateTickStandsForAllThatWereMissed) {
  const auto timer = loop->StartTimer(200ms, Log('t'));
  EXPECT_FALSE(PumpAfter(199ms));
  EXPECT_TRUE(PumpAfter(1ms));
  EXPECT_TRUE(PumpAfter(750ms));  // due at 400, 600 and 800
  EXPECT_FALSE(loop->Pump());
  EXPECT_EQ(log, "tt");
  EXPECT_EQ(loop->NextDue(), 2000ms);
}

TEST_F(MessageLoopTest, NestedWaitNeitherReentersNorRepeats) {
  const auto timer = loop->StartTimer(10ms, [&] {
    log += '(';
    for (int i = 0; i < 5; ++i) loop->WaitStep(20ms);
    log += ')';
  });
  const auto other = loop->StartOnce(10ms, Log('o'));
  const auto later = loop->StartOnce(60ms, Log('l'));
  EXPECT_TRUE(PumpAfter(10ms));
  EXPECT_EQ(log, "(ol)");
  // The first step waits for nothing and the fourth ends early; the ticks missed meanwhile are one.
  EXPECT_EQ(clock.Now(), 1080ms);
  EXPECT_EQ(loop->NextDue(), 1020ms);
  log.clear();
  EXPECT_TRUE(loop->Pump());
  EXPECT_EQ(log, "()");
}

TEST_F(MessageLoopTest, CancelledHandlersDoNotRun) {
  auto kept = std::make_shared<int>(0);
  const std::weak_ptr<int> watch = kept;
  Subscription victim = loop->Post([this, kept] { log += 'v'; });
  kept.reset();
  const auto canceller = loop->StartOnce(0ms, Log('c'));
  victim.Cancel();
  EXPECT_TRUE(watch.expired()) << "what the handler held goes with it";
  { const auto gone = loop->Post(Log('g')); }
  loop->Pump();
  EXPECT_EQ(log, "c");
}

TEST_F(MessageLoopTest, HandlersCancelThemselvesAndOthers) {
  Subscription other;
  auto held = std::make_shared<std::string>("held");
  Subscription self = loop->StartTimer(1ms, [this, &self, &other, held] {
    self.Cancel();
    other = {};
    log += *held;  // still there
  });
  const std::weak_ptr<std::string> watch = held;
  held.reset();
  other = loop->StartTimer(1ms, Log('o'));
  PumpAfter(1ms);
  EXPECT_FALSE(PumpAfter(10ms));
  EXPECT_EQ(log, "held");
  EXPECT_TRUE(watch.expired());
  EXPECT_EQ(loop->NextDue(), std::nullopt);
}

TEST_F(MessageLoopTest, AHandlerMayReplaceItsOwnSubscription) {
  Subscription once;
  once = loop->Post([&] {
    EXPECT_FALSE(once.IsActive());
    once = loop->StartOnce(5ms, Log('2'));
    log += '1';
  });
  loop->Pump();
  PumpAfter(5ms);
  EXPECT_EQ(log, "12");
}

TEST_F(MessageLoopTest, TheLoopMayGoFirst) {
  auto timer = loop->StartTimer(1ms, Log('t'));
  const auto killer = loop->Post([&] {
    log += 'k';
    loop.reset();
  });
  MessageLoop& dying = *loop;
  dying.WaitStep(20ms);
  EXPECT_EQ(log, "k");
  EXPECT_FALSE(timer.IsActive());
  timer.Cancel();
}

TEST_F(MessageLoopTest, FailuresGoToTheSink) {
  std::vector<std::string> failures;
  auto failing = loop->StartTimer(1ms, [] { throw Failure(ErrorNumber::Overflow, "test"); });
  EXPECT_TRUE(PumpAfter(1ms));  // dropped
  loop->SetFailureSink([&](const Failure& failure) {
    failures.push_back(failure.Description());
    throw failure;
  });
  const auto next = loop->StartOnce(1ms, Log('n'));
  EXPECT_TRUE(PumpAfter(1ms));
  EXPECT_EQ(failures, std::vector<std::string>{"Overflow"});
  EXPECT_EQ(log, "n");
  failing = loop->StartTimer(1ms, [] { throw std::logic_error("bug"); });
  for (int i = 0; i < 2; ++i) EXPECT_THROW(PumpAfter(1ms), std::logic_error);
}

class FakeHost : public HostLoop {
 public:
  FakeHost(ManualClock& clock, MessageLoop& loop) : clock_(clock), loop_(loop) {}
  void OnNextDueChanged() override { armed.push_back(loop_.NextDue()); }
  void RunHostEvents(Milliseconds until) override {
    ran.push_back(until);
    clock_.Advance(std::min(until - clock_.Now(), longestSleep));
  }
  bool OnDescriptorsChanged(std::span<const WatchedDescriptor> descriptors) override {
    watched = descriptors.size();
    return watches;
  }
  std::vector<std::optional<Milliseconds>> armed;
  std::vector<Milliseconds> ran;
  Milliseconds longestSleep{1000};
  bool watches = false;
  std::size_t watched = 0;

 private:
  ManualClock& clock_;
  MessageLoop& loop_;
};

TEST_F(MessageLoopTest, TheHostIsToldWhenToWake) {
  using Moments = std::vector<std::optional<Milliseconds>>;
  FakeHost host(clock, *loop);
  const auto before = loop->StartOnce(50ms, Log('b'));
  loop->SetHostLoop(&host);
  const auto later = loop->StartOnce(90ms, Log('l'));
  auto sooner = loop->StartOnce(10ms, Log('s'));
  sooner.Cancel();
  EXPECT_EQ(host.armed, (Moments{1050ms, 1010ms, 1050ms}));
  host.armed.clear();
  clock.Advance(100ms);
  EXPECT_TRUE(loop->RunDue());
  EXPECT_EQ(log, "bl");
  EXPECT_EQ(host.armed, (Moments{1090ms, std::nullopt}));
  EXPECT_TRUE(host.ran.empty());
  loop->SetHostLoop(nullptr);
}

TEST_F(MessageLoopTest, TheHostRunsItsEventsInPumpsAndWaits) {
  FakeHost host(clock, *loop);
  loop->SetHostLoop(&host);
  const auto once = loop->StartOnce(5ms, Log('o'));
  loop->Pump();
  loop->WaitStep(20ms);
  EXPECT_EQ(log, "o");
  host.longestSleep = 3ms;  // a host event ends the wait
  loop->WaitStep(20ms);
  EXPECT_EQ(host.ran, (std::vector<Milliseconds>{1000ms, 1005ms, 1025ms}));
  EXPECT_EQ(clock.Now(), 1008ms);
}

// A pipe, whose reading end is watched.
struct PipeTest : MessageLoopTest {
  int ends[2] = {-1, -1};
  PipeTest() { EXPECT_EQ(pipe(ends), 0); }
  ~PipeTest() override {
    for (const int end : ends) close(end);
  }
  void Send() const { EXPECT_EQ(write(ends[1], "x", 1), 1); }
  MessageLoop::Handler Take(char c) {
    return [this, c] {
      char byte = 0;
      EXPECT_EQ(read(ends[0], &byte, 1), 1);
      log += c;
    };
  }
  WatchedDescriptor Reader() const { return {ends[0], Readiness::Readable}; }
};

TEST_F(PipeTest, RunsHandlersWhileTheirDescriptorIsReady) {
  auto reader = loop->Watch(Reader(), Take('r'));
  const auto writer = loop->Watch({ends[1], Readiness::Writable}, Log('w'));
  EXPECT_TRUE(loop->Pump());
  EXPECT_EQ(log, "w");
  Send();
  Send();
  loop->WaitStep(20ms);
  loop->WaitStep(20ms);
  EXPECT_EQ(log, "wrwrw");
  EXPECT_EQ(clock.Now(), 1000ms);  // nothing slept: there was work
  reader.Cancel();
  Send();
  EXPECT_TRUE(loop->Pump());
  EXPECT_EQ(log, "wrwrww");
}

TEST_F(PipeTest, LeavesTimedHandlersInTheQueue) {
  ManualClock fromZero{0ms};
  MessageLoop early(fromZero);
  const auto posted = early.Post(Log('p'));
  const auto reader = early.Watch(Reader(), Take('r'));
  Send();
  EXPECT_TRUE(early.RunReady());
  EXPECT_TRUE(early.Pump());
  EXPECT_EQ(log, "rp");
}

TEST_F(PipeTest, SleepsUntilSomethingIsDueWhenNothingIsReady) {
  const auto reader = loop->Watch(Reader(), Take('r'));
  const auto once = loop->StartOnce(5ms, Log('o'));
  loop->WaitStep(20ms);
  EXPECT_EQ(log, "o");
  EXPECT_EQ(clock.Now(), 1005ms);
}

TEST_F(PipeTest, AHandlerThatWaitsOrCancelsItselfIsNotEntered) {
  Subscription reader;
  reader = loop->Watch(Reader(), [&] {
    log += '(';
    loop->WaitStep(20ms);
    reader.Cancel();
    log += ')';
  });
  Send();
  loop->WaitStep(20ms);
  EXPECT_EQ(log, "()");
  EXPECT_FALSE(loop->RunReady());
}

TEST_F(PipeTest, AHostWatchesOrTheLoopLooksEveryTenMilliseconds) {
  FakeHost host(clock, *loop);
  auto reader = loop->Watch(Reader(), Take('r'));
  loop->SetHostLoop(&host);
  EXPECT_EQ(host.watched, 1U);
  EXPECT_EQ(loop->NextDue(), 1010ms);
  Send();
  clock.Advance(10ms);
  EXPECT_TRUE(loop->RunDue());
  EXPECT_EQ(log, "r");

  host.watches = true;
  loop->SetHostLoop(&host);
  EXPECT_EQ(loop->NextDue(), std::nullopt);
  Send();
  EXPECT_TRUE(loop->RunReady());
  EXPECT_EQ(log, "rr");
  reader.Cancel();
  EXPECT_EQ(host.watched, 0U);
  loop->SetHostLoop(nullptr);
}

}  // namespace
}  // namespace platform
