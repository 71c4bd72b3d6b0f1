#include "kernel/CommandIndex.h"

#include <algorithm>

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

void CollectValues(const DataItemList& items, std::vector<TextKey>& keys) {
  for (const DataItem& item : items) {
    if (item.CarriesValue()) keys.push_back(item.VariableDefinition().Key());
  }
}

bool SameItems(const std::vector<Definition>& a, const std::vector<Definition>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const Definition& x, const Definition& y) { return x.IsSameAs(y); });
}

}  // namespace

void CommandIndex::Reset(const DefinitionList& commands) {
  reads_.Reset(commands.Count());
  writes_.Reset(commands.Count());
  reach_.Reset(commands.Count());
  indexVariables_.assign(commands.Count(), {});
}

void CommandIndex::ObjectStale(Key object) {
  reads_.ObjectStale(object);
  writes_.ObjectStale(object);
  reach_.ObjectStale(object);
}

std::size_t CommandIndex::NextDirect(SearchKind kind, Key item, std::size_t from) const {
  return (kind == SearchKind::Read ? reads_ : writes_).Next(item, from);
}

std::size_t CommandIndex::NextIndexed(Key item, std::size_t from) const {
  return std::min(reach_.Next(item, from), reads_.NextSuspect(from));
}

void CommandIndex::PostContent(std::size_t position, const Command& command, bool settled) {
  std::vector<Key> read;
  std::vector<Key> written;
  std::vector<Definition> indexes;
  const bool isRead = command.Operation() == Operation::Read;
  const bool isWrite = command.Operation() == Operation::Write;
  for (const auto& transaction : command.Transactions()) {
    if (isRead) CollectValues(transaction->Reply(), read);
    if (isWrite) CollectValues(transaction->Request(), written);
    if (!isRead && !isWrite) continue;
    for (const DataItem& item : transaction->Request()) {
      if (item.IsVariable() && item.IsIndex()) indexes.push_back(item.VariableDefinition());
    }
  }
  const std::vector<Key> watched{command.Definition().Key()};
  reads_.Post(position, std::move(read), watched, settled);
  writes_.Post(position, std::move(written), watched, settled);
  if (SameItems(indexVariables_[position], indexes)) return;
  indexVariables_[position] = std::move(indexes);
  reach_.Suspect(position);
}

}  // namespace ZAFHartLib
