#pragma once

#include "generic/Description.h"

// What depends on the revision of the universal commands, which command 0 tells.
namespace generic {

// Revisions below 5 count as 5, those above 7 as 7.
enum class Revision : std::uint8_t { Unknown = 0, Hart5 = 5, Hart6 = 6, Hart7 = 7 };
Revision RevisionOf(Context& context);

// The device is known to have this revision or a later one.
Condition Since(Revision revision);
// Variables that are valid since a revision.
void ValidSince(DeviceDescription& dd, Revision revision,
                std::initializer_list<std::string_view> variables);
// A variable that can be written in all revisions, and read since HART 6.
void ReadableSinceHart6(VariableBuilder variable);

// Data of a transaction from a revision on.
struct Layout {
  Revision since;
  std::vector<CommandItem> reply;
  std::vector<CommandItem> request = {};
};
// A transaction whose data are those of the last layout whose revision the device has. The first
// layout is that of Revision::Unknown. Layouts stand in rising order and name no array elements.
void ByRevision(CommandBuilder command, std::int16_t transaction,
                const std::vector<Layout>& layouts);
// A command that reads variables only when the condition holds, and is not looked at otherwise.
void ReadsWhen(CommandBuilder command, Condition condition);

}  // namespace generic
