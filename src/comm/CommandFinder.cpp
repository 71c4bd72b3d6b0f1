#include "comm/CommandFinder.h"

namespace ZAFHartLib {

using ZAFHartTypes::Definition;
using ZAFHartTypes::ObjectKind;

Definition FindCommand(const ZAFHartTypes::ModelReference& model, UniversalCommand number) {
  const auto database = model.Database();
  const auto kernel = model.Kernel();
  std::int32_t position = 0;
  while ((position = database->FindNextObject(position, ObjectKind::Command)) >= 1) {
    const Definition definition = database->Object(position)->ObjectDefinition();
    const auto command = kernel->GetSafeCommand(definition);
    if (command && command->Number() == static_cast<std::int16_t>(number)) {
      return command->Definition();
    }
    ++position;
  }
  return {};
}

}  // namespace ZAFHartLib
