#pragma once

#include <memory>
#include <unordered_set>
#include <vector>

#include "hartframe/Session.h"
#include "workerdb/CDDWorkerDB.h"

namespace hartframe {

// A valid variable that can be read from the device, and has neither its value nor a pending
// change.
bool IsUnread(const ZAFHartTypes::Variable& variable);

// The variables that decide about the attributes of an object (its validity, limits, unit) and can
// be read, but were not.
std::vector<ZAFHartTypes::Definition> UnreadConditions(Session& session,
                                                       const ZAFHartTypes::Definition& object);

// Reads variables from the device, and before each what its validity, limits and unit depend on, so
// that they are the device's and not those of the defaults. For use inside Session::Run.
class ThoroughReader {
 public:
  explicit ThoroughReader(Session& session);

  // The variable as it is afterwards; after Ctrl-C as it is then.
  std::shared_ptr<ZAFHartTypes::Variable> Read(const ZAFHartTypes::Definition& definition);
  // Reads what the attributes of an item of any kind depend on, and not the item.
  void ReadConditions(const ZAFHartTypes::Definition& definition);
  // Everything that was read, in that order.
  const std::vector<VariableRow>& Rows() const { return rows_; }

 private:
  using TextKey = ZAFHartTypes::TextKey;

  // A variable that decides about the object's attributes and can be read, but was not; empty when
  // there is none.
  ZAFHartTypes::Definition NextToRead(const ZAFHartTypes::Definition& object);

  Session& session_;
  ZAFHartLib::CDDWorkerDB& database_;
  const std::vector<ZAFHartTypes::Definition> all_;
  std::unordered_set<TextKey, ZAFHartTypes::TextKeyHash> started_;
  std::vector<VariableRow> rows_;
};

}  // namespace hartframe
