#include <algorithm>
#include <string>

#include "Fuzz.h"
#include "InputFile.h"
#include "platform/ProfileFile.h"
#include "platform/TextFile.h"
#include "workerdb/CIniCollection.h"

namespace {

using ZAFHartTypes::Variant;
namespace profile = platform::profile;

std::size_t LineCount(const std::filesystem::path& file) {
  const std::string text = platform::ReadWholeFile(file);
  return static_cast<std::size_t>(std::ranges::count(text, '\n')) + 1;
}

void CheckWrite(const std::filesystem::path& file, std::string_view section, std::string_view key,
                std::string_view value) {
  const std::size_t lines = LineCount(file);
  if (!profile::WriteKey(file.string(), section, key, value)) return;
  fuzz::Check(profile::ReadKey(file.string(), section, key, "absent") == value ||
                  value != profile::ReadKey(file.string(), section, key, "other"),
              "a key that was written is there");
  fuzz::Check(LineCount(file) >= lines, "no other line goes");
}

void CheckTyped(const std::string& file, const std::string& section) {
  const ZAFHartLib::CIniCollection collection;
  Variant read;
  collection.ReadIniFileTypedEntry(file, section, "a", read);
  ZAFHartTypes::KeyedList<Variant> values;
  collection.ReadIniFile(file, section, values);
  const Variant written(12.5);
  if (collection.WriteIniFileTypedEntry(file, section, "a", written)) {
    Variant again;
    collection.ReadIniFileTypedEntry(file, section, "a", again);
    fuzz::Check(again == written, "a typed value reads back the same");
  }
}

}  // namespace

// Section, key and value to write, each ended by a NUL, then the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::InputFile file("profile.ini");
  std::string_view rest = fuzz::AsText({data, size});
  const std::string section(fuzz::TakeText(rest));
  const std::string_view key = fuzz::TakeText(rest);
  const std::string_view value = fuzz::TakeText(rest);
  file.Fill(rest);
  profile::ReadSection(file.Path().string(), section);
  CheckTyped(file.Path().string(), section);
  CheckWrite(file.Path(), section, key, value);
  return 0;
}
