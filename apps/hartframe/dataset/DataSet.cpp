#include "hartframe/dataset/DataSet.h"

#include <algorithm>
#include <iterator>

#include "ddobjects/Menu.h"
#include "hartframe/values/Reading.h"
#include "interfaces/InternalNames.h"

namespace hartframe {

namespace {

using ZAFHartTypes::AccessMode;
using ZAFHartTypes::Definition;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::Variable;

constexpr std::int32_t kNoReply = 128;                   // error index that the kernel records
constexpr std::int32_t kNoReplyStatus = 0x100000 + 144;  // the same, recorded by the wrapper

bool IsConfiguration(const Variable& variable) {
  return !variable.Attributes().IsLibraryHeld() && !variable.Attributes().IsDynamic() &&
         variable.CheckHandling(AccessMode::Read);
}

std::vector<VariableRow> MenuRows(Session& session, const Definition& definition) {
  std::vector<VariableRow> rows;
  const auto menu = session.Kernel().GetMenu(definition);
  for (const auto& item : ZAFHartTypes::MenuItems(menu->Items())) {
    if (item.Definition().Kind() == ObjectKind::Variable)
      rows.push_back(session.Row(item.Definition()));
  }
  return rows;
}

void Count(Loaded& loaded) {
  for (const VariableRow& row : loaded.rows) {
    const Variable& variable = *row.variable;
    if (!IsConfiguration(variable)) continue;
    if (!variable.Validity())
      ++loaded.notValid;
    else if (!variable.Available())
      ++loaded.notAttempted;
    else if (TroubleOf(variable) != Trouble::None)
      ++loaded.failed;
    else
      ++loaded.loaded;
  }
}

std::vector<VariableRow> ConfigurationRows(const Loaded& loaded) {
  std::vector<VariableRow> rows;
  std::ranges::copy_if(loaded.rows, std::back_inserter(rows),
                       [](const VariableRow& row) { return IsConfiguration(*row.variable); });
  return rows;
}

bool HasTrouble(std::span<const VariableRow> rows, Trouble trouble) {
  return std::any_of(rows.begin(), rows.end(), [trouble](const VariableRow& row) {
    return TroubleOf(*row.variable) == trouble;
  });
}

bool IsSilent(std::span<const VariableRow> rows) {
  return std::any_of(rows.begin(), rows.end(), [](const VariableRow& row) {
    const std::int32_t index = row.variable->ErrorIndex();
    return index == kNoReply || index == kNoReplyStatus;
  });
}

ExitCode TellUnreadable(Session& session, std::span<const VariableRow> read) {
  std::string names;
  for (const VariableRow& row : read) {
    if (IsUnread(*row.variable))
      names += (names.empty() ? "" : ", ") + row.variable->Definition().Name();
  }
  if (names.empty()) return ExitCode::Ok;
  session.Tell().Problem("unreadable", session.Say()(Text::Unreadable, {names}));
  return ExitCode::Internal;
}

}  // namespace

Definition UpDownloadMenu(Session& session) {
  const Definition named =
      Definition::Define(session.Components().UpDownloadMenuName(), ObjectKind::Menu);
  const auto object = session.Database().ReadObject(named);
  if (object && object->Kind() == ObjectKind::Menu) return named;
  return Definition::Define(ZAFHartTypes::internal_names::kUploadVariables, ObjectKind::Menu);
}

Loaded LoadDataSet(Session& session) {
  Definition menu = UpDownloadMenu(session);
  const bool finished = session.Run([&] { session.Components().Upload(menu); });
  Loaded loaded;
  loaded.rows = MenuRows(session, menu);
  Count(loaded);
  loaded.code = finished ? CodeOfTroubles(loaded.rows) : ExitCode::Interrupted;
  if (loaded.code == ExitCode::Ok && loaded.notAttempted > 0) loaded.code = ExitCode::Internal;
  return loaded;
}

Loaded HeldDataSet(Session& session) {
  Loaded held;
  held.rows = MenuRows(session, UpDownloadMenu(session));
  Count(held);
  if (held.notAttempted > 0) held.code = ExitCode::NotAllowed;
  return held;
}

void TellLoaded(Session& session, const Loaded& loaded) {
  const Speech& say = session.Say();
  std::string sentence = say(Text::Loaded, {std::to_string(loaded.loaded)});
  if (loaded.notValid > 0) sentence += ' ' + say(Text::Skipped, {std::to_string(loaded.notValid)});
  if (loaded.failed > 0) sentence += ' ' + say(Text::NotLoaded, {std::to_string(loaded.failed)});
  if (!loaded.IsFruitless()) session.Tell().Note("loaded", sentence);
  TellTroubles(session, loaded.rows);
  if (loaded.code == ExitCode::Interrupted) {
    session.Tell().Problem("interrupted",
                           say(Text::InterruptedLeft, {std::to_string(loaded.notAttempted)}));
  } else {
    TellUnreadable(session, ConfigurationRows(loaded));
  }
}

ExitCode CodeOfTroubles(std::span<const VariableRow> rows) {
  if (HasTrouble(rows, Trouble::Communication)) return ExitCode::Communication;
  if (HasTrouble(rows, Trouble::Refused)) return ExitCode::DeviceRefused;
  return ExitCode::Ok;
}

void TellTroubles(Session& session, std::span<const VariableRow> rows) {
  const Speech& say = session.Say();
  // Why a real device cannot be reached is told at the end of the run.
  if (HasTrouble(rows, Trouble::Communication) && session.ConnectionProblem().empty()) {
    const bool silent = IsSilent(rows);
    session.Tell().Problem(silent ? "noAnswer" : "disturbed",
                           say(silent ? Text::NoDevice : Text::DisturbedDevice));
  }
  if (HasTrouble(rows, Trouble::Refused))
    session.Tell().Problem("deviceRefused", say(Text::RefusedByDevice));
}

ExitCode TellHowRead(Session& session, std::span<const VariableRow> read) {
  TellTroubles(session, read);
  const ExitCode unreadable = TellUnreadable(session, read);
  const ExitCode trouble = CodeOfTroubles(read);
  return trouble == ExitCode::Ok ? unreadable : trouble;
}

}  // namespace hartframe
