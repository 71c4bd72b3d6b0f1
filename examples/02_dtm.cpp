// A DTM in one file: a level gauge with a live value, an alarm limit and the name of its tank.
//
//   hartframe upload --dtm LevelGauge --dtm-path FOLDER-OF-THE-PLUG-IN
#include "dtmkit/dtmkit.h"
#include "platform/ModuleFolder.h"

namespace {

using namespace ZAFHartTypes;
using namespace ZAFHartTypes::dtmkit;

// Command 0, by whose reply every device is known; the first two variables begin each reply.
void DescribeIdentity(DeviceDescription& dd) {
  dd.Variable("response_code").Unsigned(1).Local();
  dd.Variable("device_status").Unsigned(1).Local();
  dd.Variable("manufacturer_id").Unsigned(1).ReadOnly().Default(std::int16_t{250});
  dd.Variable("device_type").Unsigned(1).ReadOnly().Default(std::int16_t{17});
  dd.Variable("device_id").Unsigned(3).ReadOnly().Default(4711);
  dd.Command("read_unique_identifier", 0, Operation::Read)
      .Reply({Byte(254), "manufacturer_id", "device_type", Byte(5), Byte(5), Byte(1), Byte(1),
              Byte(8), Byte(0), "device_id"});
}

void DescribeLevel(DeviceDescription& dd) {
  dd.Variable("level")
      .Label("Level|de|Füllstand")
      .Float()
      .Format("6.2f")
      .Unit("m")
      .ReadOnly()
      .Dynamic();
  dd.Variable("high_alarm")
      .Label("High alarm|de|Hochalarm")
      .Float()
      .Format("6.2f")
      .Unit("m")
      .Range(0.0F, 20.0F)
      .Default(15.0F);
  dd.Variable("tank").Label("Tank|de|Behälter").PackedAscii(8).Default("TANK 1");

  dd.Command("read_level", 1, Operation::Read).Reply({"level"});
  dd.Command("read_tank", 130, Operation::Read).Reply({"high_alarm", "tank"});
  dd.Command("write_tank", 131, Operation::Write)
      .Request({"high_alarm", "tank"})
      .Reply({"high_alarm", "tank"})
      .TransactionCodes({{3, ResponseCodeType::DataEntryError, "Alarm too high|de|Alarm zu hoch"}});
}

void DescribeMenus(DeviceDescription& dd) {
  dd.Menu("parameters").Label("Parameters|de|Parameter").Variables({"high_alarm", "tank"});
  dd.Menu("root_menu").Label("Level gauge|de|Füllstandsmesser").Menus({"parameters"});
}

// One for the process: all instances share its texts and lists.
const DeviceDescription& Description() {
  static const auto* const description = [] {
    auto* dd = new DeviceDescription;
    DescribeIdentity(*dd);
    DescribeLevel(*dd);
    DescribeMenus(*dd);
    RequireConsistent(*dd);
    return dd;
  }();
  return *description;
}

class Model : public DataModelBase {
 public:
  Model() : DataModelBase(Description()) {}
};

class Information : public KernelInformationBase {
 public:
  Information()
      : KernelInformationBase(platform::ModuleFolder(reinterpret_cast<const void*>(&Description)),
                              "levelgauge.so", {{StandardName::UploadVariables, "parameters"}}) {}
};

}  // namespace

ZAF_DTM_PLUGIN("LevelGauge", Model, Information)
