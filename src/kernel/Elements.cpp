// Elements of item arrays and members of collections.

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

}  // namespace

std::shared_ptr<DDObject> CHARTKernel::ReadArrayElement(const std::shared_ptr<ItemArray>& array,
                                                        const Variant& index) {
  constexpr const char* kOperation = "IDDKernel_ReadArrayElement";
  KernelOperation operation(*this, kOperation,
                            {{trace_tag::kObj, array}, {trace_tag::kIdx, index}});
  RequireObject(array, kOperation);
  Definition item;
  for (const ArrayElement& element : array->Elements()) {
    if (!(Variant(element.index) == index)) continue;
    item = element.definition;
    break;
  }
  operation.Reads(item, ReadSort::Attributes);
  const auto entry = item ? EntryOf(item) : nullptr;
  return operation.Return(entry, entry ? kFound : kNotFound);
}

std::shared_ptr<DDObject> CHARTKernel::ReadCollectionMember(
    const std::shared_ptr<ItemCollection>& collection, const Variant& ident) {
  constexpr const char* kOperation = "IDDKernel_ReadCollectionMember";
  KernelOperation operation(*this, kOperation,
                            {{trace_tag::kObj, collection}, {trace_tag::kIdx, ident}});
  RequireObject(collection, kOperation);
  const std::string name = TextOf(ident);
  Definition item;
  for (const CollectionMember& member : collection->Members()) {
    if (member.name != name) continue;
    item = member.definition;
    break;
  }
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
