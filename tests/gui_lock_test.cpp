#include "gui/CLockObject.h"
#include "gui/clsEventDispatcher.h"
#include "gui/frmAsynchronizer.h"
#include "support/GuiTest.h"

namespace test_support {
namespace {

class LockTest : public GuiTest {
 protected:
  LockTest() { other->RegisterCtrl(otherControl); }
  std::shared_ptr<CDDDTMGUI> other = std::make_shared<CDDDTMGUI>();
  std::shared_ptr<RecordingControl> otherControl = std::make_shared<RecordingControl>();
  std::shared_ptr<RecordingControl> control = Register();
};

TEST_F(LockTest, SpansTheManagersOfTheThread) {
  EXPECT_EQ(gui->SetUILock(), 1);
  EXPECT_EQ(gui->SetUILock(), 2);
  EXPECT_TRUE(control->lockControls && otherControl->lockControls && other->IsUILocked());
  gui->ReleaseUILock(1);
  gui->ReleaseUILock(1);
  EXPECT_TRUE(gui->IsUILocked() && other->IsUILocked() && control->lockControls);
  EXPECT_EQ(gui->SetUILock(), 3);  // 2 is in use
  gui->ReleaseUILock(3);
  gui->ReleaseUILock(2);
  EXPECT_FALSE(gui->IsUILocked() || other->IsUILocked());
  EXPECT_FALSE(control->lockControls || otherControl->lockControls);
}

TEST_F(LockTest, LockObjectsReleaseWithTheirLastReference) {
  {
    CLockObject lock;
    lock.SetLock(gui);
    CLockObject dropped;
    dropped.SetLock(gui);
    lock.SetLock(other);
    dropped.SetLock(nullptr);
    EXPECT_TRUE(gui->IsUILocked() && other->IsUILocked());
  }
  EXPECT_FALSE(gui->IsUILocked() || other->IsUILocked());
  // A manager that dies with locks on both sides leaves nothing behind.
  CLockObject lock;
  lock.SetLock(other);
  other.reset();
  EXPECT_FALSE(gui->IsUILocked());
}

TEST_F(LockTest, NoRefreshWhileLocked) {
  Advance(1000);
  EXPECT_THAT(control->TakeCalls(), ElementsAre("CollectRefreshData"));
  const std::int32_t lock = gui->SetUILock();
  control->TakeCalls();
  gui->SetComponentModel(components);
  Advance(2000);
  EXPECT_THAT(control->TakeCalls(), ElementsAre("SetComponentModel"));
  gui->ReleaseUILock(lock);
  control->TakeCalls();
  Advance(200);
  EXPECT_THAT(control->TakeCalls(), ElementsAre("CollectRefreshData"));
}

class Completion : public IExchangeCompletion {
 public:
  void CompleteExchange(const std::shared_ptr<Exchange>& exchange) override {
    numbers.push_back(exchange->CommandNumber());
    if (form) form.reset();
    throw Failure(ErrorNumber::Unexpected, "Completion");
  }
  std::vector<int> numbers;
  std::unique_ptr<frmAsynchronizer> form;  // dies in the completion
};

class AsynchronizerWindowTest : public GuiTest {
 protected:
  static std::shared_ptr<Exchange> Finished(std::int16_t number) {
    auto exchange = std::make_shared<Exchange>();
    exchange->SetCommandNumber(number);
    return exchange;
  }
  std::shared_ptr<Completion> wrapper = std::make_shared<Completion>();
};

TEST_F(AsynchronizerWindowTest, CompletesOneExchangePerTick) {
  frmAsynchronizer form;
  EXPECT_FALSE(form.IsVisible() || form.TimerEnabled());
  form.Show();
  EXPECT_TRUE(form.IsVisible());
  form.ExchangeQueue() = {Finished(3), Finished(1)};
  form.EnableTimer();
  Advance(9);
  Advance(1);
  EXPECT_THAT(wrapper->numbers, IsEmpty());  // no wrapper yet
  form.SetCommWrapper(wrapper);
  Advance(10);
  EXPECT_THAT(wrapper->numbers, ElementsAre(3));
  EXPECT_TRUE(form.TimerEnabled());
  Advance(10);
  EXPECT_THAT(wrapper->numbers, ElementsAre(3, 1));
  EXPECT_FALSE(form.TimerEnabled());
  form.SetCanBeShown(false);
  EXPECT_FALSE(form.IsVisible());
  EXPECT_THROW(form.Show(), Failure);
}

TEST_F(AsynchronizerWindowTest, MayDieInACompletion) {
  wrapper->form = std::make_unique<frmAsynchronizer>();
  wrapper->form->SetCommWrapper(wrapper);
  wrapper->form->ExchangeQueue() = {Finished(3), Finished(1)};
  wrapper->form->EnableTimer();
  Advance(10);
  Advance(10);
  EXPECT_THAT(wrapper->numbers, ElementsAre(3));
}

TEST_F(AsynchronizerWindowTest, DispatcherRunsWhatIsPending) {
  int ran = 0;
  const auto post = platform.Loop().Post([&] { ++ran; });
  clsEventDispatcher dispatcher;
  dispatcher.DoDispatch();
  const auto timer = platform.Loop().StartTimer(platform::Milliseconds{15}, [&] { ++ran; });
  dispatcher.WaitStep(platform::Milliseconds{20});
  EXPECT_EQ(ran, 2);
}

}  // namespace
}  // namespace test_support
