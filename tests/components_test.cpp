#include <gtest/gtest.h>

#include <algorithm>

#include "gui/CDDDTMGUI.h"
#include "support/FailureOf.h"
#include "support/RecordingControl.h"
#include "support/SmallDtm.h"

namespace {

using namespace ZAFHartTypes;
using support::NumberOfFailure;
using test_support::SmallDtm;
using namespace std::chrono_literals;

void ExpectIdle(const SmallDtm& dtm) {
  EXPECT_EQ(dtm.ValueOf("__ZAF__ProgressValue"), Variant(-1.0));
  EXPECT_EQ(dtm.ValueOf("__ZAF__ProgressTitle"), Variant(""));
  EXPECT_FALSE(dtm.components->DDGUI()->IsUILocked());
}

TEST(Components, InitializeWiresOneKernelAndOneOfEachSibling) {
  SmallDtm dtm;
  EXPECT_EQ(dtm.components->DDKernel(), dtm.components->DDKernelExtension());
  EXPECT_EQ(dtm.components->UpDownloadMenuName(), "offline");
  EXPECT_EQ(dtm.components->DDBuitlinLibName(), "ZAFHartLib.CDDBuiltinLib");
  EXPECT_EQ(dtm.ValueOf("__ZAF__OnlineMode"), Variant(1));
  EXPECT_FALSE(dtm.Stored("upper_range")->Available());
}

TEST(Components, SecureKernelReportsWhatTheKernelRaises) {
  SmallDtm dtm;
  ZAFHartLib::CDDComponents& components = *dtm.components;
  components.Initialize(true);
  const auto messages = std::make_shared<test_support::RecordingControl>();
  dynamic_cast<ZAFHartLib::CDDDTMGUI&>(*components.DDGUI()).SetMessageControl(messages);
  const auto unknown = Definition::Define("unknown", ObjectKind::Menu);
  const auto secure = components.DDKernelExtension();
  EXPECT_EQ(NumberOfFailure([&] { components.DDKernel()->GetMenu(unknown); }),
            ErrorNumber::ObjectNotSet);
  EXPECT_EQ(secure->GetMenu(unknown), nullptr);
  EXPECT_EQ(std::dynamic_pointer_cast<IDDKernel2>(secure)->AsyncStartMenu(unknown), nullptr);
  ASSERT_EQ(messages->userMessages.size(), 2U);
  for (const auto& message : messages->userMessages) {
    EXPECT_EQ(message.prompt,
              "91 : The data set has no MENU \"unknown\".\r\nin IDDKernel_GetMenu\r\n"
              "Please report this Error!");
  }
}

TEST(Components, ClassThatCannotBeCreatedIsNamed) {
  SmallDtm dtm;
  const auto components = ZAFHartLib::CDDComponents::Create();
  components->SetDataModelClass("Missing");
  const Failure failure = support::FailureOf([&] { components->Initialize(); });
  EXPECT_EQ(failure.Number(), ErrorNumber::CannotCreateObject);
  EXPECT_NE(failure.Description().find("Missing.KernelInformation"), std::string::npos);
  EXPECT_NE(components->DDKernel(), nullptr);  // created before the failure
  std::shared_ptr<DDObject> nothing;
  EXPECT_NE(dtm.components->DDBuiltinLib(nothing, "method"),
            dtm.components->DDBuiltinLib(nothing, "method"));
}

TEST(Components, TearDownReleasesTheComponentsAndTheirReferences) {
  SmallDtm dtm;
  const auto kernel = dtm.components->DDKernel();
  const std::weak_ptr<IDDWorkerDB> database = dtm.components->DDWorkerDB();
  dtm.components->PrepareTermination();
  EXPECT_EQ(dtm.components->DDKernel(), nullptr);
  EXPECT_NE(dtm.components->KernelInformation(), nullptr);
  EXPECT_EQ(kernel->ComponentModel(), nullptr);
  EXPECT_TRUE(database.expired());
  EXPECT_EQ(NumberOfFailure(
                [&] { kernel->ReadVariable(Definition::Define("tag", ObjectKind::Variable)); }),
            ErrorNumber::ObjectNotSet);
}

TEST(Upload, BringsTheDeviceValuesAndWhatBecomesValid) {
  SmallDtm dtm;
  dtm.device->SetValue("upper_range", 212.0F);
  dtm.device->SetValue("pv_unit", 33);
  dtm.device->SetValue("mode", 1);
  dtm.device->SetValue("limit", 77);
  dtm.device->SetValue("lower_range", 32.0F);
  dtm.Edit("lower_range", 5.0F);  // pending, given up
  const Definition menu = dtm.Upload();
  EXPECT_EQ(menu.Name(), "offline");
  EXPECT_EQ(menu.Kind(), ObjectKind::Menu);
  for (const char* name :
       {"tag", "pv_unit", "upper_range", "lower_range", "mode", "limit", "locked"}) {
    EXPECT_TRUE(dtm.Stored(name)->Available()) << name;
    EXPECT_EQ(dtm.Stored(name)->ErrorText(), "") << name;
    EXPECT_FALSE(dtm.IsPending(name)) << name;
  }
  EXPECT_EQ(dtm.ValueOf("upper_range"), Variant(212));
  EXPECT_EQ(dtm.Stored("upper_range")->UnitText(), "°F");
  EXPECT_EQ(dtm.ValueOf("lower_range"), Variant(32));
  EXPECT_EQ(dtm.ValueOf("limit"), Variant(77));
  EXPECT_EQ(dtm.methodsRun, (std::vector<std::string>{"__ZAF__pre_upload", "__ZAF__post_upload"}));
  ExpectIdle(dtm);
}

TEST(Upload, WithoutAMenuReadsEveryConfigurationVariable) {
  SmallDtm dtm;
  Definition unknown = Definition::Define("no_such_menu", ObjectKind::Menu);
  dtm.components->Upload(unknown);
  EXPECT_EQ(unknown.Name(), "no_such_menu");
  EXPECT_TRUE(dtm.Stored("first")->Available());
  EXPECT_TRUE(dtm.Stored("device_id")->Available());
}

TEST(Upload, ReportsProgressAndKeepsTheViewsStill) {
  SmallDtm dtm;
  const auto gui = std::dynamic_pointer_cast<ZAFHartLib::CDDDTMGUI>(dtm.components->DDGUI());
  struct Watch : test_support::RecordingControl {
    void ShowObject(const std::shared_ptr<DDObject>& object) override {
      if (object->ObjectDefinition().Name() != "__ZAF__ProgressValue") return;
      progress.push_back(object->MakeVariable()->Value().ToDouble());
    }
    std::vector<double> progress;
  };
  const auto control = std::make_shared<Watch>();
  gui->RegisterCtrl(control);
  const std::vector<double>& progress = control->progress;
  dtm.Upload();
  ASSERT_GE(progress.size(), 3U);
  EXPECT_TRUE(std::is_sorted(progress.begin(), progress.end() - 1));
  EXPECT_LE(progress[progress.size() - 2], 100.0);
  EXPECT_GT(progress[progress.size() - 2], 80.0);
  EXPECT_EQ(progress.back(), -1.0);
  EXPECT_FALSE(control->lockUpdate);
  EXPECT_EQ(std::count(control->calls.begin(), control->calls.end(), "RefreshView"), 1);
}

TEST(Upload, LetsTimersRunAndEndsAtTheUsersBreak) {
  SmallDtm dtm;
  dtm.link->LinkFaults().Add("latency:30");
  int ticks = 0;
  const auto timer = dtm.platform.Loop().StartTimer(10ms, [&] {
    if (++ticks == 5) dtm.components->CancelOperation();
  });
  EXPECT_EQ(NumberOfFailure([&] { dtm.Upload(); }), ErrorNumber::Cancelled);
  EXPECT_GE(ticks, 5);
  EXPECT_LE(dtm.link->commands.size(), 3U);
  ExpectIdle(dtm);
  dtm.link->LinkFaults().Clear();
  dtm.Upload();  // the break is over
  EXPECT_TRUE(dtm.Stored("locked")->Available());
}

TEST(Upload, EndsWithAFailureWhenTheInstanceIsTornDownMeanwhile) {
  SmallDtm dtm;
  dtm.link->LinkFaults().Add("latency:30");
  const auto timer =
      dtm.platform.Loop().StartOnce(70ms, [&] { dtm.components->PrepareTermination(); });
  EXPECT_EQ(NumberOfFailure([&] { dtm.Upload(); }), ErrorNumber::ObjectNotSet);
  EXPECT_EQ(dtm.components->DDKernel(), nullptr);
}

TEST(WriteChanges, WritesEachVariableOnceAfterWhatItDependsOn) {
  SmallDtm dtm;
  dtm.Upload();
  dtm.link->commands.clear();
  dtm.Edit("upper_range", 200.0F);
  dtm.Edit("pv_unit", std::int16_t{33});
  dtm.components->WriteChanges();

  const auto at = [&](int command) {
    return std::find(dtm.link->commands.begin(), dtm.link->commands.end(), command) -
           dtm.link->commands.begin();
  };
  EXPECT_LT(at(44), at(35));
  EXPECT_EQ(std::count(dtm.link->commands.begin(), dtm.link->commands.end(), 35), 1);
  EXPECT_EQ(dtm.device->Value("upper_range"), Variant(200));
  EXPECT_EQ(dtm.device->Value("pv_unit"), Variant(33));
  EXPECT_FALSE(dtm.IsPending("upper_range"));
  EXPECT_TRUE(std::dynamic_pointer_cast<IDataBaseExtension>(dtm.components->DDWorkerDB())
                  ->IsSynchronized());
  ExpectIdle(dtm);
}

TEST(WriteChanges, WithNoDeviceStopsAndWritesTheRestLater) {
  SmallDtm dtm;
  dtm.Upload();
  dtm.Edit("mode", std::int16_t{1});
  dtm.Edit("first", std::int16_t{9});
  dtm.Edit("second", std::int16_t{9});
  dtm.link->LinkFaults().Add("no-reply");
  dtm.components->WriteChanges();

  int pending = 0;
  for (const char* name : {"mode", "first", "second"}) pending += dtm.IsPending(name) ? 1 : 0;
  EXPECT_EQ(pending, 2);  // one was attempted, and is named with its error
  EXPECT_NE(dtm.Stored("mode")->ErrorText(), "");
  ExpectIdle(dtm);

  dtm.link->LinkFaults().Clear();
  dtm.components->WriteChanges();
  EXPECT_EQ(dtm.device->Value("first"), Variant(9));
  EXPECT_EQ(dtm.device->Value("second"), Variant(9));
}

TEST(WriteChanges, KeepsTheMarksOfWhatTheUsersBreakLeft) {
  SmallDtm dtm;
  dtm.Upload();
  for (const char* name : {"mode", "first", "second"}) dtm.Edit(name, std::int16_t{1});
  dtm.Edit("first", std::int16_t{4});
  dtm.Edit("second", std::int16_t{4});
  dtm.link->LinkFaults().Add("latency:30");
  const auto timer =
      dtm.platform.Loop().StartOnce(10ms, [&] { dtm.components->CancelOperation(); });
  EXPECT_EQ(NumberOfFailure([&] { dtm.components->WriteChanges(); }), ErrorNumber::Cancelled);
  EXPECT_TRUE(dtm.IsPending("first"));
  EXPECT_TRUE(dtm.IsPending("second"));
  ExpectIdle(dtm);
}

TEST(WriteChanges, ACircleOfDependenciesEnds) {
  SmallDtm dtm;
  const auto database = dtm.components->DDWorkerDB();
  dtm.Upload();
  const Definition first = Definition::Define("first", ObjectKind::Variable);
  const Definition second = Definition::Define("second", ObjectKind::Variable);
  dtm.Edit("first", std::int16_t{4});
  database->SetRefresh(second, first);
  dtm.Edit("second", std::int16_t{4});
  database->SetRefresh(first, second);
  dtm.Edit("first", std::int16_t{5});
  dtm.Edit("second", std::int16_t{5});
  dtm.Edit("mode", std::int16_t{1});
  dtm.components->WriteChanges();
  EXPECT_EQ(dtm.device->Value("mode"), Variant(1));
  EXPECT_TRUE(dtm.IsPending("first"));
  EXPECT_TRUE(dtm.IsPending("second"));
}

TEST(Download, WritesTheWritableItemsOfItsMenuAndNothingWithoutOne) {
  SmallDtm dtm;
  Definition unknown = Definition::Define("no_such_menu", ObjectKind::Menu);
  dtm.components->Download(unknown);
  EXPECT_TRUE(dtm.methodsRun.empty());
  EXPECT_TRUE(dtm.link->commands.empty());

  Definition menu = dtm.Upload();
  dtm.device->SetValue("upper_range", 1.0F);
  dtm.device->SetValue("tag", "OTHER");
  dtm.device->SetValue("locked", 9);
  dtm.Edit("__ZAF__FDTUserLevel", static_cast<std::int16_t>(UserLevel::PlanningEngineer));
  dtm.components->Download(menu);
  EXPECT_EQ(dtm.device->Value("upper_range"), Variant(100));
  EXPECT_EQ(dtm.device->Value("tag"), Variant("SMALL"));
  EXPECT_EQ(dtm.device->Value("locked"), Variant(9));
  EXPECT_EQ(dtm.methodsRun.back(), "__ZAF__post_download");
  ExpectIdle(dtm);
}

}  // namespace
