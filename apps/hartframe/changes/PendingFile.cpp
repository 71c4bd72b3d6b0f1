#include "hartframe/changes/PendingFile.h"

#include "hartframe/EscapedText.h"
#include "hartframe/ExitCode.h"
#include "platform/TextFile.h"
#include "types/Utf8.h"

namespace hartframe {

namespace {

[[noreturn]] void RefuseLine(const std::filesystem::path& file, int line, const std::string& why) {
  throw CommandFailure(ExitCode::FileBroken, "\"" + file.string() + "\", line " +
                                                 std::to_string(line) + ": " + why +
                                                 "; mend the file or delete it");
}

}  // namespace

std::vector<PendingChange> PendingFile::Load() const {
  std::vector<PendingChange> changes;
  std::error_code ignored;
  if (!Keeps() || !std::filesystem::exists(file_, ignored)) return changes;
  try {
    platform::TextReader reader(file_);
    for (int number = 1; const auto line = reader.ReadLine(); ++number) {
      if (line->empty() || line->starts_with(';')) continue;
      const auto equals = line->find('=');
      if (equals == std::string::npos || equals == 0) {
        RefuseLine(file_, number, "the line is not of the form NAME=VALUE");
      }
      if (!ZAFHartTypes::utf8::IsValid(*line)) RefuseLine(file_, number, "the line is not UTF-8");
      changes.push_back({line->substr(0, equals), Unescaped(line->substr(equals + 1))});
    }
  } catch (const CommandFailure&) {
    throw;
  } catch (const platform::Failure& failure) {
    throw CommandFailure(ExitCode::FileBroken, failure.Description());
  }
  return changes;
}

void PendingFile::Save(const std::vector<PendingChange>& changes) const {
  if (!Keeps()) return;
  if (changes.empty()) {
    std::error_code ignored;
    std::filesystem::remove(file_, ignored);
    return;
  }
  std::string content = "; Changes that are not written to the device yet.\n";
  for (const PendingChange& change : changes)
    content += change.name + '=' + Escaped(change.value) + '\n';
  try {
    platform::WriteFileAtomically(file_, content);
  } catch (const platform::Failure& failure) {
    throw CommandFailure(ExitCode::FileBroken, failure.Description());
  }
}

}  // namespace hartframe
