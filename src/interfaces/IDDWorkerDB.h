#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ddobjects/DDObject.h"
#include "ddobjects/DataItem.h"
#include "platform/Export.h"
#include "types/Variant.h"

namespace ZAFHartTypes {

class IDDComponents;

// Values in the order of the items of a list.
using ValueList = std::vector<Variant>;

// The store of all DD objects and values of one DTM instance. Names are keys without regard to
// letter case; positions count from 1 in the order the objects were added. Nothing is removed. No
// operation asks the device, except WriteValue and WriteValues in synchronous mode.
//
// In every Set… an empty definition means all objects of the kind concerned; an unknown name or an
// object of another kind is ignored. Every Is… answers false for them.
class ZAF_API IDDWorkerDB {
 public:
  virtual ~IDDWorkerDB() = default;
  virtual void SetComponentModel(const std::shared_ptr<IDDComponents>& components) = 0;
  virtual std::shared_ptr<IDDComponents> ComponentModel() const = 0;

  // The object to work with (see DDObject::ComputeAttributes): a snapshot of a variable, any other
  // object itself; nothing for an unknown name. A value whose refresh interval has passed is not
  // available any more. Attributes may be stale: the kernel's getters compute them.
  virtual std::shared_ptr<DDObject> ReadObject(const Definition& definition) = 0;
  // Takes what was changed on the object into the stored object of its name; ignored when there is
  // none. Never sends anything. Raises InvalidArgument for an object of another kind.
  virtual void WriteObject(const std::shared_ptr<DDObject>& object) = 0;
  // Stores a new object, the caller's own; one whose name is taken is dropped silently. Raises
  // InvalidArgument for nothing.
  virtual void AddObject(const std::shared_ptr<DDObject>& object) = 0;
  // Constants and stored values of the items, in item order; empty for an unknown variable.
  virtual ValueList ReadValues(const DataItemList& items) = 0;
  // WriteValue of each variable item with the value at its position, those of constants skipped;
  // SubscriptOutOfRange when there are too few.
  virtual void WriteValues(const DataItemList& items, const ValueList& values) = 0;

  virtual std::int32_t Count() const = 0;
  // A copy of the stored object. Raises SubscriptOutOfRange, or InvalidProcedureCall for a name.
  virtual std::shared_ptr<DDObject> Object(std::int32_t position) const = 0;
  virtual std::shared_ptr<DDObject> Object(const std::string& name) const = 0;
  // First position from `start` on (0 counts as 1) that holds an object of that kind, -1 when there
  // is none; without a kind, `start` or -1.
  virtual std::int32_t FindNextObject(std::int32_t start,
                                      std::optional<ObjectKind> kind = {}) const = 0;
  // All stored objects themselves, in order; objects added later are not among them.
  virtual std::vector<std::shared_ptr<DDObject>> NewEnum() const = 0;

  // False: the value is to be read again. "__ZAF__DynAvailTime" stays available when all are meant.
  virtual void SetVariableAvailable(const Definition& definition, bool available) = 0;
  // `index`: 0 for no error; an ItemIndex, a status (see kReplyErrorBase) or another number of
  // whoever records it. `text`: multilingual.
  virtual void SetVariableError(const Definition& definition, std::int32_t index,
                                const std::string& text) = 0;
  // Marks that keep the kernel from entering a computation or a read again (InRecursion,
  // InReadRecursion). Those of relations take no empty definition.
  virtual void SetCommandInRecursion(const Definition& definition, bool running) = 0;
  virtual bool IsCommandInRecursion(const Definition& definition) const = 0;
  virtual void SetVariableInRecursion(const Definition& definition, bool running) = 0;
  virtual bool IsVariableInRecursion(const Definition& definition) const = 0;
  // The user has looked at the value, or written it: for write-as-one groups.
  virtual void SetVariableIsChecked(const Definition& definition, bool checked) = 0;
  // Never true for a variable that is not writable or is library-held.
  virtual void SetVariableToBeWritten(const Definition& definition, bool pending) = 0;
  // Stores a new value: the variable becomes available and, when it is writable and not
  // library-held, to be written by the next WriteChanges; in synchronous mode it is written at once
  // (see IDDKernel::WriteVariable, also for what it raises). One that the variable has already, and
  // that is available, changes no mark. It is not checked: see Variable::CheckValue. An unknown
  // name is ignored. Raises TypeMismatch for a refresh interval ("__ZAF__DynAvailTime") that is no
  // number.
  virtual void WriteValue(const Definition& definition, const Variant& value) = 0;
  virtual void SetRefreshInRecursion(const Definition& definition, bool running) = 0;
  virtual bool IsRefreshInRecursion(const Definition& definition) const = 0;
  // `left` has changed: `right` is to be read again, unless it has been read since, and is written
  // after `left`. Raises InvalidArgument for what is no variable, and ignores unknown names.
  virtual void SetRefresh(const Definition& right, const Definition& left) = 0;
  virtual void SetUnitInRecursion(const Definition& definition, bool running) = 0;
  virtual bool IsUnitInRecursion(const Definition& definition) const = 0;
  // `right` gets its unit from the unit variable `left`. When the unit has changed since, the value
  // is converted to it, unless it waits to be written, and is to be read again. Raises as
  // SetRefresh.
  virtual void SetUnit(const Definition& right, const Definition& left) = 0;
  // Clears the recursion marks of all variables and commands.
  virtual void ResetInRecursionFlags() = 0;
  virtual void SetVariableInReadRecursion(const Definition& definition, bool running) = 0;
  virtual bool IsVariableInReadRecursion(const Definition& definition) const = 0;
};

// State of the data set as a whole.
class ZAF_API IDataBaseExtension {
 public:
  virtual ~IDataBaseExtension() = default;
  // A value changed since SetIsDirty(false), which no operation of the library calls; true at
  // first. Setting it to true has no effect.
  virtual bool IsDirty() const = 0;
  virtual void SetIsDirty(bool dirty) = 0;
  // Device and data set agree, as far as known: set by upload, download and write changes, cleared
  // when a write in synchronous mode could not go to the device for emulating.
  virtual bool IsSynchronized() const = 0;
  virtual void SetIsSynchronized(bool synchronized) = 0;
  // Writes go to the device at once, from IDDWorkerDB::WriteValue on. "__ZAF__OnlineMode" 1 or 2
  // follows; 0 is left alone.
  virtual bool SynchronousMode() const = 0;
  virtual void SetSynchronousMode(bool synchronous) = 0;
};

}  // namespace ZAFHartTypes
