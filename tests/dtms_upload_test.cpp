#include <gtest/gtest.h>

#include <set>

#include "linksim/DeviceFile.h"
#include "sampletemperature/Description.h"
#include "support/SampleDevice.h"

// What the sample DTM reads from the demo device and writes to it.
namespace {

using namespace test_support;  // NOLINT(google-build-using-namespace)
using sampletemperature::Description;

bool IsConfiguration(const Variable& variable) {
  return !variable.Attributes().IsDynamic() && !variable.Attributes().IsLibraryHeld() &&
         variable.CheckHandling(AccessMode::Read);
}

TEST(DemoDevice, KnowsTheWholeConfiguration) {
  std::set<std::string> names;
  for (const auto& entry : HartLinkSim::DeviceFile(kDtmFolder / "demo-device.txt").Entries()) {
    EXPECT_TRUE(Description().Contains(VariableNamed(entry.name))) << entry.name;
    names.insert(entry.name);
  }
  for (const auto& variable : Description().Items<Variable>()) {
    EXPECT_TRUE(names.contains(variable->Definition().Name()) || !IsConfiguration(*variable))
        << variable->Definition().Name();
  }
}

// An upload that did nothing would not go unnoticed. The device has to be where the DTM looks for
// it, and its voltage has but one unit.
bool DiffersInTheDemoDevice(const Variable& variable) {
  const std::set<std::string> same{"polling_address", "loop_current_mode", "fourth_variable_unit"};
  return !variable.DefaultValue().IsEmpty() && !same.contains(variable.Definition().Name());
}

TEST_F(SampleDevice, UploadLoadsEveryValue) {
  Upload();
  std::set<std::string> invalid;
  for (const auto& prototype : Description().Items<Variable>()) {
    if (!IsConfiguration(*prototype)) continue;
    const std::string& name = prototype->Definition().Name();
    const auto variable = Get(name);
    EXPECT_TRUE(variable->Available()) << name;
    EXPECT_EQ(variable->ErrorText(), "") << name;
    EXPECT_FALSE(variable->ToBeWritten()) << name;
    if (!variable->Validity()) {
      invalid.insert(name);
      continue;
    }
    if (name == "sensor_minimum") {
      EXPECT_TRUE(variable->Value().IsNotFinite());
      continue;
    }
    EXPECT_EQ(variable->Value(), InDevice(name)) << name;
    if (DiffersInTheDemoDevice(*prototype)) {
      EXPECT_NE(variable->Value(), prototype->DefaultValue()) << name;
    }
  }
  EXPECT_EQ(invalid, (std::set<std::string>{"cold_junction_source", "cold_junction_temperature",
                                            "cold_junction_offset", "linearisation_input_7",
                                            "linearisation_output_7", "linearisation_input_8",
                                            "linearisation_output_8"}));
  EXPECT_EQ(Get("upper_range_value")->UnitText(), "K");
  EXPECT_EQ(Get("upper_range_value")->Value(), Variant(473.15F));
  EXPECT_EQ(Get("trim_operator")->Value(), Variant("M. Müller")) << "Latin-1";
  EXPECT_EQ(Get("message")->Value(), Variant("CHECK AFTER SHUTDOWN")) << "Packed ASCII";
  EXPECT_EQ(Get("hardware_revision")->Value(), Variant(3)) << "masked";
  EXPECT_EQ(Get("final_assembly_number")->Value(), Variant(1048577)) << "24 bits";
  EXPECT_EQ(Get("linearisation_output_6")->Value(), Variant(499.125F));
}

TEST_F(SampleDevice, CommandsAreFoundForEveryVariable) {
  Upload();
  const auto kernel = components_->DDKernel();
  for (const auto& prototype : Description().Items<Variable>()) {
    const auto variable = Get(prototype->Definition().Name());
    if (!variable->Validity() || variable->Attributes().IsLibraryHeld()) continue;
    if (variable->CheckHandling(AccessMode::Read)) {
      EXPECT_NE(kernel->FindReadCommand(variable->Definition()), nullptr)
          << variable->Definition().Name();
    }
    if (variable->CheckHandling(AccessMode::Write)) {
      EXPECT_NE(kernel->FindWriteCommand(variable->Definition()), nullptr)
          << variable->Definition().Name();
    }
  }
}

TEST_F(SampleDevice, WritesTableElementsByTheirIndex) {
  Upload();
  Edit("linearisation_output_3", 349.5F);
  Edit("linearisation_input_5", 451.0F);
  components_->WriteChanges();
  EXPECT_EQ(InDevice("linearisation_output_3"), Variant(349.5F));
  EXPECT_EQ(InDevice("linearisation_input_3"), Variant(350.0F));
  EXPECT_EQ(InDevice("linearisation_input_5"), Variant(451.0F));
  EXPECT_EQ(InDevice("linearisation_output_1"), Variant(250.125F));
  EXPECT_FALSE(Get("linearisation_output_3")->ToBeWritten());
}

TEST_F(SampleDevice, WritesUnitsBeforeValues) {
  Upload();
  Edit("upper_range_value", 200.0F);
  Edit("lower_range_value", 50.0F);
  Edit("range_unit", 32);
  Edit("secondary_variable_unit", 32);
  components_->WriteChanges();
  EXPECT_EQ(InDevice("range_unit"), Variant(32));
  EXPECT_EQ(InDevice("upper_range_value"), Variant(200.0F));
  EXPECT_EQ(InDevice("lower_range_value"), Variant(50.0F));
  EXPECT_EQ(InDevice("secondary_variable_unit"), Variant(32)) << "command 53";
  EXPECT_EQ(Get("upper_range_value")->UnitText(), "°C");
}

TEST_F(SampleDevice, ValidityFollowsTheSensor) {
  Upload();
  EXPECT_TRUE(Get("sensor_wiring")->Validity());
  EXPECT_FALSE(Get("wire_resistance")->CheckHandling(AccessMode::Write)) << "three wires";
  components_->DDKernel()->WriteVariable(VariableNamed("sensor_type"), 23);
  EXPECT_EQ(InDevice("sensor_type"), Variant(23));
  EXPECT_FALSE(Get("sensor_wiring")->Validity());
  EXPECT_TRUE(Get("cold_junction_source")->Validity());
  EXPECT_FALSE(Get("upper_range_value")->Available()) << "to be read again";
  Upload();
  EXPECT_EQ(Get("cold_junction_offset")->Value(), Variant(-75));
}

TEST_F(SampleDevice, DownloadWritesWhatWasLoaded) {
  Upload();
  const auto changes = device_->ConfigurationChangeCounter();
  Edit("long_tag", "Reaktor 3, Kopf, 20 °C");
  Definition menu;
  components_->Download(menu);
  EXPECT_EQ(InDevice("long_tag"), Variant("Reaktor 3, Kopf, 20 °C"));
  EXPECT_EQ(InDevice("date"), Get("date")->Value());
  EXPECT_GT(device_->ConfigurationChangeCounter(), changes);
  for (const auto& prototype : Description().Items<Variable>())
    EXPECT_FALSE(Get(prototype->Definition().Name())->ToBeWritten()) << prototype->Describe(0);
}

}  // namespace
