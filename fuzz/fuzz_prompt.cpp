#include <limits>
#include <string>

#include "Fuzz.h"
#include "text/NumberMask.h"
#include "text/modDDPrintF.h"

namespace {

using ZAFHartTypes::PromptValues;
using ZAFHartTypes::Variant;

// One value of every kind that a prompt may name.
PromptValues Values() {
  PromptValues values;
  values.Set("0", Variant(std::int32_t{-1234567}));
  values.Set("1", Variant(1.0 / 3));
  values.Set("2", Variant("text|de|Text"));
  values.Set("2LABEL", Variant("Label"));
  values.Set("3", Variant(std::numeric_limits<double>::quiet_NaN()));
  values.Set("4", Variant(-std::numeric_limits<double>::infinity()));
  values.Set("5", Variant(1e308));
  values.Set("a", Variant(std::numeric_limits<std::int32_t>::min()));
  values.Set("ab", Variant());
  values.Set("b", Variant::Null());
  values.Set("c", Variant(ZAFHartTypes::Date{45000.5}));
  return values;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const PromptValues values = Values();
  const std::string_view prompt = fuzz::AsText({data, size});
  const std::string text = ZAFHartLib::FormatDDString(prompt, values);
  if (prompt.find('%') == std::string_view::npos) {
    fuzz::Check(text == prompt, "a prompt without references stays as it is");
  }
  // 310 digits is what the longest number has before its point.
  constexpr std::size_t kLongest = 2 * ZAFHartLib::kMostPlaces + 310;
  fuzz::Check(text.size() <= (prompt.size() + 1) * kLongest,
              "no reference grows beyond its limits");
  const std::string twice = ZAFHartLib::FormatDDString(std::string(prompt) + " " + "end", values);
  fuzz::Check(twice.ends_with(" end"), "what stands behind a prompt's references is kept");
  return 0;
}
