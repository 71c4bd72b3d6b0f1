#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "ddobjects/EnumList.h"
#include "resources/ResText.h"
#include "resources/enumDDResourceIDs.h"

namespace ZAFHartLib {

// A text of the catalogue: the number of a string resource, or the text itself.
struct CatalogueText {
  std::int32_t resource = 0;
  std::string_view fixed;

  constexpr CatalogueText() = default;
  constexpr CatalogueText(enumDDResourceIDs id) : resource(id) {}  // NOLINT
  constexpr CatalogueText(const char* text) : fixed(text) {}       // NOLINT
  std::string Text() const { return resource != 0 ? ResText(resource) : std::string(fixed); }
};

struct EnumRow {
  std::int32_t value;
  CatalogueText description;
  std::string_view help = {};
};
using EnumRows = std::span<const EnumRow>;

// Enumerations of the internal variables, in the order of their lists.
namespace internal_enums {
extern const EnumRows kDynamicRefresh;  // seconds
extern const EnumRows kStaticRefresh;   // seconds
extern const EnumRows kOnlineMode;
extern const EnumRows kDtmOnlineState;
extern const EnumRows kInterfaceVersion;
extern const EnumRows kRefreshOnConnect;
extern const EnumRows kUserLevel;
extern const EnumRows kNoYes;
extern const EnumRows kBusCategory;  // FDT protocol identifier; the help is the protocol's name
extern const EnumRows kDtmState;
extern const EnumRows kLockState;
extern const EnumRows kOnlineAction;
extern const EnumRows kEnabled;
extern const EnumRows kDataSetState;
extern const EnumRows kStorageState;
}  // namespace internal_enums

ZAFHartTypes::EnumList MakeEnumList(EnumRows rows);

}  // namespace ZAFHartLib
