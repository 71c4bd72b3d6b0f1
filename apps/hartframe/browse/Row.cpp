#include "hartframe/browse/Row.h"

#include <algorithm>

#include "ddobjects/Method.h"
#include "hartframe/MenuPath.h"
#include "hartframe/ValueText.h"
#include "hartframe/browse/BrowseTexts.h"
#include "hartframe/browse/TextLayout.h"
#include "types/Utf8.h"

namespace hartframe::browse {

namespace {

using ZAFHartTypes::AccessMode;
using ZAFHartTypes::Definition;
using ZAFHartTypes::ObjectKind;
namespace utf8 = ZAFHartTypes::utf8;

// A live value stays on the screen while the next one is under way.
VariableRow VariableRowOf(Session& session, const Definition& definition) {
  VariableRow row = session.Row(definition);
  auto& variable = *row.variable;
  const bool wasRead = variable.LastReadTime() != ZAFHartTypes::Variable::Time{};
  if (!variable.Available() && wasRead && variable.ErrorIndex() == 0) variable.SetAvailable(true);
  return row;
}

// A group has no label: those of its members say what it is.
std::string GroupLabel(Session& session, const Definition& definition) {
  std::vector<std::string> labels;
  const auto group = session.Kernel().GetWriteAsOne(definition);
  for (const auto& member : std::vector(group->Items()))
    labels.push_back(session.Say().Pick(session.Variable(member.definition)->Label()));
  return Joined(labels, ", ");
}

std::string LabelOf(Session& session, const Definition& definition) {
  if (definition.Kind() == ObjectKind::WriteAsOne) return GroupLabel(session, definition);
  if (definition.Kind() == ObjectKind::Menu)
    return session.Say().Pick(MultilingualLabel(*session.Kernel().GetMenu(definition)));
  const auto object = session.Database().ReadObject(definition);
  return object ? session.Say().Pick(MultilingualLabel(*object)) : definition.Name();
}

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

Tone ToneOf(const Row& row) {
  if (!row.view.variable) return row.view.valid ? Tone::Plain : Tone::Faint;
  const auto& variable = *row.view.variable->variable;
  if (!variable.Validity()) return Tone::Faint;
  if (!row.view.variable->error.empty()) return Tone::Bad;
  if (variable.ToBeWritten()) return Tone::Pending;
  if (!variable.Available() && !variable.Attributes().IsLibraryHeld()) return Tone::Faint;
  return variable.Attributes().IsDynamic() ? Tone::Good : Tone::Plain;
}

std::string StateOf(const Row& row, const Speech& speech) {
  const std::string kind = KindText(row.view.kind, speech);
  return Joined({kind, StateText(row.view, speech)}, ", ");
}

struct Widths {
  std::size_t label = 0;
  std::size_t value = 0;
  std::size_t unit = 0;
  std::size_t state = 0;
};

constexpr std::size_t kMark = 3;
constexpr std::size_t kGaps = 4;  // one blank before each column

Widths WidthsOf(const std::vector<Row>& rows, std::size_t width) {
  Widths widths;
  for (const Row& row : rows) {
    widths.label = std::max(widths.label, utf8::Length(row.view.label));
    if (!row.view.variable) continue;
    widths.value = std::max(widths.value, utf8::Length(row.view.variable->value));
    widths.unit = std::max(widths.unit, utf8::Length(row.view.variable->unit));
  }
  const std::size_t room = width - std::min(width, kMark + kGaps);
  widths.unit = std::min<std::size_t>(widths.unit, 8);
  widths.label = std::min(widths.label, room * 2 / 5);
  widths.value = std::min(widths.value, room * 3 / 10);
  widths.state = room - widths.label - widths.value - widths.unit;
  return widths;
}

}  // namespace

Row MakeRow(Session& session, const Page& page, const PageItem& item) {
  const Definition& definition = item.definition;
  Row row{item, {definition.Kind(), definition.Name(), {}, item.readOnly, true, {}, {}}, {}};
  row.view.label = LabelOf(session, definition);
  if (definition.Kind() == ObjectKind::Variable) {
    row.view.variable = VariableRowOf(session, definition);
    row.view.valid = row.view.variable->variable->Validity();
    if (page.MarksChecked()) row.checked = row.view.variable->variable->IsChecked();
  } else if (definition.Kind() == ObjectKind::Method) {
    row.view.valid = session.Kernel().GetMethodValidity(definition);
  }
  return row;
}

std::vector<Line> LinesOf(const std::vector<Row>& rows, std::size_t width, const Speech& speech) {
  const Widths widths = WidthsOf(rows, width);
  std::vector<Line> lines;
  for (const Row& row : rows) {
    const auto& variable = row.view.variable;
    std::string text = MarkOf(row);
    text += ' ' + Fitted(row.view.label, widths.label);
    text += ' ' + Fitted(variable ? variable->value : "", widths.value);
    text += ' ' + Fitted(variable ? variable->unit : "", widths.unit);
    text += ' ' + Fitted(StateOf(row, speech), widths.state);
    lines.push_back({std::move(text), ToneOf(row)});
  }
  return lines;
}

std::string DetailsOf(Session& session, const Row& row) {
  const Speech& say = session.Say();
  std::vector<std::string> parts{row.view.label + " (" + row.view.name + ")"};
  std::string help;
  if (row.view.variable) {
    const auto& variable = *row.view.variable->variable;
    parts.push_back(say(Text::ColumnValue) + ": " +
                    DisplayWithUnit(variable, variable.Value(), say));
    if (variable.CheckHandling(AccessMode::Write)) parts.push_back(AllowedText(variable, say));
    help = variable.Help();
  }
  const std::string state = StateOf(row, say);
  if (!state.empty()) parts.push_back(say(Text::ColumnState) + ": " + state);
  if (row.view.kind == ObjectKind::Method)
    help = session.Kernel().GetMethod(row.item.definition)->Help();
  std::string text = Joined(parts, "\n");
  help = say.Pick(help);
  return help.empty() ? text : text + "\n\n" + help;
}

}  // namespace hartframe::browse
