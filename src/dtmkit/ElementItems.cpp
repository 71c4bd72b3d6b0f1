#include "dtmkit/ElementItems.h"

#include "types/Failure.h"
#include "types/TextKey.h"

namespace ZAFHartTypes::dtmkit {
namespace {

// Looks elements up; neighbouring items mostly share array and index.
class ElementLookUp {
 public:
  explicit ElementLookUp(Context& context) : context_(context) {}

  Definition Find(const ElementPath& path) {
    if (!path.array.IsSameAs(array_) || !path.index.IsSameAs(index_)) {
      array_ = path.array;
      index_ = path.index;
      element_ = context_.Element(array_, context_.Long(index_));
    }
    if (path.member.empty() || element_.Kind() != ObjectKind::Collection) return element_;
    return context_.Member(element_, path.member);
  }

 private:
  Context& context_;
  Definition array_;
  Definition index_;
  Definition element_;
};

void Refer(DataItem& item, const Definition& variable) {
  if (variable.IsEmpty() || item.VariableDefinition().IsSameAs(variable)) return;
  item = DataItem::Reference(variable, item.Mask())
             .SetIsInfo(item.IsInfo())
             .SetIsIndex(item.IsIndex());
}

}  // namespace

CommandItem Element(std::string_view array, std::string_view index, std::string_view member,
                    std::uint32_t mask) {
  return CommandItem(DataItem::Reference({}, mask),
                     ElementPath{ArrayNamed(array), VariableNamed(index), std::string(member)});
}

void ElementItems::Add(std::int16_t transaction, bool inReply, std::size_t position,
                       ElementPath path) {
  items_.push_back({transaction, inReply, position, std::move(path)});
}

void ElementItems::Resolve(Context& context, Command& command) const {
  ElementLookUp lookUp(context);
  for (const Item& item : items_) {
    Transaction& transaction = *command.Transactions().Item(item.transaction);
    DataItemList& list = item.inReply ? transaction.Reply() : transaction.Request();
    Refer(list.Item(item.position), lookUp.Find(item.path));
  }
}

Definition FirstElement(const Catalogue& catalogue, const ElementPath& path) {
  const auto array = catalogue.Prototype<ItemArray>(path.array.Name());
  if (!array->Elements().empty()) {
    const Definition element = array->Elements().front().definition;
    if (path.member.empty()) return element;
    const auto collection = catalogue.Prototype<ItemCollection>(element.Name());
    for (const CollectionMember& member : collection->Members()) {
      if (SameKey(member.name, path.member)) return member.definition;
    }
  }
  throw Failure(ErrorNumber::InvalidArgument, "dtmkit.Element",
                "The first element of the array \"" + path.array.Name() + "\" has no member \"" +
                    path.member + "\".");
}

}  // namespace ZAFHartTypes::dtmkit
