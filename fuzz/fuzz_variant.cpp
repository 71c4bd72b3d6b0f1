#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>
#include <string>
#include <vector>

#include "Fuzz.h"
#include "types/NumberText.h"
#include "types/Variant.h"

namespace {

using namespace ZAFHartTypes;

template <typename T>
T TakeAs(std::span<const std::uint8_t>& input) {
  std::array<std::uint8_t, sizeof(T)> bytes{};
  const std::size_t size = std::min(bytes.size(), input.size());
  std::copy_n(input.begin(), size, bytes.begin());
  input = input.subspan(size);
  return std::bit_cast<T>(bytes);
}

Variant TakeVariant(std::span<const std::uint8_t>& input, int depth) {
  switch (fuzz::Take(input) % 13) {
    case 0:
      return {};
    case 1:
      return Variant::Null();
    case 2:
      return TakeAs<std::int16_t>(input);
    case 3:
      return TakeAs<std::int32_t>(input);
    case 4:
      return TakeAs<float>(input);
    case 5:
      return TakeAs<double>(input);
    case 6:
      return Currency{TakeAs<std::int64_t>(input)};
    case 7:
      return Date{TakeAs<double>(input)};
    case 8:
      return Decimal{TakeAs<std::int64_t>(input),
                     static_cast<std::uint8_t>(fuzz::Take(input) % 19)};
    case 9:
      return TakeAs<std::uint8_t>(input);
    case 10:
      return fuzz::Take(input) % 2 == 1;
    case 11: {
      std::vector<Variant> items(fuzz::Take(input) % 4);
      for (Variant& item : items) item = depth > 0 ? TakeVariant(input, depth - 1) : Variant();
      return items;
    }
    default: {
      const std::size_t length = std::min(fuzz::Take(input), input.size());
      const std::string_view text = fuzz::AsText(input.first(length));
      input = input.subspan(length);
      return text;
    }
  }
}

void CheckConversions(const Variant& value) {
  fuzz::Accepts([&] { value.ToShort(); });
  fuzz::Accepts([&] { value.ToByte(); });
  fuzz::Accepts([&] { value.ToSingle(); });
  fuzz::Accepts([&] { value.ToCurrency(); });
  fuzz::Accepts([&] { value.ToDate(); });
  fuzz::Accepts([&] { value.ToBoolean(); });
  fuzz::Accepts([&] { value.ToBits32(); });
  fuzz::Accepts([&] { value.Items(); });
  fuzz::Accepts([&] {
    const std::int32_t number = value.ToLong();
    fuzz::Check(Variant(number).ToLong() == number, "a whole number converts to itself");
    fuzz::Check(std::abs(value.ToDouble() - number) <= 0.5, "rounding goes to the nearest number");
  });
  (void)value.Describe();
}

void CheckText(const Variant& value) {
  if (value.IsNotFinite() || !value.IsNumber() || value.Type() == VariantType::Date) {
    fuzz::Accepts([&] { (void)value.ToText(); });
    return;
  }
  const Variant text(value.ToText());
  fuzz::Accepts([&] {
    const double read = text.ToDouble();
    const double meant = value.ToDouble();
    const double digits = value.Type() == VariantType::Single ? 1e-6 : 1e-14;
    if (value.Type() == VariantType::Boolean) return;
    fuzz::Check(std::abs(read - meant) <= std::abs(meant) * digits,
                "a number reads back as itself");
  });
}

void CheckEquality(const Variant& a, const Variant& b) {
  fuzz::Check((a == b) == (b == a), "equality goes both ways");
  const bool isNan = a.IsNotFinite() && std::isnan(a.ToDouble());
  const bool isPlain = !isNan && a.Type() != VariantType::Array && a.Type() != VariantType::Date;
  if (isPlain) fuzz::Check(a == Variant(a), "a value equals its copy");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::span<const std::uint8_t> input(data, size);
  const Variant first = TakeVariant(input, 2);
  const Variant second = TakeVariant(input, 2);
  CheckConversions(first);
  CheckText(first);
  CheckEquality(first, second);
  fuzz::Accepts([&] { TextToNumber(fuzz::AsText(input)); });
  TextToBoolean(fuzz::AsText(input));
  TextToDate(fuzz::AsText(input));
  return 0;
}
