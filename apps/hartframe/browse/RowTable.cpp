#include "hartframe/browse/RowTable.h"

#include <algorithm>

#include "hartframe/browse/PairScreenTexts.h"
#include "hartframe/browse/TextLayout.h"
#include "hartframe/dataset/DataSetTexts.h"
#include "types/Utf8.h"

namespace hartframe::browse {

namespace {

using ZAFHartTypes::AccessMode;
using ZAFHartTypes::ObjectKind;
namespace utf8 = ZAFHartTypes::utf8;

std::string MarkOf(const Row& row) {
  if (row.checked) return *row.checked ? "[x]" : "[ ]";
  switch (row.view.kind) {
    case ObjectKind::Menu:
      return " > ";
    case ObjectKind::EditDisplay:
    case ObjectKind::WriteAsOne:
      return " = ";
    case ObjectKind::Method:
      return " * ";
    default:
      return "   ";
  }
}

// Whose state is told: of what has no value offline, the device's.
const VariableRow& ToldOf(const Row& row) {
  return row.sides && !row.isCompared ? row.sides->online : *row.view.variable;
}

Tone ToneOf(const Row& row) {
  if (!row.view.variable) return row.view.valid ? Tone::Plain : Tone::Faint;
  const VariableRow& told = ToldOf(row);
  const auto& variable = *told.variable;
  if (row.isCompared && IsDifference(row.sides->match)) return Tone::Different;
  if (!variable.Validity()) return Tone::Faint;
  if (!told.error.empty()) return Tone::Bad;
  if (variable.ToBeWritten()) return Tone::Pending;
  if (!variable.Available() && !variable.Attributes().IsLibraryHeld()) return Tone::Faint;
  return variable.Attributes().IsDynamic() ? Tone::Good : Tone::Plain;
}

// Whether both are equal the sign says well enough.
std::string ComparedState(const Row& row, const Speech& speech) {
  const ComparedRow& sides = *row.sides;
  const bool isSaid = sides.match == Match::Equal || sides.match == Match::Differs;
  return Joined(
      {isSaid ? std::string() : MatchText(sides.match, speech),
       sides.online.variable->ToBeWritten() ? speech(texts::kWaitsOnline) : std::string(),
       sides.offline.variable->ToBeWritten() ? speech(Text::StateToBeWritten) : std::string(),
       sides.online.error,
       row.view.variable->variable->CheckHandling(AccessMode::Write) ? std::string()
                                                                     : speech(Text::StateReadOnly)},
      ", ");
}

// --- columns ---

using Cells = std::vector<std::string>;

// A live value of the past is none.
std::string OfflineText(const Row& row) {
  const VariableRow& offline = row.sides->offline;
  const bool isPast =
      offline.variable->Attributes().IsDynamic() && !offline.variable->ToBeWritten();
  return isPast ? std::string() : ValueWithUnit(offline);
}

Cells CellsOf(const Row& row, bool isPair, const Speech& speech) {
  const auto& variable = row.view.variable;
  const std::string state = StateOf(row, speech);
  if (!isPair)
    return {row.view.label, variable ? variable->value : "", variable ? variable->unit : "", state};
  return {row.view.label, row.sides ? OfflineText(row) : "",
          row.sides ? ValueWithUnit(row.sides->online) : "", state};
}

struct Widths {
  std::size_t label = 0;
  std::size_t second = 0;
  std::size_t third = 0;
  std::size_t state = 0;
};

// `room`: without what stands before the label. The columns of a pair are cut when not all has
// room.
Widths WidthsOf(const std::vector<Cells>& table, bool isPair, std::size_t room) {
  constexpr std::size_t kGaps = 4;  // one blank before each column
  constexpr std::size_t kUnit = 8;
  Widths widths;
  for (const Cells& cells : table) {
    widths.label = std::max(widths.label, utf8::Length(cells[0]));
    widths.second = std::max(widths.second, utf8::Length(cells[1]));
    widths.third = std::max(widths.third, utf8::Length(cells[2]));
    widths.state = std::max(widths.state, utf8::Length(cells[3]));
  }
  room -= std::min(room, kGaps);
  const bool hasRoom = widths.label + widths.second + widths.third + widths.state <= room;
  if (!isPair) {
    widths.label = std::min(widths.label, room * 8 / 20);
    widths.second = std::min(widths.second, room * 6 / 20);
    widths.third = std::min(widths.third, kUnit);
  } else if (!hasRoom) {
    widths.label = std::min(widths.label, room * 6 / 20);
    widths.second = std::min(widths.second, room * 4 / 20);
    widths.third = std::min(widths.third, room * 4 / 20);
  }
  widths.state = room - widths.label - widths.second - widths.third;
  return widths;
}

std::string LineOf(const std::string& mark, const Cells& cells, const Widths& widths) {
  return mark + ' ' + Fitted(cells[0], widths.label) + ' ' + Fitted(cells[1], widths.second) + ' ' +
         Fitted(cells[2], widths.third) + ' ' + Fitted(cells[3], widths.state);
}

}  // namespace

std::string StateOf(const Row& row, const Speech& speech) {
  if (row.isCompared) return ComparedState(row, speech);
  MenuRow view = row.view;
  if (view.variable) view.variable = ToldOf(row);
  return Joined({KindText(view.kind, speech), StateText(view, speech)}, ", ");
}

Table TableOf(const std::vector<Row>& rows, bool isPair, std::size_t width, const Speech& speech) {
  const std::size_t before = isPair ? 4 : 3;
  const Cells head{speech(Text::ColumnLabel), speech(hartframe::texts::kDataSetTitle),
                   speech(Text::InfoDevice), speech(Text::ColumnState)};
  std::vector<Cells> cells;
  for (const Row& row : rows) cells.push_back(CellsOf(row, isPair, speech));
  if (isPair) cells.push_back(head);
  const Widths widths = WidthsOf(cells, isPair, width - std::min(width, before));
  Table table;
  if (isPair) table.head = LineOf("    ", head, widths);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    std::string mark = MarkOf(rows[i]);
    if (isPair) mark += rows[i].isCompared ? SignOf(rows[i].sides->match) : " ";
    table.lines.push_back({LineOf(mark, cells[i], widths), ToneOf(rows[i])});
  }
  return table;
}

}  // namespace hartframe::browse
