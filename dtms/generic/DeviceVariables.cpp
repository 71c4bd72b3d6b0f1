#include "common/HartResponseCodes.h"
#include "common/HartTables.h"
#include "generic/DeviceVariable.h"
#include "generic/Revision.h"

namespace generic {
namespace {

constexpr int kCountBeforeHart6 = 4;  // no device tells its number; command 33 reads up to four

// Which there are is told since revision 6.
Condition Exists(int code) {
  return [code](Context& context) {
    switch (RevisionOf(context)) {
      case Revision::Unknown:
        return false;
      case Revision::Hart5:
        return code < kCountBeforeHart6;
      default:
        return code <= context.Long("max_device_variables");
    }
  };
}

Condition ExistsSinceHart6(int code) {
  return [since = Since(Revision::Hart6), exists = Exists(code)](Context& context) {
    return since(context) && exists(context);
  };
}

struct Text {
  std::string english;
  std::string german;
};

Text NameOf(int code) {
  const std::string number = std::to_string(code);
  return {"Device variable " + number, "Gerätevariable " + number};
}

// One member of a device variable: "device_variable_3_unit", "Device variable 3 unit".
VariableBuilder Member(DeviceDescription& dd, int code, const char* name, const char* english,
                       const char* german) {
  const Text text = NameOf(code);
  return dd.Variable(DeviceVariableName(code) + name)
      .Label(text.english + " " + english + "|de|" + text.german + " " + german)
      .Help("Property of the device variable|de|Eigenschaft der Gerätevariablen")
      .ValidWhen(Exists(code));
}

void DescribeMembers(DeviceDescription& dd, int code) {
  Member(dd, code, "_value", "value", "Wert").Float().ReadOnly().Dynamic();
  Member(dd, code, "_unit", "unit", "Einheit").Enumerated(1, hart::AllUnits());
  Member(dd, code, "_serial_number", "sensor serial number", "Seriennummer des Sensors")
      .Unsigned(3)
      .ReadOnly();
  Member(dd, code, "_limits_unit", "limits unit", "Einheit der Grenzen")
      .Enumerated(1, hart::AllUnits())
      .ReadOnly();
  Member(dd, code, "_upper_limit", "upper limit", "obere Grenze").Float().ReadOnly();
  Member(dd, code, "_lower_limit", "lower limit", "untere Grenze").Float().ReadOnly();
  Member(dd, code, "_damping", "damping", "Dämpfung").Float().Unit("s");
  Member(dd, code, "_minimum_span", "minimum span", "kleinste Spanne").Float().ReadOnly();
  const Text text = NameOf(code);
  hart::DescribeValueStatus(dd, DeviceVariableName(code), text.english, text.german);
  for (const char* part : {"_classification", "_data_quality", "_limit_status", "_family_status"})
    dd.Known(DeviceVariableName(code) + part).ValidWhen(ExistsSinceHart6(code));
}

void DescribeCollection(DeviceDescription& dd, int code) {
  const std::string name = DeviceVariableName(code);
  const Text text = NameOf(code);
  dd.Collection(name)
      .Label(text.english + "|de|" + text.german)
      .Variable("VALUE", name + "_value")
      .Variable("UNITS", name + "_unit")
      .Variable("CLASSIFICATION", name + "_classification")
      .Variable("DATA_QUALITY", name + "_data_quality")
      .Variable("LIMIT_STATUS", name + "_limit_status")
      .Variable("FAMILY_STATUS", name + "_family_status")
      .Variable("SERIAL_NUMBER", name + "_serial_number")
      .Variable("LIMITS_UNITS", name + "_limits_unit")
      .Variable("UPPER_LIMIT", name + "_upper_limit")
      .Variable("LOWER_LIMIT", name + "_lower_limit")
      .Variable("DAMPING", name + "_damping")
      .Variable("MINIMUM_SPAN", name + "_minimum_span");
}

// A time stamp ends the reply of command 9 since revision 7.
void EndWithTimeStamp(Context& context, Command& command) {
  static const Definition stamp = VariableNamed("data_time_stamp");
  DataItemList& reply = command.Transactions().Item(0)->Reply();
  DataItemList items;
  for (const DataItem& item : reply) {
    if (!item.IsVariable() || !item.VariableDefinition().IsSameAs(stamp)) items.Add(item);
  }
  if (RevisionOf(context) >= Revision::Hart7) items.Add(DataItem::Reference(stamp));
  reply = std::move(items);
}

}  // namespace

void DescribeDeviceVariables(DeviceDescription& dd) {
  auto array = dd.Array(hart::kDeviceVariables).Label("Device variables|de|Gerätevariablen");
  for (int code = 0; code < kDeviceVariableCount; ++code) {
    const Text text = NameOf(code);
    array.Collection(code, DeviceVariableName(code), text.english + "|de|" + text.german);
    DescribeCollection(dd, code);
  }
  for (int code = 0; code < kDeviceVariableCount; ++code) DescribeMembers(dd, code);
  dd.Variable(hart::kDeviceVariableCode)
      .Label("Device variable code|de|Nummer der Gerätevariablen")
      .Help("Device variable that a command is about|de|Gerätevariable eines Kommandos")
      .Index(1, hart::kDeviceVariables)
      .Default(0)
      .Local();
  hart::DescribeTimeStamp(dd);
  dd.Known(hart::kTimeStamp).ValidWhen(Since(Revision::Hart7));
}

void DescribeDeviceVariableCommands(DeviceDescription& dd) {
  const std::string_view array = hart::kDeviceVariables;
  const std::string_view code = hart::kDeviceVariableCode;
  const auto member = [&](std::string_view name, std::uint32_t mask = 0) {
    return Element(array, code, name, mask);
  };
  // HART command 9, since revision 6; before it command 33
  ReadsWhen(dd.Command("read_device_variables_with_status", 9, Operation::Read)
                .Request({Index(code)})
                .Reply({"extended_device_status", Index(code), member("CLASSIFICATION"),
                        member("UNITS"), member("VALUE"), member("DATA_QUALITY", 0xC0),
                        member("LIMIT_STATUS", 0x30), member("FAMILY_STATUS", 0x0F)})
                .TransactionCodes({hart::InvalidSelection()})
                .Codes(hart::DeviceVariableCodes())
                .OnCompute(EndWithTimeStamp),
            Since(Revision::Hart6));
  ReadsWhen(hart::DescribeReadDeviceVariable(dd),
            [](Context& context) { return RevisionOf(context) < Revision::Hart6; });
  hart::DescribeUnitCommands(dd);
  // HART command 54; later revisions add what is read by command 9 as well
  dd.Command("read_device_variable_information", 54, Operation::Read)
      .Request({Index(code)})
      .Reply({Index(code), member("SERIAL_NUMBER"), member("LIMITS_UNITS"), member("UPPER_LIMIT"),
              member("LOWER_LIMIT"), member("DAMPING"), member("MINIMUM_SPAN")})
      .Codes(hart::ReadCodes({hart::InvalidSelection(), hart::TooFewDataBytes()}));
  // HART command 55
  dd.Command("write_device_variable_damping", 55, Operation::Write)
      .Request({Index(code), member("DAMPING")})
      .Reply({Index(code), member("DAMPING")})
      .Codes(hart::WriteCodes({hart::ParameterTooLarge(),
                               hart::ParameterTooSmall(),
                               hart::SetToNearestValue(),
                               {11, ResponseCodeType::DataEntryError,
                                "Invalid device variable code|de|Ungültige Gerätevariable"}}));
}

}  // namespace generic
