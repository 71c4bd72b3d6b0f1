#include <algorithm>
#include <cmath>
#include <cstring>
#include <string>

#include "Fuzz.h"
#include "ddobjects/TypeInfo.h"
#include "text/DisplayString.h"
#include "text/NumberMask.h"

namespace {

using namespace ZAFHartTypes;

// 310 digits before the point are what the largest double has.
constexpr std::size_t kLongest = 3 * ZAFHartLib::kMostPlaces + 400;

double TakeDouble(std::span<const std::uint8_t>& input) {
  double value = 0;
  const std::size_t size = std::min(sizeof value, input.size());
  std::memcpy(&value, input.data(), size);
  input = input.subspan(size);
  return value;
}

void CheckMask(double value, std::string_view mask) {
  const std::string text = ZAFHartLib::FormatMask(value, mask);
  fuzz::Check(text.size() <= kLongest + mask.size(), "a number is no longer than its mask allows");
  if (std::isfinite(value) && value < 0) {
    const std::string positive = ZAFHartLib::FormatMask(-value, mask);
    fuzz::Check(text == positive || text == "-" + positive, "a sign changes no digit");
  }
}

void CheckDisplay(double value, std::string_view format, TypeCode code) {
  TypeInfo type;
  type.SetTypeCode(code);
  type.SetSize(4);
  type.SetDisplayFormat(std::string(format));
  fuzz::Accepts([&] {
    const std::string text = ZAFHartLib::GetValueDisplayString(Variant(value), type);
    fuzz::Check(text.size() <= kLongest, "a display format asks for no more than the most places");
  });
}

}  // namespace

// The number, then the mask or display format.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::span<const std::uint8_t> input(data, size);
  const double value = TakeDouble(input);
  const std::string_view format = fuzz::AsText(input);
  CheckMask(value, format);
  CheckMask(value, ZAFHartLib::CFormatToVBFormat(format));
  for (const TypeCode code :
       {TypeCode::Float, TypeCode::Double, TypeCode::Integer, TypeCode::Unsigned}) {
    CheckDisplay(value, format, code);
  }
  return 0;
}
