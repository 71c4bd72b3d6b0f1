#pragma once

#include "hartframe/browse/Picture.h"
#include "hartframe/browse/Row.h"

namespace hartframe::browse {

// Rows in columns, each line as wide as the screen: mark, label, value, unit, state; of a pair
// mark, sign of the comparison, label, both values, state.
struct Table {
  std::string head;  // of a pair
  std::vector<Line> lines;
};
Table TableOf(const std::vector<Row>& rows, bool isPair, std::size_t width, const Speech& speech);

// What is worth knowing about the row's state, "" when all is well.
std::string StateOf(const Row& row, const Speech& speech);

}  // namespace hartframe::browse
