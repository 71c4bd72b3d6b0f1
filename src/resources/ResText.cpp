#include "resources/ResText.h"

#include <algorithm>
#include <vector>

#include "resources/StringTable.h"

namespace ZAFHartLib {
namespace {

std::vector<std::string> MakeTexts() {
  std::vector<std::string> texts;
  texts.reserve(StringTable().size());
  for (const StringResource& resource : StringTable()) texts.emplace_back(resource.text);
  return texts;
}

}  // namespace

const std::string& ResText(std::int32_t id) {
  static const std::vector<std::string> texts = MakeTexts();
  static const std::string unknown;
  const auto table = StringTable();
  const auto found = std::ranges::lower_bound(table, id, {}, &StringResource::id);
  if (found == table.end() || found->id != id) return unknown;
  return texts[static_cast<std::size_t>(found - table.begin())];
}

}  // namespace ZAFHartLib
