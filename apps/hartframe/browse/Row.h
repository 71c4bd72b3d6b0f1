#pragma once

#include <optional>

#include "hartframe/browse/Page.h"
#include "hartframe/dataset/DataSetPair.h"
#include "hartframe/menus/MenuView.h"

namespace hartframe::browse {

// An item of a page as it is shown.
struct Row {
  PageItem item;
  MenuRow view;
  std::optional<bool> checked;  // of a group's member
  // A variable of a pair: both sides, and whether they are worth comparing.
  std::optional<ComparedRow> sides;
  bool isCompared = false;
};

// `pair`: what the session is a side of, or nullptr.
Row MakeRow(Session& session, DataSetPair* pair, const Page& page, const PageItem& item);
// Both sides have a value of the variable, which is not live, nor the library's for one side only.
bool IsCompared(const DataSetPair& pair, const ZAFHartTypes::Variable& variable);
// A variable of a pair as both sides hold it now.
ComparedRow CompareNow(DataSetPair& pair, const ZAFHartTypes::Definition& variable);

// All about the item: value, state, what is allowed, the DD's help.
std::string DetailsOf(Session& session, const Row& row);

}  // namespace hartframe::browse
