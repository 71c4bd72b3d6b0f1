#include "hartframe/report/TextReport.h"

#include <algorithm>
#include <chrono>
#include <ctime>

#include "hart/HexText.h"
#include "hart/StatusBytes.h"
#include "hartframe/dataset/DataSetTexts.h"
#include "hartframe/link/LinkTexts.h"
#include "hartframe/menus/MenuTexts.h"
#include "platform/Platform.h"
#include "types/Utf8.h"

namespace hartframe {

namespace {

std::string OutcomeText(const WriteResult& result, const Speech& speech) {
  constexpr Text kTexts[] = {Text::OutcomeWritten,  Text::OutcomeAdjusted,
                             Text::OutcomeRefused,  Text::OutcomeNotAccepted,
                             Text::OutcomeNoAnswer, Text::OutcomeNotAttempted};
  std::string text = speech(kTexts[static_cast<std::size_t>(result.outcome)]);
  if (result.outcome == Outcome::Written || result.outcome == Outcome::NotAttempted) return text;
  return text + "; " +
         (result.deviceHas.empty() ? speech(Text::DeviceUnknown)
                                   : speech(Text::DeviceHas, {result.deviceHas}));
}

std::string TimeOfDay() {
  const std::time_t now =
      std::chrono::system_clock::to_time_t(platform::Current().GetClock().WallTime());
  std::tm local{};
  localtime_r(&now, &local);
  char text[16];
  const std::size_t length = std::strftime(text, sizeof text, "%H:%M:%S", &local);
  return {text, length};
}

// Lines of a message, whose own line ends are kept.
std::string Indented(std::string_view text) {
  std::string lines;
  while (!text.empty()) {
    const auto end = text.find('\n');
    const std::string line = OneLine(text.substr(0, end));
    const auto last = line.find_last_not_of(' ');
    if (last != std::string::npos) lines += "\n    " + line.substr(0, last + 1);
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  return lines;
}

std::vector<std::string> MenuCells(const MenuRow& row, const char* indent, const Speech& speech) {
  return {row.name,
          indent + row.label,
          row.variable ? row.variable->value : "",
          row.variable ? row.variable->unit : "",
          KindText(row.kind, speech),
          StateText(row, speech)};
}

}  // namespace

std::string MessageText(const ZAFHartTypes::UserMessage& message) {
  return "* " + OneLine(message.title) + Indented(message.prompt);
}

void TextReport::Message(const ZAFHartTypes::UserMessage& message) {
  if (++messages_[{message.title, message.prompt}] > 1) return;
  console_.Error(MessageText(message));
}

void TextReport::Prompt(const ZAFHartTypes::UserMessage& message) {
  console_.Error(MessageText(message));
}

// On a terminal the user has typed it.
void TextReport::Answer(const std::string& answer) {
  if (!console_.CanAsk()) console_.Error("    > " + answer);
}

void TextReport::Note(std::string_view, const std::string& sentence) {
  console_.Out(sentence);
}

bool TextReport::IsTold(const std::string& sentence) const {
  return std::any_of(messages_.begin(), messages_.end(), [&](const auto& message) {
    return OneLine(message.first.second) == sentence;
  });
}

// A message of the DTM may have said it already.
void TextReport::Problem(std::string_view, const std::string& sentence) {
  if (!IsTold(sentence)) console_.Error(sentence);
}

void TextReport::Variables(std::span<const VariableRow> rows) {
  std::vector<std::vector<std::string>> cells;
  for (const VariableRow& each : rows) {
    const VariableRow row = Shown(each);
    cells.push_back({row.name, row.label, row.value, row.unit, StateText(row, speech_)});
  }
  console_.Table({speech_(Text::ColumnName), speech_(Text::ColumnLabel), speech_(Text::ColumnValue),
                  speech_(Text::ColumnUnit), speech_(Text::ColumnState)},
                 cells);
}

// An error that a message has told is that of all variables: no connection. What nobody has read
// then is the DTM's default.
VariableRow TextReport::Shown(VariableRow row) const {
  if (row.error.empty() || !IsTold(row.error)) return row;
  row.error.clear();
  if (!row.variable->Available() && !row.variable->ToBeWritten()) row.value = row.unit = "";
  return row;
}

MenuRow TextReport::Shown(MenuRow row) const {
  if (row.variable) row.variable = Shown(*row.variable);
  return row;
}

void TextReport::Update(const VariableRow& row) {
  std::string line = TimeOfDay() + "  " + row.label + " (" + row.name + ")  " + row.value;
  if (!row.unit.empty()) line += ' ' + row.unit;
  if (!row.error.empty()) line += "  " + row.error;
  console_.Out(line);
}

void TextReport::Event(std::string_view, const std::string& line, std::span<const Fact>) {
  console_.Out(line);
}

void TextReport::WriteResults(std::span<const WriteResult> results) {
  std::vector<std::vector<std::string>> cells;
  for (const WriteResult& result : results)
    cells.push_back(
        {result.row.name, result.row.label, result.meant, OutcomeText(result, speech_)});
  if (cells.empty()) return;
  console_.Table({speech_(Text::ColumnName), speech_(Text::ColumnLabel), speech_(Text::ColumnValue),
                  speech_(Text::ColumnState)},
                 cells);
}

void TextReport::Comparison(std::span<const ComparedRow> rows) {
  std::vector<std::vector<std::string>> cells;
  for (const ComparedRow& row : rows) {
    cells.push_back({std::string(SignOf(row.match)), row.offline.name, row.offline.label,
                     ValueWithUnit(row.offline), ValueWithUnit(row.online),
                     StateText(row, speech_)});
  }
  if (cells.empty()) return;
  console_.Table(
      {"", speech_(Text::ColumnName), speech_(Text::ColumnLabel), speech_(texts::kDataSetTitle),
       speech_(Text::InfoDevice), speech_(Text::ColumnState)},
      cells);
}

void TextReport::Pending(std::span<const VariableRow> rows) {
  if (rows.empty()) return;
  console_.Out(speech_(Text::PendingTitle));
  for (const VariableRow& row : rows) {
    console_.Out("  " + row.name + " = " + ValueWithUnit(row));
  }
}

void TextReport::Facts(std::string_view, const std::string& title, std::span<const Fact> facts) {
  console_.Out(title);
  std::vector<std::vector<std::string>> cells;
  std::size_t width = 0;
  for (const Fact& fact : facts) width = std::max(width, ZAFHartTypes::utf8::Length(fact.label));
  for (const Fact& fact : facts) {
    const std::size_t gap = width - ZAFHartTypes::utf8::Length(fact.label) + 2;
    console_.Out("  " + fact.label + std::string(gap, ' ') + fact.value);
  }
}

void TextReport::Menu(const MenuView& view) {
  std::string title;
  for (const std::string& step : view.path) title += (title.empty() ? "" : " > ") + step;
  if (!title.empty()) console_.Out(title);
  if (view.items.empty() && view.editItems.empty()) console_.Out(speech_(texts::kEmptyMenu));
  const bool isMenu = view.kind == ZAFHartTypes::ObjectKind::Menu;
  MenuTable(isMenu ? "" : speech_(texts::kShownItems), view.items);
  MenuTable(speech_(texts::kEditedItems), view.editItems);
}

void TextReport::Devices(std::span<const FoundDevice> devices) {
  std::vector<std::vector<std::string>> cells;
  for (const FoundDevice& device : devices) {
    const auto& identity = device.identity;
    cells.push_back({device.pollingAddress ? std::to_string(*device.pollingAddress) : "-",
                     identity.LongAddress(), OneLine(device.tag), HexWord(identity.Manufacturer()),
                     HexWord(identity.expandedType), std::to_string(identity.deviceRevision),
                     std::to_string(identity.universalRevision), OneLine(device.longTag)});
  }
  if (cells.empty()) return;
  console_.Table(
      {speech_(texts::kColumnAddress), speech_(texts::kColumnLongAddress),
       speech_(texts::kColumnTag), speech_(texts::kColumnManufacturer), speech_(texts::kColumnType),
       speech_(texts::kColumnRevision), "HART", speech_(texts::kColumnLongTag)},
      cells);
}

void TextReport::Reply(const RawReply& reply) {
  std::vector<Fact> facts;
  const bool isDisturbed = ZAFHartTypes::hart::IsCommunicationError(reply.bytes[0]);
  facts.push_back({"", speech_(isDisturbed ? texts::kReplyCommunication : texts::kReplyCode),
                   isDisturbed ? HexByte(reply.bytes[0]) : std::to_string(reply.bytes[0])});
  facts.push_back({"", speech_(texts::kReplyStatus), HexByte(reply.bytes[1])});
  for (const std::string& text : StatusTexts(reply))
    facts.push_back({"", speech_(texts::kReplyMeaning), speech_.Pick(text)});
  std::string data;
  for (const std::uint8_t byte : std::span(reply.bytes).subspan(2))
    data += (data.empty() ? "" : " ") + ZAFHartTypes::hart::ToHex({&byte, 1});
  facts.push_back({"", speech_(texts::kReplyData), data});
  Facts("reply", speech_(texts::kReplyTitle, {std::to_string(reply.command), reply.address}),
        facts);
}

void TextReport::MenuTable(const std::string& title, std::span<const MenuRow> rows) {
  if (rows.empty()) return;
  if (!title.empty()) console_.Out(title);
  std::vector<std::vector<std::string>> cells;
  for (const MenuRow& row : rows) {
    cells.push_back(MenuCells(Shown(row), "", speech_));
    for (const MenuRow& member : row.members)
      cells.push_back(MenuCells(Shown(member), "  ", speech_));
  }
  console_.Table(
      {speech_(Text::ColumnName), speech_(Text::ColumnLabel), speech_(Text::ColumnValue),
       speech_(Text::ColumnUnit), speech_(texts::kColumnKind), speech_(Text::ColumnState)},
      cells);
}

void TextReport::Finish(ExitCode) {
  for (const auto& [message, count] : messages_) {
    if (count > 1)
      console_.Error(speech_(Text::Repeated, {std::to_string(count), OneLine(message.second)}));
  }
}

}  // namespace hartframe
