#include <benchmark/benchmark.h>

#include <cstdio>

#include "ddobjects/Variable.h"
#include "text/DisplayString.h"
#include "text/LangText.h"
#include "text/modDDPrintF.h"

namespace {

using namespace ZAFHartTypes;

void Floor_snprintf(benchmark::State& state) {
  char buffer[64];
  double value = 12.34;
  for (auto _ : state) {
    benchmark::DoNotOptimize(value);
    benchmark::DoNotOptimize(std::snprintf(buffer, sizeof buffer, "Value: %8.3f %s", value, "PV"));
  }
}
BENCHMARK(Floor_snprintf);

void FormatDDString(benchmark::State& state) {
  ZAFHartTypes::PromptValues values;
  values.Set("0", Variant("12.34"));
  values.Set("0LABEL", Variant("PV"));
  const std::string prompt = "Value: %[8.3f]{0} %[L]{0}";
  for (auto _ : state) benchmark::DoNotOptimize(ZAFHartLib::FormatDDString(prompt, values));
}
BENCHMARK(FormatDDString);

void LangText(benchmark::State& state) {
  const std::string text = "Upper range value|de|Messbereichsende|fr|Valeur haute d'échelle";
  for (auto _ : state) benchmark::DoNotOptimize(ZAFHartLib::LangText(text, "de"));
}
BENCHMARK(LangText);

void DisplayString(benchmark::State& state) {
  TypeInfo type;
  type.SetTypeCode(TypeCode::Float);
  type.SetDisplayFormat("8.3f");
  const Variant value = 12.34F;
  for (auto _ : state) benchmark::DoNotOptimize(ZAFHartLib::GetValueDisplayString(value, type));
}
BENCHMARK(DisplayString);

}  // namespace
