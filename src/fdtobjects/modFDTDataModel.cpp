#include "fdtobjects/modFDTDataModel.h"

#include <map>
#include <unordered_map>
#include <vector>

#include "fdtobjects/InternalVariableRows.h"
#include "interfaces/InternalNames.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::IDDKernel;
using ZAFHartTypes::Variable;
using ZAFHartTypes::VariableBlock;
using ZAFHartTypes::VariableFlag;
namespace names = ZAFHartTypes::internal_names;

// Enumerations that several variables have are made once.
using EnumLists = std::map<const EnumRows*, std::shared_ptr<const ZAFHartTypes::EnumList>>;

std::shared_ptr<const VariableBlock> MakeBlock(const InternalVariableRow& row, EnumLists& lists) {
  auto block = std::make_shared<VariableBlock>();
  block->attributes.SetFlag(VariableFlag::LibraryHeld, true);
  block->label = row.label.Text();
  block->help = row.help.Text();
  ZAFHartTypes::TypeInfo& type = block->typeInfo;
  type.SetTypeCode(row.type);
  type.SetSize(row.size);
  type.SetMaxEnumValue(row.maxEnum);
  if (row.items != nullptr) {
    auto& list = lists[row.items];
    if (!list) list = std::make_shared<const ZAFHartTypes::EnumList>(MakeEnumList(*row.items));
    type.SetEnumItems(list);
  }
  if (row.limits) {
    type.SetRangeCount(1);
    type.SetMinValue(1, row.limits->minimum);
    type.SetMaxValue(1, row.limits->maximum);
  }
  return block;
}

struct Catalogue {
  std::vector<InternalVariable> variables;
  std::unordered_map<std::string_view, const InternalVariable*> byName;

  Catalogue() {
    EnumLists lists;
    for (const InternalVariableRow& row : InternalVariableRows()) {
      variables.push_back({row.name, MakeBlock(row, lists), row.defaultValue.Value(),
                           row.availableFromDefault, row.validity});
    }
    for (const InternalVariable& variable : variables) byName.emplace(variable.name, &variable);
  }
};

const Catalogue& TheCatalogue() {
  static const auto* catalogue = new Catalogue;  // outlives every database
  return *catalogue;
}

}  // namespace

std::span<const InternalVariable> InternalVariables() {
  return TheCatalogue().variables;
}

const InternalVariable* FindInternalVariable(std::string_view name) {
  if (!name.starts_with(names::kPrefix)) return nullptr;
  const auto& byName = TheCatalogue().byName;
  const auto found = byName.find(name);
  return found == byName.end() ? nullptr : found->second;
}

void ComputeInternalVariable(const InternalVariable& row, IDDKernel& kernel, Variable& variable) {
  variable.SetAttributeBlock(row.attributes);
  if (variable.DefaultValue().IsEmpty() && !row.defaultValue.IsEmpty()) {
    variable.SetDefaultValue(row.defaultValue);
  }
  if (row.availableFromDefault && !variable.Available()) variable.SetAvailable(true);
  if (row.validity != nullptr) variable.SetValidity(row.validity(kernel));
}

}  // namespace ZAFHartLib
