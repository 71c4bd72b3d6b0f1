#include "hartframe/dataset/DataSetReader.h"

#include <charconv>
#include <unordered_map>

#include "hartframe/EscapedText.h"
#include "hartframe/dataset/DataSetTexts.h"
#include "hartframe/dataset/StoredValue.h"
#include "types/TextKey.h"
#include "types/Utf8.h"

namespace hartframe {

std::string data_set_file::Checksum(std::string_view content) {
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const char c : content) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
  char digits[16];
  const auto [end, error] = std::to_chars(std::begin(digits), std::end(digits), hash, 16);
  return {std::begin(digits), end};
}

using namespace data_set_file;

DataSetReader::DataSetReader(const DataSetFile& file, const Speech& say, std::string_view content)
    : file_(file), say_(say), content_(content) {
  SplitLines(content);
}

StoredDataSet DataSetReader::Read() {
  RequireEnd();
  ReadHeader();
  ReadVariables();
  ReadEnd();
  return std::move(dataSet_);
}

void DataSetReader::SplitLines(std::string_view content) {
  for (int number = 1; !content.empty(); ++number) {
    const auto end = content.find('\n');
    std::string_view line = content.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (!line.empty() && !line.starts_with(';')) lines_.push_back({line, number});
    lastLine_ = number;
    if (end == std::string_view::npos) break;
    content.remove_prefix(end + 1);
  }
}

// Looked at first: what follows a cut is no fault of the line before it.
void DataSetReader::RequireEnd() const {
  if (lines_.empty() || lines_.front().text != "[DataSet]") {
    file_.Refuse(lines_.empty() ? 1 : lines_.front().number, say_(texts::kNotADataSet),
                 say_(texts::kChooseAnother));
  }
  if (!lines_.back().text.starts_with(kChecksum) || !content_.ends_with('\n'))
    file_.Refuse(lastLine_, say_(texts::kCutOff), say_(texts::kTakeIntact));
}

void DataSetReader::ReadHeader() {
  SkipSection("[DataSet]");
  RequireKnownFormat(NextEntry());
  while (!IsAtSection()) ReadHeaderEntry(NextEntry());
}

void DataSetReader::ReadHeaderEntry(const Entry& entry) {
  DtmIdentity& dtm = dataSet_.dtm;
  if (entry.key == kClass) {
    dtm.className = Unescaped(entry.value);
    dataSet_.classLine = entry.line;
  } else if (entry.key == kComponent) {
    dtm.component = Unescaped(entry.value);
  } else if (entry.key == kModelVersion) {
    dtm.modelVersion = NumberOf(entry);
    dataSet_.versionLine = entry.line;
  } else if (entry.key == kManufacturer) {
    dtm.manufacturer = NumberOf(entry);
  } else if (entry.key == kDeviceType) {
    dtm.deviceType = NumberOf(entry);
  } else if (entry.key == kSaved) {
    dataSet_.saved = entry.value;
  } else {
    RefuseForm(entry.line);
  }
}

// The first entry: what follows it may be of another form in a later format.
void DataSetReader::RequireKnownFormat(const Entry& entry) const {
  if (entry.key != kFormat) RefuseForm(entry.line);
  const std::int32_t format = NumberOf(entry);
  if (format < 1) RefuseForm(entry.line);
  if (format <= kNewestFormat) return;
  file_.Refuse(entry.line,
               say_(texts::kNewerFormat, {std::to_string(format), std::to_string(kNewestFormat)}),
               say_(texts::kTakeNewerProgram));
}

void DataSetReader::ReadVariables() {
  SkipSection("[Variables]");
  std::unordered_map<std::string, int> known;  // by folded name
  while (!IsAtSection()) {
    const Entry entry = NextEntry();
    dataSet_.variables.push_back(VariableOf(entry));
    const auto [first, isNew] = known.emplace(ZAFHartTypes::FoldCase(entry.key), entry.line);
    if (isNew) continue;
    file_.Refuse(entry.line,
                 say_(texts::kTwice, {OneLine(entry.key), std::to_string(first->second)}),
                 say_(texts::kMendLine));
  }
}

StoredVariable DataSetReader::VariableOf(const Entry& entry) const {
  const std::string_view text = entry.value;
  const auto marks = text.substr(0, 3);
  if (marks.size() < 3 || (marks[0] != 'a' && marks[0] != '-') ||
      (marks[1] != 'w' && marks[1] != '-') || marks[2] != ' ')
    RefuseForm(entry.line);
  const auto blank = text.find(' ', 3);
  if (blank == std::string_view::npos) RefuseForm(entry.line);
  const auto type = ReadTypeWord(text.substr(3, blank - 3));
  if (!type) RefuseForm(entry.line);
  auto value = ReadStoredValue(text.substr(blank + 1));
  if (!value) {
    file_.Refuse(entry.line,
                 say_(texts::kNoValue, {OneLine(entry.key), OneLine(text.substr(blank + 1))}),
                 say_(texts::kTakeIntact));
  }
  return {std::string(entry.key), marks[0] == 'a', marks[1] == 'w', *type,
          std::move(*value),      entry.line};
}

void DataSetReader::ReadEnd() {
  SkipSection("[End]");
  const Entry count = NextEntry();
  const Entry checksum = NextEntry();
  if (count.key != kCount || checksum.key != kChecksum || at_ != lines_.size())
    RefuseForm(count.line);
  if (checksum.value == kAnyChecksum) return;
  const auto before = static_cast<std::size_t>(checksum.key.data() - content_.data());
  if (NumberOf(count) == static_cast<std::int32_t>(dataSet_.variables.size()) &&
      checksum.value == Checksum(content_.substr(0, before)))
    return;
  file_.Refuse(checksum.line, say_(texts::kDamaged), say_(texts::kAcceptEdited));
}

void DataSetReader::SkipSection(std::string_view name) {
  if (at_ == lines_.size()) RefuseForm(lastLine_);
  if (lines_[at_].text != name) RefuseForm(lines_[at_].number);
  ++at_;
}

DataSetReader::Entry DataSetReader::NextEntry() {
  if (at_ == lines_.size()) RefuseForm(lastLine_);
  const Line& line = lines_[at_++];
  const auto equals = line.text.find('=');
  if (equals == std::string_view::npos || equals == 0 || !ZAFHartTypes::utf8::IsValid(line.text))
    RefuseForm(line.number);
  return {line.text.substr(0, equals), line.text.substr(equals + 1), line.number};
}

std::int32_t DataSetReader::NumberOf(const Entry& entry) const {
  std::int32_t number = 0;
  const char* const last = entry.value.data() + entry.value.size();
  const auto [end, error] = std::from_chars(entry.value.data(), last, number);
  if (error != std::errc{} || end != last) RefuseForm(entry.line);
  return number;
}

void DataSetReader::RefuseForm(int line) const {
  std::string_view text;
  for (const Line& known : lines_) {
    if (known.number == line) text = known.text;
  }
  file_.Refuse(line, say_(texts::kBrokenLine, {OneLine(text)}), say_(texts::kTakeIntact));
}

}  // namespace hartframe
