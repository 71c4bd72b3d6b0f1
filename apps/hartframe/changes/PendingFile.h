#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace hartframe {

struct PendingChange {
  std::string name;
  std::string value;  // as StoredText writes it
};

// Changes that could not be written yet, kept beside the device file so that a later run can write
// them: NAME=VALUE lines, ";" starts a comment; in values "\n", "\r" and "\\" stand for the
// characters. Without a path nothing is kept.
class PendingFile {
 public:
  explicit PendingFile(std::filesystem::path file) : file_(std::move(file)) {}

  bool Keeps() const { return !file_.empty(); }
  const std::filesystem::path& Path() const { return file_; }
  // Empty when there is no file. Raises CommandFailure (FileBroken) naming file, line and what is
  // wrong with it.
  std::vector<PendingChange> Load() const;
  // Replaces the file, or removes it when there are no changes. Raises CommandFailure (FileBroken).
  void Save(const std::vector<PendingChange>& changes) const;

 private:
  std::filesystem::path file_;
};

}  // namespace hartframe
