#include <algorithm>
#include <string>

#include "Fuzz.h"
#include "InputFile.h"
#include "hartframe/Speech.h"
#include "hartframe/dataset/DataSetFile.h"
#include "hartframe/dataset/DataSetReader.h"
#include "hartframe/dataset/StoredValue.h"

namespace {

using namespace hartframe;

void CheckSame(const StoredDataSet& left, const StoredDataSet& right) {
  fuzz::Check(std::ranges::equal(left.variables, right.variables,
                                 [](const StoredVariable& a, const StoredVariable& b) {
                                   return a.name == b.name && a.available == b.available &&
                                          a.toBeWritten == b.toBeWritten && a.type == b.type &&
                                          StoredValueText(a.value) == StoredValueText(b.value);
                                 }),
              "what is saved reads back the same");
}

void CheckValue(std::string_view text) {
  const auto value = ReadStoredValue(text);
  if (!value) return;
  const std::string stored = StoredValueText(*value);
  const auto again = ReadStoredValue(stored);
  fuzz::Check(again && StoredValueText(*again) == stored, "a stored value reads back exactly");
}

}  // namespace

// A stored value, ended by a NUL, then the lines of a data set file, whose checksum the target adds
// so that what stands behind it is reached.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::InputFile input("some.dataset");
  static const Speech say("en");
  std::string_view rest = fuzz::AsText({data, size});
  CheckValue(fuzz::TakeText(rest));
  const std::string content = std::string(rest) + "\nChecksum=none\n";
  const DataSetFile file(input.Path(), say);
  fuzz::Accepts([&] {
    const StoredDataSet dataSet = DataSetReader(file, say, content).Read();
    file.Save(dataSet);
    CheckSame(file.Load(), dataSet);
  });
  return 0;
}
