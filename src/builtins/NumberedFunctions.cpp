// Func1, Func2 and AddUnit.

#include "builtins/CDDBuiltinLib.h"
#include "builtins/Mathematics.h"
#include "types/Failure.h"
#include "workerdb/CDDWorkerDB.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

enum Function : std::int32_t {
  kRoundToDecimals = 1016,
  kTextsAreEqual = 3000,
  kAssignText = 3001,
  kErrorDisplay = 4000,
  kRunMethod = 4001,
  kUploadSingleStorage = 4002,
};

VariableIds IdsOf(const Variant& value) {
  VariableIds ids;
  if (value.Type() != VariantType::Array) return ids;
  for (const Variant& id : value.Items()) ids.push_back(id.ToLong());
  return ids;
}

}  // namespace

Variant CDDBuiltinLib::Func1(std::int32_t id, const Variant& par1) {
  if (id == kRunMethod) return RunMethodNamed(par1.ToText());
  if (id == kUploadSingleStorage) {
    UploadToOfflineDataSet(par1.ToText());
    return {};
  }
  std::optional<Variant> result;
  IgnoreFailures([&] { result = Calculate(id, par1); });
  if (!result) ProcessAbort();
  return result.value_or(Variant());
}

Variant CDDBuiltinLib::Func2(std::int32_t id, const Variant& par1, const Variant& par2) {
  switch (id) {
    case kRoundToDecimals: {
      Variant result;
      const bool worked =
          IgnoreFailures([&] { result = RoundHalfEven(par1.ToDouble(), par2.ToLong()); });
      if (!worked) ProcessAbort();
      return result;
    }
    case kTextsAreEqual:
      return par1.ToText() == par2.ToText();
    case kAssignText:
      return AssignText(par1, par2);
    case kErrorDisplay:
      ShowErrorDisplay(par1.ToText(), IdsOf(par2));
      return {};
    default:
      return {};
  }
}

// Through the kernel that reports failures, so that a failing method does not end this one.
bool CDDBuiltinLib::RunMethodNamed(const std::string& name) {
  const auto method = Definition::Define(name, ObjectKind::Method);
  const auto stored = Database()->ReadObject(method);
  if (!stored || stored->Kind() != ObjectKind::Method) return false;
  const auto kernel = model_.Model()->DDKernelExtension();
  if (!kernel) return false;
  kernel->ExecuteMethod(method, currentObject_, false);
  return true;
}

void CDDBuiltinLib::UploadToOfflineDataSet(const std::string& name) {
  const auto database = Database();
  const auto manager = database->GetSingleStorage();
  if (database->GetStorageMode() != StorageMode::Online || !manager) return;
  const auto variable = GetMethodVariable(name);
  manager->UploadVariableValue(variable->Definition(), variable->Value());
}

void CDDBuiltinLib::ShowErrorDisplay(const std::string& prompt, const VariableIds& ids) {
  ProcessAbort();
  HideMessage();
  std::string title = MessageTitle();
  Show(MessageIcon::Critical, std::move(title), PreparePrompt(prompt, ids));
}

void CDDBuiltinLib::AddUnit(std::int32_t code, double factor, double offset,
                            const std::string& name, const std::string& help) {
  Database()->AddUnit(CHartUnit(code, factor, offset, name, help));
}

}  // namespace ZAFHartLib
