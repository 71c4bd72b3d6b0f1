#include "kernel/ArrayReach.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

using Visit = std::function<bool(const Definition&)>;

bool VisitMembers(const Definition& collection, const CollectionLookup& lookup, const Visit& visit,
                  DefinitionList& seen) {
  if (seen.Contains(collection)) return false;  // collections that contain each other
  seen.Add(collection);
  const auto found = lookup(collection);
  if (!found) return false;
  // By position: a look-up may compute the collection anew.
  for (std::size_t i = 0; i < found->Members().size(); ++i) {
    const Definition member = found->Members()[i].definition;
    if (visit(member)) return true;
    if (member.Kind() == ObjectKind::Collection && VisitMembers(member, lookup, visit, seen)) {
      return true;
    }
  }
  return false;
}

}  // namespace

const ItemArray* IndexedArrayOf(const Variable& variable) {
  return variable.TypeInfo().TypeCode() == TypeCode::Index
             ? variable.TypeInfo().IndexedArray().get()
             : nullptr;
}

bool VisitElementItem(const Definition& item, const CollectionLookup& lookup, const Visit& visit) {
  if (visit(item)) return true;
  if (item.Kind() != ObjectKind::Collection) return false;
  DefinitionList seen;
  return VisitMembers(item, lookup, visit, seen);
}

std::optional<std::int32_t> FindElementOf(const ItemArray& array, const Definition& item,
                                          const CollectionLookup& lookup) {
  const Visit isItem = [&](const Definition& each) { return each.IsSameAs(item); };
  for (std::size_t i = 0; i < array.Elements().size(); ++i) {
    const std::int32_t index = array.Elements()[i].index;
    const Definition element = array.Elements()[i].definition;
    if (VisitElementItem(element, lookup, isItem)) return index;
  }
  return std::nullopt;
}

const ArrayElement* NextWantedElement(const ItemArray& array, const DefinitionList& chosen,
                                      const Visit& isWanted) {
  for (const ArrayElement& element : array.Elements()) {
    if (!chosen.Contains(element.definition) && isWanted(element.definition)) return &element;
  }
  return nullptr;
}

}  // namespace ZAFHartLib
