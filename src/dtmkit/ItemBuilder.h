#pragma once

#include "dtmkit/Catalogue.h"
#include "types/SharedText.h"

namespace ZAFHartTypes::dtmkit {

// A condition of the DD on current values. It is asked whenever the item's attributes are computed;
// what it raises reaches the kernel.
using Condition = std::function<bool(Context&)>;

// What the builders of all kinds have in common. A builder refers to its catalogue and prototype;
// use it within one expression or as a local variable. All words return the builder itself.
//
// Texts are multilingual: "Upper range value|de|Messbereichsende".
template <typename Builder, typename Item>
class ItemBuilder {
 public:
  // `item` is a prototype of `catalogue`; both outlive the builder.
  ItemBuilder(Catalogue& catalogue, Item& item) : catalogue_(catalogue), item_(item) {}

  // LABEL of all kinds but commands and relations, HELP of variables and methods. Without them the
  // words do not compile.
  Builder& Label(SharedText text) {
    item_.SetLabel(std::move(text));
    return Self();
  }
  Builder& Help(SharedText text) {
    item_.SetHelp(std::move(text));
    return Self();
  }
  // Evaluates conditional attributes; see Catalogue::OnCompute.
  Builder& OnCompute(Computation<Item> computation) {
    catalogue_.OnCompute<Item>(item_.ObjectDefinition().Name(), std::move(computation));
    return Self();
  }

 protected:
  // For the words of the single kinds.
  Builder& Self() { return static_cast<Builder&>(*this); }
  Catalogue& TheCatalogue() { return catalogue_; }
  Item& Prototype() { return item_; }

 private:
  Catalogue& catalogue_;
  Item& item_;
};

}  // namespace ZAFHartTypes::dtmkit
