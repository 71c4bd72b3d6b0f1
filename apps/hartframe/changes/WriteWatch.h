#pragma once

#include <vector>

#include "hartframe/Session.h"

namespace hartframe {

// Remembers what variables are meant to be in the device before a write, and tells afterwards what
// became of each.
class WriteWatch {
 public:
  WriteWatch(Session& session, const std::vector<ZAFHartTypes::Definition>& variables);

  // The variable as well, or with this value.
  void Expect(const ZAFHartTypes::Definition& variable, const ZAFHartTypes::Variant& value);
  // In the order of the variables. Reads back what the write has left unknown.
  std::vector<WriteResult> Results();
  // Marks what the device did not answer to as still to be written, with the value that was meant.
  void RestoreUnanswered(const std::vector<WriteResult>& results);

 private:
  struct Meant {
    ZAFHartTypes::Definition definition;
    ZAFHartTypes::Variant value;
  };
  WriteResult ResultOf(const Meant& meant);
  Outcome OutcomeOf(const ZAFHartTypes::Variable& variable, const ZAFHartTypes::Variant& meant);

  Session& session_;
  std::vector<Meant> meant_;
};

// The two are one value for a device: a float has 32 bits on the wire (what is none is one whatever
// its bits), integers are signed or not, texts are padded with blanks, and Packed ASCII has
// capitals only.
bool SameOnTheWire(const ZAFHartTypes::Variant& a, const ZAFHartTypes::Variant& b,
                   ZAFHartTypes::TypeCode code);
// What a script learns from the outcomes.
ExitCode ExitCodeOf(const std::vector<WriteResult>& results);

}  // namespace hartframe
