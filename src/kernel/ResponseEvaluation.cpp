// What the response of an executed transaction says about the variables of its reply.

#include "interfaces/InternalNames.h"
#include "kernel/CHARTKernel.h"
#include "kernel/CommandExecution.h"
#include "kernel/KernelTemplates.h"
#include "kernel/ResponseClassification.h"
#include "types/Utf8.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

constexpr std::int32_t kNoReplyIndex = 128;  // error index of a variable that no reply gave

}  // namespace

void CHARTKernel::EvaluateResponse(const Execution& execution) {
  DataItemList& reply = execution.transaction->Reply();
  const ResponseVerdict verdict =
      ClassifyResponse(execution.status, execution.lastResult,
                       execution.transaction->ResponseCodes(), execution.command->ResponseCodes());
  DefinitionList received;
  for (DataItem& item : reply) {
    const Definition& definition = item.VariableDefinition();
    if (!item.CarriesValue() || definition.Kind() != ObjectKind::Variable) continue;
    received.Add(definition);
    if (RecordVerdict(definition, verdict)) item.Variable()->SetAvailable(true);
  }
  for (const Definition& definition : received) {
    if (const auto stored = Find<Variable>(definition)) Show(stored);
  }
  RecordLastError(verdict.error != 0 ? verdict.message : std::string());
}

// True when the variable has become available, with an error or without. An error recorded earlier
// stands until the variable is written.
bool CHARTKernel::RecordVerdict(const Definition& definition,
                                const ResponseVerdict& verdict) const {
  const auto stored = Find<Variable>(definition);
  if (!stored) return false;
  const auto database = Database();
  if (verdict.error == kNoReplyError) {
    if (stored->ErrorIndex() != 0) return false;
    database->SetVariableError(definition, kNoReplyIndex, verdict.message);
  } else if (stored->ErrorText().empty()) {
    database->SetVariableError(definition, verdict.error, verdict.message);
  }
  database->SetVariableAvailable(definition, true);
  return true;
}

// The variable holds so many characters and no more.
void CHARTKernel::RecordLastError(const std::string& message) {
  const auto definition =
      Definition::Define(internal_names::kLastCommunicationError, ObjectKind::Variable);
  const std::int32_t size = message.empty() ? 0 : GetVariable(definition)->TypeInfo().Size();
  const auto length = size > 0 ? static_cast<std::size_t>(size) : message.size();
  WriteVariable(definition, Variant(utf8::Prefix(message, length)));
}

}  // namespace ZAFHartLib
