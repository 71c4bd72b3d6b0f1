// The engineering units of the DD.

#include "interfaces/InternalNames.h"
#include "text/LangText.h"
#include "types/Failure.h"
#include "workerdb/CDDWorkerDB.h"

namespace ZAFHartLib {

void CDDWorkerDB::InitUnitTable() {
  const auto definition =
      Definition::Define(ZAFHartTypes::internal_names::kInitUnitTable, ObjectKind::Method);
  if (!ReadObject(definition)) return;
  const auto kernel = model_.Kernel();
  const auto method = kernel->GetMethod(definition);
  if (method->IsValid()) kernel->ExecuteMethod(definition, method->Entry());
}

double CDDWorkerDB::ConvertUnit(const Variable& variable, const std::string& newUnitText) const {
  std::string language = "en";
  ZAFHartTypes::IgnoreFailures([&] { language = model_.Gui()->LanguageID(); });
  return units_.Convert(variable.Value().ToDouble(), LangText(variable.UnitText(), language),
                        LangText(newUnitText, language));
}

}  // namespace ZAFHartLib
