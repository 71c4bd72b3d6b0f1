#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <vector>

#include "dtmkit/MethodBody.h"
#include "platform/Export.h"

namespace ZAFHartTypes::dtmkit {

// Evaluates the conditional attributes of one item. It starts from the item's static attributes
// where a variable's block is concerned, and from the last outcome of all else.
template <typename Item>
using Computation = std::function<void(Context&, Item&)>;

// All items of one device type, made once per process: a prototype of every object and the
// functions that compute what depends on values. Each DTM instance gets copies of the prototypes,
// which share texts, lists and attribute blocks with them.
class ZAF_API Catalogue {
 public:
  Catalogue() = default;
  Catalogue(const Catalogue&) = delete;
  Catalogue& operator=(const Catalogue&) = delete;

  // Makes the prototype of a new item; the catalogue owns it. Raises DuplicateKey for a name that
  // is taken, by whatever kind of item.
  template <typename Item>
  Item& Add(std::string_view name) {
    auto item = MakeObject<Item>(name);
    Register(item);
    Of<Item>().prototypes.push_back(item);
    return *item;
  }

  // Has `computation` run when the attributes of the item are computed, after those registered
  // before. Raises InvalidArgument when there is no such item of that kind.
  template <typename Item>
  void OnCompute(std::string_view name, Computation<Item> computation) {
    Of<Item>().computations[Require(name, Item::kKind)].push_back(std::move(computation));
  }
  // The body of a method, in place of an earlier one; raises InvalidArgument when there is no such
  // method.
  void OnExecute(std::string_view method, MethodBody body);

  // Prototypes of one kind in the order they were added.
  template <typename Item>
  const std::vector<std::shared_ptr<Item>>& Items() const {
    return std::get<KindOf<Item>>(kinds_).prototypes;
  }
  // A prototype; raises InvalidArgument when there is no such item of that kind.
  template <typename Item>
  std::shared_ptr<Item> Prototype(std::string_view name) const {
    return std::static_pointer_cast<Item>(names_.at(Require(name, Item::kKind)));
  }
  // An item of that name and kind is described.
  bool Contains(const Definition& definition) const;

  // Runs the computations of `item`, if there are any.
  template <typename Item>
  void Compute(Context& context, Item& item) const {
    const auto& computations = std::get<KindOf<Item>>(kinds_).computations;
    const auto found = computations.find(item.ObjectDefinition().Key());
    if (found == computations.end()) return;
    for (const auto& computation : found->second) computation(context, item);
  }
  // The item has computations: its attributes depend on values.
  template <typename Item>
  bool IsComputed(const Definition& definition) const {
    return std::get<KindOf<Item>>(kinds_).computations.contains(definition.Key());
  }
  // nullptr for a method that has no body here.
  const MethodBody* Body(std::string_view method) const;

 private:
  template <typename Item>
  struct KindOf {
    std::vector<std::shared_ptr<Item>> prototypes;
    std::unordered_map<TextKey, std::vector<Computation<Item>>, TextKeyHash> computations;
  };
  template <typename Item>
  KindOf<Item>& Of() {
    return std::get<KindOf<Item>>(kinds_);
  }
  void Register(const std::shared_ptr<DDObject>& item);
  TextKey Require(std::string_view name, ObjectKind kind) const;

  std::tuple<KindOf<Variable>, KindOf<Command>, KindOf<Menu>, KindOf<EditDisplay>, KindOf<Method>,
             KindOf<RefreshRelation>, KindOf<UnitRelation>, KindOf<WriteAsOne>, KindOf<ItemArray>,
             KindOf<ItemCollection>>
      kinds_;
  std::unordered_map<TextKey, std::shared_ptr<DDObject>, TextKeyHash> names_;
  std::unordered_map<TextKey, MethodBody, TextKeyHash> bodies_;
};

}  // namespace ZAFHartTypes::dtmkit
