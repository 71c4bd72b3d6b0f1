#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "ddobjects/Codes.h"
#include "platform/Export.h"
#include "types/SharedText.h"

namespace ZAFHartTypes {

// A response code of a command or transaction with its texts (multilingual). Immutable. `value` is
// the first status byte of a reply, 0 to 127; `type` is the DD's, see IsError.
class ZAF_API ResponseCode {
 public:
  ResponseCode(std::int16_t value, ResponseCodeType type, SharedText description,
               SharedText help = {})
      : description_(std::move(description)), help_(std::move(help)), type_(type), value_(value) {}

  std::int16_t Value() const { return value_; }
  const std::string& Description() const { return description_; }
  const std::string& Help() const { return help_; }
  ResponseCodeType CodeType() const { return type_; }

 private:
  SharedText description_;
  SharedText help_;
  ResponseCodeType type_;
  std::int16_t value_;
};

// Response codes in the order they were added. Of two with one value the first counts.
class ZAF_API ResponseCodeList {
 public:
  ResponseCodeList() = default;
  ResponseCodeList(std::initializer_list<ResponseCode> codes) : codes_(codes) {}
  void Add(ResponseCode code) { codes_.push_back(std::move(code)); }
  // The code's entry; nullptr when it is not defined.
  const ResponseCode* Find(std::int32_t code) const;
  // Raises SubscriptOutOfRange for a code that is not defined.
  const ResponseCode& Item(std::int32_t code) const;
  std::size_t Count() const { return codes_.size(); }
  auto begin() const { return codes_.begin(); }
  auto end() const { return codes_.end(); }

 private:
  std::vector<ResponseCode> codes_;
};

}  // namespace ZAFHartTypes
