#pragma once

#include <string_view>

#include "hartframe/VariableRow.h"

namespace hartframe {

// How a variable of the offline data set and that of the device match. One that is not valid on a
// side, or has no value there, is not on that side.
enum class Match { Equal, Differs, OnlyOffline, OnlyOnline, NotValid, NoValue };

struct ComparedRow {
  VariableRow offline;
  VariableRow online;
  Match match;
};

// The variable as both sides hold it; values are the same when a device cannot tell them apart and
// both have the same unit.
ComparedRow Compare(VariableRow offline, VariableRow online);
bool IsDifference(Match match);

std::string_view SignOf(Match match);  // "=", "≠", …
std::string_view NameOf(Match match);  // for machines: "equal", "differs", …
// The match in words, and what is to be written or went wrong.
std::string StateText(const ComparedRow& row, const Speech& speech);

}  // namespace hartframe
