#pragma once

#include <chrono>

#include "ddobjects/DDObject.h"
#include "ddobjects/DefinitionList.h"
#include "ddobjects/TypeInfo.h"
#include "ddobjects/VariableAttributes.h"
#include "platform/Export.h"
#include "types/SharedText.h"
#include "types/Variant.h"

namespace ZAFHartTypes {

// The six action lists of a variable: methods that run around its editing, reading and writing.
enum class ActionList : std::uint8_t { PreEdit, PostEdit, PreRead, PostRead, PreWrite, PostWrite };
inline constexpr std::size_t kActionListCount = 6;

// What a data model computes of a variable. Snapshots share one block until somebody edits it.
struct VariableBlock {
  VariableAttributes attributes;
  bool readable = true;  // DD HANDLING
  bool writable = true;
  TypeInfo typeInfo;
  SharedText label;  // multilingual, like help and unit
  SharedText help;
  SharedText fixedUnitText;             // unit that no unit variable gives
  std::vector<DefinitionList> actions;  // one list each, or none: few variables have actions

  friend bool operator==(const VariableBlock&, const VariableBlock&) = default;
};

// A DD variable: its value and state, and a block of computed attributes.
//
// A snapshot remembers what was set on it. Writing it to the worker database carries just that, so
// that what others wrote meanwhile stands. A Copy() or GetCopy() carries everything. The recursion
// flags, the write dependencies and CurrentVariable never travel.
class ZAF_API Variable : public DDObject {
 public:
  static constexpr ObjectKind kKind = ObjectKind::Variable;
  using Time = std::chrono::system_clock::time_point;  // of the platform's wall clock

  // State fields that travel, as bits of Changes().
  enum Change : std::uint32_t {
    kValue = 1U << 0,
    kDefaultValue = 1U << 1,
    kValidity = 1U << 2,
    kAvailable = 1U << 3,
    kToBeWritten = 1U << 4,
    kIsChecked = 1U << 5,
    kError = 1U << 6,
    kUnitText = 1U << 7,
    kUnitSource = 1U << 8,
    kAvailTimes = 1U << 9,
    kLastReadTime = 1U << 10,
    kAttributes = 1U << 11,  // the block was recomputed or edited
    kEverything = (1U << 12) - 1,
  };

  // Of no type, readable and writable, valid, without a value and not available.
  explicit Variable(const Definition& definition);
  explicit Variable(std::string_view name)
      : Variable(ZAFHartTypes::Definition::Define(name, kKind)) {}

  const ZAFHartTypes::Definition& Definition() const { return ObjectDefinition(); }
  // The entry of the worker database that this variable is the view of: the variable itself.
  std::shared_ptr<DDObject> Entry() { return shared_from_this(); }

  // --- computed attributes ---
  // Setting and editing gives this object a block of its own, unless it has one already, and marks
  // it kAttributes. References to the block's parts are good until the next such change.
  const VariableAttributes& Attributes() const { return block_->attributes; }
  VariableAttributes& EditAttributes() { return EditBlock().attributes; }
  const ZAFHartTypes::TypeInfo& TypeInfo() const { return block_->typeInfo; }
  // The reference is good until the variable is copied; take a new one for each computation.
  ZAFHartTypes::TypeInfo& EditTypeInfo() { return EditBlock().typeInfo; }
  void SetTypeInfo(ZAFHartTypes::TypeInfo type) { EditBlock().typeInfo = std::move(type); }
  // Label, help and unit are multilingual; "" when there is none. The fixed unit is shown while
  // UnitText() is empty.
  const std::string& Label() const { return block_->label; }
  void SetLabel(SharedText text) { EditBlock().label = std::move(text); }
  const std::string& Help() const { return block_->help; }
  void SetHelp(SharedText text) { EditBlock().help = std::move(text); }
  const std::string& FixedUnitText() const { return block_->fixedUnitText; }
  void SetFixedUnitText(SharedText text) { EditBlock().fixedUnitText = std::move(text); }
  // DD HANDLING allows that access.
  bool CheckHandling(AccessMode mode) const {
    return mode == AccessMode::Read ? block_->readable : block_->writable;
  }
  void SetHandling(bool readable, bool writable);
  // Methods in the order they run; empty when there are none. Pre-edit methods run once when the
  // user begins to edit the variable, post-edit methods when it is left, the others before and
  // after each command that reads or writes it.
  const DefinitionList& Actions(ActionList list) const;
  DefinitionList& EditActions(ActionList list);
  const DefinitionList& PreEditActions() const { return Actions(ActionList::PreEdit); }
  const DefinitionList& PostEditActions() const { return Actions(ActionList::PostEdit); }
  const DefinitionList& PreReadActions() const { return Actions(ActionList::PreRead); }
  const DefinitionList& PostReadActions() const { return Actions(ActionList::PostRead); }
  const DefinitionList& PreWriteActions() const { return Actions(ActionList::PreWrite); }
  const DefinitionList& PostWriteActions() const { return Actions(ActionList::PostWrite); }

