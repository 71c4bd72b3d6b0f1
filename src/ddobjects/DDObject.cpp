#include "ddobjects/DDObject.h"

#include "ddobjects/Command.h"
#include "ddobjects/EditDisplay.h"
#include "ddobjects/ItemArray.h"
#include "ddobjects/Menu.h"
#include "ddobjects/Method.h"
#include "ddobjects/Relations.h"
#include "ddobjects/Variable.h"
#include "types/Failure.h"

namespace ZAFHartTypes {
namespace {

template <typename View>
std::shared_ptr<View> MakeView(DDObject& object) {
  if (object.Kind() != View::kKind) return nullptr;
  return std::dynamic_pointer_cast<View>(object.shared_from_this());
}

}  // namespace

DDObject::DDObject(const DDObject& other)
    : enable_shared_from_this(other), definition_(other.definition_) {
  TakeStampsFrom(other);
}

DDObject::~DDObject() = default;

std::shared_ptr<DDObject> DDObject::ComputeAttributes() {
  return shared_from_this();
}

void DDObject::DropBindings() {
  currentVariable_.reset();
}

void DDObject::SetCurrentVariable(std::shared_ptr<Variable> variable) {
  currentVariable_ = std::move(variable);
}

std::shared_ptr<Variable> DDObject::MakeVariable() {
  return MakeView<Variable>(*this);
}
std::shared_ptr<Command> DDObject::MakeCommand() {
  return MakeView<Command>(*this);
}
std::shared_ptr<Menu> DDObject::MakeMenu() {
  return MakeView<Menu>(*this);
}
std::shared_ptr<EditDisplay> DDObject::MakeEditDisplay() {
  return MakeView<EditDisplay>(*this);
}
std::shared_ptr<Method> DDObject::MakeMethod() {
  return MakeView<Method>(*this);
}
std::shared_ptr<RefreshRelation> DDObject::MakeRefresh() {
  return MakeView<RefreshRelation>(*this);
}
std::shared_ptr<UnitRelation> DDObject::MakeUnit() {
  return MakeView<UnitRelation>(*this);
}
std::shared_ptr<WriteAsOne> DDObject::MakeWriteAsOne() {
  return MakeView<WriteAsOne>(*this);
}
std::shared_ptr<ItemArray> DDObject::MakeArray() {
  return MakeView<ItemArray>(*this);
}
std::shared_ptr<ItemCollection> DDObject::MakeCollection() {
  return MakeView<ItemCollection>(*this);
}

std::string DDObject::Describe(std::int16_t infoLevel) const {
  return definition_.Describe(infoLevel);
}

void DDObject::TakeStampsFrom(const DDObject& other) {
  syncStamp_ = other.syncStamp_;
  changeStamp_ = other.changeStamp_;
  attributesAvailable_ = other.attributesAvailable_;
}

void DDObject::RequireSameKind(const DDObject& other) const {
  if (Kind() == other.Kind()) return;
  throw Failure(ErrorNumber::InvalidArgument, "DDObject.Assign",
                "\"" + other.ObjectDefinition().Name() + "\" cannot be assigned to \"" +
                    definition_.Name() + "\": " + kWrongKind);
}

}  // namespace ZAFHartTypes
