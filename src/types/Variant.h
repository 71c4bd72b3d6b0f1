#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/Export.h"
#include "types/SharedText.h"

namespace ZAFHartTypes {

// Type codes of the OLE Automation standard.
enum class VariantType : std::uint16_t {
  Empty = 0,
  Null = 1,
  Int16 = 2,
  Int32 = 3,
  Single = 4,
  Double = 5,
  Currency = 6,
  Date = 7,
  String = 8,
  Boolean = 11,
  Decimal = 14,
  Byte = 17,
  Array = 0x200C,  // array of variants
};

// The value of Null: no value, where Empty is a value not given yet.
struct NullValue {
  friend bool operator==(NullValue, NullValue) { return true; }
};
// Ten-thousandths of a unit.
struct Currency {
  std::int64_t scaled = 0;
  friend bool operator==(Currency, Currency) = default;
};
// Days since 30 December 1899; the fraction is the time of day.
struct Date {
  double serial = 0;
  friend bool operator==(Date, Date) = default;
};
// mantissa / 10^scale, scale 0 to 18.
struct Decimal {
  std::int64_t mantissa = 0;
  std::uint8_t scale = 0;
  friend bool operator==(Decimal, Decimal) = default;
};

// A value of one of the types above. Copies are cheap: texts and arrays are shared and immutable.
// Conversions follow the OLE Automation rules: rounding halves to even; a value that does not fit
// raises Overflow, one that cannot be converted TypeMismatch. Texts are read and written with the
// decimal separator of the current platform's locale.
class ZAF_API Variant {
 public:
  using ArrayType = std::shared_ptr<const std::vector<Variant>>;

  // Empty; otherwise of the type of what it is made from.
  Variant() = default;
  Variant(NullValue) : value_(NullValue{}) {}              // NOLINT(google-explicit-constructor)
  Variant(std::int16_t value) : value_(value) {}           // NOLINT
  Variant(std::int32_t value) : value_(value) {}           // NOLINT
  Variant(float value) : value_(value) {}                  // NOLINT
  Variant(double value) : value_(value) {}                 // NOLINT
  Variant(Currency value) : value_(value) {}               // NOLINT
  Variant(Date value) : value_(value) {}                   // NOLINT
  Variant(Decimal value) : value_(value) {}                // NOLINT
  Variant(std::uint8_t value) : value_(value) {}           // NOLINT
  Variant(SharedText value) : value_(std::move(value)) {}  // NOLINT
  Variant(std::string value) : value_(SharedText(std::move(value))) {}  // NOLINT
  Variant(std::string_view value) : value_(SharedText(value)) {}        // NOLINT
  Variant(const char* value) : value_(SharedText(value)) {}             // NOLINT
  Variant(std::vector<Variant> items)                                   // NOLINT
      : value_(std::make_shared<const std::vector<Variant>>(std::move(items))) {}
  // Only a bool makes a Boolean; pointers do not.
  template <typename T>
  requires std::is_same_v<T, bool> Variant(T value) : value_(value) {}  // NOLINT

  static Variant Null() { return Variant(NullValue{}); }

  VariantType Type() const;
  // By type: "" is a text and 0 a number, neither is empty.
  bool IsEmpty() const { return std::holds_alternative<std::monostate>(value_); }
  bool IsNull() const { return std::holds_alternative<NullValue>(value_); }
  bool IsText() const { return std::holds_alternative<SharedText>(value_); }
  // An integer, floating-point, currency, decimal, byte, date or Boolean value.
  bool IsNumber() const;
  // A single or double whose exponent bits are all set: an infinity or a NaN.
  bool IsNotFinite() const;

  // Each raises TypeMismatch for Null, for an array and for a text that is no number, Overflow for
  // a number beyond the type. Empty is 0; a Boolean that is true is -1, as a byte 255. ToDate also
  // reads date texts and takes 1 January 100 to 31 December 9999; ToBoolean also reads "True" and
  // "False", any other number than 0 being true.
  std::int16_t ToShort() const;
  std::int32_t ToLong() const;
  float ToSingle() const;
  double ToDouble() const;
  Currency ToCurrency() const;
  Date ToDate() const;
  bool ToBoolean() const;
  std::uint8_t ToByte() const;
  // Numbers with 7 (single) or 15 (double) significant digits at most, Booleans as "True" and
  // "False", dates in the user's short date format, empty as "". Null raises TypeMismatch, arrays
  // too.
  std::string ToText() const;
  // The low 32 bits of an integral value from -2147483648 to 4294967295; for bit masks and
  // unsigned 32-bit values, which the type code 3 may hold as a double.
  std::uint32_t ToBits32() const;
  // Like ToText, never fails: for trace lines ("Null", "Array(3)").
  std::string Describe() const;

  // Elements of an array; TypeMismatch for another type.
  const std::vector<Variant>& Items() const;
  // The held text; TypeMismatch for another type.
  const SharedText& Text() const;

  // Same value: numbers by value across all numeric types (NaN equals nothing), texts by their
  // characters, a text and a number when the text converts to the number, empty equals "" and 0,
  // Null equals Null only, arrays element by element.
  friend ZAF_API bool operator==(const Variant& a, const Variant& b);

 private:
  std::variant<std::monostate, NullValue, std::int16_t, std::int32_t, float, double, Currency, Date,
               SharedText, bool, Decimal, std::uint8_t, ArrayType>
      value_;
};

}  // namespace ZAFHartTypes
