#include <gtest/gtest.h>

#include <bit>

#include "hart/StatusBytes.h"
#include "linksim/DeviceLink.h"
#include "linksim/ValueText.h"
#include "platform/Platform.h"
#include "support/CommItems.h"
#include "support/FailureOf.h"
#include "support/TempFolder.h"

// The emulated device: bytes in, bytes out, and its file.
namespace HartLinkSim {
namespace {

using namespace test_support;  // NOLINT(google-build-using-namespace)
using support::TempFolder;

DataItem Float(const char* name) {
  return BoundItem(name, TypeCode::Float, 4);
}
DataItem Byte(const char* name) {
  return BoundItem(name, TypeCode::Unsigned, 1);
}

struct DeviceTest : testing::Test {
  std::shared_ptr<EmulatedDevice> device = std::make_shared<EmulatedDevice>();

  // Reply to a command, "" for none. `inDataSet` is the reply that the data set would give.
  std::string Reply(int command, const DataItemList& request, const char* requestData,
                    const DataItemList& data, const char* inDataSet) {
    const auto exchange = MakeExchange(static_cast<std::int16_t>(command),
                                       MakeTransaction(request, data), requestData, inDataSet);
    DeviceLink(device).Execute(exchange);
    return exchange->State() == ExchangeState::Completed ? exchange->ReplyData() : "";
  }
};

TEST_F(DeviceTest, KeepsWhatAWriteSends) {
  EXPECT_EQ(Reply(35, {Float("upper"), Float("lower")}, "4148000000000000",
                  {Float("upper"), Float("lower")}, "00000000000000000000"),
            "00404148000000000000");
  EXPECT_EQ(device->Value("UPPER"), Variant(12.5F));
  EXPECT_EQ(Reply(15, {}, "", {Float("upper")}, "00003F800000"), "004041480000");
  EXPECT_EQ(device->ConfigurationChangeCounter(), 1);
}

TEST_F(DeviceTest, TakesUnknownValuesFromTheDataSetOnce) {
  EXPECT_EQ(Reply(12, {}, "", {BoundItem("message", TypeCode::PackedAscii, 4)}, "00000420C4"),
            "00000420C4");
  EXPECT_EQ(device->Value("message"), Variant("ABCD"));
  EXPECT_EQ(Reply(12, {}, "", {BoundItem("message", TypeCode::PackedAscii, 4)}, "0000820820"),
            "00000420C4");
  // A NaN comes back bit by bit.
  EXPECT_EQ(Reply(9, {}, "", {Float("broken")}, "00007FA00000"), "00007FA00000");
  EXPECT_EQ(Reply(9, {}, "", {Float("broken")}, "000000000000"), "00007FA00000");
}

TEST_F(DeviceTest, LiveValuesMoveUntilSomebodySetsThem) {
  const auto live = MakeVariable("pv", TypeCode::Float, 4);
  live->EditAttributes().SetFlag(VariableFlag::Dynamic, true);
  EXPECT_EQ(Reply(1, {}, "", {BoundItem(live)}, "000041480000"), "000041480000");
  EXPECT_EQ(Reply(1, {}, "", {BoundItem(live)}, "00003F800000"), "00003F800000");
  device->SetValue("pv", -2.0);
  EXPECT_EQ(Reply(1, {}, "", {BoundItem(live)}, "00003F800000"), "0000C0000000");
}

TEST_F(DeviceTest, SelectorsAreRepeatedAndNotKept) {
  DataItem index = Byte("slot");
  index.SetIsIndex();
  DataItem info = Byte("which");
  info.SetIsInfo();
  device->SetValue("value_2", std::int32_t{7});
  EXPECT_EQ(Reply(130, {index, info}, "0201", {Byte("slot"), Byte("which"), Byte("value_2")},
                  "0000000000"),
            "0000020107");
  EXPECT_EQ(device->Value("slot"), std::nullopt);
  EXPECT_EQ(device->ConfigurationChangeCounter(), 0);
}

TEST_F(DeviceTest, ConstantsMasksAndShortRequests) {
  const DataItemList data{DataItem::Constant(std::int16_t{254}),
                          BoundItem("high", TypeCode::Unsigned, 1, {}, 0xF0),
                          BoundItem("low", TypeCode::Unsigned, 1, {}, 0x0F)};
  device->SetValue("low", std::int32_t{9});
  EXPECT_EQ(Reply(0, {}, "", data, "0000FE53"), "0000FE59");
  EXPECT_EQ(Reply(35, {Float("upper")}, "414800", {Float("upper")}, "000000000000"), "0500");
  EXPECT_EQ(device->Value("upper"), std::nullopt);
}

TEST_F(DeviceTest, CommonCommands) {
  const DataItemList none;
  const DataItemList mode{Byte("mode")};
  const auto status = [&] { return int{device->Status()}; };
  EXPECT_EQ(Reply(59, mode, "05", mode, "000000"), "004005");
  EXPECT_EQ(Reply(59, mode, "05", mode, "000000"), "004005");  // no change
  EXPECT_EQ(device->ConfigurationChangeCounter(), 1);
  EXPECT_EQ(Reply(38, {Byte("counter")}, "01", none, "0000"), "0000");
  EXPECT_EQ(device->Value("counter"), std::nullopt);

  EXPECT_EQ(Reply(40, {Float("level")}, "41480000", {Float("level")}, "000000000000"),
            "000841480000");
  EXPECT_EQ(Reply(40, {Float("level")}, "00000000", none, "0000"), "0000");
  Reply(40, {Float("level")}, "41480000", none, "0000");
  EXPECT_EQ(Reply(42, {}, "", none, "0000"), "0000");  // frees the loop current
  EXPECT_EQ(status(), hart::kColdStart);
  EXPECT_EQ(Reply(3, {}, "", none, "0000"), "0020");
  EXPECT_EQ(Reply(3, {}, "", none, "0000"), "0000");
  EXPECT_EQ(Reply(48, {}, "", none, "000001"), "001001") << "more status available";
  EXPECT_EQ(Reply(3, {}, "", none, "0000"), "0010");
  EXPECT_EQ(Reply(48, {}, "", none, "000000"), "000000");
  EXPECT_EQ(device->ConfigurationChangeCounter(), 1);
}

TEST_F(DeviceTest, ThePollingAddressDecidesWhetherCommand0IsAnswered) {
  const auto isAnswered = [&](std::int16_t address, const char* longAddress) {
    const auto exchange = MakeExchange(0, MakeTransaction({}, {}), "", "0000");
    exchange->SetPollAddress(address);
    exchange->SetLongAddress(longAddress);
    DeviceLink(device).Execute(exchange);
    return exchange->State() == ExchangeState::Completed;
  };
  EXPECT_TRUE(isAnswered(7, ""));
  Reply(6, {Byte("new_address")}, "03", {Byte("new_address")}, "000000");
  EXPECT_FALSE(isAnswered(7, ""));
  EXPECT_TRUE(isAnswered(3, ""));
  EXPECT_TRUE(isAnswered(7, "26060000AB"));
  EXPECT_EQ(Reply(6, {Byte("new_address")}, "40", {Byte("new_address")}, "000000"), "0240");
  EXPECT_TRUE(isAnswered(3, "")) << "where it was";
}

TEST(ValueTexts, AreReadBackExactly) {
  const float notANumber = std::bit_cast<float>(0x7FA00000);
  struct {
    TypeCode code;
    Variant value;
    const char* text;
  } const cases[] = {{TypeCode::Float, 0.1F, "0.1"},
                     {TypeCode::Float, -INFINITY, "-inf"},
                     {TypeCode::Float, notANumber, "nan:0x7FA00000"},
                     {TypeCode::Double, 1e300, "1e+300"},
                     {TypeCode::Integer, std::int32_t{-5}, "-5"},
                     {TypeCode::Unsigned, std::int32_t{-1}, "4294967295"},
                     {TypeCode::Date, std::int32_t{0x180B7E}, "2026-11-24"},
                     {TypeCode::Date, std::int32_t{0xFFFFFF}, "0xFFFFFF"},
                     {TypeCode::Ascii, "5 \u00B0C", "5 \u00B0C"}};
  for (const auto& test : cases) {
    EXPECT_EQ(ValueText(test.value, test.code), test.text);
    EXPECT_EQ(ValueText(ValueFromText(test.text, test.code), test.code), test.text);
  }
  EXPECT_EQ(ValueFromText("0x0C", TypeCode::Enumerated), Variant(12));
  const std::pair<TypeCode, const char*> wrong[] = {
      {TypeCode::Float, "12,5"},           {TypeCode::Float, ""},
      {TypeCode::Float, "nan:0x41480000"}, {TypeCode::Integer, "1.5"},
      {TypeCode::Unsigned, "-1"},          {TypeCode::Unsigned, "4294967296"},
      {TypeCode::Date, "24.11.26"},        {TypeCode::Date, "0x1000000"}};
  for (const auto& [code, text] : wrong) EXPECT_THROW(ValueFromText(text, code), Failure) << text;
}

struct DeviceFileTest : DeviceTest {
  TempFolder folder;