  // --- state ---
  // Current value, empty before the first. Of a variable that is available from its default only:
  // the default. To set it neither checks it nor makes it available or to be written.
  const Variant& Value() const;
  void SetValue(Variant value);
  // DD DEFAULT_VALUE, or the one loaded for the DTM; empty for none. It is not checked either.
  const Variant& DefaultValue() const { return defaultValue_; }
  void SetDefaultValue(Variant value);
  // DD VALIDITY as last computed; true at first. A variable that is not valid is hidden; a read
  // gives it SubstituteValue() instead of asking the device, a write is reported as an error.
  bool Validity() const { return validity_; }
  void SetValidity(bool valid) { Set(validity_, valid, kValidity); }
  // The current value is valid: read from the device, written, or set from a default.
  bool Available() const { return available_; }
  void SetAvailable(bool available) { Set(available_, available, kAvailable); }
  // Changed locally and not yet written to the device; the value is then not overwritten by a read.
  bool ToBeWritten() const { return toBeWritten_; }
  void SetToBeWritten(bool pending) { Set(toBeWritten_, pending, kToBeWritten); }
  // Written through the worker database; taken back when the editing of its group begins (see
  // WriteAsOne).
  bool IsChecked() const { return isChecked_; }
  void SetIsChecked(bool checked) { Set(isChecked_, checked, kIsChecked); }
  // The error recorded for the variable, "" and 0 for none: a multilingual text, and an ItemIndex
  // or the error number of a reply. A good value from the device takes it back.
  const std::string& ErrorText() const { return errorText_; }
  void SetErrorText(SharedText text) { Set(errorText_, std::move(text), kError); }
  std::int32_t ErrorIndex() const { return errorIndex_; }
  void SetErrorIndex(std::int32_t index) { Set(errorIndex_, index, kError); }
  // Unit of the value, multilingual: what the unit variable shows. "" while no unit relation has
  // given one.
  const std::string& UnitText() const { return unitText_; }
  void SetUnitText(SharedText text) { Set(unitText_, std::move(text), kUnitText); }
  // The unit variable that gives this variable its unit; empty for none.
  const ZAFHartTypes::Definition& UnitSource() const { return unitSource_; }
  void SetUnitSource(const ZAFHartTypes::Definition& unit) { Set(unitSource_, unit, kUnitSource); }
  // Seconds after which a live value (flag Dynamic), or another one, is read anew; -1 for never.
  // Copied from the worker database.
  std::int32_t DynAvailTime() const { return dynAvailTime_; }
  void SetDynAvailTime(std::int32_t seconds) { Set(dynAvailTime_, seconds, kAvailTimes); }
  std::int32_t StaticAvailTime() const { return staticAvailTime_; }
  void SetStaticAvailTime(std::int32_t seconds) { Set(staticAvailTime_, seconds, kAvailTimes); }
  // When a reply last stored the value; the epoch before the first time.
  Time LastReadTime() const { return lastReadTime_; }
  void SetLastReadTime(Time time) { Set(lastReadTime_, time, kLastReadTime); }

  // --- state that never travels with a snapshot ---
  // The attributes are being computed, and the variable is being read, somewhere up the call chain.
  // Set on the stored object through the worker database.
  bool InRecursion() const { return inRecursion_; }
  void SetInRecursion(bool running) { inRecursion_ = running; }
  bool InReadRecursion() const { return inReadRecursion_; }
  void SetInReadRecursion(bool running) { inReadRecursion_ = running; }
  // Variables that must be written together with or before this one; the relations enter them. The
  // reference for editing is good until the variable is copied.
  const RelationItemList& WriteDependencies() const;
  RelationItemList& EditWriteDependencies();

