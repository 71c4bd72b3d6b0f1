#include "comm/AddressVariables.h"

#include "comm/CommandFinder.h"

namespace ZAFHartLib {

using ZAFHartTypes::DataItemList;
using ZAFHartTypes::Definition;
using ZAFHartTypes::ModelReference;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::Transaction;

namespace {

using ItemListOf = const DataItemList& (*)(const Transaction&);

// Where a command names an address variable.
struct Place {
  const char* variable;
  UniversalCommand command;
  ItemListOf list;
  std::size_t item;
  const char* errorText;
};

constexpr Place kPollingAddress{
    "polling_address", UniversalCommand::WritePollingAddress,
    [](const Transaction& transaction) -> const DataItemList& { return transaction.Request(); }, 1,
    "No variable for HART polling address found!"};
constexpr Place kTag{
    "tag", UniversalCommand::ReadTag,
    [](const Transaction& transaction) -> const DataItemList& { return transaction.Reply(); }, 3,
    "No variable for HART tag found!"};

Definition NamedByCommand(const ModelReference& model, const Place& place) {
  const Definition definition = FindCommand(model, place.command);
  const auto command = definition ? model.Kernel()->GetSafeCommand(definition) : nullptr;
  if (!command || command->Transactions().Count() == 0) return {};
  const DataItemList& items = place.list(*command->Transactions().At(1));
  return items.Count() < place.item ? Definition() : items.Item(place.item).VariableDefinition();
}

Definition FindVariable(const ModelReference& model, const Place& place) {
  Definition definition = Definition::Define(place.variable, ObjectKind::Variable);
  if (model.Database()->ReadObject(definition)) return definition;
  definition = NamedByCommand(model, place);
  if (!definition) model.Gui()->EvaluationError(place.errorText);
  return definition;
}

}  // namespace

template <typename ReadVariable>
void AddressVariables::Read(ReadVariable read) {
  if (pollingVariable_) pollingAddress_ = read(pollingVariable_)->Value().ToLong();
  if (tagVariable_) tag_ = read(tagVariable_)->Value().ToText();
}

void AddressVariables::Find(const ModelReference& model) {
  pollingVariable_ = FindVariable(model, kPollingAddress);
  tagVariable_ = FindVariable(model, kTag);
  pollingAddress_ = 0;
  tag_.clear();
  ReadFromKernel(model);
}

void AddressVariables::ReadFromKernel(const ModelReference& model) {
  Read([kernel = model.Kernel()](const Definition& definition) {
    return kernel->GetVariable(definition);
  });
}

void AddressVariables::ReadFromDatabase(const ModelReference& model) {
  Read([database = model.Database()](const Definition& definition) {
    return database->ReadObject(definition)->MakeVariable();
  });
}

void AddressVariables::Set(const ModelReference& model, std::int32_t pollingAddress,
                           const std::string& tag) {
  const auto store = [&](const Definition& definition, const ZAFHartTypes::Variant& value) {
    if (!definition) return;
    const auto database = model.Database();
    database->WriteValue(definition, value);
    database->SetVariableToBeWritten(definition, false);
  };
  pollingAddress_ = pollingAddress;
  store(pollingVariable_, pollingAddress);
  tag_ = tag;
  store(tagVariable_, tag);
}

}  // namespace ZAFHartLib
