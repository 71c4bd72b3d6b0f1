#include "hartframe/changes/Changes.h"

#include <algorithm>

#include "hartframe/dataset/DataSet.h"
#include "hartframe/dataset/DataSetTexts.h"
#include "hartframe/dataset/KeptDataSet.h"
#include "hartframe/link/LinkTexts.h"
#include "hartframe/values/Reading.h"
#include "hartframe/values/ValueText.h"
#include "types/Failure.h"

namespace hartframe {

namespace {

using ZAFHartTypes::AccessMode;
using ZAFHartTypes::Definition;
using ZAFHartTypes::Failure;
using ZAFHartTypes::Variable;

[[noreturn]] void Refuse(const std::string& sentence) {
  throw CommandFailure(ExitCode::ValueRefused, sentence);
}

void RequireWritable(Session& session, const Variable& variable) {
  const Speech& say = session.Say();
  const std::string& name = variable.Definition().Name();
  if (variable.Attributes().IsLibraryHeld()) Refuse(say(Text::NotADeviceVariable, {name}));
  if (!variable.CheckHandling(AccessMode::Write)) Refuse(say(Text::NotWritable, {name}));
  if (!variable.Validity()) Refuse(say(Text::NotValidNow, {name}));
  if (!session.Kernel().FindWriteCommand(variable.Definition()))
    Refuse(say(Text::NotADeviceVariable, {name}));
}

void Apply(Session& session, const Change& change) {
  const auto variable = session.Variable(change.definition);
  RequireWritable(session, *variable);
  const auto value = AcceptedValue(change.value, *variable);
  if (!value) Refuse(RefusalSentence(change.value, *variable, session.Say()));
  session.Database().WriteValue(change.definition, *value);
  // Also when the data set has that value already: it need not be the device's.
  session.Database().SetVariableToBeWritten(change.definition, true);
  session.Kernel().ExecuteRelations(change.definition);
}

// Two values that somebody typed: he has to say which one holds.
void RequireOneValue(Session& session, const Change& change) {
  if (!session.Kept()) return;
  const auto variable = session.Variable(change.definition);
  if (!variable->ToBeWritten()) return;
  const auto value = AcceptedValue(change.value, *variable);
  const std::string marked = StoredText(variable->Value(), *variable);
  if (change.value == marked || (value && *value == variable->Value())) return;
  throw CommandFailure(ExitCode::NotAllowed,
                       session.Say()(texts::kTwoChanges,
                                     {change.definition.Name(), OneLine(marked),
                                      OneLine(change.value), session.Pending().Path().string()}));
}

void RequireFirst(Session& session, const std::vector<Change>& others, const Change& change) {
  for (const Change& other : others) {
    if (!other.definition.IsSameAs(change.definition)) continue;
    throw CommandFailure(
        ExitCode::Usage,
        session.Say()(texts::kGivenTwice,
                      {change.definition.Name(), OneLine(other.value), OneLine(change.value)}));
  }
}

std::vector<PendingChange> LinesOf(const std::vector<Change>& changes) {
  std::vector<PendingChange> lines;
  for (const Change& change : changes) lines.push_back({change.definition.Name(), change.value});
  return lines;
}

void TellKept(Session& session, const std::filesystem::path& file) {
  session.Tell().Note("pendingKept", session.Say()(Text::PendingKept, {file.string()}));
}

}  // namespace

std::vector<Change> ParseChanges(Session& session, const std::vector<std::string>& texts) {
  std::vector<Change> changes;
  for (const std::string& text : texts) {
    const auto equals = text.find('=');
    if (equals == std::string::npos || equals == 0) {
      throw CommandFailure(ExitCode::Usage, session.Say()(Text::NotAChange, {OneLine(text)}));
    }
    const Change change{session.Find(text.substr(0, equals)), text.substr(equals + 1)};
    RequireFirst(session, changes, change);
    changes.push_back(change);
  }
  return changes;
}

std::vector<Change> LoadPending(Session& session, const std::vector<Change>& anew) {
  std::vector<Change> changes;
  for (const PendingChange& kept : session.Pending().Load()) {
    try {
      changes.push_back({session.Find(kept.name), kept.value});
    } catch (const Failure& failure) {
      throw CommandFailure(ExitCode::FileBroken, "\"" + session.Pending().Path().string() +
                                                     "\": " + failure.Description());
    }
  }
  std::erase_if(changes, [&](const Change& change) {
    return std::any_of(anew.begin(), anew.end(), [&](const Change& other) {
      return other.definition.IsSameAs(change.definition);
    });
  });
  for (const Change& change : changes) RequireOneValue(session, change);
  return changes;
}

ExitCode ReadForChanges(Session& session, const std::vector<Change>& changes) {
  ThoroughReader reader(session);
  const bool finished = session.Run([&] {
    // What is to be written already has its value.
    for (const Definition& definition : PendingVariables(session))
      reader.ReadConditions(definition);
    for (const Change& change : changes) reader.Read(change.definition);
  });
  if (!finished) {
    session.Tell().Problem("interrupted", session.Say()(Text::Interrupted));
    return ExitCode::Interrupted;
  }
  TellTroubles(session, reader.Rows());
  return CodeOfTroubles(reader.Rows());
}

void ApplyChanges(Session& session, const std::vector<Change>& changes) {
  for (const Change& change : changes) Apply(session, change);
}

std::vector<Change> ApplyPending(Session& session, const std::vector<Change>& changes) {
  std::vector<Change> notAccepted;
  for (const Change& change : changes) {
    try {
      Apply(session, change);
    } catch (const CommandFailure& failure) {
      session.Tell().Problem(NameOf(failure.Code()), failure.Description());
      notAccepted.push_back(change);
    }
  }
  return notAccepted;
}

std::vector<Definition> PendingVariables(Session& session) {
  std::vector<Definition> pending;
  for (const auto& object : session.Database().NewEnum()) {
    const auto variable = object->MakeVariable();
    if (variable && variable->ToBeWritten()) pending.push_back(variable->Definition());
  }
  return pending;
}

std::vector<Change> PendingChanges(Session& session) {
  std::vector<Change> changes;
  for (const Definition& definition : PendingVariables(session)) {
    const auto variable = session.Variable(definition);
    changes.push_back({definition, StoredText(variable->Value(), *variable)});
  }
  return changes;
}

void GiveUpChange(Session& session, const Definition& variable) {
  if (!session.Variable(variable)->ToBeWritten()) return;
  session.Database().SetVariableToBeWritten(variable, false);
  session.Database().SetVariableAvailable(variable, false);
}

void SaveChanges(Session& session, const std::vector<Change>& notAccepted) {
  std::vector<Change> changes = notAccepted;
  if (session.Kept()) {
    session.Kept()->Keep();
  } else {
    const std::vector<Change> marked = PendingChanges(session);
    changes.insert(changes.begin(), marked.begin(), marked.end());
  }
  session.Pending().Save(LinesOf(changes));
}

void KeepPending(Session& session, const std::vector<Change>& notAccepted) {
  std::vector<VariableRow> rows;
  for (const Definition& definition : PendingVariables(session))
    rows.push_back(session.Row(definition));
  session.Tell().Pending(rows);
  SaveChanges(session, notAccepted);
  if (session.Kept() && !rows.empty()) TellKept(session, session.Kept()->Path());
  const bool isInFile = !notAccepted.empty() || (!session.Kept() && !rows.empty());
  if (!isInFile) return;
  if (session.Pending().Keeps())
    TellKept(session, session.Pending().Path());
  else if (IsReal(session.Settings().link))
    session.Tell().Note("notKept", session.Say()(texts::kNotKept));
}

void RequireWriteAccess(const Session& session) {
  if (session.Settings().userLevel != ZAFHartTypes::UserLevel::Observer) return;
  throw CommandFailure(ExitCode::NotAllowed, session.Say()(Text::ObserverRefused));
}

}  // namespace hartframe
