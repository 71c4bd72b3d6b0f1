#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace fuzz {

// A file of this process in a folder of its own, which goes with it. In memory where the system
// offers that: an input a file is too much for a disk.
class InputFile {
 public:
  explicit InputFile(std::string_view name) : path_(Folder() / name) {
    std::filesystem::create_directories(path_.parent_path());
  }
  ~InputFile() { std::filesystem::remove_all(Folder()); }
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;

  const std::filesystem::path& Path() const { return path_; }
  void Fill(std::string_view content) const {
    std::ofstream file(path_, std::ios::binary | std::ios::trunc);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
  }

  static std::filesystem::path Folder() {
    const std::filesystem::path memory = "/dev/shm";
    return (exists(memory) ? memory : std::filesystem::temp_directory_path()) /
           ("zaf_fuzz_" + std::to_string(getpid()));
  }

 private:
  std::filesystem::path path_;
};

}  // namespace fuzz
