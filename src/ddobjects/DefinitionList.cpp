#include "ddobjects/DefinitionList.h"

#include <algorithm>

#include "types/Failure.h"

namespace ZAFHartTypes {

std::size_t DefinitionList::IndexOf(const Definition& definition) const {
  const auto found = std::find_if(
      begin(), end(), [&](const Definition& each) { return each.IsSameAs(definition); });
  return found == end() ? 0 : static_cast<std::size_t>(found - begin()) + 1;
}

const Definition& DefinitionList::Item(std::size_t position) const {
  if (position < 1 || position > Count())
    throw Failure(ErrorNumber::SubscriptOutOfRange, "DefinitionList.Item");
  return definitions_[position - 1];
}

void DefinitionList::Remove(std::size_t position) {
  if (position < 1 || position > Count())
    throw Failure(ErrorNumber::SubscriptOutOfRange, "DefinitionList.Remove");
  definitions_.erase(definitions_.begin() + static_cast<std::ptrdiff_t>(position) - 1);
}

std::string DefinitionList::Describe(std::int16_t infoLevel) const {
  std::string text = "(";
  for (const Definition& definition : definitions_) {
    if (text.size() > 1) text += ", ";
    text += definition.Describe(static_cast<std::int16_t>(infoLevel - 1));
  }
  return text += ")";
}

bool operator==(const DefinitionList& a, const DefinitionList& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const Definition& x, const Definition& y) { return x.IsSameAs(y); });
}

}  // namespace ZAFHartTypes
