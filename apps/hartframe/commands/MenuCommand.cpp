#include "ddobjects/EditDisplay.h"
#include "ddobjects/Menu.h"
#include "ddobjects/Method.h"
#include "ddobjects/Relations.h"
#include "hartframe/commands/Commands.h"
#include "hartframe/dataset/DataSet.h"
#include "hartframe/menus/MenuPath.h"
#include "hartframe/menus/MenuTexts.h"
#include "hartframe/menus/MenuView.h"
#include "hartframe/values/Reading.h"

namespace hartframe {

namespace {

using ZAFHartTypes::Definition;
using ZAFHartTypes::EditDisplayItems;
using ZAFHartTypes::ObjectKind;

// Makes the rows of a menu or edit display, and remembers those of the variables.
class Rows {
 public:
  explicit Rows(Session& session) : session_(session) {}

  MenuRow Make(const Definition& definition, bool readOnly) {
    const auto object = session_.Database().ReadObject(definition);
    MenuRow row{definition.Kind(), definition.Name(), definition.Name(), readOnly, true, {}, {}};
    if (!object) return row;
    if (definition.Kind() == ObjectKind::Variable) AddVariable(row, definition);
    if (definition.Kind() == ObjectKind::Method)
      row.valid = session_.Kernel().GetMethodValidity(definition);
    if (definition.Kind() == ObjectKind::WriteAsOne) AddMembers(row, definition);
    row.label = session_.Say().Pick(MultilingualLabel(*object));
    return row;
  }
  std::vector<MenuRow> Make(const EditDisplayItems& items, bool readOnly) {
    std::vector<MenuRow> rows;
    for (const auto& item : items) rows.push_back(Make(item.definition, readOnly));
    return rows;
  }
  const std::vector<VariableRow>& Variables() const { return variables_; }

 private:
  void AddVariable(MenuRow& row, const Definition& definition) {
    row.variable = session_.Row(definition);
    row.valid = row.variable->variable->Validity();
    variables_.push_back(*row.variable);
  }
  void AddMembers(MenuRow& row, const Definition& definition) {
    const auto group = session_.Kernel().GetWriteAsOne(definition);
    for (const auto& member : std::vector(group->Items()))
      row.members.push_back(Make(member.definition, row.readOnly));
  }

  Session& session_;
  std::vector<VariableRow> variables_;
};

// What decides about the items has to be the device's before the kernel looks at them.
void ReadConditions(Session& session, const std::vector<Definition>& items) {
  ThoroughReader reader(session);
  for (const Definition& item : items) reader.ReadConditions(item);
}

// Tells the view, and about what went wrong with reading it.
ExitCode Tell(Session& session, const MenuView& view, const Rows& rows, bool finished) {
  session.Tell().Menu(view);
  if (finished) return TellHowRead(session, rows.Variables());
  TellTroubles(session, rows.Variables());
  session.Tell().Problem("interrupted", session.Say()(Text::Interrupted));
  return ExitCode::Interrupted;
}

ExitCode ShowRoots(Session& session) {
  MenuView view;
  Rows rows(session);
  for (const MenuEntry& root : RootMenus(session))
    view.items.push_back(rows.Make(root.definition, root.readOnly));
  return Tell(session, view, rows, true);
}

ExitCode ShowMenu(Session& session, const MenuPlace& place) {
  const Definition& definition = place.entry.definition;
  std::vector<Definition> items;
  for (const MenuEntry& entry : EntriesOf(session, definition)) items.push_back(entry.definition);
  const bool finished = session.Run([&] {
    ReadConditions(session, items);
    session.Kernel().StartMenu(definition);
  });
  MenuView view{ObjectKind::Menu, definition.Name(), place.labels, {}, {}};
  Rows rows(session);
  for (const MenuEntry& entry : EntriesOf(session, definition))
    view.items.push_back(rows.Make(entry.definition, place.entry.readOnly || entry.readOnly));
  return Tell(session, view, rows, finished);
}

std::vector<Definition> ItemsOf(Session& session, const ZAFHartTypes::EditDisplay& display) {
  std::vector<Definition> items;
  for (const auto& item : display.DisplayItems()) items.push_back(item.definition);
  for (const auto& item : display.EditItems()) items.push_back(item.definition);
  for (const auto& item : display.EditItems()) {
    if (item.definition.Kind() != ObjectKind::WriteAsOne) continue;
    const auto group = session.Kernel().GetWriteAsOne(item.definition);
    for (const auto& member : group->Items()) items.push_back(member.definition);
  }
  return items;
}

// Entering a group reads its members.
void ReadGroups(Session& session, const ZAFHartTypes::EditDisplay& display) {
  for (const auto& item : EditDisplayItems(display.EditItems())) {
    if (item.definition.Kind() == ObjectKind::WriteAsOne)
      session.Kernel().StartWriteAsOne(item.definition);
  }
}

ExitCode ShowEditDisplay(Session& session, const MenuPlace& place) {
  const Definition& definition = place.entry.definition;
  auto& kernel = session.Kernel();
  MenuView view{ObjectKind::EditDisplay, definition.Name(), place.labels, {}, {}};
  Rows rows(session);
  const bool finished = session.Run([&] {
    ReadConditions(session, ItemsOf(session, *kernel.GetEditDisplay(definition)));
    const auto display = kernel.StartEditDisplay(definition);
    ReadGroups(session, *display);
    view.items = rows.Make(EditDisplayItems(display->DisplayItems()), true);
    view.editItems = rows.Make(EditDisplayItems(display->EditItems()), place.entry.readOnly);
    // Leaving it undoes what entering it has done.
    kernel.ExecuteActions(display->PostEditActions(), display);
  });
  return Tell(session, view, rows, finished);
}

}  // namespace

ExitCode RunMenu(Session& session) {
  const MenuPlace place = FollowPath(session, session.Settings().path);
  const Definition& definition = place.entry.definition;
  if (!definition) return ShowRoots(session);
  if (definition.Kind() == ObjectKind::Menu) return ShowMenu(session, place);
  if (definition.Kind() == ObjectKind::EditDisplay) return ShowEditDisplay(session, place);
  const bool isMethod = definition.Kind() == ObjectKind::Method;
  throw CommandFailure(ExitCode::Usage,
                       session.Say()(isMethod ? texts::kIsMethod : texts::kIsVariable,
                                     {place.labels.back(), definition.Name()}));
}

}  // namespace hartframe
