#include "hartframe/dataset/Comparison.h"

#include <algorithm>

#include "hartframe/changes/WriteWatch.h"
#include "hartframe/dataset/PairTexts.h"

namespace hartframe {

namespace {

using ZAFHartTypes::Variable;

struct MatchWords {
  std::string_view sign;
  std::string_view name;
  const char* text;
};

// In the order of Match.
constexpr MatchWords kWords[] = {{"=", "equal", texts::kEqual},
                                 {"≠", "differs", texts::kDiffers},
                                 {"<", "onlyOffline", texts::kOnlyOffline},
                                 {">", "onlyOnline", texts::kOnlyOnline},
                                 {"-", "notValid", texts::kNotValid},
                                 {"?", "noValue", texts::kNoValueYet},
                                 {"?", "notRead", texts::kDeviceNotRead}};

const MatchWords& WordsOf(Match match) {
  return kWords[static_cast<std::size_t>(match)];
}

bool HasValue(const Variable& variable) {
  return variable.Validity() && (variable.Available() || variable.ToBeWritten()) &&
         TroubleOf(variable) == Trouble::None;
}

Match MatchOf(const VariableRow& offline, const VariableRow& online) {
  const Variable& ours = *offline.variable;
  const Variable& theirs = *online.variable;
  if (!ours.Validity() && !theirs.Validity()) return Match::NotValid;
  const bool has = HasValue(ours);
  const bool deviceHas = HasValue(theirs);
  if (has != deviceHas) return has ? Match::OnlyOffline : Match::OnlyOnline;
  if (!has) return Match::NoValue;
  const bool same = offline.unit == online.unit &&
                    SameOnTheWire(ours.Value(), theirs.Value(), theirs.TypeInfo().TypeCode());
  return same ? Match::Equal : Match::Differs;
}

// As opposed to a value that the device cannot be asked for, or has refused.
bool IsUnread(const Variable& variable) {
  return variable.Validity() && !variable.Available() && !variable.ToBeWritten() &&
         variable.CheckHandling(ZAFHartTypes::AccessMode::Read) &&
         (variable.ErrorIndex() == 0 || TroubleOf(variable) == Trouble::Communication);
}

std::string Count(const std::vector<ComparedRow>& rows, Match match) {
  return std::to_string(
      std::ranges::count_if(rows, [match](const ComparedRow& row) { return row.match == match; }));
}

}  // namespace

ComparedRow Compare(VariableRow offline, VariableRow online) {
  const Match match = MatchOf(offline, online);
  return {std::move(offline), std::move(online), match};
}

ComparedRow CompareUnderWay(VariableRow offline, VariableRow online) {
  if (IsUnread(*online.variable)) return {std::move(offline), std::move(online), Match::NotRead};
  return Compare(std::move(offline), std::move(online));
}

bool IsDifference(Match match) {
  return match == Match::Differs || match == Match::OnlyOffline || match == Match::OnlyOnline;
}

std::string_view SignOf(Match match) {
  return WordsOf(match).sign;
}

std::string_view NameOf(Match match) {
  return WordsOf(match).name;
}

std::string MatchText(Match match, const Speech& speech) {
  return speech(WordsOf(match).text);
}

std::string StateText(const ComparedRow& row, const Speech& speech) {
  std::string text = MatchText(row.match, speech);
  if (row.offline.variable->ToBeWritten()) text += ", " + speech(Text::StateToBeWritten);
  if (!row.online.error.empty()) text += ", " + row.online.error;
  return text;
}

std::string SummaryOf(const std::vector<ComparedRow>& rows, const Speech& speech) {
  return speech(texts::kCompared, {Count(rows, Match::Equal), Count(rows, Match::Differs),
                                   Count(rows, Match::OnlyOffline), Count(rows, Match::OnlyOnline),
                                   Count(rows, Match::NotValid)});
}

}  // namespace hartframe
