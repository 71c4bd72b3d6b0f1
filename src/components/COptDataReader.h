#pragma once

#include <string>
#include <string_view>

#include "kernel/ICommandOptimization.h"
#include "platform/Object.h"
#include "workerdb/CDDWorkerDB.h"

namespace ZAFHartLib {

// Reads a DTM's optimisation file, "OptData.Ini" in a folder named after the component file, and
// hands its content to the kernel and the worker database. Empty lines and lines that begin with
// ";" are comments.
//
//   [STATICOBJECTS]      comma-separated names of items whose attributes never change
//   [ARRAYCOMMANDS]      command # transaction : item array , index variable
class COptDataReader : public platform::Object {
 public:
  // True, also when the file could not be read; whatever was wrong stands in the report then.
  bool ConfigureOptimization(ZAFHartTypes::IDDComponents& components);
  // One line per problem; "" for none.
  const std::string& ErrorReport() const { return report_; }

 private:
  enum class Section : std::uint8_t { None, StaticObjects, ArrayCommands };

  void Read(const std::string& file);
  void TakeLine(std::string_view line);
  void EnterSection(std::string_view header);
  void TakeStaticObjects(std::string_view names);
  void TakeArrayCommand(std::string_view line);
  void HandOver(ZAFHartTypes::IDDComponents& components);
  void ReportLine(std::string_view problem);

  std::string report_;
  std::int32_t lineNumber_ = 0;
  Section section_ = Section::None;
  NameSet staticObjects_;
  OptimizationTable arrayCommands_;
};

}  // namespace ZAFHartLib
