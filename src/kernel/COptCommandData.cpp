#include "kernel/COptCommandData.h"

#include <limits>

#include "interfaces/IDDComponents.h"
#include "types/Failure.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

constexpr std::int32_t kAlways = -1;  // level of a trace text that passes every filter
constexpr const char* kWrongIdentifiers =
    "Wrong Identifiers: Identifiers not found or referencing the wrong type";
constexpr const char* kNotPartOfIt =
    "Transaction found, but searched variable not part of the operation";

// What the getter answers, nothing when it fails.
template <typename Get>
auto Try(Get get) -> decltype(get()) {
  decltype(get()) object;
  IgnoreFailures([&] { object = get(); });
  return object;
}

bool HasItem(const DataItemList& items, const Definition& definition) {
  for (const DataItem& item : items) {
    if (item.IsVariable() && item.VariableDefinition().IsSameAs(definition)) return true;
  }
  return false;
}

}  // namespace

void COptCommandData::Initialize(const std::string& command, std::int32_t transactionNumber,
                                 const std::string& array, const std::string& arrayIndex) {
  constexpr std::int16_t kNoTransaction = -1;
  if (state_ != State::New) return;
  command_ = Definition::Define(command, ObjectKind::Command);
  const bool fits = transactionNumber <= std::numeric_limits<std::int16_t>::max();
  transactionNumber_ = fits ? static_cast<std::int16_t>(transactionNumber) : kNoTransaction;
  array_ = Definition::Define(array, ObjectKind::ItemArray);
  arrayIndex_ = Definition::Define(arrayIndex, ObjectKind::Variable);
  state_ = State::Defined;
}

std::shared_ptr<CommandRef> COptCommandData::FindReadCommand(IDDComponents& components,
                                                             const Definition& definition) {
  return Find(components, definition, reads_);
}

std::shared_ptr<CommandRef> COptCommandData::FindWriteCommand(IDDComponents& components,
                                                              const Definition& definition) {
  return Find(components, definition, writes_);
}

// `allowed` is known once the names are resolved.
std::shared_ptr<CommandRef> COptCommandData::Find(IDDComponents& components,
                                                  const Definition& definition,
                                                  const bool& allowed) {
  hasDiagnostic_ = false;
  const auto kernel = components.DDKernel();
  if (state_ == State::Defined) Resolve(*kernel);
  if (state_ != State::Resolved || !allowed) return nullptr;
  const std::int32_t* element = elements_.Find(definition.Key());
  if (!element) return nullptr;
  components.DDWorkerDB()->WriteValue(arrayIndex_, *element);
  const auto reference =
      std::make_shared<CommandRef>(kernel->GetCommand(command_), transactionNumber_);
  if (Holds(*reference, definition)) return reference;
  diagnostic_ = kNotPartOfIt;
  hasDiagnostic_ = true;
  TraceDiagnostic(components);
  return nullptr;
}

void COptCommandData::Resolve(IDDKernel& kernel) {
  const auto array = Try([&] { return kernel.GetArray(array_); });
  const auto command = Try([&] { return kernel.GetCommand(command_); });
  const auto index = Try([&] { return kernel.GetVariable(arrayIndex_); });
  if (!array || !command || !index) {
    diagnostic_ = kWrongIdentifiers;
    state_ = State::Unusable;
    return;
  }
  for (const ArrayElement& element : array->Elements()) {
    IgnoreFailures([&] { elements_.Add(element.definition.Key(), element.index); });
  }
  reads_ = command->Operation() == Operation::Read;
  writes_ = command->Operation() == Operation::Write;
  state_ = State::Resolved;
}

bool COptCommandData::Holds(const CommandRef& reference, const Definition& definition) const {
  const auto transaction = Try([&] { return reference.ReferredTransaction(); });
  return transaction && HasItem(reads_ ? transaction->Reply() : transaction->Request(), definition);
}

void COptCommandData::TraceDiagnostic(IDDComponents& components) const {
  const auto gui = components.DDGUI();
  const auto trace = gui ? gui->TraceObject() : nullptr;
  if (hasDiagnostic_ && trace) trace->TraceText(kAlways, "Command Optimization: " + diagnostic_);
}

}  // namespace ZAFHartLib
