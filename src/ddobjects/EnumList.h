#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Export.h"

namespace ZAFHartTypes {

// A value of an enumerated type with its texts (multilingual); the help may be "".
class ZAF_API EnumItem {
 public:
  EnumItem() = default;
  EnumItem(std::int32_t value, std::string description, std::string help = {})
      : value_(value), description_(std::move(description)), help_(std::move(help)) {}

  std::int32_t Value() const { return value_; }
  void SetValue(std::int32_t value) { value_ = value; }
  const std::string& Description() const { return description_; }
  void SetDescription(std::string text) { description_ = std::move(text); }
  const std::string& Help() const { return help_; }
  void SetHelp(std::string text) { help_ = std::move(text); }

  friend bool operator==(const EnumItem&, const EnumItem&) = default;

 private:
  std::int32_t value_ = 0;
  std::string description_;
  std::string help_;
};

// A bit (or bits) of a bit-enumerated type: `Value` is the mask.
using BitItem = EnumItem;

// Values of an enumerated type, in the order they were added.
class ZAF_API EnumList {
 public:
  EnumList() = default;
  EnumList(std::initializer_list<EnumItem> items) : items_(items) {}
  // Appends; a value that is listed already is not found by Find.
  void Add(EnumItem item) { items_.push_back(std::move(item)); }
  std::size_t Count() const { return items_.size(); }
  bool IsEmpty() const { return items_.empty(); }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }
  // The first item of that value; nullptr when there is none.
  const EnumItem* Find(std::int32_t value) const;

  friend bool operator==(const EnumList&, const EnumList&) = default;

 private:
  std::vector<EnumItem> items_;
};
// Bits of a bit-enumerated type, in display order.
using BitList = EnumList;

}  // namespace ZAFHartTypes
