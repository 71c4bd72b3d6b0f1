#include "debugger/Summary.h"

#include <algorithm>

#include "debugger/Texts.h"
#include "debugger/TraceLanguage.h"
#include "text/LangText.h"
#include "types/Utf8.h"

namespace ZAFHartDebugger {

namespace {

namespace utf8 = ZAFHartTypes::utf8;
using Row = std::vector<std::string>;

std::string RightAligned(const std::string& text, std::size_t width) {
  const std::size_t length = utf8::Length(text);
  return std::string(length < width ? width - length : 0, ' ') + text;
}

// The first column left, the others right-aligned.
std::vector<std::string> TableLines(const std::vector<Row>& rows) {
  std::vector<std::size_t> widths(rows.front().size());
  for (const Row& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i)
      widths[i] = std::max(widths[i], utf8::Length(row[i]));
  }
  std::vector<std::string> lines;
  for (const Row& row : rows) {
    std::string line = row.front() + std::string(widths.front() - utf8::Length(row.front()), ' ');
    for (std::size_t i = 1; i < row.size(); ++i) line += "  " + RightAligned(row[i], widths[i]);
    lines.push_back(line);
  }
  return lines;
}

Row CommandRow(const std::string& name, const CommandFigures& figures) {
  const std::int64_t count = std::max<std::int64_t>(figures.count, 1);
  return {name,
          std::to_string(figures.count),
          DurationText(figures.total / count),
          DurationText(figures.longest),
          std::to_string(figures.sentBytes),
          std::to_string(figures.receivedBytes),
          std::to_string(figures.withoutReply),
          std::to_string(figures.withCode)};
}

class Summary {
 public:
  Summary(const Statistics& statistics, std::size_t top, const std::string& language)
      : statistics_(statistics), top_(top), language_(language) {}

  std::vector<std::string> Lines() {
    AddCommands();
    AddOperations();
    AddComputations();
    return std::move(lines_);
  }

 private:
  std::string Say(const char* text) const { return ZAFHartLib::LangText(text, language_); }

  void AddCommands() {
    if (statistics_.Commands().empty()) return;
    Row heading;
    for (const char* text : {texts::kCommands, texts::kCount, texts::kMean, texts::kLongest,
                             texts::kSent, texts::kReceived, texts::kNoReply, texts::kWithCode})
      heading.push_back(Say(text));
    std::vector<Row> rows{heading};
    for (const auto& [number, figures] : statistics_.Commands())
      rows.push_back(CommandRow("  #" + std::to_string(number), figures));
    rows.push_back(CommandRow("  " + Say(texts::kAll), statistics_.AllCommands()));
    for (std::string& line : TableLines(rows)) lines_.push_back(std::move(line));
  }

  void AddOperations() {
    if (statistics_.Slowest().empty()) return;
    lines_.push_back(Say(texts::kSlowest));
    for (const OperationTime& operation : statistics_.Slowest()) {
      lines_.push_back("  " + DurationText(operation.duration) + "  " +
                       utf8::OneLine(InLanguage(operation.title, language_)));
    }
  }

  void AddComputations() {
    const auto computations = statistics_.Computations();
    if (computations.empty()) return;
    std::int64_t total = 0;
    for (const auto& [object, count] : computations) total += count;
    lines_.push_back(Say(texts::kComputations) + ": " + std::to_string(total));
    const std::size_t shown = std::min(top_, computations.size());
    for (std::size_t i = 0; i < shown; ++i) {
      lines_.push_back("  " + RightAligned(std::to_string(computations[i].second), kDurationWidth) +
                       "  " + utf8::OneLine(computations[i].first));
    }
    const std::size_t more = computations.size() - shown;
    if (more > 0) lines_.push_back("  … " + std::to_string(more) + " " + Say(texts::kMore));
  }

  const Statistics& statistics_;
  std::size_t top_;
  const std::string& language_;
  std::vector<std::string> lines_;
};

}  // namespace

std::vector<std::string> SummaryLines(const Statistics& statistics, std::size_t top,
                                      const std::string& language) {
  return Summary(statistics, top, language).Lines();
}

}  // namespace ZAFHartDebugger
