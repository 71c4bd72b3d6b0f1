#include "ScalableModel.h"

#include <map>

#include "components/LibraryClasses.h"
#include "dtmkit/dtmkit.h"
#include "platform/Platform.h"
#include "sampletemperature/SampleTemperature.h"
#include "workerdb/CDDWorkerDB.h"

namespace bench {
namespace {

using namespace ZAFHartTypes;
using dtmkit::CommandItem;
using dtmkit::DeviceDescription;

constexpr int kRelations = 10;
constexpr int kElements = 16;

void DescribeReplyStart(DeviceDescription& dd) {
  dd.Variable("response_code").Unsigned(1).Local();
  dd.Variable("device_status").Unsigned(1).Local();
}

void DescribeAddress(DeviceDescription& dd) {
  dd.Variable("polling_address").Unsigned(1);
  dd.Variable("tag").PackedAscii(8);
  for (const char* name : {"manufacturer", "device_type", "preambles", "revision", "device_id"}) {
    dd.Variable(name).Unsigned(std::string_view(name) == "device_id" ? 3 : 1);
  }
  dd.Command("read_unique_identifier", 0, Operation::Read)
      .Reply({dtmkit::Byte(254), "manufacturer", "device_type", "preambles", "revision",
              dtmkit::Byte(1), dtmkit::Byte(1), dtmkit::Byte(1), dtmkit::Byte(0), "device_id"});
}

void DescribeGroups(DeviceDescription& dd, std::size_t variables) {
  for (std::size_t first = 0; first < variables; first += kGroup) {
    std::vector<CommandItem> items;
    for (std::size_t i = first; i < first + kGroup && i < variables; ++i) {
      const std::string name = VariableName(i);
      dd.Variable(name).Label("Variable|de|Variable").Float().Default(1.5F);
      items.emplace_back(name.c_str());
    }
    const auto number = static_cast<std::int16_t>(128 + first / kGroup);
    dd.Command("read_" + std::to_string(number), number, Operation::Read).Reply(items);
    dd.Command("write_" + std::to_string(number), static_cast<std::int16_t>(number + 10000),
               Operation::Write)
        .Request(items)
        .Reply(items);
  }
}

void DescribeArray(DeviceDescription& dd) {
  auto points = dd.Array("points");
  for (int i = 0; i < kElements; ++i) {
    const std::string name = "point_" + std::to_string(i);
    dd.Variable(name).Float().Default(static_cast<float>(i));
    points.Variable(i, name, "Point|de|Punkt");
  }
  dd.Variable("point_index").Index(1, "points").Default(std::int16_t{0}).Local();
  dd.Command("read_point", 30000, Operation::Read)
      .Request({dtmkit::Index("point_index")})
      .Reply({dtmkit::Index("point_index"), dtmkit::Element("points", "point_index")});
}

void DescribeRelations(DeviceDescription& dd) {
  for (int i = 0; i < kRelations; ++i) {
    const std::string number = std::to_string(i);
    dd.Variable("unit_" + number)
        .Enumerated(1, dtmkit::MakeEnums({{32, "°C"}, {33, "°F"}}))
        .Default(std::int16_t{32})
        .Local();
    dd.UnitRelation("unit_relation_" + number)
        .Unit("unit_" + number)
        .Dependents({VariableName(static_cast<std::size_t>(2 * i))});
    dd.RefreshRelation("refresh_relation_" + number)
        .Triggers({VariableName(static_cast<std::size_t>(2 * i))})
        .Refreshes({VariableName(static_cast<std::size_t>(2 * i + 1))});
  }
}

void DescribeTenItems(DeviceDescription& dd) {
  std::vector<CommandItem> items;
  for (int i = 0; i < 10; ++i) {
    const std::string name = "ten_" + std::to_string(i);
    if (i % 2 == 0) {
      dd.Variable(name).Float().Default(0.5F);
    } else {
      dd.Variable(name).Unsigned(2).Default(std::int16_t{5});
    }
    items.emplace_back(name.c_str());
  }
  dd.Command("read_ten", 127, Operation::Read).Reply(items);
}

const DeviceDescription& Description(std::size_t variables) {
  static std::map<std::size_t, std::unique_ptr<DeviceDescription>> made;
  auto& dd = made[variables];
  if (dd) return *dd;
  dd = std::make_unique<DeviceDescription>();
  DescribeDevice(*dd);
  DescribeGroups(*dd, variables);
  DescribeArray(*dd);
  DescribeRelations(*dd);
  return *dd;
}

class Information : public dtmkit::KernelInformationBase {
 public:
  Information()
      : KernelInformationBase("", "Scalable.dll", {{StandardName::UploadVariables, "no_menu"}}) {}
};

std::shared_ptr<ZAFHartLib::CDDComponents> Start(const std::string& project) {
  auto components = ZAFHartLib::CDDComponents::Create();
  components->SetDataModelClass(project + ".DataModel");
  components->SetCommWrapperClass("ZAFHartLib.CDDTestCommWrapper");
  components->Initialize();
  return components;
}

}  // namespace

std::string VariableName(std::size_t i) {
  return "variable_" + std::to_string(i);
}

Definition VariableDefinition(std::size_t i) {
  return Definition::Define(VariableName(i), ObjectKind::Variable);
}

void DescribeDevice(DeviceDescription& dd) {
  DescribeReplyStart(dd);
  DescribeAddress(dd);
  DescribeTenItems(dd);
}

std::shared_ptr<ZAFHartLib::CDDComponents> MakeInstance(std::size_t variables) {
  return MakeInstance(Description(variables));
}

std::shared_ptr<ZAFHartLib::CDDComponents> MakeInstance(const DeviceDescription& description) {
  platform::ComponentClasses& classes = platform::Current().Classes();
  ZAFHartLib::RegisterLibraryClasses(classes);
  classes.Register("Scalable.DataModel",
                   [&description] { return std::make_shared<dtmkit::DataModelBase>(description); });
  classes.Register("Scalable.KernelInformation", [] { return std::make_shared<Information>(); });
  auto components = Start("Scalable");
  std::dynamic_pointer_cast<ZAFHartLib::CDDWorkerDB>(components->DDWorkerDB())
      ->SetTrackDependencies(true);
  return components;
}

std::shared_ptr<ZAFHartLib::CDDComponents> MakeSampleInstance() {
  platform::ComponentClasses& classes = platform::Current().Classes();
  ZAFHartLib::RegisterLibraryClasses(classes);
  RegisterSampleTemperature(classes);
  return Start("SampleTemperature");
}

}  // namespace bench
