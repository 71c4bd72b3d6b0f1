#include "components/COptDataReader.h"

#include <charconv>
#include <limits>

#include "interfaces/IDDComponents.h"
#include "kernel/CHARTKernel.h"
#include "kernel/COptCommandData.h"
#include "platform/AsciiText.h"
#include "platform/TextFile.h"
#include "types/Failure.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

constexpr const char* kLineBreak = "\r\n";

std::string OptimizationFile(const IDDComponents& components) {
  const auto information = components.KernelInformation();
  if (!information) {
    throw Failure(ErrorNumber::ObjectNotSet, "COptDataReader",
                  "The component model has no kernel information to tell the file's folder.");
  }
  std::string path = information->ComponentFolder() + "\\" + information->ComponentFileName();
  path.resize(std::min(path.rfind('.'), path.size()));
  return path + "\\OptData.Ini";
}

// Takes what stands in front of `separator`, and the separator, off `rest`. False without one.
bool TakeField(std::string_view& rest, char separator, std::string_view& field) {
  const std::size_t end = rest.find(separator);
  if (end == std::string_view::npos) return false;
  field = platform::Trim(rest.substr(0, end));
  rest.remove_prefix(end + 1);
  return true;
}

// The number that the text begins with, 0 when it begins with none.
std::int32_t LeadingNumber(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  std::int32_t number = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
  if (read.ec != std::errc::result_out_of_range) return number;
  return text.starts_with('-') ? std::numeric_limits<std::int32_t>::min()
                               : std::numeric_limits<std::int32_t>::max();
}

}  // namespace

bool COptDataReader::ConfigureOptimization(IDDComponents& components) {
  try {
    Read(OptimizationFile(components));
  } catch (const Failure& failure) {
    report_ += failure.Source() + " - " + failure.Description() + kLineBreak;
  }
  HandOver(components);
  return true;
}

void COptDataReader::Read(const std::string& file) {
  section_ = Section::None;
  lineNumber_ = 0;
  platform::TextReader reader(platform::SystemPath(file));
  while (const auto line = reader.ReadLine()) {
    ++lineNumber_;
    TakeLine(platform::Trim(*line));
  }
}

void COptDataReader::TakeLine(std::string_view line) {
  if (line.empty() || line.front() == ';') return;
  if (line.front() == '[') {
    EnterSection(line);
  } else if (section_ == Section::StaticObjects) {
    TakeStaticObjects(line);
  } else if (section_ == Section::ArrayCommands) {
    TakeArrayCommand(line);
  }
}

void COptDataReader::EnterSection(std::string_view header) {
  if (header.size() <= 2) return;
  const std::string_view name = platform::Trim(header.substr(1, header.size() - 2));
  section_ = platform::EqualsNoCase(name, "STATICOBJECTS")   ? Section::StaticObjects
             : platform::EqualsNoCase(name, "ARRAYCOMMANDS") ? Section::ArrayCommands
                                                             : Section::None;
}

void COptDataReader::TakeStaticObjects(std::string_view names) {
  const std::string all = std::string(names) + ",";
  std::string_view rest = all;
  for (std::string_view name; TakeField(rest, ',', name);) {
    if (name.empty()) {
      ReportLine(platform::StandardText(ErrorNumber::InvalidProcedureCall));
    } else if (!staticObjects_.insert(TextKey::Of(name)).second) {
      ReportLine(platform::StandardText(ErrorNumber::DuplicateKey));
    }
  }
}

void COptDataReader::TakeArrayCommand(std::string_view line) {
  // The first of each counts, in this order; npos is behind every position.
  const std::size_t hash = line.find('#');
  const std::size_t colon = line.find(':');
  const std::size_t comma = line.find(',');
  if (hash >= colon || colon >= comma || comma >= line.size()) {
    ReportLine(" wrong format");
    return;
  }
  const auto field = [line](std::size_t from, std::size_t end) {
    return platform::Trim(line.substr(from, end - from));
  };
  const std::string_view command = field(0, hash);
  const std::string_view transaction = field(hash + 1, colon);
  const std::string_view array = field(colon + 1, comma);
  const std::string_view arrayIndex = field(comma + 1, line.size());
  const std::int32_t number = LeadingNumber(transaction);
  if (command.empty() || array.empty() || arrayIndex.empty() || number < 0) {
    ReportLine(" attribute missing");
    return;
  }
  const auto record = std::make_shared<COptCommandData>();
  record->Initialize(std::string(command), number, std::string(array), std::string(arrayIndex));
  arrayCommands_.push_back(record);
}

void COptDataReader::HandOver(IDDComponents& components) {
  if (const auto database = std::dynamic_pointer_cast<CDDWorkerDB>(components.DDWorkerDB())) {
    database->SetStaticAttributeNames(std::move(staticObjects_));
  } else {
    report_ += "Wrong private object. Static objects list could not be stored.";
    report_ += kLineBreak;
  }
  if (const auto kernel = std::dynamic_pointer_cast<CHARTKernel>(components.DDKernel())) {
    kernel->SetOptimizationTable(std::move(arrayCommands_));
  } else {
    report_ += "Wrong private object. Array commands list could not be stored.";
    report_ += kLineBreak;
  }
}

void COptDataReader::ReportLine(std::string_view problem) {
  report_ += "Line " + std::to_string(lineNumber_) + ":";
  report_ += problem;
  report_ += kLineBreak;
}

}  // namespace ZAFHartLib
