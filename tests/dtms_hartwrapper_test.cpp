#include <gmock/gmock.h>

#include "interfaces/IDeviceConnection.h"
#include "support/HartLine.h"
#include "support/SampleDevice.h"
#include "types/Failure.h"

// The sample DTM on the wrapper for real links: what happens to the values that the user typed when
// the device goes, another one comes, and the first comes back.
namespace test_support {
namespace {

class RealWrapper : public testing::Test, public DtmOnDevice {
 protected:
  RealWrapper()
      : DtmOnDevice("SampleTemperature", "demo-device.txt", "ZAFHartLib.CHARTCommWrapper") {
    UseLink(line_);
    line_->reply = [this](Exchange& exchange) {
      if (exchange.CommandNumber() == unplugAt_) line_->device = "";
      return line_->device.empty() ? std::string() : hart::ToHex(*device_->Answer(exchange));
    };
    Upload();
    Edit("message", "ONE");
    Edit("long_tag", "Two");
    Edit("final_assembly_number", std::int32_t{3});
  }
  // Which of the three are still to be written.
  std::string Pending() {
    std::string names;
    for (const char* name : {"message", "long_tag", "final_assembly_number"}) {
      if (Get(name)->ToBeWritten()) names += std::string(name) + " ";
    }
    return names;
  }
  ErrorNumber WriteFailure() {
    try {
      components_->WriteChanges();
    } catch (const Failure& failure) {
      return failure.Number();
    }
    return {};
  }

  std::shared_ptr<HartLine> line_ = std::make_shared<HartLine>();
  int unplugAt_ = -1;
};

TEST_F(RealWrapper, UnpluggedInTheMiddleOfWriteChanges) {
  EXPECT_EQ(line_->log.front(), "0@0");
  EXPECT_EQ(Get("__ZAF__DTMOnlineState")->Value(), Variant(100));
  EXPECT_TRUE(Get("date")->Available());
  EXPECT_EQ(Get("date")->ErrorText(), "");
  unplugAt_ = 22;
  EXPECT_EQ(WriteFailure(), ErrorNumber{});
  EXPECT_EQ(InDevice("message"), Variant("ONE"));
  EXPECT_EQ(Pending(), "final_assembly_number ");
  EXPECT_NE(Get("long_tag")->ErrorText(), "");
  // Nothing is lost by trying in vain.
  EXPECT_EQ(WriteFailure(), ErrorNumber::NotConnected);
  EXPECT_EQ(Pending(), "final_assembly_number ");
  line_->device = kHart7Device;
  unplugAt_ = -1;
  platform_.GetClock().Sleep(platform::Milliseconds{1000});
  Edit("long_tag", "Two again");
  EXPECT_EQ(WriteFailure(), ErrorNumber{});
  EXPECT_EQ(Pending(), "");
  EXPECT_EQ(InDevice("final_assembly_number"), Variant(3));
  EXPECT_EQ(InDevice("long_tag"), Variant("Two again"));
  EXPECT_EQ(Get("long_tag")->ErrorText(), "");
}

TEST_F(RealWrapper, NothingIsWrittenToAnotherDevice) {
  line_->device = "0000FE26050505010A0800001234";  // of another type
  const auto connection = std::dynamic_pointer_cast<IDeviceConnection>(components_->HARTComm());
  connection->Disconnect();
  EXPECT_FALSE(connection->Connect());
  line_->TakeLog();
  EXPECT_EQ(WriteFailure(), ErrorNumber::NotConnected);
  components_->DDWorkerDB()->SetVariableAvailable({}, false);
  components_->DDKernel()->ReadVariable(VariableNamed("date"));
  EXPECT_EQ(line_->TakeLog(), std::vector<std::string>{});
  EXPECT_EQ(Pending(), "message long_tag final_assembly_number ");
  EXPECT_EQ(Get("long_tag")->Value(), Variant("Two"));
  EXPECT_EQ(Get("date")->ErrorText(), connection->ConnectionError());
  line_->device = kHart7Device;
  EXPECT_TRUE(connection->Connect());
  EXPECT_EQ(WriteFailure(), ErrorNumber{});
  EXPECT_EQ(Pending(), "");
  EXPECT_EQ(Get("__ZAF__ProgressValue")->Value(), Variant(-1.0));
}

}  // namespace
}  // namespace test_support
