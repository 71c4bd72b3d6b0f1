#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ddobjects/Codes.h"
#include "ddobjects/Definition.h"
#include "platform/Export.h"
#include "types/Variant.h"

namespace ZAFHartTypes {

class Variable;

// One item of a transaction's request or reply: a constant byte, or a reference to a variable.
class ZAF_API DataItem {
 public:
  // A constant takes one byte, 0 to 255; other values raise Overflow or TypeMismatch when the
  // request is made.
  static DataItem Constant(Variant value);
  // `mask` other than 0: the item takes just those bits of a byte group shared with its neighbours.
  static DataItem Reference(const Definition& variable, std::uint32_t mask = 0);

  // What the item was made as.
  DataItemType ItemType() const { return type_; }
  bool IsVariable() const { return type_ == DataItemType::Variable; }
  // DD qualifiers, both unset at first. An INFO item is sent or received without being stored; an
  // INDEX item selects an array element. The setters return the item itself.
  bool IsIndex() const { return isIndex_; }
  DataItem& SetIsIndex(bool value = true);
  bool IsInfo() const { return isInfo_; }
  DataItem& SetIsInfo(bool value = true);
  // A variable whose value the item sends or receives for storing.
  bool CarriesValue() const { return IsVariable() && !isInfo_; }
  // The bits that the item takes; 0: bytes of its own.
  std::uint32_t Mask() const { return mask_; }

  // Of a constant: empty in a reference. Decoding a reply stores here what the device sent.
  const Variant& ConstantValue() const { return constant_; }
  void SetConstantValue(Variant value) { constant_ = std::move(value); }
  // Empty for a constant.
  const Definition& VariableDefinition() const { return definition_; }
  // The variable object bound for an execution; nothing before. It is shared with whoever bound it:
  // the value to send is taken from it, the value received is stored in it.
  const std::shared_ptr<ZAFHartTypes::Variable>& Variable() const { return variable_; }
  void SetVariable(std::shared_ptr<ZAFHartTypes::Variable> variable);
  // The value that stands for the item: the bound variable's, or the constant. Empty when unbound.
  Variant Value() const;
  // Stores into the bound variable or the constant; does nothing when unbound.
  void SetValue(Variant value);

  // Text for trace lines: the variable's name or "CONSTANT" and the qualifiers, from level 1 on
  // with the value.
  std::string Describe(std::int16_t infoLevel) const;

 private:
  DataItemType type_ = DataItemType::Constant;
  bool isIndex_ = false;
  bool isInfo_ = false;
  std::uint32_t mask_ = 0;
  Definition definition_;
  Variant constant_;
  std::shared_ptr<ZAFHartTypes::Variable> variable_;
};

// Items in wire order; positions count from 1. Copying copies the items, bindings kept: the bound
// variables are shared.
class ZAF_API DataItemList {
 public:
  DataItemList() = default;
  DataItemList(std::initializer_list<DataItem> items) : items_(items) {}
  // Appends.
  void Add(DataItem item) { items_.push_back(std::move(item)); }
  // Both raise SubscriptOutOfRange for a position outside 1..Count().
  const DataItem& Item(std::size_t position) const;
  DataItem& Item(std::size_t position);
  std::size_t Count() const { return items_.size(); }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }
  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }
  // The items' texts for trace lines, "(…, …)".
  std::string Describe(std::int16_t infoLevel) const;

 private:
  std::vector<DataItem> items_;
};

}  // namespace ZAFHartTypes
