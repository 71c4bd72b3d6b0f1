#include "gui/CDDDTMGUI.h"
#include "support/SampleDevice.h"
#include "support/StubGui.h"

// What the sample DTM does around reading, editing and writing, and its units.
namespace {

using namespace test_support;  // NOLINT(google-build-using-namespace)

class SampleActions : public SampleDevice {
 protected:
  SampleActions() {
    std::dynamic_pointer_cast<ZAFHartLib::CDDDTMGUI>(components_->DDGUI())
        ->SetMessageControl(user_);
    std::dynamic_pointer_cast<ZAFHartLib::CDDDTMGUI>(components_->DDGUI())->SetActiveControl(user_);
    Upload();
    Kernel().WriteVariable(VariableNamed("__ZAF__FDTUserLevel"), 3);  // may edit
    user_->messages.clear();
  }
  IDDKernel& Kernel() { return *components_->DDKernel(); }
  // As a user who leaves the field of a group's member with a value in it.
  void Leave(const char* member, const Variant& value) {
    auto group = Kernel().GetWriteAsOne(dtmkit::WriteAsOneNamed("range_values"));
    auto variable = Get(member);
    user_->editedValue = value;
    Kernel().ExecuteWriteAsOne(group, variable, false);
    isComplete_ = group->IsComplete();
  }
  float InDtm(const char* name) { return static_cast<float>(Get(name)->Value().ToDouble()); }

  std::shared_ptr<StubGui> user_ = std::make_shared<StubGui>();
  bool isComplete_ = false;
};

TEST_F(SampleActions, RunAroundReads) {
  EXPECT_EQ(Get("operating_days")->Value(), Variant(20418.625 / 24));
  components_->DDWorkerDB()->SetVariableAvailable(VariableNamed("sensor_maximum"), false);
  device_->SetValue("sensor_maximum", 490.0F);
  Kernel().ReadVariable(VariableNamed("sensor_maximum"));
  EXPECT_EQ(InDtm("sensor_maximum"), 490.0F);
  EXPECT_EQ(InDtm("previous_sensor_maximum"), 487.5F);
  EXPECT_EQ(Get("previous_sensor_maximum")->UnitText(), "K");
}

TEST_F(SampleActions, RunAroundWrites) {
  Kernel().WriteVariable(VariableNamed("damping_value"), 2.34F);
  EXPECT_EQ(InDevice("damping_value"), Variant(2.3F));
  EXPECT_EQ(InDtm("damping_value"), 2.3F);
  EXPECT_FALSE(Get("damping_value")->ToBeWritten());
  Kernel().WriteVariable(VariableNamed("loop_current_mode"), 1);
  EXPECT_TRUE(user_->messages.empty());
  Kernel().WriteVariable(VariableNamed("loop_current_mode"), 0);
  ASSERT_EQ(user_->messages.size(), 1U);
  EXPECT_TRUE(user_->messages[0].starts_with("The loop current is fixed"));
  EXPECT_FALSE(Kernel().GetMethodValidity(dtmkit::MethodNamed("loop_test")));
}

TEST_F(SampleActions, RunBeforeEditing) {
  const auto menu = Kernel().StartMenu(MenuNamed("sensor_menu"));
  for (int entered = 0; entered < 2; ++entered)
    Kernel().ExecuteMenu(menu, Get("sensor_type"), true);
  ASSERT_EQ(user_->messages.size(), 1U) << "once per edit";
  EXPECT_TRUE(user_->messages[0].starts_with("With another sensor"));
}

TEST_F(SampleActions, ValuesFollowTheirUnit) {
  struct {
    std::int32_t unit;
    float upper;
    float lower;
  } const rows[] = {
      {32, 200.0F, 0.0F}, {33, 392.0F, 32.0F}, {34, 851.67F, 491.67F}, {35, 473.15F, 273.15F}};
  for (const auto& row : rows) {
    Edit("range_unit", row.unit);
    Kernel().ExecuteRelations(VariableNamed("range_unit"));
    EXPECT_NEAR(InDtm("upper_range_value"), row.upper, 1e-3) << row.unit;
    EXPECT_NEAR(InDtm("lower_range_value"), row.lower, 1e-3) << row.unit;
    components_->WriteChanges();
    EXPECT_NEAR(InDevice("upper_range_value").ToDouble(), row.upper, 1e-3) << row.unit;
  }
}

TEST_F(SampleActions, RangeFormEditsTheGroupAndChecksTheSpan) {
  const auto menu = Kernel().StartMenu(MenuNamed("output_menu"));
  device_->SetValue("minimum_span", 15.0F);
  const auto form = Kernel().StartEditDisplay(dtmkit::EditDisplayNamed("range_form"));
  EXPECT_EQ(InDtm("minimum_span"), 15.0F) << "read anew";
  EXPECT_EQ(InDtm("measuring_span"), 200.0F);
  const auto group = Kernel().StartWriteAsOne(dtmkit::WriteAsOneNamed("range_values"));
  Leave("lower_range_value", 300.0F);
  Leave("upper_range_value", 310.0F);
  EXPECT_FALSE(isComplete_) << "the unit is not checked";
  Kernel().ExecuteEditDisplay(form, group, false);
  EXPECT_EQ(user_->messages.size(), 1U) << "all are to be checked";
  Leave("range_unit", 35);
  EXPECT_TRUE(isComplete_);
  Kernel().ExecuteEditDisplay(form, group, false);
  EXPECT_EQ(InDtm("measuring_span"), 10.0F);
  Kernel().ExecuteMenu(menu, form, false);
  ASSERT_EQ(user_->messages.size(), 2U);
  EXPECT_EQ(user_->messages[1],
            "The span of 10.00 K is smaller than the 15.00 K that the sensor needs.");
  components_->WriteChanges();
  EXPECT_EQ(InDevice("lower_range_value"), Variant(300.0F));
  EXPECT_EQ(InDevice("upper_range_value"), Variant(310.0F));
}

}  // namespace
