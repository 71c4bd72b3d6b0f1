#include "kernel/IndexedTest.h"

#include <limits>
#include <optional>
#include <vector>

#include "kernel/ArrayReach.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

void BindIndex(DataItemList& items, const std::shared_ptr<Variable>& index) {
  for (DataItem& item : items) {
    if (item.IsVariable() && item.VariableDefinition().IsSameAs(index->Definition())) {
      item.SetVariable(index);
    }
  }
}

// An element's index as the 16-bit value of its index variable; a larger one stays as it is.
Variant IndexValue(std::int32_t index) {
  using Limits = std::numeric_limits<std::int16_t>;
  if (index < Limits::min() || index > Limits::max()) return index;
  return static_cast<std::int16_t>(index);
}

}  // namespace

// The stored entries of the request's INFO items, put back at the end however the test ends.
class IndexedTest::KeptEntries {
 public:
  KeptEntries(std::shared_ptr<IDDWorkerDB> database, const DataItemList& request)
      : database_(std::move(database)) {
    for (const DataItem& item : request) {
      if (!item.IsVariable() || !item.IsInfo()) continue;
      if (const auto entry = database_->ReadObject(item.VariableDefinition())) {
        entries_.push_back(entry->GetCopy());
      }
    }
  }
  ~KeptEntries() {
    for (const auto& entry : entries_) IgnoreFailures([&] { database_->WriteObject(entry); });
  }
  KeptEntries(const KeptEntries&) = delete;
  KeptEntries& operator=(const KeptEntries&) = delete;

 private:
  std::shared_ptr<IDDWorkerDB> database_;
  std::vector<std::shared_ptr<DDObject>> entries_;
};

std::shared_ptr<Transaction> FindTransaction(const Command& command, std::int16_t number) {
  for (const auto& transaction : command.Transactions()) {
    if (transaction->Number() == number) return transaction;
  }
  return nullptr;
}

bool IndexedTest::Passes(std::shared_ptr<Command>& command, std::int16_t transactionNumber,
                         const Definition& item) {
  auto transaction = FindTransaction(*command, transactionNumber);
  Selection selection;
  if (!transaction || !Select(*transaction, item, selection)) return false;
  const bool isVariable = item.Kind() == ObjectKind::Variable;
  std::optional<KeptEntries> kept;
  if (isVariable) kept.emplace(Database(), transaction->Request());

  selection.index->SetValue(IndexValue(selection.element));
  selection.index->SetAvailable(true);
  Database()->WriteObject(selection.index);

  // The array may itself be an element of an outer array.
  bool outerPasses = false;
  if (!arrays_.Contains(selection.array)) {
    arrays_.Add(selection.array);
    outerPasses = Passes(command, transactionNumber, selection.array);
    arrays_.Remove(arrays_.Count());
  }
  if (!outerPasses) {
    if (isVariable) AdvanceOthers(*transaction, selection.index->Definition());
    if (auto computed = kernel_.GetSafeCommand(command->Definition())) {
      command = std::move(computed);
    }
  }
  transaction = FindTransaction(*command, transactionNumber);
  if (!transaction || !PassesDirectTest(kind_, *transaction, item)) return false;
  command = command->CommandCopy();
  transaction = FindTransaction(*command, transactionNumber);
  BindIndex(transaction->Request(), selection.index);
  BindIndex(transaction->Reply(), selection.index);
  return true;
}

bool IndexedTest::Select(const Transaction& transaction, const Definition& item,
                         Selection& selection) const {
  const auto lookup = [this](const Definition& collection) { return Collection(collection); };
  for (const DataItem& each : transaction.Request()) {
    if (!each.IsVariable() || !each.IsIndex()) continue;
    auto index = kernel_.GetVariable(each.VariableDefinition());
    const ItemArray* array = IndexedArrayOf(*index);
    const auto element = array ? FindElementOf(*array, item, lookup) : std::nullopt;
    if (!element) continue;
    selection = {std::move(index), array->Definition(), *element};
    return true;
  }
  return false;
}

void IndexedTest::AdvanceOthers(const Transaction& transaction, const Definition& index) const {
  DefinitionList chosen;
  for (const DataItem& each : transaction.Request()) {
    if (!each.IsVariable() || !each.IsIndex() || each.VariableDefinition().IsSameAs(index)) {
      continue;
    }
    const auto variable = Stored(each.VariableDefinition());
    const ItemArray* array = variable ? IndexedArrayOf(*variable) : nullptr;
    if (!array) continue;
    const ArrayElement* element = nullptr;
    IgnoreFailures([&] { element = array->Find(variable->Value().ToLong()); });
    if (!element) continue;
    const ArrayElement* other = Replacement(*array, *element, chosen);
    chosen.Add((other ? other : element)->definition);
    if (other) Database()->WriteValue(each.VariableDefinition(), IndexValue(other->index));
  }
}

const ArrayElement* IndexedTest::Replacement(const ItemArray& array, const ArrayElement& present,
                                             const DefinitionList& chosen) const {
  if (kind_ == SearchKind::Read && present.definition.Kind() != ObjectKind::Variable) {
    return nullptr;
  }
  if (IsWanted(present.definition) && !chosen.Contains(present.definition)) return nullptr;
  return NextWantedElement(array, chosen,
                           [this](const Definition& item) { return IsWanted(item); });
}

bool IndexedTest::IsWanted(const Definition& item) const {
  const auto variable = Stored(item);
  if (!variable) return false;
  return kind_ == SearchKind::Read ? !variable->Available() : variable->ToBeWritten();
}

std::shared_ptr<Variable> IndexedTest::Stored(const Definition& variable) const {
  const auto entry = Database()->ReadObject(variable);
  return entry ? entry->MakeVariable() : nullptr;
}

std::shared_ptr<ItemCollection> IndexedTest::Collection(const Definition& collection) const {
  std::shared_ptr<ItemCollection> found;
  IgnoreFailures([&] { found = kernel_.GetCollection(collection); });
  return found;
}

}  // namespace ZAFHartLib
