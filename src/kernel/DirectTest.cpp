#include "kernel/DirectTest.h"

#include <algorithm>

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

bool CarriesValueOf(const DataItemList& items, const Definition& searched) {
  return std::any_of(items.begin(), items.end(), [&](const DataItem& item) {
    return item.CarriesValue() && item.VariableDefinition().IsSameAs(searched);
  });
}

bool Qualifies(const DataItemList& items, const Definition& searched) {
  return std::any_of(items.begin(), items.end(), [&](const DataItem& item) {
    return item.IsVariable() && (item.IsInfo() || item.IsIndex()) &&
           item.VariableDefinition().IsSameAs(searched);
  });
}

}  // namespace

bool ReadsDirectly(const Transaction& transaction, const Definition& item) {
  return CarriesValueOf(transaction.Reply(), item) && !Qualifies(transaction.Request(), item);
}

bool WritesDirectly(const Transaction& transaction, const Definition& item) {
  return CarriesValueOf(transaction.Request(), item);
}

}  // namespace ZAFHartLib
