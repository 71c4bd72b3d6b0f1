#pragma once

#include <unordered_map>
#include <vector>

#include "ddobjects/Definition.h"

namespace ZAFHartLib {

// The variables for which a relation was to be evaluated while its specifier was being computed:
// they wait, in order, until that has ended.
class PendingContexts {
 public:
  using Definition = ZAFHartTypes::Definition;

  bool IsEmpty() const { return byRelation_.empty(); }
  // An empty context is nothing to wait for.
  void Keep(const Definition& relation, const Definition& context) {
    if (context) byRelation_[relation.Key()].push_back(context);
  }
  std::vector<Definition> Take(const Definition& relation) {
    const auto found = byRelation_.find(relation.Key());
    if (found == byRelation_.end()) return {};
    auto contexts = std::move(found->second);
    byRelation_.erase(found);
    return contexts;
  }

 private:
  std::unordered_map<ZAFHartTypes::TextKey, std::vector<Definition>, ZAFHartTypes::TextKeyHash>
      byRelation_;
};

}  // namespace ZAFHartLib
