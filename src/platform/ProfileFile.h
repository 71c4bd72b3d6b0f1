#pragma once

#include <string>
#include <string_view>

// Private-profile INI files: "[section]" lines and "key=value" lines. Section and key names compare
// without regard to ASCII letter case, the first of several equal ones counts, blanks around keys
// and values are trimmed, ";" starts a comment line. File names may use "\" between folders.
namespace platform::profile {

// Every "key=value" line of the section, each followed by a NUL character, quotes around values as
// they stand. Empty for a missing file or section.
std::string ReadSection(std::string_view file, std::string_view section);

// The text of the key without one pair of quotes around it; `defaultText` without trailing blanks
// when file, section or key is absent. Cut to at most `maxLength` bytes, between characters.
std::string ReadKey(std::string_view file, std::string_view section, std::string_view key,
                    std::string_view defaultText, std::size_t maxLength = 65535);

// Sets the key, adding file, section and line when absent. Every other line stays as it was, and
// the file is replaced atomically. False when it cannot be written, or when section, key or value
// cannot stand in such a file (a line break, "]" in a section, "=" in a key, an empty key).
bool WriteKey(std::string_view file, std::string_view section, std::string_view key,
              std::string_view value);

}  // namespace platform::profile
