#include "support/GuiTest.h"

namespace test_support {
namespace {

class RefreshTest : public GuiTest {
 protected:
  // Stores a variable that was last read so many seconds ago, and has the control ask for it.
  std::shared_ptr<Variable> Add(const char* name, int secondsAgo) {
    const auto variable = MakeVariable(name);
    variable->SetLastReadTime(clock->WallTime() - std::chrono::seconds(secondsAgo));
    database->AddObject(variable);
    control->refreshData.Add(variable->Definition());
    return variable;
  }
  void Finish(const char* name) {
    database->SetVariableAvailable(Definition::Define(name, ObjectKind::Variable), true);
    gui->LifeSignal(LifeSignalCode::ExchangeFinished, kernel->started);
    platform.Loop().Pump();
  }
  std::vector<std::string> Collect() {
    Advance(1000);
    platform.Loop().Pump();
    return TakeReads();
  }
  std::vector<std::string> TakeReads() {
    std::vector<std::string> reads;
    for (const std::string& call : std::exchange(kernel->calls, {})) {
      if (!call.starts_with("GetVariable")) reads.push_back(call);
    }
    return reads;
  }
  std::shared_ptr<test_support::RecordingControl> control = Register();
};

TEST_F(RefreshTest, ReadsOneAtATimeStalestFirst) {
  Add("b", 20);
  Add("c", 10);
  Add("a", 30);
  Add("b2", 20);
  EXPECT_THAT(Collect(), ElementsAre("Async a"));
  control->lifeSignals.clear();
  Advance(200);
  EXPECT_THAT(control->lifeSignals, ElementsAre(LifeSignalCode::Waiting));
  EXPECT_THAT(TakeReads(), IsEmpty());
  gui->LifeSignal(LifeSignalCode::ExchangeFinished, std::make_shared<CommandRef>());
  platform.Loop().Pump();
  EXPECT_THAT(TakeReads(), IsEmpty());
  Finish("a");
  EXPECT_THAT(TakeReads(), ElementsAre("Async b"));
  Finish("b");
  Finish("b2");
  Finish("c");
  EXPECT_THAT(TakeReads(), ElementsAre("Async b2", "Async c"));
}

// The others have their turn; the one that failed waits for the next collection.
TEST_F(RefreshTest, DoesNotAskASilentDeviceForTheSameAgainAtOnce) {
  Add("a", 30);
  Add("b", 20);
  EXPECT_THAT(Collect(), ElementsAre("Async a"));
  const auto fail = [this] {
    gui->LifeSignal(LifeSignalCode::ExchangeFinished, kernel->started);
    platform.Loop().Pump();
  };
  fail();
  fail();
  fail();
  EXPECT_THAT(TakeReads(), ElementsAre("Async b"));
  EXPECT_THAT(Collect(), ElementsAre("Async a"));
}

TEST_F(RefreshTest, LeavesOutWhatNeedsNoRead) {
  Add("available", 9)->SetAvailable(true);
  Add("invalid", 9)->SetValidity(false);
  Add("held", 9)->EditAttributes().SetFlag(VariableFlag::LibraryHeld, true);
  Add("future", -3600);
  control->refreshData.Add(Definition::Define("unknown", ObjectKind::Variable));
  control->refreshData.Add(Definition::Define("menu", ObjectKind::Menu));
  Add("stale", 1);
  EXPECT_THAT(Collect(), ElementsAre("Async stale"));
  Finish("stale");
  Advance(200);
  EXPECT_THAT(TakeReads(), IsEmpty());
  clock->Advance(std::chrono::hours(1));
  EXPECT_THAT(Collect(), ElementsAre("Async future"));
}

TEST_F(RefreshTest, CollectsOncePerSecondWhileTheListIsEmpty) {
  for (int tick = 0; tick < 15; ++tick) Advance(200);
  EXPECT_THAT(control->TakeCalls().size(), 3U);
  tracer->callBack->SetTraceLevelFilter(2);
  Add("a", 1);
  control->observedData.Add(Definition::Define("seen", ObjectKind::Variable));
  control->observedData.Add(Definition::Define("kindless", ObjectKind::Undefined));
  control->threadId = 0;  // of another thread: definitions without a kind are dropped
  gui->RegisterCtrl(control);
  gui->ObservedDataChangeEvent();
  control->TakeCalls();
  tracer->TakeCalls();
  Advance(1000);
  EXPECT_THAT(tracer->TakeCalls(),
              testing::Contains("Text 2 m_tmrAsynchronizer_TimerEvent: Finished CollectRefreshData "
                                "Count(2)"));
  for (int tick = 0; tick < 10; ++tick) Advance(200);
  EXPECT_THAT(control->TakeCalls(), testing::Contains("CollectRefreshData").Times(1));
}

TEST_F(RefreshTest, ReadsAtOnceWhatCannotBeReadInTheBackground) {
  Add("a", 2);
  Add("b", 1);
  kernel->starts = false;
  EXPECT_THAT(Collect(), ElementsAre("Async a", "ReadVariable a"));
  kernel->fails = true;
  platform.Loop().Pump();
  EXPECT_THAT(TakeReads(), ElementsAre("Async b", "ReadVariable b"));
  EXPECT_THAT(tracer->TakeCalls(), testing::Contains(testing::HasSubstr("Kernel:-2147418113=")));
}

TEST_F(RefreshTest, AReadFinishedWhileItStartsDoesNotStopTheRefresh) {
  Add("a", 2);
  Add("b", 1);
  kernel->onStart = [&](const std::shared_ptr<CommandRef>& reference) {
    database->SetVariableAvailable(Definition::Define("a", ObjectKind::Variable), true);
    gui->LifeSignal(LifeSignalCode::ExchangeFinished, reference);
  };
  EXPECT_THAT(Collect(), ElementsAre("Async a"));
  platform.Loop().Pump();
  EXPECT_THAT(TakeReads(), ElementsAre("Async b"));
}

TEST_F(RefreshTest, StopsUnderALockAndEndsWithTheInstance) {
  Add("a", 1);
  Advance(1000);  // the signal to read waits
  const std::int32_t lock = gui->SetUILock();
  platform.Loop().Pump();
  EXPECT_THAT(TakeReads(), IsEmpty());
  gui->ReleaseUILock(lock);
  EXPECT_THAT(Collect(), ElementsAre("Async a"));
  gui->SetComponentModel(nullptr);
  Finish("a");
  Advance(2000);
  EXPECT_THAT(TakeReads(), IsEmpty());
  // A manager let go of by one of its own timer events lives to the event's end.
  database->SetVariableAvailable(Definition::Define("a", ObjectKind::Variable), false);
  gui->SetComponentModel(components);
  kernel->onStart = [&](const auto&) {
    components->gui.reset();
    gui = std::make_shared<CDDDTMGUI>();
  };
  EXPECT_THAT(Collect(), ElementsAre("Async a"));
}

}  // namespace
}  // namespace test_support
