#include "dtmkit/DescriptionCheck.h"

#include "hart/Numbers.h"
#include "interfaces/InternalNames.h"
#include "types/Failure.h"

namespace ZAFHartTypes::dtmkit {
namespace {

constexpr auto kMostIntegerBytes = static_cast<std::int32_t>(hart::kMaxIntegerSize);

std::string Named(const Definition& definition) {
  return std::string(KindWord(definition.Kind())) + " \"" + definition.Name() + "\"";
}

class DescriptionCheck {
 public:
  explicit DescriptionCheck(const Catalogue& catalogue) : catalogue_(catalogue) {}

  std::string Mistakes() {
    Each<Variable>();
    Each<Command>();
    Each<Menu>();
    Each<EditDisplay>();
    Each<RefreshRelation>();
    Each<UnitRelation>();
    Each<WriteAsOne>();
    Each<ItemArray>();
    Each<ItemCollection>();
    return std::move(mistakes_);
  }

 private:
  template <typename Item>
  void Each() {
    for (const auto& item : catalogue_.Items<Item>()) {
      named_ = Named(item->ObjectDefinition());
      Check(*item);
    }
  }

  void Check(const Variable& variable) {
    for (std::size_t list = 0; list < kActionListCount; ++list) {
      References(variable.Actions(static_cast<ActionList>(list)));
    }
    if (catalogue_.IsComputed<Variable>(variable.Definition())) return;
    if (variable.TypeInfo().TypeCode() == TypeCode::NotComputed) {
      Mistake("has no type: add Float(), Unsigned(SIZE), Enumerated(SIZE, …) or another.");
      return;
    }
    if (IsIntegral(variable.TypeInfo().TypeCode())) CheckSize(variable.TypeInfo());
    CheckDefault(variable);
  }
  void CheckSize(const TypeInfo& type) {
    if (type.Size() < 1 || type.Size() > kMostIntegerBytes) {
      Mistake("has a size of " + std::to_string(type.Size()) + " bytes; an integer takes 1 to 4.");
      return;
    }
    for (const EnumList* items : {&type.EnumItems(), &type.BitItems()}) {
      for (const EnumItem& item : *items) {
        if (std::uint64_t{static_cast<std::uint32_t>(item.Value())} >> (8 * type.Size()) == 0) {
          continue;
        }
        Mistake("has the value " + std::to_string(item.Value()) + ", which does not go into " +
                std::to_string(type.Size()) + " byte(s).");
      }
    }
  }
  void CheckDefault(const Variable& variable) {
    const Variant& value = variable.DefaultValue();
    if (value.IsEmpty() || variable.Copy()->CheckValue(value, true)) return;
    Mistake("has the default \"" + value.Describe() + "\", which its type and range do not allow.");
  }

  void Check(const Command& command) {
    for (const auto& transaction : command.Transactions()) {
      for (const DataItemList* items : {&transaction->Request(), &transaction->Reply()}) {
        for (const DataItem& item : *items) {
          if (item.IsVariable()) CheckItem(item.VariableDefinition());
        }
      }
    }
  }
  void CheckItem(const Definition& definition) {
    Reference(definition);
    if (!catalogue_.Contains(definition)) return;
    const TypeCode code = catalogue_.Prototype<Variable>(definition.Name())->TypeInfo().TypeCode();
    if (code == TypeCode::NotComputed || HasWireForm(code)) return;
    Mistake("carries the " + Named(definition) +
            ", whose type has no form on the wire: give it another type.");
  }
  void Check(const Menu& menu) {
    for (const MenuItem& item : menu.Items()) Reference(item.Definition());
  }
  void Check(const EditDisplay& display) {
    for (const auto& item : display.DisplayItems()) Reference(item.definition);
    for (const auto& item : display.EditItems()) Reference(item.definition);
    References(display.PreEditActions());
    References(display.PostEditActions());
  }
  void Check(const RefreshRelation& relation) {
    References(relation.TriggerItems());
    References(relation.RefreshItems());
  }
  void Check(const UnitRelation& relation) {
    Reference(relation.UnitVariable());
    References(relation.DependentItems());
  }
  void Check(const WriteAsOne& group) {
    for (const auto& item : group.Items()) Reference(item.definition);
  }
  void Check(const ItemArray& array) {
    for (const auto& element : array.Elements()) Reference(element.definition);
  }
  void Check(const ItemCollection& collection) {
    for (const auto& member : collection.Members()) Reference(member.definition);
  }

  void References(const DefinitionList& definitions) {
    for (const Definition& definition : definitions) Reference(definition);
  }
  void Reference(const Definition& definition) {
    if (definition.IsEmpty() || catalogue_.Contains(definition)) return;
    if (definition.Name().starts_with(internal_names::kPrefix)) return;
    Mistake("names the " + Named(definition) +
            ", which is not described: correct the name or describe it.");
  }
  void Mistake(const std::string& what) {
    if (!mistakes_.empty()) mistakes_ += '\n';
    mistakes_ += named_ + " " + what;
  }

  const Catalogue& catalogue_;
  std::string named_;  // the item that is looked at
  std::string mistakes_;
};

}  // namespace

void RequireConsistent(const Catalogue& catalogue) {
  std::string mistakes = DescriptionCheck(catalogue).Mistakes();
  if (mistakes.empty()) return;
  throw Failure(ErrorNumber::InvalidArgument, "dtmkit.DescriptionCheck", std::move(mistakes));
}

}  // namespace ZAFHartTypes::dtmkit
