#include "ddobjects/DataItem.h"

#include "ddobjects/Variable.h"
#include "types/Failure.h"

namespace ZAFHartTypes {

DataItem DataItem::Constant(Variant value) {
  DataItem item;
  item.constant_ = std::move(value);
  return item;
}

DataItem DataItem::Reference(const Definition& variable, std::uint32_t mask) {
  DataItem item;
  item.type_ = DataItemType::Variable;
  item.definition_ = variable;
  item.mask_ = mask;
  return item;
}

DataItem& DataItem::SetIsIndex(bool value) {
  isIndex_ = value;
  return *this;
}

DataItem& DataItem::SetIsInfo(bool value) {
  isInfo_ = value;
  return *this;
}

void DataItem::SetVariable(std::shared_ptr<ZAFHartTypes::Variable> variable) {
  variable_ = std::move(variable);
}

Variant DataItem::Value() const {
  if (!IsVariable()) return constant_;
  return variable_ ? variable_->Value() : Variant();
}

void DataItem::SetValue(Variant value) {
  if (!IsVariable()) {
    constant_ = std::move(value);
  } else if (variable_) {
    variable_->SetValue(std::move(value));
  }
}

std::string DataItem::Describe(std::int16_t infoLevel) const {
  std::string text = IsVariable() ? definition_.Name() : "CONSTANT";
  if (isIndex_) text += " INDEX";
  if (isInfo_) text += " INFO";
  if (infoLevel > 0) text.append("=").append(Value().Describe());
  return text;
}

const DataItem& DataItemList::Item(std::size_t position) const {
  if (position < 1 || position > Count())
    throw Failure(ErrorNumber::SubscriptOutOfRange, "DataItemList.Item");
  return items_[position - 1];
}

DataItem& DataItemList::Item(std::size_t position) {
  return const_cast<DataItem&>(static_cast<const DataItemList&>(*this).Item(position));
}

std::string DataItemList::Describe(std::int16_t infoLevel) const {
  std::string text = "(";
  for (const DataItem& item : items_) {
    if (text.size() > 1) text += ", ";
    text += item.Describe(infoLevel);
  }
  return text += ")";
}

}  // namespace ZAFHartTypes
