#include "hartframe/browse/Row.h"

#include "ddobjects/Method.h"
#include "hartframe/browse/RowTable.h"
#include "hartframe/browse/TextLayout.h"
#include "hartframe/dataset/DataSetTexts.h"
#include "hartframe/menus/MenuPath.h"
#include "hartframe/values/ValueText.h"

namespace hartframe::browse {

namespace {

using ZAFHartTypes::AccessMode;
using ZAFHartTypes::Definition;
using ZAFHartTypes::ObjectKind;

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

}  // namespace

bool IsCompared(const DataSetPair& pair, const ZAFHartTypes::Variable& variable) {
  const auto attributes = variable.Attributes();
  if (attributes.IsLibraryHeld()) return pair.IsShared(variable.Definition());
  return !attributes.IsDynamic();
}

// What the library holds is there without being read.
ComparedRow CompareNow(DataSetPair& pair, const Definition& variable) {
  VariableRow offline = pair.Offline().Row(variable);
  VariableRow online = VariableRowOf(pair.Online(), variable);
  for (const VariableRow* row : {&offline, &online}) {
    if (row->variable->Attributes().IsLibraryHeld()) row->variable->SetAvailable(true);
  }
  return CompareUnderWay(std::move(offline), std::move(online));
}

Row MakeRow(Session& session, DataSetPair* pair, const Page& page, const PageItem& item) {
  const Definition& definition = item.definition;
  Row row{item, {definition.Kind(), definition.Name(), {}, item.readOnly, true, {}, {}}, {}, {}};
  row.view.label = LabelOf(session, definition);
  if (definition.Kind() == ObjectKind::Variable) {
    if (pair) {
      row.sides = CompareNow(*pair, definition);
      row.isCompared = IsCompared(*pair, *row.sides->online.variable);
      row.view.variable = session.IsOffline() ? row.sides->offline : row.sides->online;
    } else {
      row.view.variable = VariableRowOf(session, definition);
    }
    row.view.valid = row.view.variable->variable->Validity();
    if (page.MarksChecked()) row.checked = row.view.variable->variable->IsChecked();
  } else if (definition.Kind() == ObjectKind::Method) {
    row.view.valid = session.Kernel().GetMethodValidity(definition);
  }
  return row;
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
  if (row.sides) {
    parts.push_back(say(hartframe::texts::kDataSetTitle) + ": " +
                    ValueWithUnit(row.sides->offline));
    parts.push_back(say(Text::InfoDevice) + ": " + ValueWithUnit(row.sides->online));
  }
  if (!state.empty()) parts.push_back(say(Text::ColumnState) + ": " + state);
  if (row.view.kind == ObjectKind::Method)
    help = session.Kernel().GetMethod(row.item.definition)->Help();
  std::string text = Joined(parts, "\n");
  help = say.Pick(help);
  return help.empty() ? text : text + "\n\n" + help;
}

}  // namespace hartframe::browse
