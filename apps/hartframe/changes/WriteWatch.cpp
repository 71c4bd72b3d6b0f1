#include "hartframe/changes/WriteWatch.h"

#include "types/TextKey.h"

namespace hartframe {

namespace {

using ZAFHartTypes::Definition;
using ZAFHartTypes::TypeCode;
using ZAFHartTypes::Variable;
using ZAFHartTypes::Variant;

std::string WithoutTrailingBlanks(std::string text) {
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

// The value is the device's: it was read back, whatever the write before it came to.
bool IsKnown(const Variable& variable) {
  constexpr auto kWriteFailed = static_cast<std::int32_t>(ZAFHartTypes::ItemIndex::CannotWrite);
  return variable.Available() && !variable.ToBeWritten() &&
         (variable.ErrorIndex() == 0 || variable.ErrorIndex() == kWriteFailed);
}

}  // namespace

bool SameOnTheWire(const Variant& a, const Variant& b, TypeCode code) {
  bool same = false;
  ZAFHartTypes::IgnoreFailures([&] {
    if (code == TypeCode::Float) {
      same = a.ToSingle() == b.ToSingle() || (a.IsNotFinite() && b.IsNotFinite());
    } else if (IsText(code)) {
      const std::string textA = WithoutTrailingBlanks(a.ToText());
      const std::string textB = WithoutTrailingBlanks(b.ToText());
      same = code == TypeCode::PackedAscii ? ZAFHartTypes::SameKey(textA, textB) : textA == textB;
    } else if (IsIntegral(code) || IsDate(code)) {
      same = a.ToBits32() == b.ToBits32();
    } else {
      same = a == b;
    }
  });
  return same;
}

WriteWatch::WriteWatch(Session& session, const std::vector<Definition>& variables)
    : session_(session) {
  session_.Errors().Forget();
  for (const Definition& definition : variables)
    meant_.push_back({definition, session_.Variable(definition)->Value()});
}

void WriteWatch::Expect(const Definition& variable, const Variant& value) {
  std::erase_if(meant_, [&](const Meant& meant) { return meant.definition.IsSameAs(variable); });
  meant_.push_back({variable, value});
}

std::vector<WriteResult> WriteWatch::Results() {
  std::vector<WriteResult> results;
  for (const Meant& meant : meant_) results.push_back(ResultOf(meant));
  return results;
}

WriteResult WriteWatch::ResultOf(const Meant& meant) {
  auto variable = session_.Variable(meant.definition);
  // One that is not valid would come back with a value in its place.
  if (!variable->Available() && !variable->ToBeWritten() && variable->Validity()) {
    session_.Run([&] { variable = session_.Kernel().ReadVariable(meant.definition); });
  }
  WriteResult result{MakeRow(variable, session_.Say()),
                     OutcomeOf(*variable, meant.value),
                     DisplayWithUnit(*variable, meant.value, session_.Say()),
                     {}};
  if (IsKnown(*variable))
    result.deviceHas = DisplayWithUnit(*variable, variable->Value(), session_.Say());
  return result;
}

Outcome WriteWatch::OutcomeOf(const Variable& variable, const Variant& meant) {
  if (variable.ToBeWritten()) return Outcome::NotAttempted;
  const Trouble trouble = session_.Errors().WriteTrouble(variable.Definition());
  if (trouble == Trouble::Communication) return Outcome::NoAnswer;
  if (trouble == Trouble::Refused) return Outcome::Refused;
  if (trouble == Trouble::Other) return Outcome::NotAccepted;
  if (TroubleOf(variable) == Trouble::Communication) return Outcome::NoAnswer;
  return SameOnTheWire(variable.Value(), meant, variable.TypeInfo().TypeCode()) ? Outcome::Written
                                                                                : Outcome::Adjusted;
}

void WriteWatch::RestoreUnanswered(const std::vector<WriteResult>& results) {
  for (std::size_t i = 0; i < results.size(); ++i) {
    if (results[i].outcome != Outcome::NoAnswer) continue;
    session_.Database().WriteValue(meant_[i].definition, meant_[i].value);
    session_.Database().SetVariableToBeWritten(meant_[i].definition, true);
  }
}

ExitCode ExitCodeOf(const std::vector<WriteResult>& results) {
  ExitCode code = ExitCode::Ok;
  for (const WriteResult& result : results) {
    switch (result.outcome) {
      case Outcome::Written:
      case Outcome::Adjusted:
        break;
      case Outcome::NotAccepted:
        code = Worse(code, ExitCode::ValueRefused);
        break;
      case Outcome::Refused:
        code = Worse(code, ExitCode::DeviceRefused);
        break;
      case Outcome::NoAnswer:
      case Outcome::NotAttempted:
        code = Worse(code, ExitCode::Communication);
        break;
    }
  }
  return code;
}

}  // namespace hartframe
