#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "ddobjects/Codes.h"
#include "hartframe/Speech.h"
#include "types/Variant.h"

namespace hartframe {

// Whose data set it is.
struct DtmIdentity {
  std::string className;  // of the data model
  std::string component;  // file name of the DTM's component
  std::int32_t modelVersion = 1;
  // Of HART command 0, the values of "manufacturer_id" and "device_type"; nothing while no device
  // has told them.
  std::optional<std::int32_t> manufacturer;
  std::optional<std::int32_t> deviceType;
};

// A variable of a data set.
struct StoredVariable {
  std::string name;
  bool available = false;
  bool toBeWritten = false;
  ZAFHartTypes::TypeCode type = ZAFHartTypes::TypeCode::NotComputed;
  ZAFHartTypes::Variant value;
  int line = 0;  // of the file that it was read from
};

struct StoredDataSet {
  DtmIdentity dtm;
  std::string saved;  // UTC, "2026-11-25T03:04:05Z"
  // Where a file has the class and the version of the data model.
  int classLine = 1;
  int versionLine = 1;
  std::vector<StoredVariable> variables;
};

// A data set on disk: a text file of the sections DataSet (whose it is), Variables (a line each,
// "NAME=MARKS TYPE VALUE-TYPE VALUE") and End (their number and a checksum). MARKS is "aw", with
// "-" for what is not so: available, to be written. ";" starts a comment line. What is refused is
// told with file, line, reason and remedy, as a CommandFailure (FileBroken).
class DataSetFile {
 public:
  DataSetFile(std::filesystem::path path, const Speech& say) : path_(std::move(path)), say_(say) {}

  const std::filesystem::path& Path() const { return path_; }
  // Of a file that is not there: "plant.dataset.2" and so on.
  std::filesystem::path FreePathBeside() const;
  // Names another file; neither is touched.
  void MoveTo(std::filesystem::path path) { path_ = std::move(path); }
  bool Exists() const;
  StoredDataSet Load() const;
  // Replaces the file as a whole or leaves it as it was.
  void Save(const StoredDataSet& dataSet) const;
  // Ends with the failure that tells what is wrong with a line; `reason` and `remedy` are
  // sentences.
  [[noreturn]] void Refuse(int line, const std::string& reason, const std::string& remedy) const;

 private:
  std::filesystem::path path_;
  const Speech& say_;
};

}  // namespace hartframe
