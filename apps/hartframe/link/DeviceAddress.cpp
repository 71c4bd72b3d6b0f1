#include "hartframe/link/DeviceAddress.h"

#include <charconv>
#include <string_view>

#include "hart/HexText.h"
#include "hart/LinkFrame.h"
#include "platform/Failure.h"
#include "types/Utf8.h"

namespace hartframe {

namespace {

namespace hart = ZAFHartTypes::hart;
using ZAFHartTypes::Addressing;

constexpr std::string_view kTagPrefix = "tag:";
constexpr std::size_t kLongestTag = 32;
constexpr std::size_t kLongAddressDigits = 10;

[[noreturn]] void Refuse(const std::string& why) {
  throw platform::Failure(platform::ErrorNumber::InvalidArgument, "hartframe", why);
}

bool AllOf(std::string_view text, std::string_view characters) {
  return !text.empty() && text.find_first_not_of(characters) == std::string_view::npos;
}

// Tags are Latin-1 on the wire; another character would ask for another device.
bool IsLatin1(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    if (ZAFHartTypes::utf8::Next(text, at) > 0xFF) return false;
  }
  return true;
}

DeviceAddress Tagged(std::string_view tag) {
  const std::size_t length = ZAFHartTypes::utf8::Length(tag);
  if (length == 0 || length > kLongestTag) {
    Refuse("\"" + std::string(tag) +
           "\" is no tag: tags have 1 to 8 characters, long tags up to 32");
  }
  if (!IsLatin1(tag)) {
    Refuse("\"" + std::string(tag) + "\" has characters that no tag can have: tags are Latin-1");
  }
  DeviceAddress address;
  address.addressing = Addressing::Tag;
  address.tag = tag;
  return address;
}

DeviceAddress Polled(const std::string& text) {
  DeviceAddress address;
  const auto [end, error] =
      std::from_chars(text.data(), text.data() + text.size(), address.polling);
  if (error != std::errc{} || address.polling > hart::LinkAddress::kMaxPolling) {
    Refuse("polling addresses are 0 to 63, not " + text +
           "; a tag of digits is written tag:" + text);
  }
  return address;
}

}  // namespace

DeviceAddress DeviceAddress::Parse(const std::string& text) {
  if (text.starts_with(kTagPrefix)) return Tagged(std::string_view(text).substr(kTagPrefix.size()));
  const std::string digits = text.starts_with("0x") ? text.substr(2) : text;
  if (digits.size() == kLongAddressDigits && AllOf(digits, "0123456789ABCDEFabcdef")) {
    DeviceAddress address;
    address.addressing = Addressing::LongAddress;
    address.longAddress = hart::ToHex(hart::FromHex(digits));
    return address;
  }
  return AllOf(text, "0123456789") ? Polled(text) : Tagged(text);
}

}  // namespace hartframe
