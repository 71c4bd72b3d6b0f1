#pragma once

#include <span>
#include <string>
#include <string_view>

#include "hartframe/ExitCode.h"
#include "hartframe/dataset/Comparison.h"
#include "hartframe/link/LinkResults.h"
#include "hartframe/menus/MenuView.h"
#include "hartframe/values/VariableRow.h"
#include "interfaces/IDDDTMGUI.h"

namespace hartframe {

// What became of a change.
enum class Outcome { Written, Adjusted, Refused, NotAccepted, NoAnswer, NotAttempted };

struct WriteResult {
  VariableRow row;  // as it is after the write
  Outcome outcome = Outcome::Written;
  std::string meant;      // display text with unit
  std::string deviceHas;  // the same; "" when it is not known
};

// A fact that info tells.
struct Fact {
  std::string key;  // for machines
  std::string label;
  std::string value;
};

// Where a run tells what happens: text for people, or one JSON document for machines.
class Report {
 public:
  virtual ~Report() = default;

  // A message of the DTM, translated already. One that repeats may be counted only.
  virtual void Message(const ZAFHartTypes::UserMessage& message) = 0;
  // A message of a method to its user, and the answer that it got.
  virtual void Prompt(const ZAFHartTypes::UserMessage& message) = 0;
  virtual void Answer(const std::string& answer) = 0;
  // A sentence for the user, and one about what went wrong. `code` names it for machines.
  virtual void Note(std::string_view code, const std::string& sentence) = 0;
  virtual void Problem(std::string_view code, const std::string& sentence) = 0;
  virtual void Variables(std::span<const VariableRow> rows) = 0;
  // One update of a watched variable.
  virtual void Update(const VariableRow& row) = 0;
  // What happens while the run goes on, told at once: a line for people, of a kind and with facts
  // for machines. The labels of the facts are not used.
  virtual void Event(std::string_view kind, const std::string& line,
                     std::span<const Fact> facts) = 0;
  virtual void WriteResults(std::span<const WriteResult> results) = 0;
  // Both sides of a pair, variable by variable.
  virtual void Comparison(std::span<const ComparedRow> rows) = 0;
  // Changes that are still to be written.
  virtual void Pending(std::span<const VariableRow> rows) = 0;
  // `section` names the group for machines, `title` for people.
  virtual void Facts(std::string_view section, const std::string& title,
                     std::span<const Fact> facts) = 0;
  virtual void Menu(const MenuView& view) = 0;
  // Who answered a scan, and the answer to a raw command.
  virtual void Devices(std::span<const FoundDevice> devices) = 0;
  virtual void Reply(const RawReply& reply) = 0;
  // The end of the run; nothing comes after it.
  virtual void Finish(ExitCode code) = 0;
};

}  // namespace hartframe
