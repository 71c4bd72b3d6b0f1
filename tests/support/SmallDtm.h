#pragma once

#include <memory>
#include <vector>

#include "components/CDDComponents.h"
#include "linksim/DeviceLink.h"
#include "platform/Platform.h"

namespace test_support {

// Passes every exchange on to an emulated device and keeps the command numbers.
class LoggingLink : public HartLinkSim::DeviceLink {
 public:
  using DeviceLink::DeviceLink;
  void Execute(const std::shared_ptr<ZAFHartTypes::Exchange>& exchange) override {
    commands.push_back(exchange->CommandNumber());
    DeviceLink::Execute(exchange);
  }
  std::vector<int> commands;
};

// One instance of a DTM with a dozen variables, its emulated device, and a clock that stands still.
//
//   pv          live, unit from pv_unit          command 1
//   pv_unit     enumerated 32 °C, 33 °F          read by 15, written by 44
//   upper/lower range values, unit from pv_unit  read by 15, written by 35
//   mode        enumerated 0, 1                  read by 130, written by 131
//   limit       valid when mode is 1             read by 132, written by 133
//   first, second  each written before the other 140/141, 142/143
//   locked      read-only                        read by 130
class SmallDtm {
 public:
  SmallDtm();
  ~SmallDtm();

  // Uploads by the DTM's own menu, which it returns.
  ZAFHartTypes::Definition Upload() const {
    ZAFHartTypes::Definition menu;
    components->Upload(menu);
    return menu;
  }
  std::shared_ptr<ZAFHartTypes::Variable> Stored(const char* name) const;
  void Edit(const char* name, const ZAFHartTypes::Variant& value) const;
  ZAFHartTypes::Variant ValueOf(const char* name) const { return Stored(name)->Value(); }
  bool IsPending(const char* name) const { return Stored(name)->ToBeWritten(); }

  platform::ManualClock* clock;
  platform::Platform platform;
  platform::PlatformScope scope;
  std::shared_ptr<HartLinkSim::EmulatedDevice> device;
  std::shared_ptr<LoggingLink> link;
  std::vector<std::string> methodsRun;
  std::shared_ptr<ZAFHartLib::CDDComponents> components;
};

}  // namespace test_support
