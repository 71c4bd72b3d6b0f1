#include "text/TextHelpers.h"

#include <algorithm>

#include "platform/AsciiText.h"
#include "resources/ResText.h"
#include "resources/enumDDResourceIDs.h"
#include "types/Failure.h"

namespace ZAFHartLib {
const std::string& GetDDErrorCode(std::int32_t index) {
  // Unsigned, so that a sum that is too large is an unknown number and nothing worse.
  const std::uint32_t id =
      static_cast<std::uint32_t>(idDDErrorCodes) + static_cast<std::uint32_t>(index);
  return ResText(static_cast<std::int32_t>(id));
}

std::string FilterCtrlChars(std::string& text) {
  std::string result;
  std::size_t position = 0;
  while (position < text.size()) {
    const char c = text[position++];
    if (c == '\0') break;
    if (static_cast<unsigned char>(c) >= 32) {
      result += c;
    } else if (!result.ends_with(' ')) {
      result += ' ';
    }
  }
  text.erase(0, position);
  return result;
}

int TakeNumber(std::string_view& rest, int most) {
  const std::size_t length = std::min(rest.find_first_not_of("0123456789"), rest.size());
  if (length == 0) return -1;
  int number = 0;
  for (const char digit : rest.substr(0, length))
    number = std::min(number * 10 + (digit - '0'), most);
  rest.remove_prefix(length);
  return number;
}

std::string StripMenuName(std::string_view menuEntry) {
  return std::string(platform::Trim(menuEntry.substr(0, menuEntry.find('['))));
}

std::string StripMenuGuiClass(std::string_view menuEntry, std::string_view defaultValue) {
  const std::size_t start = menuEntry.find('[');
  if (start == std::string_view::npos) return std::string(platform::Trim(defaultValue));
  const std::size_t end = menuEntry.find(']', start);
  if (end == std::string_view::npos) {
    throw ZAFHartTypes::Failure(
        ZAFHartTypes::ErrorNumber::InvalidArgument, "Tools.StripMenuGuiClass",
        "Menu entry \"" + std::string(menuEntry) + "\" has a \"[\" without a \"]\" behind it");
  }
  return std::string(platform::Trim(menuEntry.substr(start + 1, end - start - 1)));
}

}  // namespace ZAFHartLib
