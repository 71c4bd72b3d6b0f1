#pragma once

#include <optional>

#include "hartframe/MenuView.h"
#include "hartframe/browse/Page.h"
#include "hartframe/browse/Picture.h"

namespace hartframe::browse {

// An item of a page as it is shown.
struct Row {
  PageItem item;
  MenuRow view;
  std::optional<bool> checked;  // of a group's member
};

Row MakeRow(Session& session, const Page& page, const PageItem& item);

// The rows in columns, each line `width` wide: mark, label, value, unit, state.
std::vector<Line> LinesOf(const std::vector<Row>& rows, std::size_t width, const Speech& speech);

// All about the item: value, state, what is allowed, the DD's help.
std::string DetailsOf(Session& session, const Row& row);

}  // namespace hartframe::browse
