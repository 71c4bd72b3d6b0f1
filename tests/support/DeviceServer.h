#pragma once

#include <atomic>
#include <functional>
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

// A HART-IP server (UDP and TCP) in a thread of its own. Gone with the object.
class ServerThread {
 public:
  // Serves with the answerer until the end.
  using Serve = std::function<void(const HartLinks::FrameAnswerer&)>;

  // `run` is called in the thread, on its platform, to call what it is given. Port 0: any free one.
  ServerThread(std::function<void(const Serve&)> run, std::uint16_t port)
      : run_(std::move(run)), thread_([this, port] { Run(port); }) {
    port_ = listening_.get_future().get();
  }
  ~ServerThread() {
    ended_ = true;
    thread_.join();
  }
  ServerThread(const ServerThread&) = delete;
  ServerThread& operator=(const ServerThread&) = delete;

  std::uint16_t Port() const { return port_; }
  std::string Link(const std::string& rest = "") const {
    return "hartip://127.0.0.1:" + std::to_string(port_) + rest;
  }

 private:
  void Run(std::uint16_t port) {
    platform::Platform platform;
    const platform::PlatformScope scope(platform);
    run_([&](const HartLinks::FrameAnswerer& answerer) {
      HartLinks::HartIpServerOptions options;
      options.local = *platform::NumericAddress("127.0.0.1", port);
      HartLinks::HartIpServer server(answerer, options);
      listening_.set_value(server.Address().port);
      while (!ended_) platform.Loop().WaitStep(platform::Milliseconds(20));
    });
  }

  const std::function<void(const Serve&)> run_;
  std::atomic<bool> ended_ = false;
  std::promise<std::uint16_t> listening_;
  std::uint16_t port_ = 0;
  std::thread thread_;
};

// The emulated device of the sample DTM behind such a server. Unplugged with the object.
class DeviceServer {
 public:
  // `file`: the device's memory, which changes are written to; `fault`: as --fault has it.
  explicit DeviceServer(const std::string& file, std::uint16_t port = 0,
                        const std::string& fault = "")
      : server_([=, this](const ServerThread::Serve& serve) { Run(file, fault, serve); }, port) {}

  std::uint16_t Port() const { return server_.Port(); }
  std::string Link(const std::string& rest = "") const { return server_.Link(rest); }
  // Is unplugged for good by the next request of that command.
  void UnplugAt(int command) { unplugAt_ = command; }

 private:
  void Run(const std::string& file, const std::string& fault, const ServerThread::Serve& serve) {
    auto& classes = platform::Current().Classes();
    ZAFHartLib::RegisterLibraryClasses(classes);
    classes.SetPluginPath({ZAF_DTM_FOLDER});
    const auto components = ZAFHartLib::CDDComponents::Create();
    components->SetDataModelClass("SampleTemperature.DataModel");
    components->SetCommWrapperClass("ZAFHartLib.CDDTestCommWrapper");
    components->Initialize();
    const auto memory = std::make_shared<HartLinkSim::EmulatedDevice>();
    memory->UseFile(file);
    HartLinkSim::WireDevice device(memory, std::make_shared<ZAFHartLib::DtmCatalogue>(components));
    if (!fault.empty()) device.LinkFaults().Add(fault);
    bool isUnplugged = false;
    serve([&](const ZAFHartTypes::hart::DecodedFrame& request)
              -> std::optional<HartLinkSim::WireReply> {
      isUnplugged = isUnplugged || request.frame.CommandNumber() == unplugAt_;
      if (isUnplugged) return std::nullopt;
      return device.Answer(request);
    });
    components->PrepareTermination();
  }

  std::atomic<int> unplugAt_ = -1;
  ServerThread server_;
};

}  // namespace support
