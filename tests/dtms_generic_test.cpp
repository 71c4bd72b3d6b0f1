#include <gtest/gtest.h>

#include <map>
#include <set>

#include "generic/Description.h"
#include "linksim/DeviceFile.h"
#include "support/SampleDevice.h"

// The generic DTM on devices of the three revisions, byte by byte.
namespace {

using namespace test_support;  // NOLINT(google-build-using-namespace)

// A device that knows replies by command number, from the data on, and refuses all else.
class ScriptedDevice : public ILink {
 public:
  explicit ScriptedDevice(std::map<int, std::string> data) : data_(std::move(data)) {}
  void Execute(const std::shared_ptr<Exchange>& exchange) override {
    const int number = exchange->CommandNumber();
    const std::string& request = exchange->RequestData();
    sent +=
        (sent.empty() ? "" : " ") + std::to_string(number) + (request.empty() ? "" : ":" + request);
    const auto known = data_.find(number);
    exchange->SetReplyData(known == data_.end() ? "4000" : "0000" + known->second);
    exchange->Finish(ExchangeState::Completed, ExchangeResult::ReplyPresent);
  }
  void Cancel(const std::shared_ptr<Exchange>& /*exchange*/) override {}
  std::string Sent() { return std::exchange(sent, ""); }
  std::string sent;