  // --- operations ---
  // `value` is acceptable: it converts to the type and fits its size; with `strict` it also lies in
  // one of the ranges, is one of the enumeration's, bit list's or array's values. Never raises.
  // An accepted strict value is remembered for FallbackValue of all snapshots of the variable.
  bool CheckValue(const Variant& value, bool strict) const;
  // The last value that passed a strict CheckValue, else the default, else SubstituteValue().
  Variant FallbackValue() const;
  // Value shown for a variable that cannot be valid: an acceptable default; else for numbers with
  // ranges the current value when one range holds it, or the default lowered to the ranges' limits;
  // else the first value of an enumeration or array; else empty.
  Variant SubstituteValue() const;
  // The variable's own unit conversion, used when there is no unit table: the value stays.
  void ConvertToUnit(std::string_view unitText);
  // Same value, availability, to-be-written and checked marks, validity, error, unit text and
  // computed attributes.
  bool HasSameState(const Variable& other) const;
  // Takes over value, the marks available, to be written and checked, validity, error and unit text
  // of another variable of any name; attributes, default and unit source stay.
  void CopyFrom(const Variable& other);
  // Independent copy; written back, it carries everything.
  std::shared_ptr<Variable> Copy() const;
  // Independent copy that carries what is still to be carried from this one.
  std::shared_ptr<Variable> Snapshot() const;

  // --- for the worker database and the kernel ---
  // Goes back to the block that FreezeAttributes kept, before a data model computes it anew.
  void BeginAttributeComputation();
  // Takes a block that was made for many variables, and shares it until it is edited.
  void SetAttributeBlock(std::shared_ptr<const VariableBlock> block) {
    Set(block_, std::move(block), kAttributes);
  }
  // Keeps the present block as what every computation starts from.
  void FreezeAttributes() { frozenBlock_ = block_; }
  // Bits of Change: what was set since the snapshot was taken, and a write to the database will
  // carry. A write forgets them.
  std::uint32_t Changes() const { return changes_; }
  void ForgetChanges() { changes_ = 0; }
  // Value() has been asked since BeginAttributeComputation: a data model that does so computes
  // attributes that depend on the variable itself.
  bool ValueWasRead() const { return valueRead_; }
  // Tick count (ms, wraps around) at which the variable last became available; kept by the worker
  // database.
  std::uint32_t AvailableSince() const { return availableSince_; }
  void SetAvailableSince(std::uint32_t ticks) { availableSince_ = ticks; }

  // A snapshot that carries nothing yet.
  std::shared_ptr<DDObject> ComputeAttributes() override;
  void Assign(const DDObject& other) override;
  std::shared_ptr<DDObject> GetCopy() const override;
  std::string Describe(std::int16_t infoLevel) const override;

 private:
  struct PrivateTag {};

 public:
  // For Copy, Snapshot and ComputeAttributes alone.
  Variable(PrivateTag, const Variable& other, std::uint32_t changes);

 private:
  template <typename Field, typename NewValue>
  void Set(Field& field, NewValue&& value, Change change) {
    field = std::forward<NewValue>(value);
    changes_ |= change;
  }
  VariableBlock& EditBlock();

  std::shared_ptr<const VariableBlock> block_;
  std::shared_ptr<const VariableBlock> frozenBlock_;
  Variant value_;
  Variant defaultValue_;
  // Shared by a variable and its snapshots: values are checked on snapshots. A copy has its own.
  std::shared_ptr<Variant> lastAccepted_;
  SharedText errorText_;
  SharedText unitText_;
  ZAFHartTypes::Definition unitSource_;
  std::shared_ptr<const RelationItemList> writeDependencies_;
  Time lastReadTime_{};
  std::uint32_t changes_ = 0;
  std::uint32_t availableSince_ = 0;
  std::int32_t errorIndex_ = 0;
  std::int32_t dynAvailTime_ = -1;
  std::int32_t staticAvailTime_ = -1;
  bool validity_ = true;
  bool available_ = false;
  bool toBeWritten_ = false;
  bool isChecked_ = false;
  bool inRecursion_ = false;
  bool inReadRecursion_ = false;
  mutable bool valueRead_ = false;
};

}  // namespace ZAFHartTypes
