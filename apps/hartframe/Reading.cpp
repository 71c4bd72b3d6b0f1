#include "hartframe/Reading.h"

#include <unordered_set>

#include "workerdb/CDDWorkerDB.h"

namespace hartframe {

namespace {

using ZAFHartTypes::AccessMode;
using ZAFHartTypes::Definition;
using ZAFHartTypes::TextKey;
using ZAFHartTypes::Variable;

class Reader {
 public:
  explicit Reader(Session& session)
      : session_(session),
        database_(dynamic_cast<ZAFHartLib::CDDWorkerDB&>(session.Database())),
        all_(session.AllVariables(false)) {}

  std::shared_ptr<Variable> Read(const Definition& definition) {
    started_.insert(definition.Key());
    auto variable = session_.Variable(definition);
    // Each read may change what the attributes depend on.
    while (const Definition next = NextToRead(definition)) {
      Read(next);
      variable = session_.Variable(definition);
    }
    return session_.Interrupted() ? variable : session_.Kernel().ReadVariable(definition);
  }

 private:
  // A variable that decides about the object's attributes and can be read, but was not; empty when
  // there is none.
  Definition NextToRead(const Definition& object) {
    if (session_.Interrupted()) return {};
    for (const Definition& definition : all_) {
      if (started_.contains(definition.Key()) || !database_.IsDependent(object, definition))
        continue;
      const auto variable = session_.Variable(definition);
      if (variable->Validity() && !variable->Available() && !variable->ToBeWritten() &&
          !variable->Attributes().IsLibraryHeld() && variable->CheckHandling(AccessMode::Read)) {
        return definition;
      }
    }
    return {};
  }

  Session& session_;
  ZAFHartLib::CDDWorkerDB& database_;
  const std::vector<Definition> all_;
  std::unordered_set<TextKey, ZAFHartTypes::TextKeyHash> started_;
};

}  // namespace

std::shared_ptr<Variable> ReadThoroughly(Session& session, const Definition& definition) {
  return Reader(session).Read(definition);
}

}  // namespace hartframe
