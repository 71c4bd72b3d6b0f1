#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "interfaces/IDDDebugTracer.h"
#include "platform/Export.h"

namespace ZAFHartLib {

inline constexpr const char* kLineBreak = "\r\n";

// The DD call stack of one GUI manager: the texts of the operations that are running. Positions
// count from 1. Position 1 holds a finished text, at first "No Trace Info Available!"; the running
// operations follow, outermost first. The entry of a running operation is built when it is read.
//
// Owned by the GUI manager and shared with its trace objects, which outlive it harmlessly.
class ZAF_API StackInformation {
 public:
  StackInformation();

  std::int32_t Count() const { return static_cast<std::int32_t>(entries_.size()); }
  // The entry's lines, separated by CR LF. Raises SubscriptOutOfRange outside 1..Count().
  std::string Item(std::int32_t position) const;
  void Add(std::string text);
  // Raises SubscriptOutOfRange outside 1..Count().
  void Remove(std::int32_t position);
  void Clear() { entries_.clear(); }
  // Every entry in order, each preceded by CR LF.
  std::string Text() const;

  // --- for trace objects: positions that are no longer there are ignored ---
  // Appends the entry of a running operation and returns its position. `operation` must live until
  // the entry has been fixed, merged or closed.
  std::int32_t Open(const ZAFHartTypes::ITracedOperation& operation, std::int32_t infoLevel);
  void AppendLine(std::int32_t position, const std::string& line);
  // Builds the entry's text now and lets go of its operation.
  void Fix(std::int32_t position);
  // Removes the entry and all behind it.
  void CloseFrom(std::int32_t position);
  // An operation ended without closing its entry: the entry and all behind it go into the one
  // before it; those of an outermost operation become the finished text.
  void MergeFrom(std::int32_t position);

 private:
  struct Entry {
    std::string text;  // what follows the operation's own lines
    const ZAFHartTypes::ITracedOperation* operation = nullptr;
    std::int32_t infoLevel = 0;
  };
  static std::string Render(const Entry& entry);
  static void Fix(Entry& entry);
  Entry* Find(std::int32_t position);

  std::vector<Entry> entries_;
};

// Offered by the GUI manager.
class ZAF_API IStackInformationOwner {
 public:
  virtual ~IStackInformationOwner() = default;
  virtual std::shared_ptr<ZAFHartLib::StackInformation> StackInformation() const = 0;
};

}  // namespace ZAFHartLib
