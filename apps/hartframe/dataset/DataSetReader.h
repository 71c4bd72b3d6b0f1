#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "hartframe/dataset/DataSetFile.h"

namespace hartframe {

namespace data_set_file {
inline constexpr int kNewestFormat = 1;
inline constexpr std::string_view kFormat = "Format";
inline constexpr std::string_view kClass = "Class";
inline constexpr std::string_view kComponent = "Component";
inline constexpr std::string_view kModelVersion = "ModelVersion";
inline constexpr std::string_view kManufacturer = "Manufacturer";
inline constexpr std::string_view kDeviceType = "DeviceType";
inline constexpr std::string_view kSaved = "Saved";
inline constexpr std::string_view kCount = "Variables";
inline constexpr std::string_view kChecksum = "Checksum";
inline constexpr std::string_view kAnyChecksum = "none";  // of a file that somebody has edited

// FNV-1a, 64 bits, of all lines before the one with the checksum.
std::string Checksum(std::string_view content);
}  // namespace data_set_file

// Reads a data set file, whose time is linear in its length.
class DataSetReader {
 public:
  // `content` outlives the reader.
  DataSetReader(const DataSetFile& file, const Speech& say, std::string_view content);
  StoredDataSet Read();

 private:
  struct Line {
    std::string_view text;
    int number;
  };
  // "KEY=VALUE"
  struct Entry {
    std::string_view key;
    std::string_view value;
    int line;
  };

  void SplitLines(std::string_view content);
  void RequireEnd() const;
  void ReadHeader();
  void ReadHeaderEntry(const Entry& entry);
  void RequireKnownFormat(const Entry& entry) const;
  void ReadVariables();
  void ReadEnd();
  StoredVariable VariableOf(const Entry& entry) const;

  // The next line is "[name]", which is skipped.
  void SkipSection(std::string_view name);
  bool IsAtSection() const { return at_ < lines_.size() && lines_[at_].text.starts_with('['); }
  Entry NextEntry();
  std::int32_t NumberOf(const Entry& entry) const;
  [[noreturn]] void RefuseForm(int line) const;

  const DataSetFile& file_;
  const Speech& say_;
  std::string_view content_;
  std::vector<Line> lines_;  // without comments and empty ones
  std::size_t at_ = 0;
  int lastLine_ = 1;
  StoredDataSet dataSet_;
};

}  // namespace hartframe
