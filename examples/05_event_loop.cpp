// The library inside libuv's event loop (UvHost.h), with a device behind a HART-IP server.
//
//   event_loop FOLDER-OF-DTMS PORT-OF-THE-SERVER
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "UvHost.h"
#include "components/CDDComponents.h"
#include "components/LibraryClasses.h"
#include "links/HartIpLink.h"
#include "text/DisplayString.h"

namespace {

using namespace ZAFHartTypes;

// What the program does beside the library.
class Ticker {
 public:
  Ticker() {
    uv_timer_init(uv_default_loop(), &timer_);
    timer_.data = this;
    uv_timer_start(
        &timer_, [](uv_timer_t* timer) { ++static_cast<Ticker*>(timer->data)->ticks_; }, 1, 1);
  }
  ~Ticker() {
    uv_close(reinterpret_cast<uv_handle_t*>(&timer_), nullptr);
    uv_run(uv_default_loop(), UV_RUN_NOWAIT);
  }
  bool HasTicked() { return std::exchange(ticks_, 0) > 0; }

 private:
  uv_timer_t timer_{};
  int ticks_ = 0;
};

std::shared_ptr<ZAFHartLib::CDDComponents> OpenDtm(const char* folder, const char* port) {
  auto& classes = platform::Current().Classes();
  ZAFHartLib::RegisterLibraryClasses(classes);
  classes.SetPluginPath({std::filesystem::absolute(folder)});
  auto dtm = ZAFHartLib::CDDComponents::Create();
  dtm->SetDataModelClass("SampleTemperature.DataModel");
  dtm->SetCommWrapperClass("ZAFHartLib.CHARTCommWrapper");
  dtm->Initialize();
  HartLinks::HartIpOptions options;
  options.server = {"127.0.0.1", static_cast<std::uint16_t>(std::atoi(port)),
                    HartLinks::Transport::Tcp};
  std::dynamic_pointer_cast<ILinkUser>(dtm->HARTComm())
      ->SetLink(std::make_shared<HartLinks::HartIpLink>(options));
  return dtm;
}

void Tell(const Variable& variable, Ticker& ticker) {
  std::printf("%s: %s; the program's own timer %s meanwhile\n",
              variable.Definition().Name().c_str(),
              ZAFHartLib::GetVariableDisplayString(variable).c_str(),
              ticker.HasTicked() ? "ran" : "did not run");
}

void Run(const char* folder, const char* port) {
  UvHost host(uv_default_loop());
  Ticker ticker;
  const auto dtm = OpenDtm(folder, port);

  // The call returns with the value; the loop runs while it waits for the device.
  const auto tag = Definition::Define("tag", ObjectKind::Variable);
  Tell(*dtm->DDKernel()->ReadVariable(tag), ticker);

  // The call returns at once; the value comes while the program is in its loop.
  const auto message = Definition::Define("message", ObjectKind::Variable);
  dtm->DDWorkerDB()->SetVariableAvailable(message, false);
  dtm->DDKernel()->AsyncReadVariable(message);
  const auto look = platform::Current().Loop().StartTimer(Milliseconds(10), [&] {
    if (dtm->DDKernel()->GetVariable(message)->Available()) uv_stop(uv_default_loop());
  });
  host.Run(UV_RUN_DEFAULT);
  Tell(*dtm->DDKernel()->GetVariable(message), ticker);
  dtm->PrepareTermination();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: event_loop FOLDER-OF-DTMS PORT-OF-THE-SERVER\n");
    return 2;
  }
  try {
    Run(argv[1], argv[2]);
    return 0;
  } catch (const Failure& failure) {
    std::fprintf(stderr, "%s: %s\n", failure.Source().c_str(), failure.Description().c_str());
    return 1;
  }
}
