#include "fdtobjects/StateSetters.h"

#include "interfaces/InternalNames.h"

namespace ZAFHartLib {

using ZAFHartTypes::Definition;
using ZAFHartTypes::ObjectKind;
namespace names = ZAFHartTypes::internal_names;

void SetDataSetState(ZAFHartTypes::IDDWorkerDB& database, ZAFHartTypes::DataSetState state) {
  static const auto variable = Definition::Define(names::kDataSetState, ObjectKind::Variable);
  database.WriteValue(variable, static_cast<std::int32_t>(state));
}

void SetStorageState(ZAFHartTypes::IDDWorkerDB& database, bool persistent) {
  static const auto variable = Definition::Define(names::kStorageState, ObjectKind::Variable);
  database.WriteValue(variable, static_cast<std::int16_t>(persistent ? 1 : 0));
}

}  // namespace ZAFHartLib
