#pragma once

#include <nlohmann/json.hpp>

#include "hartframe/Console.h"
#include "hartframe/Options.h"
#include "hartframe/report/Report.h"

namespace hartframe {

// Collects one JSON document and prints it at the end; the updates of watch come as a line of JSON
// each before it, and the document then takes one line as well. Field names are English and stay;
// texts are in the user's language.
class JsonReport : public Report {
 public:
  JsonReport(Console& console, const Options& options);

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
  Console& console_;
  nlohmann::ordered_json document_;
  int indent_ = 2;
};

}  // namespace hartframe
