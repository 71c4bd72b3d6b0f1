#include "support/SmallDtm.h"

#include "components/LibraryClasses.h"
#include "dtmkit/dtmkit.h"

namespace test_support {
namespace {

using namespace ZAFHartTypes;
using dtmkit::DeviceDescription;

void DescribeIdentity(DeviceDescription& dd) {
  dd.Variable("response_code").Unsigned(1).Local();
  dd.Variable("device_status").Unsigned(1).Local();
  dd.Variable("manufacturer").Unsigned(1).ReadOnly().Default(std::int16_t{0x26});
  dd.Variable("device_type").Unsigned(1).ReadOnly().Default(std::int16_t{0x80});
  dd.Variable("device_id").Unsigned(3).ReadOnly().Default(123456);
  dd.Variable("polling_address").Unsigned(1).Range(0, 63).Default(std::int16_t{0});
  dd.Variable("tag").PackedAscii(8).Default("SMALL");
  dd.Command("read_unique_identifier", 0, Operation::Read)
      .Reply({dtmkit::Byte(254), "manufacturer", "device_type", dtmkit::Byte(5), dtmkit::Byte(7),
              dtmkit::Byte(1), dtmkit::Byte(1), dtmkit::Byte(8), dtmkit::Byte(0), "device_id"});
  dd.Command("read_tag", 13, Operation::Read).Reply({"tag"});
  dd.Command("write_tag", 18, Operation::Write).Request({"tag"}).Reply({"tag"});
  dd.Command("read_polling_address", 7, Operation::Read).Reply({"polling_address"});
}

void DescribeProcess(DeviceDescription& dd) {
  dd.Variable("pv_unit")
      .Enumerated(1, dtmkit::MakeEnums({{32, "°C"}, {33, "°F"}}))
      .Default(std::int16_t{32});
  dd.Variable("pv").Float().ReadOnly().Dynamic();
  dd.Variable("upper_range").Float().Range(-200.0F, 850.0F).Default(100.0F);
  dd.Variable("lower_range").Float().Range(-200.0F, 850.0F).Default(0.0F);
  dd.UnitRelation("pv_units").Unit("pv_unit").Dependents({"pv", "upper_range", "lower_range"});
  dd.Command("read_pv", 1, Operation::Read).Reply({"pv_unit", "pv"});
  dd.Command("read_range", 15, Operation::Read).Reply({"pv_unit", "upper_range", "lower_range"});
  const auto refused = dtmkit::MakeCodes(
      {{9, ResponseCodeType::DataEntryError, "Lower range too high|de|Messanfang zu hoch"}});
  dd.Command("write_unit", 44, Operation::Write).Request({"pv_unit"}).Reply({"pv_unit"});
  dd.Command("write_range", 35, Operation::Write)
      .Codes(refused)
      .Request({dtmkit::Info("pv_unit"), "upper_range", "lower_range"})
      .Reply({dtmkit::Info("pv_unit"), "upper_range", "lower_range"});
}

void DescribeModes(DeviceDescription& dd) {
  dd.Variable("mode")
      .Enumerated(1, dtmkit::MakeEnums({{0, "Off"}, {1, "On"}}))
      .Default(std::int16_t{0});
  dd.Variable("locked").Unsigned(1).ReadOnly().Default(std::int16_t{3});
  dd.Variable("limit")
      .Unsigned(2)
      .Range(1, 500)
      .Default(std::int16_t{10})
      .ValidWhen([](dtmkit::Context& context) { return context.Long("mode") == 1; });
  dd.Command("read_mode", 130, Operation::Read).Reply({"mode", "locked"});
  dd.Command("write_mode", 131, Operation::Write).Request({"mode"}).Reply({"mode"});
  dd.Command("read_limit", 132, Operation::Read).Reply({"limit"});
  dd.Command("write_limit", 133, Operation::Write).Request({"limit"}).Reply({"limit"});
}

void DescribeCircle(DeviceDescription& dd) {
  std::int16_t number = 140;
  for (const char* name : {"first", "second"}) {
    dd.Variable(name).Unsigned(1).Default(std::int16_t{1});
    dd.Command(std::string("read_") + name, number++, Operation::Read).Reply({name});
    dd.Command(std::string("write_") + name, number++, Operation::Write)
        .Request({name})
        .Reply({name});
  }
}

const DeviceDescription& Description(std::vector<std::string>*& log) {
  static std::vector<std::string>* currentLog = nullptr;
  static const auto* description = [] {
    auto* dd = new DeviceDescription;  // lives as long as the process
    DescribeIdentity(*dd);
    DescribeProcess(*dd);
    DescribeModes(*dd);
    DescribeCircle(*dd);
    dd->Menu("offline")
        .Variables({"tag", "pv_unit", "upper_range", "lower_range", "mode", "limit"})
        .ReadOnlyVariables({"locked"});
    for (const char* name : {"__ZAF__pre_upload", "__ZAF__post_upload", "__ZAF__pre_download",
                             "__ZAF__post_download"}) {
      dd->Method(name).Body([name](IDDBuiltinLib&) {
        if (currentLog) currentLog->emplace_back(name);
      });
    }
    return dd;
  }();
  currentLog = log;
  return *description;
}

class Information : public dtmkit::KernelInformationBase {
 public:
  Information()
      : KernelInformationBase("", "Small.dll", {{StandardName::UploadVariables, "offline"}}) {}
};

}  // namespace

SmallDtm::SmallDtm()
    : clock(new platform::ManualClock),
      platform(std::unique_ptr<platform::Clock>(clock)),
      scope(platform),
      device(std::make_shared<HartLinkSim::EmulatedDevice>()),
      link(std::make_shared<LoggingLink>(device)),
      components(ZAFHartLib::CDDComponents::Create()) {
  auto* log = &methodsRun;
  const DeviceDescription& description = Description(log);
  platform.Classes().Register("Small.DataModel", [&description] {
    return std::make_shared<dtmkit::DataModelBase>(description);
  });
  platform.Classes().Register("Small.KernelInformation",
                              [] { return std::make_shared<Information>(); });
  ZAFHartLib::RegisterLibraryClasses(platform.Classes());
  components->SetDataModelClass("Small.DataModel");
  components->SetCommWrapperClass("ZAFHartLib.CDDTestCommWrapper");
  components->Initialize();
  std::dynamic_pointer_cast<ILinkUser>(components->HARTComm())->SetLink(link);
}

SmallDtm::~SmallDtm() {
  if (components) components->PrepareTermination();
}

std::shared_ptr<Variable> SmallDtm::Stored(const char* name) const {
  return components->DDWorkerDB()
      ->ReadObject(Definition::Define(name, ObjectKind::Variable))
      ->MakeVariable();
}

void SmallDtm::Edit(const char* name, const Variant& value) const {
  components->DDWorkerDB()->WriteValue(Definition::Define(name, ObjectKind::Variable), value);
}

}  // namespace test_support
