#include "hartframe/changes/WritePartners.h"

#include <utility>
#include <vector>

#include "hartframe/changes/Changes.h"
#include "hartframe/link/LinkTexts.h"

namespace hartframe {

namespace {

using ZAFHartTypes::AccessMode;
using ZAFHartTypes::Definition;
using ZAFHartTypes::Variable;

// The value is converted to a unit that is yet to be written: the kernel sends it as it stands.
bool AwaitsUnit(Session& session, const Variable& variable) {
  return variable.UnitSource() && session.Variable(variable.UnitSource())->ToBeWritten();
}

bool IsTheDevices(Session& session, const Variable& variable) {
  return variable.Validity() && !variable.ToBeWritten() && !variable.Attributes().IsLibraryHeld() &&
         variable.CheckHandling(AccessMode::Read) && !AwaitsUnit(session, variable);
}

// A read that has failed, this time or earlier, is tried once more: the error may be one of a
// write.
Trouble ReadIfUnknown(Session& session, const Definition& definition) {
  const auto variable = session.Variable(definition);
  if (!IsTheDevices(session, *variable)) return Trouble::None;
  if (TroubleOf(*variable) != Trouble::None) {
    session.Database().SetVariableError(definition, 0, "");
    session.Database().SetVariableAvailable(definition, false);
  }
  return TroubleOf(*session.Kernel().ReadVariable(definition));
}

std::vector<Definition> SentWith(Session& session, const Definition& changed) {
  std::vector<Definition> partners;
  const auto write = session.Kernel().FindWriteCommand(changed);
  if (!write) return partners;
  for (const auto& item : write->ReferredTransaction()->Request()) {
    if (item.CarriesValue() && !item.IsIndex() && !item.VariableDefinition().IsSameAs(changed))
      partners.push_back(item.VariableDefinition());
  }
  return partners;
}

struct Unread {
  Definition variable;
  Trouble trouble = Trouble::None;
};

// The first that cannot be read; trouble None when there is none.
Unread UnreadPartner(Session& session, const Definition& changed) {
  for (const Definition& partner : SentWith(session, changed)) {
    Trouble trouble = Trouble::Communication;  // when the connection ends meanwhile
    session.Run([&] { trouble = ReadIfUnknown(session, partner); });
    if (trouble != Trouble::None) return {partner, trouble};
  }
  return {};
}

// As the kernel leaves a variable whose write has failed.
void CountAsFailed(Session& session, const Definition& definition, Trouble trouble) {
  session.Database().SetVariableToBeWritten(definition, false);
  session.Database().SetVariableAvailable(definition, false);
  session.Errors().SetWriteTrouble(definition, trouble);
}

}  // namespace

bool HoldBackUnread(Session& session) {
  std::vector<std::pair<Definition, Trouble>> failed;
  bool answers = true;
  for (const Definition& definition : PendingVariables(session)) {
    const Unread unread = UnreadPartner(session, definition);
    if (session.Interrupted()) return false;
    if (unread.trouble == Trouble::None) continue;
    session.Tell().Problem(
        "partnerUnread",
        session.Say()(texts::kPartnerUnread, {definition.Name(), unread.variable.Name()}));
    failed.emplace_back(definition, unread.trouble);
    answers = unread.trouble != Trouble::Communication;
    if (!answers) break;
  }
  for (const auto& [definition, trouble] : failed) CountAsFailed(session, definition, trouble);
  return answers;
}

}  // namespace hartframe
