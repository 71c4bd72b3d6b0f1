#include "support/GuiTest.h"

namespace test_support {
namespace {

using ControlsTest = GuiTest;

TEST_F(ControlsTest, RegistersOnceWithLanguageAndLock) {
  const std::int32_t lock = gui->SetUILock();
  gui->SetLanguageID("de");
  const auto control = std::make_shared<RecordingControl>();
  gui->RegisterCtrl(control);
  EXPECT_THAT(control->TakeCalls(), ElementsAre("SetLanguageID", "LockControls"));
  gui->RegisterCtrl(control);
  control->TakeCalls();
  gui->SetComponentModel(components);
  gui->RefreshView();
  EXPECT_THAT(control->TakeCalls(), ElementsAre("SetComponentModel", "RefreshView"));
  gui->SetActiveControl(control);
  gui->SetMessageControl(control);
  EXPECT_THAT(control->TakeCalls(), ElementsAre("SetComponentModel"));
  gui->UnregisterCtrl(gui->ActiveControl());
  EXPECT_FALSE(gui->ActiveControl() || gui->MessageControl());
  control->fails = true;  // with its language; it is locked all the same
  control->lockControls = false;
  gui->RegisterCtrl(control);
  EXPECT_TRUE(control->lockControls);
  gui->UnregisterCtrl(control);
  gui->ReleaseUILock(lock);
  gui->ShowObject(MakeVariable("x"));
  EXPECT_THAT(control->shown, IsEmpty());
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
  const auto other = std::make_shared<RecordingControl>();
  other->fails = true;
  gui->RegisterCtrl(other);
  gui->SetActiveControl(broken);
  UserMessage message;
  EXPECT_EQ(gui->ShowUserMessage(message), 0);
}

TEST_F(ControlsTest, AWalkLeavesOutControlsRemovedMeanwhile) {
  struct Remover : StubGui {
    void StopCurrentEditing() override { remove(); }
    std::function<void()> remove;
  };
  auto remover = std::make_shared<Remover>();
  auto next = std::make_shared<StubGui>();
  const std::weak_ptr<StubGui> removed[] = {remover, next};
  gui->RegisterCtrl(remover);
  gui->RegisterCtrl(next);
  remover->remove = [this, &removed] {
    for (const auto& control : removed) gui->UnregisterCtrl(control.lock());
    EXPECT_TRUE(removed[1].expired());
  };
  remover.reset();
  next.reset();
  gui->StopCurrentEditing();
  EXPECT_TRUE(removed[0].expired());
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

  platform.Registry().SetValue(DtmSettingsPath("Device.dll"), kFilterDDObjectsForGui, "1");
  gui->SetComponentModel(components);  // the DTM's own setting goes first
  control->TakeCalls();
  showAll();
  EXPECT_THAT(control->TakeCalls(), IsEmpty());
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

  const auto messages = std::make_shared<RecordingControl>();
  gui->SetMessageControl(messages);
  messages->messageAnswer = 4;
  EXPECT_EQ(gui->ShowUserMessage(message), 4);
  EXPECT_EQ(messages->userMessages.back().title, "Titel");
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

}  // namespace
}  // namespace test_support
