#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Export.h"

namespace platform {

// A tree of keys addressed by full path ("\HKEY_LOCAL_MACHINE\SOFTWARE\…"), each with named text
// values and ordered subkeys. Paths and value names compare without regard to ASCII letter case.
// Lives in memory; text files bring it in and out.
//
// File form: "[path]" lines open a key, "name=value" lines set values of it, ";" starts a comment
// line. Blanks around names and values are trimmed; one pair of quotes around a value is taken off.
class ZAF_API Registry {
 public:
  // Also for a key without values that has subkeys.
  bool HasKey(std::string_view path) const;
  // Nothing when the key or the value is absent.
  std::optional<std::string> Value(std::string_view path, std::string_view name) const;
  // Creates the key (and the keys above it) when it is absent. Raises InvalidArgument for what a
  // file could not hold: line breaks, "]" in a path, an empty name, "=" in a name, blanks around
  // either.
  void SetValue(std::string_view path, std::string_view name, std::string value);
  // The same without a value; a key that is there stays as it is.
  void CreateKey(std::string_view path);
  // Names of the direct subkeys, in the order they were made; none when the key is absent.
  std::vector<std::string> Subkeys(std::string_view path) const;

  // Adds what a file holds. A line that is neither of the forms raises InvalidArgument naming file
  // and line, and nothing of the file is taken. A missing file raises FileNotFound.
  void Load(const std::filesystem::path& file);
  // Replaces the file atomically; PathFileAccess when it cannot be written.
  void Save(const std::filesystem::path& file) const;

 private:
  struct Key {
    std::string name;
    std::vector<std::pair<std::string, std::string>> values;
    std::vector<Key> subkeys;
  };
  const Key* Find(std::string_view path) const;
  Key& Make(std::string_view path);

  Key root_;
};

}  // namespace platform
