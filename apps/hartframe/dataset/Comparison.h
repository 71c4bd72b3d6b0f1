#pragma once

#include <string_view>
#include <vector>

#include "hartframe/values/VariableRow.h"

namespace hartframe {

// How a variable of the offline data set and that of the device match. One that is not valid on a
// side, or has no value there, is not on that side. NotRead: nobody has asked the device yet.
enum class Match { Equal, Differs, OnlyOffline, OnlyOnline, NotValid, NoValue, NotRead };

struct ComparedRow {
  VariableRow offline;
  VariableRow online;
  Match match;
};

// The variable as both sides hold it; values are the same when a device cannot tell them apart and
// both have the same unit.
ComparedRow Compare(VariableRow offline, VariableRow online);
// The same while the device's values still come in one by one.
ComparedRow CompareUnderWay(VariableRow offline, VariableRow online);
bool IsDifference(Match match);

std::string_view SignOf(Match match);  // "=", "≠", …
std::string_view NameOf(Match match);  // for machines: "equal", "differs", …
std::string MatchText(Match match, const Speech& speech);
// The match in words, and what is to be written or went wrong.
std::string StateText(const ComparedRow& row, const Speech& speech);
// How many of the rows match how, in a sentence.
std::string SummaryOf(const std::vector<ComparedRow>& rows, const Speech& speech);

}  // namespace hartframe
