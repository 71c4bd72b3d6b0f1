#include "hartframe/values/Reading.h"

namespace hartframe {

using ZAFHartTypes::AccessMode;
using ZAFHartTypes::Definition;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::Variable;

namespace {

void ComputeAttributes(ZAFHartTypes::IDDKernel& kernel, const Definition& definition) {
  if (definition.Kind() == ObjectKind::Variable) kernel.GetVariable(definition);
  if (definition.Kind() == ObjectKind::Method) kernel.GetMethod(definition);
}

}  // namespace

bool IsUnread(const Variable& variable) {
  return variable.Validity() && !variable.Available() && !variable.ToBeWritten() &&
         !variable.Attributes().IsLibraryHeld() && variable.CheckHandling(AccessMode::Read);
}

std::vector<Definition> UnreadConditions(Session& session, const Definition& object) {
  const auto& database = dynamic_cast<ZAFHartLib::CDDWorkerDB&>(session.Database());
  std::vector<Definition> unread;
  for (const Definition& definition : session.AllVariables(false)) {
    if (database.IsDependent(object, definition) && IsUnread(*session.Variable(definition)))
      unread.push_back(definition);
  }
  return unread;
}

ThoroughReader::ThoroughReader(Session& session)
    : session_(session),
      database_(dynamic_cast<ZAFHartLib::CDDWorkerDB&>(session.Database())),
      all_(session.AllVariables(false)) {}

std::shared_ptr<Variable> ThoroughReader::Read(const Definition& definition) {
  started_.insert(definition.Key());
  ReadConditions(definition);
  auto variable = session_.Variable(definition);
  if (session_.Interrupted()) return variable;
  variable = session_.Kernel().ReadVariable(definition);
  rows_.push_back(MakeRow(variable, session_.Say()));
  return variable;
}

void ThoroughReader::ReadConditions(const Definition& definition) {
  ComputeAttributes(session_.Kernel(), definition);
  // Each read may change what the attributes depend on.
  while (const Definition next = NextToRead(definition)) {
    Read(next);
    ComputeAttributes(session_.Kernel(), definition);
  }
}

Definition ThoroughReader::NextToRead(const Definition& object) {
  if (session_.Interrupted()) return {};
  for (const Definition& definition : all_) {
    if (started_.contains(definition.Key()) || !database_.IsDependent(object, definition)) continue;
    if (IsUnread(*session_.Variable(definition))) return definition;
  }
  return {};
}

}  // namespace hartframe
