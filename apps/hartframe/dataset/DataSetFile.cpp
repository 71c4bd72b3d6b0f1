#include "hartframe/dataset/DataSetFile.h"

#include "hartframe/EscapedText.h"
#include "hartframe/ExitCode.h"
#include "hartframe/dataset/DataSetReader.h"
#include "hartframe/dataset/DataSetTexts.h"
#include "hartframe/dataset/StoredValue.h"
#include "platform/TextFile.h"

namespace hartframe {

namespace {

void AddEntry(std::string& content, std::string_view key, std::string_view value) {
  content.append(key).append("=").append(value).append("\n");
}

void AddEntry(std::string& content, std::string_view key,
              const std::optional<std::int32_t>& value) {
  if (value) AddEntry(content, key, std::to_string(*value));
}

void AddVariable(std::string& content, const StoredVariable& variable) {
  content.append(variable.name).append(variable.available ? "=a" : "=-");
  content.append(variable.toBeWritten ? "w " : "- ").append(TypeWord(variable.type));
  content.append(" ").append(StoredValueText(variable.value)).append("\n");
}

std::string ContentOf(const StoredDataSet& dataSet) {
  const DtmIdentity& dtm = dataSet.dtm;
  std::string content = "; A data set of hartframe, with passwords in clear.\n[DataSet]\n";
  AddEntry(content, data_set_file::kFormat, std::to_string(data_set_file::kNewestFormat));
  AddEntry(content, data_set_file::kClass, Escaped(dtm.className));
  AddEntry(content, data_set_file::kComponent, Escaped(dtm.component));
  AddEntry(content, data_set_file::kModelVersion, std::to_string(dtm.modelVersion));
  AddEntry(content, data_set_file::kManufacturer, dtm.manufacturer);
  AddEntry(content, data_set_file::kDeviceType, dtm.deviceType);
  AddEntry(content, data_set_file::kSaved, dataSet.saved);
  content += "[Variables]\n";
  for (const StoredVariable& variable : dataSet.variables) AddVariable(content, variable);
  content += "[End]\n";
  AddEntry(content, data_set_file::kCount, std::to_string(dataSet.variables.size()));
  AddEntry(content, data_set_file::kChecksum, data_set_file::Checksum(content));
  return content;
}

}  // namespace

bool DataSetFile::Exists() const {
  std::error_code ignored;
  return std::filesystem::exists(path_, ignored);
}

std::filesystem::path DataSetFile::FreePathBeside() const {
  for (int number = 2;; ++number) {
    const DataSetFile beside(path_.string() + "." + std::to_string(number), say_);
    if (!beside.Exists()) return beside.path_;
  }
}

StoredDataSet DataSetFile::Load() const {
  std::string content;
  try {
    content = platform::ReadWholeFile(path_);
  } catch (const platform::Failure& failure) {
    throw CommandFailure(ExitCode::FileBroken, failure.Description());
  }
  return DataSetReader(*this, say_, content).Read();
}

void DataSetFile::Save(const StoredDataSet& dataSet) const {
  const std::string content = ContentOf(dataSet);
  try {
    platform::WriteFileAtomically(path_, content);
  } catch (const platform::Failure& failure) {
    throw CommandFailure(ExitCode::FileBroken, say_(texts::kCannotSave, {failure.Description()}));
  }
}

void DataSetFile::Refuse(int line, const std::string& reason, const std::string& remedy) const {
  throw CommandFailure(
      ExitCode::FileBroken,
      say_(texts::kFileLine, {OneLine(path_.string()), std::to_string(line), reason, remedy}));
}

}  // namespace hartframe
