#include "builtins/Mathematics.h"

#include <cmath>
#include <map>
#include <numbers>

#include "types/Failure.h"

namespace ZAFHartLib {

using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::Failure;
using ZAFHartTypes::Variant;
using ZAFHartTypes::VariantType;

namespace {

using Function = double (*)(double);

constexpr std::int32_t kAbsolute = 1012;
constexpr std::int32_t kRoundToInteger = 1017;
constexpr std::int32_t kClass = 1019;
constexpr std::int32_t kItself[] = {1020, 1021};

enum class NumberClass : std::int16_t { Finite = 1, Infinite = 2, NotANumber = 3, Zero = 4 };

double ArcSine(double x) {
  return std::atan(x / std::sqrt(1 - x * x));
}

const std::map<std::int32_t, Function>& Functions() {
  static const std::map<std::int32_t, Function> functions = {
      {1000, [](double x) { return std::cos(x); }},
      {1001, [](double x) { return std::sin(x); }},
      {1002, [](double x) { return std::tan(x); }},
      {1003, [](double x) { return std::numbers::pi / 2 - ArcSine(x); }},
      {1004, ArcSine},
      {1005, [](double x) { return std::cosh(x); }},
      {1006, [](double x) { return std::sinh(x); }},
      {1007, [](double x) { return std::tanh(x); }},
      {1008, [](double x) { return std::exp(x); }},
      {1009, [](double x) { return std::log(x); }},
      {1010, [](double x) { return std::log10(x); }},
      {1011, [](double x) { return std::log2(x); }},
      {1013, [](double x) { return std::sqrt(x); }},
      {1014, [](double x) { return std::pow(x, 1.0 / 3.0); }},
      {1015, [](double x) { return -std::floor(-x); }},
      {1018, [](double x) { return std::floor(x); }},
  };
  return functions;
}

NumberClass ClassOf(double x) {
  switch (std::fpclassify(x)) {
    case FP_INFINITE:
      return NumberClass::Infinite;
    case FP_NAN:
      return NumberClass::NotANumber;
    case FP_ZERO:
      return NumberClass::Zero;
    default:
      return NumberClass::Finite;
  }
}

// Keeps the argument's type; texts become numbers.
Variant Absolute(const Variant& argument) {
  switch (argument.Type()) {
    case VariantType::Int16:
    case VariantType::Boolean:
      return Variant(std::abs(std::int32_t{argument.ToShort()})).ToShort();
    case VariantType::Int32: {
      const std::int64_t magnitude = std::abs(std::int64_t{argument.ToLong()});
      return Variant(static_cast<double>(magnitude)).ToLong();
    }
    case VariantType::Single:
      return std::abs(argument.ToSingle());
    case VariantType::Currency:
      return ZAFHartTypes::Currency{std::abs(argument.ToCurrency().scaled)};
    case VariantType::Date:
      return ZAFHartTypes::Date{std::abs(argument.ToDate().serial)};
    case VariantType::Null:
    case VariantType::Byte:
      return argument;
    default:
      return std::abs(argument.ToDouble());
  }
}

}  // namespace

std::optional<Variant> Calculate(std::int32_t function, const Variant& argument) {
  if (function == kAbsolute) return Absolute(argument);
  if (function == kRoundToInteger) return argument.ToShort();
  const auto found = Functions().find(function);
  const bool isItself = function == kItself[0] || function == kItself[1];
  if (found == Functions().end() && function != kClass && !isItself) return std::nullopt;
  const double x = argument.ToDouble();
  if (function == kClass) return Variant(static_cast<std::int16_t>(ClassOf(x)));
  if (isItself) return x;
  const double result = found->second(x);
  if (std::isfinite(x) && !std::isfinite(result)) throw Failure(ErrorNumber::Overflow, "Func1");
  return result;
}

double RoundHalfEven(double value, std::int32_t decimals) {
  constexpr std::int32_t kMostDecimals = 17;  // more than a double holds
  if (decimals < 0) throw Failure(ErrorNumber::InvalidProcedureCall, "Func2");
  if (decimals > kMostDecimals || !std::isfinite(value)) return value;
  const long double factor = std::pow(10.0L, static_cast<long double>(decimals));
  const long double rounded = std::nearbyint(static_cast<long double>(value) * factor) / factor;
  return std::isfinite(rounded) ? static_cast<double>(rounded) : value;
}

}  // namespace ZAFHartLib
