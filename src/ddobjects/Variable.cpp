#include "ddobjects/Variable.h"

#include "types/Failure.h"

namespace ZAFHartTypes {
namespace {

const RelationItemList kNoDependencies;

// One block for all variables that have no attributes yet.
std::shared_ptr<const VariableBlock> EmptyBlock() {
  static const auto block = std::make_shared<const VariableBlock>();
  return block;
}

}  // namespace

Variable::Variable(const ZAFHartTypes::Definition& definition)
    : DDObject(definition),
      block_(EmptyBlock()),
      frozenBlock_(block_),
      lastAccepted_(std::make_shared<Variant>()) {}

Variable::Variable(PrivateTag, const Variable& other, std::uint32_t changes) : Variable(other) {
  changes_ = changes;
}

VariableBlock& Variable::EditBlock() {
  if (block_.use_count() > 1) block_ = std::make_shared<VariableBlock>(*block_);
  changes_ |= kAttributes;
  // Ours alone: made by make_shared<VariableBlock>, so it is not a const object.
  return const_cast<VariableBlock&>(*block_);
}

const DefinitionList& Variable::Actions(ActionList list) const {
  static const DefinitionList kNone;
  const auto& actions = block_->actions;
  return actions.empty() ? kNone : actions[static_cast<std::size_t>(list)];
}

DefinitionList& Variable::EditActions(ActionList list) {
  auto& actions = EditBlock().actions;
  actions.resize(kActionListCount);
  return actions[static_cast<std::size_t>(list)];
}

void Variable::SetHandling(bool readable, bool writable) {
  VariableBlock& block = EditBlock();
  block.readable = readable;
  block.writable = writable;
}

const Variant& Variable::Value() const {
  valueRead_ = true;
  return value_.IsEmpty() && available_ ? defaultValue_ : value_;
}
void Variable::SetValue(Variant value) {
  Set(value_, std::move(value), kValue);
}
void Variable::SetDefaultValue(Variant value) {
  Set(defaultValue_, std::move(value), kDefaultValue);
}

const RelationItemList& Variable::WriteDependencies() const {
  return writeDependencies_ ? *writeDependencies_ : kNoDependencies;
}

RelationItemList& Variable::EditWriteDependencies() {
  if (!writeDependencies_) {
    writeDependencies_ = std::make_shared<RelationItemList>();
  } else if (writeDependencies_.use_count() > 1) {
    writeDependencies_ = std::make_shared<RelationItemList>(*writeDependencies_);
  }
  return const_cast<RelationItemList&>(*writeDependencies_);
}

void Variable::ConvertToUnit(std::string_view /*unitText*/) {}

bool Variable::HasSameState(const Variable& other) const {
  return available_ == other.available_ && toBeWritten_ == other.toBeWritten_ &&
         isChecked_ == other.isChecked_ && validity_ == other.validity_ &&
         errorIndex_ == other.errorIndex_ && errorText_ == other.errorText_ &&
         unitText_ == other.unitText_ &&
         (Value() == other.Value() || (Value().IsNotFinite() && other.Value().IsNotFinite())) &&
         (block_ == other.block_ || *block_ == *other.block_);
}

void Variable::CopyFrom(const Variable& other) {
  SetValue(other.Value());
  SetAvailable(other.available_);
  SetToBeWritten(other.toBeWritten_);
  SetIsChecked(other.isChecked_);
  SetValidity(other.validity_);
  SetErrorText(other.errorText_);
  SetErrorIndex(other.errorIndex_);
  SetUnitText(other.unitText_);
}

std::shared_ptr<Variable> Variable::Copy() const {
  auto copy = std::make_shared<Variable>(PrivateTag{}, *this, kEverything);
  copy->lastAccepted_ = std::make_shared<Variant>(*lastAccepted_);
  return copy;
}
std::shared_ptr<Variable> Variable::Snapshot() const {
  return std::make_shared<Variable>(PrivateTag{}, *this, changes_);
}
std::shared_ptr<DDObject> Variable::ComputeAttributes() {
  return std::make_shared<Variable>(PrivateTag{}, *this, 0U);
}
std::shared_ptr<DDObject> Variable::GetCopy() const {
  return Copy();
}

void Variable::BeginAttributeComputation() {
  valueRead_ = false;
  block_ = frozenBlock_;
  changes_ |= kAttributes;
}

void Variable::Assign(const DDObject& other) {
  if (&other == this) return;
  RequireSameKind(other);
  const auto& from = static_cast<const Variable&>(other);
  TakeStampsFrom(from);
  const auto carries = [&from](Change change) { return (from.changes_ & change) != 0; };
  if (carries(kValue)) value_ = from.value_;
  if (carries(kDefaultValue)) defaultValue_ = from.defaultValue_;
  if (carries(kValidity)) validity_ = from.validity_;
  if (carries(kAvailable)) available_ = from.available_;
  if (carries(kToBeWritten)) toBeWritten_ = from.toBeWritten_;
  if (carries(kIsChecked)) isChecked_ = from.isChecked_;
  if (carries(kUnitText)) unitText_ = from.unitText_;
  if (carries(kUnitSource)) unitSource_ = from.unitSource_;
  if (carries(kLastReadTime)) lastReadTime_ = from.lastReadTime_;
  if (carries(kAttributes)) block_ = from.block_;
  if (carries(kError)) {
    errorText_ = from.errorText_;
    errorIndex_ = from.errorIndex_;
  }
  if (carries(kAvailTimes)) {
    dynAvailTime_ = from.dynAvailTime_;
    staticAvailTime_ = from.staticAvailTime_;
  }
}

std::string Variable::Describe(std::int16_t infoLevel) const {
  std::string text = Definition().Describe(infoLevel);
  if (infoLevel <= 0) return text;
  text.append(" Value=").append(Value().Describe());
  if (!unitText_.IsEmpty()) text.append(" ").append(unitText_);
  text.append(available_ ? " available" : " not available");
  if (!validity_) text += " not valid";
  if (toBeWritten_) text += " to be written";
  if (errorIndex_ != 0 || !errorText_.IsEmpty()) {
    text.append(" Error(").append(std::to_string(errorIndex_)).append(")=").append(errorText_);
  }
  if (infoLevel <= 1) return text;
  text.append(" Type=").append(std::to_string(static_cast<std::int32_t>(TypeInfo().TypeCode())));
  text.append(" Size=").append(std::to_string(TypeInfo().Size()));
  if (unitSource_) text.append(" UnitSource=").append(unitSource_.Name());
  if (isChecked_) text += " checked";
  return text;
}

}  // namespace ZAFHartTypes
