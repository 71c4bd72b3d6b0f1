#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace ZAFHartLib {

// An engineering unit: a value x in it and the base quantity b relate by x = (b + offset) * factor.
class CHartUnit {
 public:
  CHartUnit() = default;
  CHartUnit(std::int32_t code, double factor, double offset, std::string name, std::string help) {
    Initialize(code, factor, offset, std::move(name), std::move(help));
  }
  void Initialize(std::int32_t code, double factor, double offset, std::string name,
                  std::string help) {
    code_ = code;
    factor_ = factor;
    offset_ = offset;
    name_ = std::move(name);
    help_ = std::move(help);
  }

  // HART unit code.
  std::int32_t Code() const { return code_; }
  double Factor() const { return factor_; }
  double Offset() const { return offset_; }
  // Unit text, may be multilingual: "kg|de|Kilogramm".
  const std::string& Name() const { return name_; }
  const std::string& Help() const { return help_; }

 private:
  std::int32_t code_ = 0;
  double factor_ = 0;
  double offset_ = 0;
  std::string name_;
  std::string help_;
};

}  // namespace ZAFHartLib
