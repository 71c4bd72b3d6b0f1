#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ddobjects/Definition.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

class Variable;
class Command;
class Menu;
class EditDisplay;
class Method;
class RefreshRelation;
class UnitRelation;
class WriteAsOne;
class ItemArray;
class ItemCollection;

// The common interface of every stored object. An object is its own view: MakeVariable() is the
// checked downcast, nothing for an object of another kind. Always held by std::shared_ptr.
//
// The worker database owns the stored objects. Variables read from it are independent snapshots;
// objects of the other kinds are the stored ones themselves.
//
// What the classes of the kinds have in common: kKind is the class's kind, and an object is made
// with a definition of that kind, best by MakeObject. A copy made by the constructor or by GetCopy
// is independent and unknown to the database. Definition() is ObjectDefinition(); Entry() is the
// object itself as the database's entry. Label() and Help() are the DD's LABEL and HELP,
// multilingual (see text/LangText.h), "" when there is none. What a getter without const returns is
// written in place.
class ZAF_API DDObject : public std::enable_shared_from_this<DDObject> {
 public:
  virtual ~DDObject();
  DDObject& operator=(const DDObject&) = delete;

  // Who the object is; lives as long as the object. The views of most kinds call it Definition().
  const Definition& ObjectDefinition() const { return definition_; }
  ObjectKind Kind() const { return definition_.Kind(); }

  // Generation of the worker database at which the object was last synchronised (attributes
  // computed or value read), and that of the last change of its value. 0 before the first time;
  // the database sets both.
  std::int32_t SyncStamp() const { return syncStamp_; }
  void SetSyncStamp(std::int32_t generation) { syncStamp_ = generation; }
  std::int32_t ChangeStamp() const { return changeStamp_; }
  void SetChangeStamp(std::int32_t generation) { changeStamp_ = generation; }

  // The computed attributes are current. False in a new object; the kernel sets it after a
  // computation, and the database takes it back when a value changes that they may depend on.
  bool AttributesAvailable() const { return attributesAvailable_; }
  void SetAttributesAvailable(bool current) { attributesAvailable_ = current; }

  // The object to work with: a snapshot of a variable, the stored object of any other kind. Whether
  // its attributes are current it says itself; the kernel's typed getters compute them.
  virtual std::shared_ptr<DDObject> ComputeAttributes();
  // Takes over the content of another object of the same item and kind: of a variable what was
  // changed on it, of the others everything. Another kind raises InvalidArgument.
  virtual void Assign(const DDObject& other) = 0;
  // Independent copy with the current state; written back, it carries everything.
  virtual std::shared_ptr<DDObject> GetCopy() const = 0;
  // Lets go of every other object that this one is bound to. Called when the database ends.
  virtual void DropBindings();

  // A variable object that the entry keeps for its host; nothing at first. The library neither
  // sets nor reads it.
  const std::shared_ptr<Variable>& CurrentVariable() const { return currentVariable_; }
  void SetCurrentVariable(std::shared_ptr<Variable> variable);

  // The object as what its kind says: the same object, not a copy. Nothing for another kind.
  std::shared_ptr<Variable> MakeVariable();
  std::shared_ptr<Command> MakeCommand();
  std::shared_ptr<Menu> MakeMenu();
  std::shared_ptr<EditDisplay> MakeEditDisplay();
  std::shared_ptr<Method> MakeMethod();
  std::shared_ptr<RefreshRelation> MakeRefresh();
  std::shared_ptr<UnitRelation> MakeUnit();
  std::shared_ptr<WriteAsOne> MakeWriteAsOne();
  std::shared_ptr<ItemArray> MakeArray();
  std::shared_ptr<ItemCollection> MakeCollection();

  // Text for trace lines. Level 0 names the object; higher levels add its kind, its state and its
  // parts.
  virtual std::string Describe(std::int16_t infoLevel) const;

 protected:
  explicit DDObject(const Definition& definition) : definition_(definition) {}
  // CurrentVariable stays where it is: copies would form a chain that grows with every read.
  DDObject(const DDObject& other);

  // Definition is fixed from birth, except for menus and methods, whose authors may set it later.
  void SetObjectDefinition(const Definition& definition) { definition_ = definition; }
  // Both generations and whether the attributes are current.
  void TakeStampsFrom(const DDObject& other);
  // Raises InvalidArgument unless both are of one kind.
  void RequireSameKind(const DDObject& other) const;

 private:
  Definition definition_;
  std::int32_t syncStamp_ = 0;
  std::int32_t changeStamp_ = 0;
  bool attributesAvailable_ = false;
  std::shared_ptr<Variable> currentVariable_;
};

// A new object of the kind T with that name: MakeObject<Variable>("tag").
template <typename T>
std::shared_ptr<T> MakeObject(std::string_view name) {
  return std::make_shared<T>(Definition::Define(name, T::kKind));
}

}  // namespace ZAFHartTypes
