#include "hartframe/report/JsonReport.h"

#include "hart/HexText.h"
#include "hart/StatusBytes.h"
#include "hartframe/report/TextReport.h"
#include "hartframe/values/ValueText.h"
#include "types/Failure.h"

namespace hartframe {

namespace {

using Json = nlohmann::ordered_json;
using ZAFHartTypes::AccessMode;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::TypeCode;
using ZAFHartTypes::Variable;
using ZAFHartTypes::Variant;

// Broken bytes from a device must not keep the document from being written.
std::string Dumped(const Json& json, int indent) {
  return json.dump(indent, ' ', false, Json::error_handler_t::replace);
}

Json NumberJson(const Variant& value, TypeCode code) {
  const double number = value.ToDouble();
  if (value.IsNotFinite()) return nullptr;
  if (!IsIntegral(code)) return number;
  // Unsigned values above 2147483647 are held as negative 32-bit integers.
  const bool wrapped = code != TypeCode::Integer && number < 0;
  return static_cast<std::int64_t>(wrapped ? number + 4294967296.0 : number);
}

// Numbers and codes as numbers, dates as yyyy-MM-dd, texts as texts, no value as null.
Json ValueJson(const Variable& variable) {
  const Variant& value = variable.Value();
  const TypeCode code = variable.TypeInfo().TypeCode();
  Json json;
  ZAFHartTypes::IgnoreFailures([&] {
    if (value.IsEmpty() || value.IsNull()) return;
    if (code == TypeCode::Password) return;  // never shown in clear
    if (value.IsText()) {
      json = value.ToText();
    } else if (code == TypeCode::Date) {
      json = StoredText(value, variable);
    } else {
      json = NumberJson(value, code);
    }
  });
  return json;
}

Json RowJson(const VariableRow& row) {
  const Variable& variable = *row.variable;
  Json json{{"name", row.name},
            {"label", row.label},
            {"value", ValueJson(variable)},
            {"display", row.value},
            {"unit", row.unit},
            {"valid", variable.Validity()},
            {"available", variable.Available()},
            {"toBeWritten", variable.ToBeWritten()},
            {"readable", variable.CheckHandling(AccessMode::Read)},
            {"writable", variable.CheckHandling(AccessMode::Write)},
            {"dynamic", variable.Attributes().IsDynamic()},
            {"internal", variable.Attributes().IsLibraryHeld()}};
  if (variable.ErrorIndex() != 0)
    json["error"] = {{"index", variable.ErrorIndex()}, {"text", row.error}};
  return json;
}

Json RowsJson(std::span<const VariableRow> rows) {
  Json json = Json::array();
  for (const VariableRow& row : rows) json.push_back(RowJson(row));
  return json;
}

const char* KindName(ObjectKind kind) {
  switch (kind) {
    case ObjectKind::Variable:
      return "variable";
    case ObjectKind::Menu:
      return "menu";
    case ObjectKind::EditDisplay:
      return "editDisplay";
    case ObjectKind::Method:
      return "method";
    case ObjectKind::WriteAsOne:
      return "writeAsOne";
    default:
      return "other";
  }
}

Json MenuRowsJson(std::span<const MenuRow> rows) {
  Json json = Json::array();
  for (const MenuRow& row : rows) {
    Json entry{{"kind", KindName(row.kind)},
               {"name", row.name},
               {"label", row.label},
               {"readOnly", row.readOnly},
               {"valid", row.valid}};
    if (row.variable) entry["variable"] = RowJson(*row.variable);
    if (row.kind == ObjectKind::WriteAsOne) entry["members"] = MenuRowsJson(row.members);
    json.push_back(std::move(entry));
  }
  return json;
}

constexpr int kOneLine = -1;
constexpr const char* kOutcomes[] = {"written",     "adjusted", "refused",
                                     "notAccepted", "noAnswer", "notAttempted"};
constexpr const char* kCommands[] = {
    "upload", "download", "write", "read",    "list", "watch", "info",  "menu",        "run",
    "browse", "save",     "pair",  "compare", "scan", "raw",   "serve", "probe-plugin"};

}  // namespace

JsonReport::JsonReport(Console& console, const Options& options)
    : console_(console),
      document_{{"command", kCommands[static_cast<std::size_t>(options.command)]},
                {"dtm", options.dtm},
                {"language", options.language}} {
  if (options.dtm.empty()) document_.erase("dtm");
}

void JsonReport::Message(const ZAFHartTypes::UserMessage& message) {
  document_["messages"].push_back({{"icon", static_cast<int>(message.icon)},
                                   {"title", message.title},
                                   {"prompt", message.prompt},
                                   {"help", message.help}});
}

void JsonReport::Prompt(const ZAFHartTypes::UserMessage& message) {
  Message(message);
  if (console_.CanAsk()) console_.Error(MessageText(message));
}

void JsonReport::Answer(const std::string& answer) {
  document_["messages"].back()["answer"] = answer;
}

void JsonReport::Note(std::string_view code, const std::string& sentence) {
  document_["notes"].push_back({{"code", code}, {"text", sentence}});
}

void JsonReport::Problem(std::string_view code, const std::string& sentence) {
  document_["problems"].push_back({{"code", code}, {"text", sentence}});
}

void JsonReport::Variables(std::span<const VariableRow> rows) {
  document_["variables"] = RowsJson(rows);
}

void JsonReport::Update(const VariableRow& row) {
  console_.Out(Dumped({{"update", RowJson(row)}}, kOneLine));
  indent_ = kOneLine;
}

void JsonReport::Event(std::string_view kind, const std::string&, std::span<const Fact> facts) {
  Json json = Json::object();
  for (const Fact& fact : facts) json[fact.key] = fact.value;
  console_.Out(Dumped({{std::string(kind), std::move(json)}}, kOneLine));
  indent_ = kOneLine;
}

void JsonReport::WriteResults(std::span<const WriteResult> results) {
  Json json = Json::array();
  for (const WriteResult& result : results) {
    Json entry{{"variable", RowJson(result.row)},
               {"outcome", kOutcomes[static_cast<std::size_t>(result.outcome)]},
               {"meant", result.meant},
               {"deviceHas", nullptr}};
    if (!result.deviceHas.empty()) entry["deviceHas"] = result.deviceHas;
    json.push_back(std::move(entry));
  }
  document_["writes"] = std::move(json);
}

void JsonReport::Comparison(std::span<const ComparedRow> rows) {
  Json json = Json::array();
  for (const ComparedRow& row : rows) {
    json.push_back({{"name", row.offline.name},
                    {"match", NameOf(row.match)},
                    {"toBeWritten", row.offline.variable->ToBeWritten()},
                    {"offline", RowJson(row.offline)},
                    {"online", RowJson(row.online)}});
  }
  document_["comparison"] = std::move(json);
}

void JsonReport::Pending(std::span<const VariableRow> rows) {
  document_["pending"] = RowsJson(rows);
}

void JsonReport::Facts(std::string_view section, const std::string&, std::span<const Fact> facts) {
  Json& json = document_[std::string(section)];
  json = Json::object();
  for (const Fact& fact : facts)
    json[fact.key] = Json{{"label", fact.label}, {"value", fact.value}};
}

void JsonReport::Menu(const MenuView& view) {
  Json& json = document_["menu"];
  json = {{"kind", KindName(view.kind)}, {"name", view.name}, {"path", view.path}};
  json["items"] = MenuRowsJson(view.items);
  if (view.kind == ZAFHartTypes::ObjectKind::EditDisplay)
    json["editItems"] = MenuRowsJson(view.editItems);
}

void JsonReport::Devices(std::span<const FoundDevice> devices) {
  Json& json = document_["devices"];
  json = Json::array();
  for (const FoundDevice& device : devices) {
    const auto& identity = device.identity;
    json.push_back({{"pollingAddress", nullptr},
                    {"longAddress", identity.LongAddress()},
                    {"tag", device.tag},
                    {"longTag", device.longTag},
                    {"manufacturer", identity.Manufacturer()},
                    {"expandedType", identity.expandedType},
                    {"deviceRevision", identity.deviceRevision},
                    {"universalRevision", identity.universalRevision},
                    {"deviceId", identity.deviceId}});
    if (device.pollingAddress) json.back()["pollingAddress"] = *device.pollingAddress;
  }
}

void JsonReport::Reply(const RawReply& reply) {
  const bool isDisturbed = ZAFHartTypes::hart::IsCommunicationError(reply.bytes[0]);
  Json json{{"command", reply.command},
            {"address", reply.address},
            {"responseCode", nullptr},
            {"communicationError", nullptr},
            {"deviceStatus", reply.bytes[1]},
            {"texts", Json::array()},
            {"data", ZAFHartTypes::hart::ToHex(std::span(reply.bytes).subspan(2))}};
  json[isDisturbed ? "communicationError" : "responseCode"] = reply.bytes[0];
  const Speech speech(document_["language"].get<std::string>());
  for (const std::string& text : StatusTexts(reply)) json["texts"].push_back(speech.Pick(text));
  document_["reply"] = std::move(json);
}

void JsonReport::Finish(ExitCode code) {
  document_["result"] = NameOf(code);
  document_["exitCode"] = static_cast<int>(code);
  console_.Out(Dumped(document_, indent_));
}

}  // namespace hartframe
