#pragma once

#include <array>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "ddobjects/Command.h"
#include "ddobjects/DefinitionList.h"
#include "interfaces/IDDDTMGUI.h"
#include "interfaces/IDDDebugTracer.h"

namespace ZAFHartLib {

// Tags of an operation's input lines.
namespace trace_tag {
inline constexpr std::string_view kDef = "> Def: ";
inline constexpr std::string_view kVal = "> Val: ";
inline constexpr std::string_view kCmd = "> Cmd: ";
inline constexpr std::string_view kTno = "> Tno: ";
inline constexpr std::string_view kTrans = "> Trans: ";
inline constexpr std::string_view kReq = "> Req: ";
inline constexpr std::string_view kObj = "> Obj: ";
inline constexpr std::string_view kMenu = "> Menu: ";
inline constexpr std::string_view kEdDis = "> EdDis: ";
inline constexpr std::string_view kMthd = "> Mthd: ";
inline constexpr std::string_view kContext = "> Context: ";
inline constexpr std::string_view kInAbort = "> InAbort: ";
inline constexpr std::string_view kIsEntered = "> IsEntered: ";
inline constexpr std::string_view kWriteAsOne = "> WriteAsOne: ";
inline constexpr std::string_view kVar = "> Var: ";
inline constexpr std::string_view kIdx = "> Idx: ";
inline constexpr std::string_view kPrev = "> Prev: ";
inline constexpr std::string_view kNoPrev = "> Prev = Nothing";
}  // namespace trace_tag

// The trace level of one running operation. It opens the level on construction and keeps the inputs
// as values; texts are built only when somebody reads them. Release closes the level; without it
// (the operation fails) the texts merge into the caller's entry.
class TraceScope : public ZAFHartTypes::ITracedOperation {
 public:
  // An input's value; monostate for an input line that is its tag alone. Lists must outlive the
  // scope.
  using Value =
      std::variant<std::monostate, ZAFHartTypes::Definition, ZAFHartTypes::Variant,
                   std::shared_ptr<ZAFHartTypes::DDObject>,
                   std::shared_ptr<ZAFHartTypes::CommandRef>, const ZAFHartTypes::DataItemList*,
                   const ZAFHartTypes::DefinitionList*>;
  struct Input {
    std::string_view tag;
    Value value;
  };
  static constexpr std::size_t kMostInputs = 3;

  // `operation` is a literal. A GUI manager that hands out no trace object is traced nowhere.
  TraceScope(ZAFHartTypes::IDDDTMGUI& gui, const char* operation,
             std::initializer_list<Input> inputs);
  ~TraceScope() override;
  TraceScope(const TraceScope&) = delete;
  TraceScope& operator=(const TraceScope&) = delete;

  std::vector<std::string> TraceLines(std::int32_t infoLevel) const override;

  // A free line of level 1 or 2; `text` makes it.
  template <typename Text>
  void Progress(std::int32_t level, Text&& text) {
    if (tracer_ && tracer_->WantsText(level)) tracer_->TraceText(level, text());
  }
  // The result line of an object or command reference; "<Result = Nothing" without one.
  template <typename Object>
  void Result(const std::shared_ptr<Object>& result) {
    if (!ShowsLevel()) return;
    tracer_->TraceStack(result ? "<Result: " + result->Describe(InfoLevel())
                               : std::string("<Result = Nothing"));
  }
  // A result line of its own wording.
  void ResultLine(const char* line) {
    if (ShowsLevel()) tracer_->TraceStack(line);
  }
  // Closes the level; `exitName` where the exit text does not bear the operation's name.
  void Release(int exit) { Release(exit, operation_); }
  void Release(int exit, const char* exitName);

  // An external tracer takes the stack lines of this level.
  bool ShowsLevel() const { return tracer_ && tracer_->WantsStack(); }
  // Detail level for Describe.
  std::int16_t InfoLevel() const;

 private:
  const char* operation_;
  std::size_t inputCount_;
  std::array<Input, kMostInputs> inputs_;
  std::shared_ptr<ZAFHartTypes::IDDDebugTracer> tracer_;
  bool open_ = false;
};

}  // namespace ZAFHartLib
