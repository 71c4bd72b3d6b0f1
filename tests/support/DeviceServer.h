#pragma once

#include <atomic>
#include <future>
#include <string>
#include <thread>

#include "comm/DtmCatalogue.h"
#include "components/CDDComponents.h"
#include "components/LibraryClasses.h"
#include "links/HartIpServer.h"
#include "linksim/WireDevice.h"
#include "platform/Platform.h"

namespace support {

// The emulated device of the sample DTM behind a HART-IP server (UDP and TCP), in a thread of its
// own. Unplugged with the object.
class DeviceServer {
 public:
  // `file`: the device's memory, which changes are written to. Port 0: any free one.
  explicit DeviceServer(std::string file, std::uint16_t port = 0)
      : file_(std::move(file)), thread_([this, port] { Run(port); }) {
    port_ = listening_.get_future().get();
  }
  ~DeviceServer() {
    ended_ = true;
    thread_.join();
  }
  DeviceServer(const DeviceServer&) = delete;
  DeviceServer& operator=(const DeviceServer&) = delete;

  std::uint16_t Port() const { return port_; }
  std::string Link(const std::string& rest = "") const {
    return "hartip://127.0.0.1:" + std::to_string(port_) + rest;
  }
  // Is unplugged for good by the next request of that command.
  void UnplugAt(int command) { unplugAt_ = command; }
  void AddFault(const std::string& fault) { fault_ = fault; }  // before the first request

 private:
  void Run(std::uint16_t port) {
    platform::Platform platform;
    const platform::PlatformScope scope(platform);
    ZAFHartLib::RegisterLibraryClasses(platform.Classes());
    platform.Classes().SetPluginPath({ZAF_DTM_FOLDER});
    const auto components = ZAFHartLib::CDDComponents::Create();
    components->SetDataModelClass("SampleTemperature.DataModel");
    components->SetCommWrapperClass("ZAFHartLib.CDDTestCommWrapper");
    components->Initialize();
    const auto memory = std::make_shared<HartLinkSim::EmulatedDevice>();
    memory->UseFile(file_);
    HartLinkSim::WireDevice device(memory, std::make_shared<ZAFHartLib::DtmCatalogue>(components));
    const auto answer = [&](const ZAFHartTypes::hart::DecodedFrame& request)
        -> std::optional<HartLinkSim::WireReply> {
      if (request.frame.CommandNumber() == unplugAt_) isUnplugged_ = true;
      if (isUnplugged_) return std::nullopt;
      if (const std::string fault = std::exchange(fault_, ""); !fault.empty())
        device.LinkFaults().Add(fault);
      return device.Answer(request);
    };
    {
      HartLinks::HartIpServerOptions options;
      options.local = *platform::NumericAddress("127.0.0.1", port);
      HartLinks::HartIpServer server(answer, options);
      listening_.set_value(server.Address().port);
      while (!ended_) platform.Loop().WaitStep(platform::Milliseconds(20));
    }
    components->PrepareTermination();
  }

  const std::string file_;
  std::string fault_;
  std::atomic<bool> ended_ = false;
  std::atomic<int> unplugAt_ = -1;
  bool isUnplugged_ = false;
  std::promise<std::uint16_t> listening_;
  std::uint16_t port_ = 0;
  std::thread thread_;
};

}  // namespace support
