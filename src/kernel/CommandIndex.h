#pragma once

#include <vector>

#include "ddobjects/Command.h"
#include "ddobjects/DefinitionList.h"
#include "kernel/DirectTest.h"
#include "kernel/PostingIndex.h"

namespace ZAFHartLib {

// Which commands of the command list are worth a test for an item, in list order. It may name too
// many and never too few: the test decides. Positions count from 0.
//
// A command's content (which variables its reply and request carry) and its reach (which items the
// arrays of its index variables hold) are posted separately; the reach is looked up only by
// searches that get as far as their indexed pass.
class CommandIndex {
 public:
  using Key = ZAFHartTypes::TextKey;
  static constexpr std::size_t kNone = PostingIndex::kNone;

  // Starts anew: every command is suspect.
  void Reset(const ZAFHartTypes::DefinitionList& commands);
  std::size_t Count() const { return indexVariables_.size(); }
  // The attributes of a command, index variable, array or collection have gone stale.
  void ObjectStale(Key object);

  std::size_t NextDirect(SearchKind kind, Key item, std::size_t from) const;
  std::size_t NextIndexed(Key item, std::size_t from) const;

  bool NeedsContent(std::size_t position) const { return reads_.IsSuspect(position); }
  // `settled`: the command's attributes are current and will be known not to be.
  void PostContent(std::size_t position, const ZAFHartTypes::Command& command, bool settled);
  bool NeedsReach(std::size_t position) const { return reach_.IsSuspect(position); }
  const std::vector<ZAFHartTypes::Definition>& IndexVariables(std::size_t position) const {
    return indexVariables_[position];
  }
  // `items`: what the arrays hold; `sources`: the objects that this was found from.
  void PostReach(std::size_t position, std::vector<Key> items, std::vector<Key> sources,
                 bool settled) {
    reach_.Post(position, std::move(items), std::move(sources), settled);
  }

 private:
  PostingIndex reads_;
  PostingIndex writes_;
  PostingIndex reach_;
  std::vector<std::vector<ZAFHartTypes::Definition>> indexVariables_;  // of each command
};

}  // namespace ZAFHartLib