  std::string WhyNot(const char* content) {
    const auto path = folder.Write("broken.txt", content);
    const std::string reason = support::FailureOf([&] { device->UseFile(path); }).Description();
    EXPECT_EQ(TempFolder::Read(path), content);
    return reason;
  }
};

TEST_F(DeviceFileTest, SurvivesARestartAndKeepsTheRestOfTheFile) {
  const auto path = folder.Write("device.txt",
                                 "; my transmitter\n[device]\nupper=16\n\n; its state\n[STATUS]\n"
                                 "device_status=0x80\n");
  device->UseFile(path);
  EXPECT_EQ(Reply(15, {}, "", {Float("upper")}, "000000000000"), "008041800000");
  Reply(35, {Float("Upper"), BoundItem("descriptor", TypeCode::Ascii, 4)}, "4148000041220A20", {},
        "0000");
  EXPECT_EQ(TempFolder::Read(path),
            "; my transmitter\n[device]\nupper=12.5\ndescriptor=\"A\\\"\\n \"\n"
            "configuration_change_counter=1\n\n; its state\n[STATUS]\ndevice_status=0xC0\n");

  device = std::make_shared<EmulatedDevice>();
  device->UseFile(path);
  EXPECT_EQ(Reply(15, {}, "", {Float("upper"), BoundItem("descriptor", TypeCode::Ascii, 4)},
                  "00000000000000000000"),
            "00C04148000041220A20");
}

TEST_F(DeviceFileTest, ANewFileIsMadeWithTheFirstSave) {
  device->UseFile(folder / "new.txt", EmulatedDevice::SaveMode::OnDemand);
  device->SetValue("tag", "PT 101");
  EXPECT_FALSE(std::filesystem::exists(folder / "new.txt"));
  device->Save();
  EXPECT_EQ(TempFolder::Read(folder / "new.txt"),
            "[device]\ntag=PT 101\n[status]\ndevice_status=0x00\n");
  EXPECT_THROW(device->SetValue("a=b", "x"), Failure);
}

TEST_F(DeviceFileTest, BrokenLinesAreNamed) {
  const std::pair<const char*, const char*> cases[] = {
      {"[device]\nupper\n", "Line 2"},
      {"upper=3\n", "before the first section"},
      {"[device]\n=3\n", "no name=value"},
      {"[other]\n", "[other] is unknown"},
      {"[device]\na=1\n\nA=2\n", "Line 4"},
      {"[device]\na=\"x\n", "does not end"},
      {"[device]\na=\"x\\q\"\n", "followed by"},
      {"[status]\ncolour=1\n", "only device_status"},
      {"[status]\ndevice_status=256\n", "0 to 255"}};
  device->SetValue("a", std::int32_t{5});
  for (const auto& [content, expected] : cases) {
    const std::string reason = WhyNot(content);
    EXPECT_NE(reason.find(expected), std::string::npos) << reason;
    EXPECT_NE(reason.find("broken.txt"), std::string::npos);
  }
  EXPECT_EQ(device->Value("a"), Variant(5));
}

TEST_F(DeviceFileTest, AValueOfAnotherTypeIsAnsweredWithAnErrorThatNamesTheLine) {
  device->UseFile(folder.Write("device.txt", "[device]\nupper=high\n"));
  EXPECT_EQ(Reply(15, {}, "", {Float("upper")}, "000000000000"), "0600");
  for (const char* part : {"\"upper\"", "line 2", "\"high\""}) {
    EXPECT_NE(device->LastError().find(part), std::string::npos) << device->LastError();
  }
  EXPECT_EQ(Reply(3, {}, "", {}, "0000"), "0000");
  EXPECT_EQ(device->LastError(), "");
}

TEST_F(DeviceFileTest, AFileThatCannotBeWrittenIsReported) {
  std::filesystem::create_directory(folder / "gone");
  device->UseFile(folder / "gone/device.txt");
  std::filesystem::remove(folder / "gone");
  EXPECT_EQ(Reply(35, {Float("upper")}, "41480000", {}, "0000"), "0640");
  EXPECT_NE(device->LastError().find("device.txt"), std::string::npos) << device->LastError();
}

}  // namespace
}  // namespace HartLinkSim
