#include "platform/TextFile.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <iterator>
#include <memory>
#include <system_error>

#include "platform/Failure.h"

namespace platform {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

[[noreturn]] void Raise(ErrorNumber number, const char* source, const fs::path& file,
                        const std::string& reason) {
  throw Failure(number, source,
                std::string(StandardText(number)) + ": \"" + file.string() + "\": " + reason);
}

std::string LastErrorText() {
  return std::generic_category().message(errno);
}

using OpenFile = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

// Creates the file; nothing when there is one of that name.
OpenFile CreateNew(const fs::path& file) {
  return {std::fopen(file.c_str(), "wxb"), [](std::FILE* stream) { return std::fclose(stream); }};
}

// A file name beside `file` that nobody uses, with its open stream.
std::pair<fs::path, OpenFile> CreateBeside(const fs::path& file, const char* source) {
  static std::atomic<unsigned> counter{0};
  while (true) {
    fs::path name = file;
    name += ".new" + std::to_string(++counter);
    OpenFile stream = CreateNew(name);
    if (stream) return {std::move(name), std::move(stream)};
    if (errno != EEXIST) Raise(ErrorNumber::PathFileAccess, source, file, LastErrorText());
  }
}

// Writes and closes; false with errno set when not everything arrived.
bool WriteAll(OpenFile stream, std::string_view content) {
  const bool written =
      std::fwrite(content.data(), 1, content.size(), stream.get()) == content.size();
  const int error = errno;
  if (std::fclose(stream.release()) != 0) return false;
  errno = error;
  return written;
}

// Opens a file that must be there; raises what TextReader's constructor does.
std::ifstream OpenToRead(const fs::path& file, const char* source) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (status.type() == fs::file_type::not_found) {
    Raise(ErrorNumber::FileNotFound, source, file, "there is no such file");
  }
  if (fs::is_directory(status)) Raise(ErrorNumber::PathFileAccess, source, file, "it is a folder");
  std::ifstream stream(file, std::ios::binary);
  if (!stream) Raise(ErrorNumber::PathFileAccess, source, file, LastErrorText());
  return stream;
}

}  // namespace

fs::path SystemPath(std::string_view path) {
  std::string text(path);
  std::replace(text.begin(), text.end(), '\\', '/');
  return text;
}

TextReader::TextReader(const fs::path& file)
    : file_(file), stream_(OpenToRead(file, "TextReader")) {}

std::optional<std::string> TextReader::ReadLine() {
  std::string line;
  if (!std::getline(stream_, line)) {
    if (stream_.bad()) Raise(ErrorNumber::PathFileAccess, "TextReader", file_, LastErrorText());
    return std::nullopt;
  }
  if (first_ && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
  first_ = false;
  if (line.ends_with('\r')) line.pop_back();
  return line;
}

std::string ReadWholeFile(const fs::path& file) {
  std::ifstream stream = OpenToRead(file, "ReadWholeFile");
  std::string content{std::istreambuf_iterator<char>(stream), {}};
  if (stream.bad()) Raise(ErrorNumber::PathFileAccess, "ReadWholeFile", file, LastErrorText());
  return content;
}

void WriteFileAtomically(const fs::path& file, std::string_view content) {
  constexpr const char* kSource = "WriteFileAtomically";
  std::error_code error;
  // Through a link, so that the link stays.
  const fs::path target = fs::is_symlink(file, error) ? fs::weakly_canonical(file, error) : file;
  const fs::file_status old = fs::status(target, error);
  constexpr fs::perms kAnyWrite =
      fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  if (fs::exists(old) && (old.permissions() & kAnyWrite) == fs::perms::none) {
    Raise(ErrorNumber::PathFileAccess, kSource, file, "the file is read-only");
  }

  auto [temporary, stream] = CreateBeside(target, kSource);
  std::string reason;
  if (!WriteAll(std::move(stream), content)) {
    reason = LastErrorText();
  } else {
    error.clear();
    if (fs::exists(old)) fs::permissions(temporary, old.permissions(), error);
    if (!error) fs::rename(temporary, target, error);
    if (error) reason = error.message();
  }
  if (reason.empty()) return;
  fs::remove(temporary, error);
  Raise(ErrorNumber::PathFileAccess, kSource, file, reason);
}

}  // namespace platform
