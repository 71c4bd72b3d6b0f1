#pragma once

#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "ddobjects/DefinitionList.h"
#include "ddobjects/KeyedList.h"
#include "interfaces/ComponentBase.h"
#include "interfaces/IDDWorkerDB.h"
#include "platform/Export.h"
#include "platform/Object.h"
#include "types/LateBound.h"
#include "workerdb/DatabaseSinks.h"
#include "workerdb/DependencyTable.h"
#include "workerdb/ISingleStorage.h"
#include "workerdb/StateCounter.h"
#include "workerdb/UnitTable.h"

namespace ZAFHartLib {

using ZAFHartTypes::DDObject;
using ZAFHartTypes::Definition;
using ZAFHartTypes::DefinitionList;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::Variable;
using ZAFHartTypes::Variant;

// Definitions by name, in database order.
using DefinitionsByName = ZAFHartTypes::KeyedList<Definition>;
// Names of objects.
using NameSet = std::unordered_set<ZAFHartTypes::TextKey, ZAFHartTypes::TextKeyHash>;

// The run-time database of one device: one object per DD item, the values, the flags that keep the
// kernel from re-entering itself, the generation that tells when computed attributes are stale, the
// defaults, the engineering units and the values kept while a method runs.
//
// A variable that is read is a snapshot; WriteObject takes over what was changed on it. Objects of
// the other kinds are the stored ones. No data model is called from here. One thread, see
// IDDKernel.
class ZAF_API CDDWorkerDB : public platform::Object,
                            public ZAFHartTypes::IDDWorkerDB,
                            public ZAFHartTypes::IDataBaseExtension,
                            public ZAFHartTypes::ILateBound {
 public:
  // Tests of what happens after the last generation start near it.
  explicit CDDWorkerDB(std::int32_t firstGeneration = 1);
  // Unbinds all objects from one another, so that circles among them do not keep them alive.
  ~CDDWorkerDB() override;

  // --- IDDWorkerDB ---
  // Also reads the setting "DisableUnitRecalculation" of the DTM; failures leave it off.
  void SetComponentModel(const std::shared_ptr<ZAFHartTypes::IDDComponents>& components) override;
  std::shared_ptr<ZAFHartTypes::IDDComponents> ComponentModel() const override;

  std::shared_ptr<DDObject> ReadObject(const Definition& definition) override;
  void WriteObject(const std::shared_ptr<DDObject>& object) override;
  void AddObject(const std::shared_ptr<DDObject>& object) override;
  ZAFHartTypes::ValueList ReadValues(const ZAFHartTypes::DataItemList& items) override;
  void WriteValues(const ZAFHartTypes::DataItemList& items,
                   const ZAFHartTypes::ValueList& values) override;

  std::int32_t Count() const override;
  std::shared_ptr<DDObject> Object(std::int32_t position) const override;
  std::shared_ptr<DDObject> Object(const std::string& name) const override;
  std::int32_t FindNextObject(std::int32_t start,
                              std::optional<ObjectKind> kind = {}) const override;
  std::vector<std::shared_ptr<DDObject>> NewEnum() const override;

  void SetVariableAvailable(const Definition& definition, bool available) override;
  void SetVariableError(const Definition& definition, std::int32_t index,
                        const std::string& text) override;
  void SetCommandInRecursion(const Definition& definition, bool running) override;
  bool IsCommandInRecursion(const Definition& definition) const override;
  void SetVariableInRecursion(const Definition& definition, bool running) override;
  bool IsVariableInRecursion(const Definition& definition) const override;
  void SetVariableIsChecked(const Definition& definition, bool checked) override;
  void SetVariableToBeWritten(const Definition& definition, bool pending) override;
  void WriteValue(const Definition& definition, const Variant& value) override;
  void SetRefreshInRecursion(const Definition& definition, bool running) override;
  bool IsRefreshInRecursion(const Definition& definition) const override;
  void SetRefresh(const Definition& right, const Definition& left) override;
  void SetUnitInRecursion(const Definition& definition, bool running) override;
  bool IsUnitInRecursion(const Definition& definition) const override;
  void SetUnit(const Definition& right, const Definition& left) override;
  void ResetInRecursionFlags() override;
  void SetVariableInReadRecursion(const Definition& definition, bool running) override;
  bool IsVariableInReadRecursion(const Definition& definition) const override;

  // --- IDataBaseExtension ---
  bool IsDirty() const override { return generation_ != cleanGeneration_; }
  void SetIsDirty(bool dirty) override;
  bool IsSynchronized() const override { return isSynchronized_; }
  void SetIsSynchronized(bool synchronized) override { isSynchronized_ = synchronized; }
  bool SynchronousMode() const override { return synchronousMode_; }
  void SetSynchronousMode(bool synchronous) override;

  // --- own interface, also late-bound ---
  // Refresh interval of dynamic values in seconds, -1 for none; 10 at first. Setting it counts for
  // variables that are stored from then on; write "__ZAF__DynAvailTime" to change it for all.
  std::int32_t DynAvailTime() const { return dynAvailTime_; }
  void SetDynAvailTime(std::int32_t seconds) { dynAvailTime_ = seconds; }
  // Loads the defaults from section "Default" of the INI file beside the DTM's component file; the
  // argument is the data model's class name. True when there is at least one default; false also
  // when anything fails.
  bool InitDefaultData(const std::string& kernelClassName);
  // "InitDefaultData"(class name) and "DynAvailTime"; MemberNotFound for anything else.
  Variant Invoke(std::string_view name, std::span<const Variant> arguments) override;

  // --- single storage; from here on: operations for other parts of the library ---
  // Told of each change of a single-storage variable, with the storage mode; nothing for none.
  void SetSingleStorage(std::shared_ptr<ISingleStorage> manager);
  std::shared_ptr<ISingleStorage> GetSingleStorage() const { return singleStorage_; }
  // Set by the manager that pairs the data sets.
  void SetStorageMode(ZAFHartTypes::StorageMode mode) { storageMode_ = mode; }
  ZAFHartTypes::StorageMode GetStorageMode() const { return storageMode_; }
  // WriteObject that is not passed on to the single-storage manager.
  void WriteObjectWithoutPropagation(const std::shared_ptr<DDObject>& object);
  // All variables whose name contains "ZAFsingleStorage_" in exactly that letter case.
  DefinitionsByName SingleStorageVariables() const;

  // --- values ---
  // WriteValue on behalf of the kernel's WriteVariable, which writes to the device itself: never
  // does so, whatever the synchronous mode.
  void WriteValueLocally(const Definition& definition, const Variant& value);
  // All definitions of a kind, in database order. The list lives and grows with the database; do
  // not add objects while walking it.
  const DefinitionsByName& ListOfKind(ObjectKind kind) const;
  // Values stay available, whatever their age, while somebody holds the result: held through
  // uploads, downloads and write-changes.
  [[nodiscard]] std::shared_ptr<const void> SuspendExpiry() { return expirySuspension_; }
  // The variables that bear the mark now, and their running count.
  MarkedVariables WatchMarked(VariableMark mark);
  // A running count of the listed variables that bear the mark (see StateCounter).
  std::shared_ptr<StateCounter> CountMarked(VariableMark mark,
                                            const DefinitionList& definitions = {});
  // Adds a variable to a counter of this database.
  void Watch(StateCounter& counter, const Definition& variable) const;

  // --- staleness of computed attributes ---
  // Incremented by every value change; an object whose SyncStamp is lower is stale, unless
  // dependencies are tracked or it is named static.
  std::int32_t Generation() const { return generation_; }
  // Invalidates through dependencies instead of the generation. Switching on makes every object
  // stale.
  void SetTrackDependencies(bool track);
  bool TrackDependencies() const { return trackDependencies_; }
  // Names of the objects whose attributes never go stale by the generation.
  void SetStaticAttributeNames(NameSet names) { staticAttributeNames_ = std::move(names); }
  const NameSet& GetStaticAttributeNames() const { return staticAttributeNames_; }
  bool IsStaticAttributeObject(const Definition& definition) const;
  // `variable` was read while the attributes of `object` were computed: these are stale while it
  // is not available (AddDependency), and once it is written (AddDependent). Adding twice is
  // adding once.
  void AddDependency(const Definition& object, const Definition& variable);
  void AddDependent(const Definition& object, const Definition& variable);
  // The attributes of `source` were used to compute those of `object`: what makes the former stale
  // makes the latter stale.
  void InheritDependencies(const Definition& object, const Definition& source);
  // One of the two was added.
  bool IsDependent(const Definition& object, const Definition& variable) const;
  // Forgets both for the object; call it before its attributes are computed anew.
  void ClearDependencies(const Definition& object) { dependencies_.Clear(object.Key()); }
  // A variable that the object's attributes depend on is not available now; the next ReadObject
  // will find them stale.
  bool HasMissingDependency(const Definition& object) const;
  // One holder at a time: the kernel that computes the attributes.
  void SetSinks(DatabaseSinks sinks) { sinks_ = std::move(sinks); }
  const void* SinkHolder() const { return sinks_.holder; }

  // --- engineering units ---
  // Runs the method "__ZAF__init_unit_table" through the kernel when the DD has it and it is valid.
  void InitUnitTable();
  // Raises DuplicateKey for a code that is taken.
  void AddUnit(const CHartUnit& unit) { units_.Add(unit); }
  // The variable's value in the unit `newUnitText`, looked up in the language of the GUI manager;
  // unchanged when a unit is unknown. Raises TypeMismatch when the value is not a number.
  double ConvertUnit(const Variable& variable, const std::string& newUnitText) const;

  // --- values that a method assigns: they take effect at once and are undone unless saved ---
  // Reads the variable through the kernel; the first time since the last save or restore, its state
  // is kept.
  std::shared_ptr<Variable> ReadForMethod(const Definition& definition);
  // A state of the variable is kept.
  bool KeepsForMethod(const Definition& definition) const {
    return savedValues_.Contains(definition.Key());
  }
  // Keeps what was assigned to all variables touched, or to the listed ones.
  void SaveValues();
  void SaveValues(const DefinitionList& variables);
  // Puts back the kept states of all variables touched, or of the listed ones. Failures of single
  // variables are skipped.
  void RestoreValues();
  void RestoreValues(const DefinitionList& variables);
  // Puts a state back that somebody else has kept, a Copy(). A value that the device has given or
  // taken meanwhile is to be read again.
  void Restore(const std::shared_ptr<Variable>& kept);

 private:
  struct Entry {
    std::shared_ptr<DDObject> object;
    Variable* variable;  // the object itself, nullptr for the other kinds
  };
  struct Marks;
  enum class DeviceWrite : bool { No, Yes };
  enum class Propagation : bool { No, Yes };

  // Look-ups; nullptr for an unknown name and for an object of another kind.
  template <typename View>
  static View* ViewOf(const Entry& entry);
  template <typename View>
  View* Stored(const Definition& definition) const;
  template <typename View, typename Action>
  void ForAll(Action action);
  // An empty definition is every object of the view's kind.
  template <typename View, typename Action>
  void ForOneOrAll(const Definition& definition, Action action);

  // Every change of a stored variable that may touch its Marks goes through here.
  template <typename Change>
  void Alter(Variable& stored, Change change);
  void AfterChange(Variable& stored, const Marks& before);
  void MissingChanged(ZAFHartTypes::TextKey variable, bool missing);
  void CountMark(VariableMark mark, ZAFHartTypes::TextKey variable, bool marked);
  // For use in a change.
  void MakeAvailable(Variable& stored, bool available);
  bool HasExpired(const Variable& stored) const;
  std::shared_ptr<DDObject> CopyOf(const Entry& entry) const;
  bool Emulating() const;

  void UpdateStaleness(DDObject& stored, const Definition& definition);
  void MakeStale(DDObject& stored);
  void InvalidateDependents(ZAFHartTypes::TextKey variable);
  void InvalidateDependents(ZAFHartTypes::TextKey variable, NameSet& visited);
  void AdvanceGeneration();

  void SendLifeSignal();
  void Show(Variable& stored) const;
  void Show(const Definition& definition) const;
  void ApplyDefault(Variable& added);
  void LoadDefaults(const std::string& kernelClassName);
  void SetDefaultsOfVariables();

  void StoreValue(const Definition& definition, const Variant& value, DeviceWrite deviceWrite);
  bool TakeValue(Variable& stored, const Variant& value);
  void WriteToDevice(const Definition& definition, const Variant& value);
  void StoreObject(const std::shared_ptr<DDObject>& object, Propagation propagation);
  void StoreVariable(Variable& incoming, Variable& stored);
  void CompleteIncoming(Variable& incoming) const;
  void AssignChanges(Variable& incoming, Variable& stored);
  void Propagate(const Variable& stored);

  void ApplyRefreshTimes(Variable& stored);
  void FollowIntervalVariable(Variable& stored, std::int32_t& interval,
                              void (Variable::*setInterval)(std::int32_t));

  void RequireVariables(const Definition& right, const Definition& left, const char* source) const;
  void LoseRefreshedValue(Variable& stored);
  std::shared_ptr<Variable> WithKnownType(const Definition& definition);
  void TakeUnitSource(Variable& receiving, const Definition& unit, const std::string& unitText);
  bool RecalculateForUnit(Variable& receiving, const Variable& unit, const std::string& unitText);
  Variant Converted(const Variable& variable, const std::string& newUnitText) const;

  DefinitionList SavedDefinitions() const;

  ZAFHartTypes::ModelReference model_;
  ZAFHartTypes::KeyedList<Entry> objects_;
  mutable std::map<ObjectKind, DefinitionsByName> listsOfKind_;  // made on first use
  ZAFHartTypes::KeyedList<Variant> defaults_;
  NameSet staticAttributeNames_;
  DependencyTable dependencies_;
  DatabaseSinks sinks_;
  std::vector<std::weak_ptr<StateCounter>> counters_;
  std::unordered_map<ZAFHartTypes::TextKey, std::size_t, ZAFHartTypes::TextKeyHash> unitUsers_;
  UnitTable units_;
  ZAFHartTypes::KeyedList<std::shared_ptr<Variable>> savedValues_;
  std::shared_ptr<ISingleStorage> singleStorage_;
  std::shared_ptr<const void> expirySuspension_;  // held by others as well: suspended

  std::int32_t generation_;
  std::int32_t cleanGeneration_ = 0;
  std::int32_t dynAvailTime_ = 10;     // seconds
  std::int32_t staticAvailTime_ = -1;  // seconds; none
  std::int32_t lifeCounter_ = 0;
  ZAFHartTypes::StorageMode storageMode_ = ZAFHartTypes::StorageMode::NotPaired;
  bool trackDependencies_ = false;
  bool isSynchronized_ = false;
  bool synchronousMode_ = false;
  bool disableUnitRecalculation_ = false;
};

}  // namespace ZAFHartLib
