#include <gmock/gmock.h>

#include "support/HartWrapperTest.h"

// Connecting to a real device: who is found, what is sent, what is refused, the online state.
namespace test_support {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

TEST_F(HartWrapperTest, TakesTheIdentityOutOfTheReply) {
  struct {
    const char* reply;
    const char* text;
    int manufacturer;
    const char* longAddress;
  } const cases[] = {
      {kHart5Device, "0x2606 rev. 1, HART 5, ID 0x001234", 0x26, "2606001234"},
      {kHart6Device, "0x2606 rev. 2, HART 6, ID 0x001234", 0x26, "2606001234"},
      {kHart7Device, "0xFA10 rev. 2, HART 7, ID 0x001234", 0x26, "3A10001234"},
  };
  line->reply = [](Exchange&) { return "000041480000"; };
  for (const auto& test : cases) {
    hart->SetAddressInformation(0, "", "");
    line->device = test.reply;
    EXPECT_TRUE(Read());
    EXPECT_EQ(pv->Value(), Variant(12.5F));
    EXPECT_EQ(hart->Device()->Text(), test.text);
    EXPECT_EQ(hart->Device()->Manufacturer(), test.manufacturer);
    EXPECT_EQ(hart->Device()->requestPreambles, 5);
    EXPECT_THAT(line->TakeLog(), ElementsAre("0@0", std::string("3@") + test.longAddress));
  }
  EXPECT_EQ(hart->Device()->hardwareRevision, 3);
  EXPECT_EQ(hart->Device()->physicalSignaling, 1);
  // No identity: cut off, damaged on the way, refused, from before HART 5.
  for (const auto& [reply, told] :
       {std::pair{"0000FE26060505010A08000012", "status byte 0x00"},
        std::pair{"8800FE26060505010A0800001234", "status byte 0x88"},
        std::pair{"0500", "response code 5"},
        std::pair{"000005050505010A08000012345678", "status byte 0x00"}}) {
    hart->SetAddressInformation(0, "", "");
    line->device = reply;
    EXPECT_FALSE(hart->Connect()) << reply;
    EXPECT_EQ(hart->OnlineState(), State::NoDeviceFound);
    EXPECT_THAT(hart->ConnectionError(), HasSubstr(told));
  }
}

TEST_F(HartWrapperTest, TheOnlineStateFollowsTheConnection) {
  EXPECT_EQ(Stored("__ZAF__DTMOnlineState"), Variant());
  EXPECT_TRUE(hart->Connect());
  Note();
  EXPECT_EQ(Stored("__ZAF__OnlineMode"), Variant(1));
  EXPECT_TRUE(hart->Connect());
  EXPECT_THAT(line->TakeLog(), SizeIs(1));
  hart->Disconnect();
  Note();
  EXPECT_EQ(Stored("__ZAF__OnlineMode"), Variant(0));
  EXPECT_THAT(states, ElementsAre(State::Connecting, State::Connected, State::NotConnected));
  // Only Connect ends it.
  EXPECT_FALSE(Read());
  EXPECT_THAT(line->log, IsEmpty());
  EXPECT_EQ(pv->ErrorText(), ResText(3024));
  EXPECT_TRUE(hart->Connect());
  hart->SetEmulate(true);
  EXPECT_EQ(Stored("__ZAF__DTMOnlineState"), Variant(0));
  EXPECT_FALSE(hart->Connect());
  hart->SetEmulate(false);
  EXPECT_TRUE(Read(0x4F));
}

TEST_F(HartWrapperTest, RefusesTheWrongDevice) {
  information->devices = {{.expandedType = 0x2606, .lowestRevision = 0, .highestRevision = 1},
                          {.expandedType = 0xFA10, .lowestRevision = 2, .manufacturer = 0x26}};
  struct {
    const char* device;
    bool fits;
  } const cases[] = {{kHart5Device, true},
                     {kHart7Device, true},
                     {kHart6Device, false},                                         // revision
                     {"0000FEFA1105070203190000123405040007000026001101", false},   // type
                     {"0000FEFA1005070203190000123405040007000027001101", false}};  // manufacturer
  for (const auto& test : cases) {
    hart->SetAddressInformation(0, "", "");
    Gui().messages.clear();
    line->device = test.device;
    line->TakeLog();
    EXPECT_EQ(Read(), test.fits) << test.device;
    EXPECT_EQ(WriteFailure(), test.fits ? ErrorNumber{} : ErrorNumber::NotConnected);
    Read();
    if (test.fits) continue;
    EXPECT_EQ(hart->OnlineState(), State::WrongDevice);
    EXPECT_THAT(line->log, ElementsAre("0@0"));
    EXPECT_THAT(
        Gui().messages,
        ElementsAre(AllOf(HasSubstr("for 0x2606 rev. 0-1, 0xFA10 (manufacturer 0x0026) rev. 2+"),
                          HasSubstr(hart->Device()->Text()), HasSubstr("|de|"))));
    EXPECT_EQ(pv->ErrorText(), Gui().messages.front());
    EXPECT_EQ(pv->Value(), Variant(12.5F));
    EXPECT_FALSE(pv->Available());
    EXPECT_EQ(hart->LastResult(), -3);
    EXPECT_FALSE(hart->AcceptDevice());
  }
  line->device = kHart5Device;
  EXPECT_FALSE(Read());
  EXPECT_TRUE(hart->Connect());
  EXPECT_EQ(hart->ConnectionError(), "");
}

TEST_F(HartWrapperTest, ACommandAfterNoReplyLooksForTheDeviceAgain) {
  Add(MakeVariable("__ZAF__ZAFsingleStorage_RECONNECTRETRYNO", TypeCode::Integer, 2,
                   std::int16_t{1}));
  Read();
  line->device = "";
  line->error = "/dev/ttyS9 is gone";
  line->TakeLog();
  EXPECT_FALSE(Read());
  EXPECT_EQ(hart->OnlineState(), State::NoDeviceFound);
  EXPECT_THAT(Gui().messages, IsEmpty());
  EXPECT_EQ(WriteFailure(), ErrorNumber::NotConnected);
  EXPECT_THAT(line->TakeLog(), ElementsAre("3@3A10001234", "0@0", "0@0"));
  EXPECT_THAT(Gui().messages, ElementsAre(HasSubstr("address 0 cannot be reached: /dev/ttyS9")));
  // Not for each of many commands, and told once.
  EXPECT_FALSE(Read());
  EXPECT_THAT(line->log, IsEmpty());
  Advance(1000);
  EXPECT_FALSE(Read());
  EXPECT_THAT(Gui().messages, SizeIs(1));
  line->device = kHart7Device;
  Advance(1000);
  EXPECT_EQ(WriteFailure(), ErrorNumber{});
  EXPECT_EQ(hart->OnlineState(), State::Connected);
}

TEST_F(HartWrapperTest, NoticesAnotherUnit) {
  Read();
  const std::string before = hart->Device()->Text();
  line->device = "0000FEFA1005070203190000567805040007000026001101";
  EXPECT_FALSE(Read());  // the long address is that of the former unit
  EXPECT_EQ(WriteFailure(), ErrorNumber::NotConnected);
  EXPECT_EQ(hart->OnlineState(), State::WrongDevice);
  EXPECT_THAT(Gui().messages, ElementsAre(AllOf(HasSubstr("ID 0x005678 instead of " + before))));
  EXPECT_FALSE(hart->Connect());
  EXPECT_TRUE(hart->AcceptDevice());
  EXPECT_TRUE(Read());
  EXPECT_EQ(line->log.back(), "3@3A10005678");
  // A host may name the unit it expects at a polling address.
  hart->SetAddressing(Addressing::PollingAddress);
  hart->SetAddressInformation(0, "", "3a10001234");
  EXPECT_FALSE(hart->Connect());
  EXPECT_EQ(hart->OnlineState(), State::WrongDevice);
}

TEST_F(HartWrapperTest, Addresses) {
  line->pollingAddress = 5;
  hart->SetAddressInformation(5, "", "");
  EXPECT_TRUE(Read());
  // A new polling address counts for the next search.
  const auto address = MakeVariable("polling_address", TypeCode::Unsigned, 1, std::int32_t{9});
  hart->ExecuteCommand(6, MakeTransaction({BoundItem(address)}, {}));
  line->pollingAddress = 9;
  hart->Disconnect();
  EXPECT_TRUE(hart->Connect());
  EXPECT_EQ(line->log.back(), "0@9");

  line->TakeLog();
  hart->SetAddressInformation(0, "", "3a10001234");
  EXPECT_TRUE(hart->Connect());
  EXPECT_THAT(line->TakeLog(), ElementsAre("0@3A10001234"));

  hart->SetAddressing(Addressing::Tag);
  hart->SetAddressInformation(0, "TT 1", "");
  EXPECT_FALSE(hart->Connect());
  EXPECT_THAT(line->TakeLog(), ElementsAre("11@0000000000", "21@0000000000", "21@0000000000"));
  line->tagData = "514831820820";  // "TT 1    " in Packed ASCII
  EXPECT_TRUE(hart->Connect());
  // It is found by its long address as well once its tag is another.
  hart->Disconnect();
  line->TakeLog();
  line->tagData = "?";
  EXPECT_TRUE(hart->Connect());
  EXPECT_EQ(line->log.back(), "0@3A10001234");

  // As expanded type and device id have it, with two bits that are not in the address.
  hart->SetAddressing(Addressing::LongAddress);
  hart->SetAddressInformation(0, "", "FA10001234");
  EXPECT_TRUE(hart->Connect()) << hart->ConnectionError();
}

TEST_F(HartWrapperTest, RefusesWhatIsNoAddress) {
  const auto failure = [&](Addressing by, std::int32_t polling, const char* tag,
                           const char* longOne) {
    try {
      hart->SetAddressing(by);
      hart->SetAddressInformation(polling, tag, longOne);
      hart->Connect();
    } catch (const Failure& failed) {
      return failed.Description();
    }
    return std::string("none");
  };
  EXPECT_THAT(failure(Addressing::PollingAddress, 64, "", ""), HasSubstr("0 to 63"));
  EXPECT_THAT(failure(Addressing::Tag, 0, "", ""), HasSubstr("no tag"));
  EXPECT_THAT(failure(Addressing::LongAddress, 0, "", ""), HasSubstr("not given"));
  EXPECT_THAT(failure(Addressing::LongAddress, 0, "", "3A10"), HasSubstr("ten hexadecimal digits"));
}

}  // namespace
}  // namespace test_support
