#include "gui/CLockObject.h"
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

TEST_F(LockTest, AnAsynchronizerMayDieInACompletion) {
  struct Completion : IExchangeCompletion {
    void CompleteExchange(const std::shared_ptr<Exchange>&) override {
      ++completed;
      form.reset();
      throw Failure(ErrorNumber::Unexpected, "Completion");
    }
    int completed = 0;
    std::unique_ptr<frmAsynchronizer> form = std::make_unique<frmAsynchronizer>();
  };
  const auto wrapper = std::make_shared<Completion>();
  wrapper->form->SetCommWrapper(wrapper);
  wrapper->form->ExchangeQueue() = {std::make_shared<Exchange>(), std::make_shared<Exchange>()};
  wrapper->form->EnableTimer();
  Advance(10);
  Advance(10);
  EXPECT_EQ(wrapper->completed, 1);
}

}  // namespace
}  // namespace test_support
