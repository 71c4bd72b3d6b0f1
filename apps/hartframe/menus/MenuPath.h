#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "hartframe/Session.h"

namespace hartframe {

// An item of a menu as a user finds it.
struct MenuEntry {
  ZAFHartTypes::Definition definition;
  std::string label;      // multilingual; "" of a kind that has none
  bool readOnly = false;  // the menu shows it read-only
};

// Where a path leads. Without steps: nowhere, with an empty definition.
struct MenuPlace {
  MenuEntry entry;
  ZAFHartTypes::Definition menu;    // that it was found in; empty for one found by its DD name
  std::vector<std::string> labels;  // of all steps, in the user's language
};

// The item's label in all languages; its DD name when it has none. Groups that are written together
// have no label of their own, and get one.
std::string MultilingualLabel(ZAFHartTypes::DDObject& object);

// The menus that a user starts from: "root_menu", the entry menu of HART device descriptions, and
// those that the kernel information names; the ones that the DTM has.
std::vector<MenuEntry> RootMenus(Session& session);
// The items of a menu, which is computed but not read from the device.
std::vector<MenuEntry> EntriesOf(Session& session, const ZAFHartTypes::Definition& menu);

// The entries whose DD name the text is, without regard to letter case; otherwise those whose label
// it is, otherwise those whose label in the user's language or English begins with it.
std::vector<MenuEntry> MatchingEntries(const Speech& say, const std::vector<MenuEntry>& entries,
                                       std::string_view text);
// Their labels in the user's language, in quotes; with DD names behind them when `withNames`.
std::string ListEntries(const Speech& say, const std::vector<MenuEntry>& entries,
                        bool withNames = false);

// Follows a path from the root menus down. A step is a DD name or a label in the user's language or
// English, without regard to letter case, or the beginning of a label that no other item has; a
// step may hold several, separated by "/". The first step may also be the DD name of any menu, edit
// display or method. CommandFailure (Usage) naming what there is instead.
MenuPlace FollowPath(Session& session, const std::vector<std::string>& path);

}  // namespace hartframe