 private:
  std::map<int, std::string> data_;
};

const std::map<int, std::string> kUniversal{
    {0, ""},
    {1, "0740490FDB"},
    {7, "0101"},
    {8, "414050FA"},
    {12, std::string(48, '0')},
    {13, "50102031D8200421042104210421042104210405047E"},
    {14, "0012670742200000BF8000003ECCCCCD"},
    {15, "00000741800000000000003FC00000006001"},
    {16, "00032F"},
    {20, "54616E6B2033332C206E6F7274682073696465202020202020202020202020B0"},
};

std::map<int, std::string> Device(const std::string& identity,
                                  const std::map<int, std::string>& more = {}) {
  auto data = kUniversal;
  data[0] = identity;
  for (const auto& [number, reply] : more) data[number] = reply;
  return data;
}

// Data of command 0: 12 bytes, 17 since revision 6, 22 since revision 7.
const std::string kHart5 = "FEFA05050503 0C 10 00 0005A1";
const std::string kHart6 = "FEFA06050601 04 10 00 0006B2 05 03 0003 01";
const std::string kHart7 = "FEFA07050702 15 14 01 0007C3 06 02 0102 01 60FA 60FB 01";

std::string Packed(std::string hex) {
  std::erase(hex, ' ');
  return hex;
}

class GenericDtm : public DtmOnDevice {
 public:
  explicit GenericDtm(const std::string& identity, const std::map<int, std::string>& more = {},
                      std::initializer_list<int> refused = {})
      : DtmOnDevice("Generic", "") {
    auto data = Device(Packed(identity), more);
    for (const int number : refused) data.erase(number);
    line_ = std::make_shared<ScriptedDevice>(std::move(data));
    UseLink(line_);
  }
  std::shared_ptr<Variable> Read(std::string_view name) {
    return components_->DDKernel()->ReadVariable(VariableNamed(name));
  }
  std::int32_t ReadLong(std::string_view name) { return Read(name)->Value().ToLong(); }
  void Write(std::string_view name, const Variant& value) {
    components_->DDKernel()->WriteVariable(VariableNamed(name), value);
  }
  // The device says who it is: command 0 as long as its revision is unknown.
  void Meet() {
    Read("universal_revision");
    EXPECT_EQ(line_->Sent(), "0");
  }
  std::shared_ptr<ScriptedDevice> line_;
};

struct UploadCase {
  const char* name;
  const std::string* identity;
  const char* sent;
  std::int32_t manufacturer;
  std::int32_t deviceType;
  std::int32_t distributor;
  std::set<std::string> invalid;
};

class GenericUpload : public testing::TestWithParam<UploadCase> {};

TEST_P(GenericUpload, SendsWhatTheRevisionHas) {
  const UploadCase& expected = GetParam();
  GenericDtm dtm(*expected.identity);
  dtm.Upload();
  EXPECT_EQ(dtm.line_->Sent(), expected.sent);
  std::set<std::string> invalid;
  const auto menu = generic::Description().Prototype<Menu>("upload_variables");
  for (const MenuItem& item : menu->Items()) {
    const auto variable = dtm.Get(item.Definition().Name());
    EXPECT_EQ(variable->ErrorText(), "") << item.Definition().Name();
    if (!variable->Validity()) invalid.insert(item.Definition().Name());
  }
  EXPECT_EQ(invalid, expected.invalid);
  EXPECT_EQ(dtm.Get("manufacturer_id")->Value(), Variant(expected.manufacturer));
  EXPECT_EQ(dtm.Get("device_type")->Value(), Variant(expected.deviceType));
  EXPECT_EQ(dtm.Get("private_label_distributor")->Value(), Variant(expected.distributor));
  EXPECT_EQ(dtm.Get("hardware_revision")->Value(), Variant(2));
  EXPECT_EQ(dtm.Get("upper_range_value")->Value(), Variant(16.0F));
  EXPECT_EQ(dtm.Get("upper_range_value")->UnitText(), "bar");
  EXPECT_EQ(dtm.Get("transducer_serial_number")->Value(), Variant(0x1267));
  dtm.Upload();
  EXPECT_EQ(dtm.line_->Sent(), std::string(expected.sent).substr(2)) << "the revision is known";
}

INSTANTIATE_TEST_SUITE_P(
    Revisions, GenericUpload,
    testing::Values(
        UploadCase{"Hart5",
                   &kHart5,
                   "0 0 13 12 16 1 15 14",
                   0xFA,
                   0xFA05,
                   0x60,
                   {"response_preambles", "max_device_variables", "device_profile",
                    "primary_variable_classification", "secondary_variable_classification",
                    "tertiary_variable_classification", "fourth_variable_classification",
                    "loop_current_mode", "long_tag", "analog_channel_flags"}},
        UploadCase{"Hart6",
                   &kHart6,
                   "0 0 8 7 13 12 20 16 1 15 14",
                   0xFA,
                   0xFA06,
                   0x60,
                   {"device_profile"}},
        UploadCase{"Hart7", &kHart7, "0 0 8 7 13 12 20 16 1 15 14", 0x60FA, 0xFA07, 0x60FB, {}}),
    [](const auto& each) { return std::string(each.param.name); });

constexpr const char* kNotImplemented = "Command not implemented|de|Kommando nicht implementiert";

TEST(Generic, RefusedCommandsEndInOneErrorEach) {
  GenericDtm dtm(kHart7, {}, {8, 20});
  dtm.Upload();
  EXPECT_EQ(dtm.line_->Sent(), "0 0 8 7 13 12 20 16 1 15 14");
  for (const char* name :
       {"long_tag", "primary_variable_classification", "fourth_variable_classification"})
    EXPECT_EQ(dtm.Get(name)->ErrorText(), kNotImplemented) << name;
  for (const char* name : {"tag", "device_profile", "minimum_span", "loop_current_mode"})
    EXPECT_EQ(dtm.Get(name)->ErrorText(), "") << name;
  EXPECT_EQ(dtm.Read("burst_mode_select")->ErrorText(), kNotImplemented);
  EXPECT_EQ(dtm.line_->Sent(), "105");
}

TEST(Generic, TellsTheIdentityByItsRevision) {
  GenericDtm dtm(kHart7);
  EXPECT_EQ(dtm.ReadLong("universal_revision"), 7);
  EXPECT_EQ(dtm.ReadLong("device_type"), 0xFA07);
  EXPECT_EQ(dtm.line_->Sent(), "0");
  EXPECT_EQ(dtm.ReadLong("device_profile"), 1);
  EXPECT_EQ(dtm.ReadLong("max_device_variables"), 2);
  EXPECT_EQ(dtm.ReadLong("configuration_change_counter"), 0x0102);
  EXPECT_EQ(dtm.ReadLong("physical_signaling_code"), 4);
  EXPECT_EQ(dtm.ReadLong("response_preambles"), 6);
  EXPECT_EQ(dtm.ReadLong("device_id"), 0x07C3);
  EXPECT_EQ(dtm.line_->Sent(), "0");
}

TEST(Generic, ReadsDeviceVariables) {
  const std::string nine = "01 01 40 20 41480000 D8";
  for (const bool hasStamp : {false, true}) {
    GenericDtm dtm(hasStamp ? kHart7 : kHart6, {{9, Packed(nine + (hasStamp ? "00010203" : ""))}});
    dtm.Meet();
    dtm.Read("max_device_variables");
    dtm.line_->Sent();
    EXPECT_EQ(dtm.Read("device_variable_1_value")->Value(), Variant(12.5F));
    EXPECT_EQ(dtm.Get("device_variable_1_value")->UnitText(), "°C");
    EXPECT_EQ(dtm.ReadLong("device_variable_1_classification"), 64);
    EXPECT_EQ(dtm.ReadLong("device_variable_1_data_quality"), 3);
    EXPECT_EQ(dtm.ReadLong("device_variable_1_limit_status"), 1);
    EXPECT_EQ(dtm.ReadLong("device_variable_1_family_status"), 8);
    EXPECT_EQ(dtm.Get("data_time_stamp")->Validity(), hasStamp);
    if (hasStamp) {
      EXPECT_EQ(dtm.ReadLong("data_time_stamp"), 0x010203);
    }
    EXPECT_EQ(dtm.line_->Sent().substr(0, 4), "9:01");
    EXPECT_FALSE(dtm.Get("device_variable_4_value")->Validity()) << "beyond the last one";
  }
  GenericDtm dtm(kHart5, {{33, Packed("02 39 42C80000")}});
  dtm.Meet();
  EXPECT_EQ(dtm.Read("device_variable_2_value")->Value(), Variant(100.0F));
  EXPECT_EQ(dtm.line_->Sent(), "33:02");
  EXPECT_FALSE(dtm.Get("device_variable_2_classification")->Validity());
}

TEST(Generic, ReadsAdditionalStatusOfAnyLength) {
  const std::string own = "010203040506";
  const std::string nine = own + "21 00 80";
  const std::string fourteen = nine + "01 02 04 08 03";
  const std::string all = fourteen + "0E0F101112131415161718";
  GenericDtm shortest(kHart7, {{48, Packed(nine)}});
  shortest.Meet();
  EXPECT_EQ(shortest.ReadLong("device_specific_status_5"), 6);
  EXPECT_EQ(shortest.ReadLong("standardized_status_0"), 0x80);
  EXPECT_EQ(shortest.Get("standardized_status_0")->ErrorText(), "");
  EXPECT_NE(shortest.Read("device_specific_status_24")->ErrorText(), "") << "not sent";
  EXPECT_EQ(shortest.Get("device_specific_status_0")->ErrorText(), "");

  GenericDtm longest(kHart7, {{48, Packed(all)}});
  longest.Meet();
  EXPECT_EQ(longest.ReadLong("analog_channel_fixed"), 3);
  EXPECT_EQ(longest.ReadLong("standardized_status_2"), 4);
  EXPECT_EQ(longest.ReadLong("device_specific_status_14"), 0x0E);
  EXPECT_EQ(longest.ReadLong("device_specific_status_24"), 0x18);
  EXPECT_EQ(longest.line_->Sent(), "48 48") << "the first 14 bytes, then all 25";

  GenericDtm oldest(kHart5, {{48, Packed(own + "0000 000000 000000 0E0F101112131415161718")}});
  oldest.Meet();
  EXPECT_EQ(oldest.ReadLong("device_specific_status_14"), 0x0E);
  EXPECT_FALSE(oldest.Get("standardized_status_0")->Validity());
}

TEST(Generic, UnmappedVariablesAreNotValid) {
  GenericDtm dtm(kHart5, {{50, "000102FA"},
                          {3, Packed("41200000 07 3F800000 20 41C80000 39 42480000 FA 7FA00000")}});
  dtm.Meet();
  EXPECT_TRUE(dtm.Get("fourth_variable")->Validity());
  EXPECT_EQ(dtm.ReadLong("tertiary_variable_assignment"), 2);
  EXPECT_EQ(dtm.line_->Sent(), "50");
  EXPECT_FALSE(dtm.Get("fourth_variable")->Validity());
  EXPECT_EQ(dtm.Read("secondary_variable")->Value(), Variant(25.0F));
  EXPECT_EQ(dtm.Get("secondary_variable")->UnitText(), "°C");
}

TEST(Generic, WritesInTheFormOfTheRevision) {
  GenericDtm five(kHart5, {{6, "03"}, {109, "01"}});
  five.Meet();
  five.Write("polling_address", 3);
  five.Write("burst_mode_select", 1);
  EXPECT_EQ(five.line_->Sent(), "6:03 109:01");
  EXPECT_FALSE(five.Get("polling_address")->CheckValue(16, true));
  EXPECT_FALSE(five.Get("polling_address")->CheckHandling(AccessMode::Read));

  GenericDtm seven(kHart7, {{6, "2A01"}});
  seven.Meet();
  seven.Write("polling_address", 42);
  EXPECT_EQ(seven.line_->Sent(), "7 6:2A01") << "the mode goes along and is read before";
}

TEST(Generic, NamesOnlyWhatItDefines) {
  const dtmkit::Catalogue& all = generic::Description();
  for (const auto& menu : all.Items<Menu>()) {
    for (const MenuItem& item : menu->Items())
      EXPECT_TRUE(all.Contains(item.Definition())) << item.Definition().Name();
  }
  for (const char* file : {"generic-hart5.txt", "generic-hart6.txt", "generic-hart7.txt"}) {
    for (const auto& entry : HartLinkSim::DeviceFile(kDtmFolder / file).Entries())
      EXPECT_TRUE(all.Contains(VariableNamed(entry.name))) << file << ": " << entry.name;
    DtmOnDevice dtm("Generic", file);
    dtm.Upload();
    for (const auto& prototype : all.Items<Variable>()) {
      const auto variable = dtm.Get(prototype->Definition().Name());
      EXPECT_EQ(variable->ErrorText(), "") << file << ": " << prototype->Definition().Name();
    }
  }
}

}  // namespace
