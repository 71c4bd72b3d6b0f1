#include "support/GuiTest.h"

namespace ZAFHartLib {
namespace {

using namespace ZAFHartTypes;  // NOLINT(google-build-using-namespace)
using test_support::GuiTest;
using test_support::RecordingControl;
using test_support::StubGui;
using testing::ElementsAre;
using testing::IsEmpty;

class ControlsTest : public GuiTest {};

TEST_F(ControlsTest, RegistersOnceWithLanguageAndLock) {
  const std::int32_t lock = gui->SetUILock();
  gui->SetLanguageID("de");
  const auto control = std::make_shared<RecordingControl>();
  gui->RegisterCtrl(control);
  EXPECT_THAT(control->TakeCalls(), ElementsAre("SetLanguageID", "LockControls"));
  gui->RegisterCtrl(control);
  control->TakeCalls();
  gui->RefreshView();
  EXPECT_THAT(control->TakeCalls(), ElementsAre("RefreshView"));

  gui->SetActiveControl(control);
  gui->SetMessageControl(control);
  EXPECT_EQ(control->ComponentModel(), components);
  gui->UnregisterCtrl(gui->ActiveControl());
  EXPECT_FALSE(gui->ActiveControl() || gui->MessageControl());
  gui->ReleaseUILock(lock);
  gui->ShowObject(MakeVariable("x"));
  EXPECT_THAT(control->shown, IsEmpty());
}

TEST_F(ControlsTest, ComponentModelReachesContainersAndTheMessageControl) {
  const auto container = Register();
  const auto plain = std::make_shared<StubGui>();
  const auto messages = std::make_shared<StubGui>();
  gui->RegisterCtrl(plain);
  gui->SetMessageControl(messages);
  gui->SetErrorHandler(std::make_shared<CEmptyErrorHandler>());
  gui->SetComponentModel(components);
  EXPECT_EQ(container->ComponentModel(), components);
  EXPECT_EQ(messages->ComponentModel(), components);
  EXPECT_EQ(plain->ComponentModel(), nullptr);
  EXPECT_EQ(gui->ErrorHandler(), nullptr);
  gui->SetComponentModel(nullptr);
  EXPECT_EQ(container->ComponentModel(), nullptr);
}

TEST_F(ControlsTest, FailuresAreTracedOrPassedOn) {
  const auto broken = Register();
  const auto control = Register();
  broken->fails = true;
  gui->ShowObject(MakeVariable("x"));
  EXPECT_THAT(control->shown, ElementsAre("x"));
  EXPECT_THAT(tracer->TakeCalls(),
              ElementsAre("Text -1 IDDDTMGUI_ShowObject: Control forces an error\r\n"
                          "Control:13=The control is broken.",
                          "Break 0 db"));
  platform.Registry().SetValue(std::string(kDtmsKey) + R"(\Vendor\Device.dll)", kUseErrorHandler,
                               "0");
  broken->fails = false;
  gui->SetComponentModel(components);
  broken->fails = true;
  EXPECT_THROW(gui->StopCurrentEditing(), Failure);
  // Registering and showing messages never fail.
  const auto other = std::make_shared<RecordingControl>();
  other->fails = true;
  gui->RegisterCtrl(other);
  gui->SetActiveControl(broken);
  EXPECT_EQ(gui->ShowUserMessage({}), 0);
}

TEST_F(ControlsTest, AWalkLeavesOutControlsRemovedMeanwhile) {
  struct Remover : StubGui {
    void StopCurrentEditing() override {
      StubGui::StopCurrentEditing();
      manager->UnregisterCtrl(other);
      manager->UnregisterCtrl(self.lock());
      other.reset();
    }
    CDDDTMGUI* manager = nullptr;
    std::shared_ptr<StubGui> other;
    std::weak_ptr<StubGui> self;
  };
  auto remover = std::make_shared<Remover>();
  remover->manager = gui.get();
  remover->self = remover;
  remover->other = std::make_shared<StubGui>();
  gui->RegisterCtrl(remover);
  gui->RegisterCtrl(remover->other);
  const std::weak_ptr<StubGui> gone = remover->other;
  const std::weak_ptr<StubGui> self = remover;
  remover.reset();
  gui->StopCurrentEditing();
  EXPECT_TRUE(gone.expired() && self.expired());
}

TEST_F(ControlsTest, ObjectsAreShownOncePerState) {
  const auto control = Register();
  const auto variable = MakeVariable("x");
  const auto method = MakeObject<Method>("run");
  const auto showAll = [&] {
    gui->ShowObject(variable);
    gui->ShowObject(method);
    gui->HideObject(MakeObject<Menu>("menu"));
  };
  showAll();
  showAll();
  EXPECT_THAT(control->TakeCalls(), ElementsAre("ShowObject x", "ShowObject run"));
  variable->SetValue(1);
  method->SetIsValid(false);
  showAll();
  EXPECT_THAT(control->TakeCalls(), ElementsAre("ShowObject x", "ShowObject run"));
  gui->HideObject(variable);
  EXPECT_THAT(control->TakeCalls(), IsEmpty());

  Setting(kFilterDDObjectsForGui, "0");
  control->TakeCalls();
  showAll();
  gui->ShowObject(nullptr);
  EXPECT_THAT(control->TakeCalls(),
              ElementsAre("ShowObject x", "ShowObject run", "HideObject menu"));
}

TEST_F(ControlsTest, OnlyTheValueOneHoldsBackDeviceObjectsDuringAnUpdate) {
  const auto control = Register();
  for (const auto& [value, shown] : {std::pair("2", 2U), {"1", 1U}, {"0", 2U}}) {
    Setting(kEnableHostVariableFilter, value);
    Setting(kFilterDDObjectsForGui, "0");
    control->shown.clear();
    gui->SetLockUpdate(true);
    EXPECT_TRUE(control->lockUpdate);
    gui->ShowObject(MakeVariable("x"));
    gui->ShowObject(MakeVariable("__ZAF__ProgressValue"));
    EXPECT_EQ(control->shown.size(), shown) << value;
    gui->SetLockUpdate(false);
  }
}

TEST_F(ControlsTest, EditingStopsInAllManagersOnce) {
  const auto other = std::make_shared<CDDDTMGUI>();
  const auto there = std::make_shared<StubGui>();
  other->RegisterCtrl(there);
  const auto here = Register();
  gui->StopCurrentEditing();
  EXPECT_EQ(here->editingStops + there->editingStops, 2);
  other->SetComponentModel(nullptr);  // leaves the thread's list
  gui->StopCurrentEditing();
  EXPECT_EQ(there->editingStops, 1);
}

TEST_F(ControlsTest, ValueOfAFieldComesFromTheControlThatKnowsIt) {
  const auto variable = MakeVariable("x");
  variable->SetValue(5);
  variable->SetAvailable(true);
  const auto first = Register();
  const auto second = Register();
  first->editedValue = {};
  second->editedValue = {};
  EXPECT_EQ(gui->GetObjectValue(variable), Variant(5));
  second->editedValue = 7;
  EXPECT_EQ(gui->GetObjectValue(variable), Variant(7));
  gui->SetActiveControl(first);
  EXPECT_TRUE(gui->GetObjectValue(variable).IsEmpty());
}

TEST_F(ControlsTest, MessagesGoToTheMessageControlFirst) {
  UserMessage message;
  message.title = "Title|de|Titel";
  message.prompt = "P|de|Frage";
  message.help = "H|de|Hilfe";
  gui->SetLanguageID("de");
  const auto registered = Register();
  const auto silent = Register();
  registered->messageAnswer = kMessageCancelled;
  EXPECT_EQ(gui->ShowUserMessage(message), kMessageCancelled);
  EXPECT_EQ(silent->userMessages.back().help, "Hilfe");

  const auto active = Register();
  gui->SetActiveControl(active);
  active->messageAnswer = 3;
  EXPECT_EQ(gui->ShowUserMessage(message), 3);
  EXPECT_EQ(active->userMessages.back().prompt, "P|de|Frage");
  EXPECT_EQ(registered->userMessages.size(), 1U);

  const auto messages = std::make_shared<RecordingControl>();
  gui->SetMessageControl(messages);
  messages->messageAnswer = 4;
  EXPECT_EQ(gui->ShowUserMessage(message), 4);
  EXPECT_EQ(messages->userMessages.back().title, "Titel");
  EXPECT_EQ(active->userMessages.size(), 1U);
  gui->HideUserMessage(kNoDisplay);
  gui->HideUserMessage(4);
  EXPECT_THAT(messages->hiddenMessages, ElementsAre(4));
  EXPECT_THAT(registered->hiddenMessages, ElementsAre(kNoDisplay, 4));
}

TEST_F(ControlsTest, LifeSignalsDoNotFloodContainers) {
  const auto container = Register();
  const auto plain = std::make_shared<StubGui>();
  gui->RegisterCtrl(plain);
  for (int step = 0; step < 6; ++step) {
    gui->LifeSignal(LifeSignalCode::Waiting, {});
    clock->Advance(platform::Milliseconds{40});
  }
  EXPECT_EQ(plain->lifeSignals.size(), 6U);
  EXPECT_EQ(container->lifeSignals.size(), 2U);
  gui->LifeSignal(LifeSignalCode::Waiting, {});
  gui->LifeSignal(LifeSignalCode::ExchangeFinished, {});
  EXPECT_EQ(container->lifeSignals.back(), LifeSignalCode::ExchangeFinished);
}

TEST_F(ControlsTest, PrintEndsWithTheControlThatPrints) {
  Register();
  Register()->prints = true;
  const auto last = Register();
  Variant result;
  EXPECT_TRUE(gui->DoPrint(1, 2, result));
  EXPECT_THAT(last->calls, IsEmpty());
}

}  // namespace
}  // namespace ZAFHartLib
