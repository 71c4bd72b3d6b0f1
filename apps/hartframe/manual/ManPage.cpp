#include "hartframe/manual/ManPage.h"

#include <sstream>

#include "hartframe/manual/CommandLineModel.h"
#include "platform/Version.h"

namespace hartframe {

namespace {

// Text as troff takes it: no hyphens for minus signs, no request at the start of a line.
std::string Escaped(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '\\') {
      escaped += "\\e";
    } else if (c == '-') {
      escaped += "\\-";
    } else {
      escaped += c;
    }
  }
  return escaped.starts_with('.') || escaped.starts_with('\'') ? "\\&" + escaped : escaped;
}

std::string Usage(const DocumentedCommand& command) {
  std::string usage = "\\fB" + Escaped(command.name) + "\\fR";
  for (const DocumentedOption& option : command.options) {
    if (!option.isArgument) continue;
    const std::string type = "\\fI" + Escaped(option.type) + "\\fR";
    usage += option.isRequired ? " " + type : " [" + type + "]";
  }
  return usage;
}

std::string Heading(const DocumentedOption& option) {
  if (option.isArgument) return "\\fI" + Escaped(option.type) + "\\fR";
  const std::string name = "\\fB" + Escaped(option.name) + "\\fR";
  return option.type.empty() ? name : name + " \\fI" + Escaped(option.type) + "\\fR";
}

void WriteOptions(std::ostream& page, const std::vector<DocumentedOption>& options) {
  for (const DocumentedOption& option : options) {
    page << ".TP\n" << Heading(option) << '\n' << Escaped(option.description) << '\n';
  }
}

void WriteCommands(std::ostream& page, const std::vector<DocumentedCommand>& commands) {
  for (const DocumentedCommand& command : commands) {
    page << ".SS " << Usage(command) << '\n' << Escaped(command.description) << ".\n";
    WriteOptions(page, command.options);
  }
}

// The lines that the help ends with: a heading, then a number and a text each.
void WriteExitCodes(std::ostream& page, const std::string& help) {
  std::istringstream lines(help);
  std::string heading;
  std::getline(lines, heading);
  page << ".SH EXIT STATUS\n";
  for (std::string line; std::getline(lines, line);) {
    const auto start = line.find_first_not_of(' ');
    if (start == std::string::npos) continue;
    const auto end = line.find(' ', start);
    page << ".TP\n" << line.substr(start, end - start) << '\n';
    page << Escaped(line.substr(line.find_first_not_of(' ', end))) << '\n';
  }
}

}  // namespace

std::string ManPage(const CLI::App& app) {
  std::ostringstream page;
  page << ".TH HARTFRAME 1 \"\" \"hartframe " ZAFHARTLIB_VERSION "\" \"User Commands\"\n"
       << ".SH NAME\nhartframe \\- " << Escaped(app.get_description()) << '\n'
       << ".SH SYNOPSIS\n.B hartframe\n[\\fIOPTIONS\\fR] \\fICOMMAND\\fR [\\fIARGUMENTS\\fR]\n"
       << ".SH OPTIONS\nThey may stand before and after the command.\n";
  WriteOptions(page, DocumentedOptions(app));
  page << ".SH COMMANDS\n";
  WriteCommands(page, DocumentedCommands(app));
  WriteExitCodes(page, app.get_footer());
  return page.str();
}

}  // namespace hartframe
