#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace hartframe {

// What the command line says about traces.
struct TraceOptions {
  std::optional<int> level;  // highest level of lines; nothing: no trace
  std::optional<int> depth;  // operations shown; nothing: as many as the level
  int detail = 1;            // of objects
  int top = 10;              // entries of each list of the summary; 0: none
  std::string filter;
  std::filesystem::path file;  // empty: standard error
  std::vector<std::string> breaks;
  std::vector<std::string> watched;

  // Something is to be traced.
  bool IsOn() const { return level || !breaks.empty() || !watched.empty(); }
};

void AddTraceOptions(CLI::App& app, TraceOptions& options);
// Raises a CLI::ValidationError for what does not go with a screen.
void CheckTraceBesideScreen(const TraceOptions& options);

}  // namespace hartframe
