#pragma once

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Export.h"

namespace platform {

// Paths from INI and optimisation data separate folders by "\"; the system's way instead.
ZAF_API std::filesystem::path SystemPath(std::string_view path);

// Reads a text file line by line (CR LF or LF; a byte order mark at the start is skipped).
class ZAF_API TextReader {
 public:
  // Raises FileNotFound or PathFileAccess; the description names the file.
  explicit TextReader(const std::filesystem::path& file);
  // The next line without its end; nothing at the end of the file. Raises PathFileAccess when the
  // file cannot be read on.
  std::optional<std::string> ReadLine();

 private:
  std::filesystem::path file_;
  std::ifstream stream_;
  bool first_ = true;
};

// The bytes of a file. Raises as TextReader does.
ZAF_API std::string ReadWholeFile(const std::filesystem::path& file);

// Writes a new file beside the old one and renames it over it, so that the old one stays whole when
// anything fails. Permissions and a symbolic link stay. Raises PathFileAccess naming the file and
// the reason, also for a file that nobody may write.
ZAF_API void WriteFileAtomically(const std::filesystem::path& file, std::string_view content);

}  // namespace platform
