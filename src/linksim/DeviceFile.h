#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Export.h"

namespace HartLinkSim {

// The text file that an emulated device keeps its memory in.
//
//   ; a comment
//   [device]
//   tag=PT 101
//   upper_range_value=16
//   date=2026-11-24
//   message="a text with blanks at its end  "
//   [status]
//   device_status=0x40
//
// A text that begins or ends with a blank, begins with a quote or holds control characters stands
// in quotes, with \\, \", \n, \r, \t and \xNN in it. Names compare without regard to letter case.
class ZAF_API DeviceFile {
 public:
  // The sections there may be: values of variables, and the device's own state.
  static constexpr std::string_view kDeviceSection = "device";
  static constexpr std::string_view kStatusSection = "status";

  // A name=value line.
  struct Entry {
    std::string section;  // kDeviceSection or kStatusSection
    std::string name;
    std::string value;     // without quotes and escapes
    std::size_t line = 0;  // from 1
  };

  // Reads the file when there is one. Raises InvalidArgument for a line of another form, an unknown
  // section or a name that stands twice, naming file and line; PathFileAccess when it cannot be
  // read.
  explicit DeviceFile(std::filesystem::path file);

  // As it was given; there need not be such a file.
  const std::filesystem::path& Path() const { return file_; }
  // The name=value lines in file order.
  std::vector<Entry> Entries() const;
  // Replaces the value, or adds a line at the end of the section. All other lines stay as they are.
  void Set(std::string_view section, std::string_view name, std::string_view value);
  // Writes the file in one go; raises PathFileAccess naming file and reason.
  void Save() const;

  // Raises InvalidArgument for a name that cannot stand in front of "=": "", one with blanks at its
  // ends, with "=" or a control character, or one that begins like a comment or a section.
  static void RequireName(std::string_view name);
  // InvalidArgument about a line of this file.
  [[noreturn]] void RaiseAt(std::size_t line, const std::string& reason) const;

 private:
  struct Line {
    std::string text;     // as it stands in the file
    std::string section;  // that it belongs to; "" before the first
    std::string name;     // "" for all lines but name=value
    std::string value;
  };

  Line Parse(std::string text, const std::string& section, std::size_t number) const;
  void RequireFree(const Line& line, std::size_t number) const;
  std::string ParseSection(std::string_view text, std::size_t number) const;
  std::string Unquoted(std::string_view text, std::size_t number) const;
  std::size_t EndOfSection(std::string_view section);

  std::filesystem::path file_;
  std::vector<Line> lines_;
};

}  // namespace HartLinkSim
