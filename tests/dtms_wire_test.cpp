#include <gmock/gmock.h>

#include "comm/DtmCatalogue.h"
#include "hart/HexText.h"
#include "linksim/WireDevice.h"
#include "support/SampleDevice.h"

// Devices of the DTMs that ship with the library, emulated on the wire.
namespace {

using namespace test_support;  // NOLINT(google-build-using-namespace)
namespace hart = ZAFHartTypes::hart;
using HartLinkSim::WireDevice;

// Brings exchanges to a device as frames, as a master of any maker would.
class FramesTo : public ILink {
 public:
  explicit FramesTo(WireDevice& device) : device_(device) {}
  void Execute(const std::shared_ptr<Exchange>& exchange) override {
    const auto bytes = hart::FromHex(exchange->LongAddress());
    const auto address = bytes.empty() ? hart::LinkAddress::Polling(0)
                                       : hart::LinkAddress::Unique(std::span(bytes).first<5>());
    const auto request = hart::RequestFrame(static_cast<std::uint16_t>(exchange->CommandNumber()),
                                            address, true, hart::FromHex(exchange->RequestData()));
    const auto reply = device_.Answer(hart::DecodeFrame(hart::EncodeFrame(request)));
    if (!reply) return exchange->Finish(ExchangeState::NoReply, ExchangeResult::None);
    exchange->SetReplyData(hart::ToHex(hart::DecodeFrame(reply->frame).frame.ExchangeData()));
    exchange->Finish(ExchangeState::Completed, ExchangeResult::ReplyPresent);
  }
  void Cancel(const std::shared_ptr<Exchange>& /*exchange*/) override {}

 private:
  WireDevice& device_;
};

struct Shipped {
  const char* project;
  const char* file;
  const char* identity;  // data of command 0
};

// A DTM's device on the wire.
struct Emulated {
  Emulated(const char* project, const char* file) : dtm(project, file) {
    dtm.Upload();
    wire = std::make_unique<WireDevice>(
        dtm.device_, std::make_shared<ZAFHartLib::DtmCatalogue>(dtm.components_));
  }
  std::string Ask(int number, const char* data) {
    const auto request = hart::RequestFrame(static_cast<std::uint16_t>(number), wire->Address(),
                                            true, hart::FromHex(data));
    const auto reply = wire->Answer({hart::FrameFault::None, request});
    return reply ? hart::ToHex(hart::DecodeFrame(reply->frame).frame.ExchangeData()) : "none";
  }

  DtmOnDevice dtm;
  std::unique_ptr<WireDevice> wire;
};

struct OnTheWire : testing::TestWithParam<Shipped>, Emulated {
  OnTheWire() : Emulated(GetParam().project, GetParam().file) {}
};
INSTANTIATE_TEST_SUITE_P(
    Dtms, OnTheWire,
    testing::Values(Shipped{"Generic", "generic-hart5.txt", "FEFA050505030C10000005A1"},
                    Shipped{"Generic", "generic-hart6.txt", "FEFA060506010410000006B20503000300"},
                    Shipped{"Generic", "generic-hart7.txt",
                            "FEFA07050702151000 0007C3 05 02 0003 00 60FA60FA01"},
                    Shipped{"SampleTemperature", "demo-device.txt",
                            "FEFA100507020E180112A4F7 07 03 0011 01 00FA00FA01"}),
    [](const auto& test) {
      std::string name = test.param.file;
      std::erase_if(name, [](char c) { return c == '-' || c == '.'; });
      return name;
    });

// A master's upload brings what the device has.
TEST_P(OnTheWire, IsLoadedByAnotherInstance) {
  const auto master = ZAFHartLib::CDDComponents::Create();
  master->SetDataModelClass(std::string(GetParam().project) + ".DataModel");
  master->SetCommWrapperClass("ZAFHartLib.CDDTestCommWrapper");
  master->Initialize();
  std::dynamic_pointer_cast<ILinkUser>(master->HARTComm())
      ->SetLink(std::make_shared<FramesTo>(*wire));
  master->DDWorkerDB()->SetVariableAvailable({}, false);
  Definition menu;
  master->Upload(menu);
  int compared = 0;
  for (const auto& object : dtm.components_->DDWorkerDB()->NewEnum()) {
    if (object->Kind() != ObjectKind::Variable) continue;
    const Definition& definition = object->ObjectDefinition();
    const auto loaded = master->DDKernel()->GetVariable(definition);
    if (loaded->Attributes().IsDynamic() || dtm.InDevice(definition.Name()).IsEmpty()) continue;
    if (!loaded->Available()) continue;  // not loaded: common practice data
    EXPECT_EQ(loaded->Value().Describe(), dtm.Get(definition.Name())->Value().Describe())
        << definition.Name();
    EXPECT_EQ(loaded->ErrorText(), "") << definition.Name();
    ++compared;
  }
  EXPECT_GT(compared, 25);
  master->PrepareTermination();
}

TEST_P(OnTheWire, TellsWhoItIs) {
  EXPECT_EQ(Ask(0, "").substr(4), hart::ToHex(hart::FromHex(GetParam().identity)));
}

// Layouts follow from the index that was sent, and from what was written.
TEST(EmulatedDtm, LaysOutByTheRequest) {
  Emulated device("Generic", "generic-hart7.txt");
  EXPECT_EQ(device.Ask(54, "01"), "0000010000003942C8000000000000000000003F800000");
  EXPECT_EQ(device.Ask(55, "0142480000"), "00400142480000");
  EXPECT_EQ(device.Ask(54, "01"), "0040010000003942C8000000000000424800003F800000");
  EXPECT_EQ(device.Ask(54, "00").substr(4, 14),
            "0000"
            "0CE6"
            "2D41A0");
  EXPECT_EQ(device.Ask(54, "63"), "0240");
  EXPECT_EQ(device.Ask(54, ""), "0540");
  EXPECT_EQ(device.Ask(254, ""), "4040");
  device.dtm.components_->PrepareTermination();
  EXPECT_EQ(device.Ask(54, "01"), "0640");
}

}  // namespace
