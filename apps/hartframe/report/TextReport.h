#pragma once

#include <map>
#include <utility>

#include "hartframe/Console.h"
#include "hartframe/Speech.h"
#include "hartframe/report/Report.h"

namespace hartframe {

// A message in lines: its title, and its text indented.
std::string MessageText(const ZAFHartTypes::UserMessage& message);

// Tables and sentences. Results go to standard output, messages and problems to standard error.
class TextReport : public Report {
 public:
  TextReport(Console& console, const Speech& speech) : console_(console), speech_(speech) {}

  void Message(const ZAFHartTypes::UserMessage& message) override;
  void Prompt(const ZAFHartTypes::UserMessage& message) override;
  void Answer(const std::string& answer) override;
  void Note(std::string_view code, const std::string& sentence) override;
  void Problem(std::string_view code, const std::string& sentence) override;
  void Variables(std::span<const VariableRow> rows) override;
  void Update(const VariableRow& row) override;
  void Event(std::string_view kind, const std::string& line, std::span<const Fact> facts) override;
  void WriteResults(std::span<const WriteResult> results) override;
  void Comparison(std::span<const ComparedRow> rows) override;
  void Pending(std::span<const VariableRow> rows) override;
  void Facts(std::string_view section, const std::string& title,
             std::span<const Fact> facts) override;
  void Menu(const MenuView& view) override;
  void Devices(std::span<const FoundDevice> devices) override;
  void Reply(const RawReply& reply) override;
  void Finish(ExitCode code) override;

 private:
  // A message of the DTM has said that.
  bool IsTold(const std::string& sentence) const;
  VariableRow Shown(VariableRow row) const;
  MenuRow Shown(MenuRow row) const;
  void MenuTable(const std::string& title, std::span<const MenuRow> rows);

  Console& console_;
  const Speech& speech_;
  std::map<std::pair<std::string, std::string>, int> messages_;  // how often each was shown
};

}  // namespace hartframe
