// Elements of item arrays and members of collections.

#include <algorithm>

#include "kernel/KernelOperation.h"
#include "kernel/KernelTemplates.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

constexpr int kFound = 1;
constexpr int kNotFound = 2;

std::string TextOf(const Variant& value) {
  std::string text;
  IgnoreFailures([&] { text = value.ToText(); });
  return text;
}

// The item of the first element that is wanted; empty when there is none.
template <typename Elements, typename Wanted>
Definition FindIn(const Elements& elements, const Wanted& isWanted) {
  const auto found = std::ranges::find_if(elements, isWanted);
  return found == elements.end() ? Definition() : found->definition;
}

}  // namespace

std::shared_ptr<DDObject> CHARTKernel::ReadArrayElement(const std::shared_ptr<ItemArray>& array,
                                                        const Variant& index) {
  constexpr const char* kOperation = "IDDKernel_ReadArrayElement";
  KernelOperation operation(*this, kOperation,
                            {{trace_tag::kObj, array}, {trace_tag::kIdx, index}});
  RequireObject(array, kOperation);
  const Definition item = FindIn(array->Elements(), [&](const ArrayElement& element) {
    return Variant(element.index) == index;
  });
  return ReturnEntry(operation, item);
}

std::shared_ptr<DDObject> CHARTKernel::ReadCollectionMember(
    const std::shared_ptr<ItemCollection>& collection, const Variant& ident) {
  constexpr const char* kOperation = "IDDKernel_ReadCollectionMember";
  KernelOperation operation(*this, kOperation,
                            {{trace_tag::kObj, collection}, {trace_tag::kIdx, ident}});
  RequireObject(collection, kOperation);
  const std::string name = TextOf(ident);
  const Definition item = FindIn(
      collection->Members(), [&](const CollectionMember& member) { return member.name == name; });
  return ReturnEntry(operation, item);
}

std::shared_ptr<DDObject> CHARTKernel::ReturnEntry(KernelOperation& operation,
                                                   const Definition& item) {
  operation.Reads(item, ReadSort::Attributes);
  const auto entry = item ? EntryOf(item) : nullptr;
  return operation.Return(entry, entry ? kFound : kNotFound);
}

// Arrays and collections with current elements, other items as they are stored.
std::shared_ptr<DDObject> CHARTKernel::EntryOf(const Definition& item) {
  switch (item.Kind()) {
    case ObjectKind::ItemArray:
      return GetArray(item);
    case ObjectKind::Collection:
      return GetCollection(item);
    default:
      return Database()->ReadObject(item);
  }
}

}  // namespace ZAFHartLib
