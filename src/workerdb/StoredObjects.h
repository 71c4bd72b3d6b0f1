#pragma once

#include "interfaces/InternalNames.h"
#include "workerdb/CDDWorkerDB.h"

// What several files of CDDWorkerDB use.
namespace ZAFHartLib {

inline constexpr std::int32_t kNoInterval = -1;

inline bool IsDynAvailTime(const Variable& variable) {
  static const auto name = ZAFHartTypes::TextKey::Of(ZAFHartTypes::internal_names::kDynAvailTime);
  return variable.Definition().Key() == name;
}
inline bool IsStaticAvailTime(const Variable& variable) {
  static const auto name =
      ZAFHartTypes::TextKey::Of(ZAFHartTypes::internal_names::kStaticAvailTime);
  return variable.Definition().Key() == name;
}

// To be written, if a device command can write it.
inline void MakePending(Variable& stored, bool pending) {
  stored.SetToBeWritten(pending && stored.CheckHandling(ZAFHartTypes::AccessMode::Write) &&
                        !stored.Attributes().IsLibraryHeld());
}

// Seconds that a refresh interval variable stands for, 0 being no timed refresh; nothing for a
// value that is no number.
std::optional<std::int32_t> SecondsOf(const Variant& interval);

// Counts as a change of a value. One non-finite number is as good as another.
inline bool Differ(const Variant& before, const Variant& after) {
  if (before.IsNotFinite() && after.IsNotFinite()) return false;
  return !(before == after);
}

template <typename View>
View* CDDWorkerDB::ViewOf(const Entry& entry) {
  if constexpr (std::is_same_v<View, Variable>) {
    return entry.variable;
  } else {
    return dynamic_cast<View*>(entry.object.get());
  }
}

template <typename View>
View* CDDWorkerDB::Stored(const Definition& definition) const {
  const Entry* entry = objects_.Find(definition.Key());
  return entry ? ViewOf<View>(*entry) : nullptr;
}

template <typename View, typename Action>
void CDDWorkerDB::ForAll(Action action) {
  for (auto& [name, entry] : objects_) {
    if (View* view = ViewOf<View>(entry)) action(*view);
  }
}

template <typename View, typename Action>
void CDDWorkerDB::ForOneOrAll(const Definition& definition, Action action) {
  if (definition.IsEmpty()) {
    ForAll<View>(action);
  } else if (View* view = Stored<View>(definition)) {
    action(*view);
  }
}

// What a change of a variable may have changed besides the variable itself.
struct CDDWorkerDB::Marks {
  Marks() = default;  // of a variable that is not stored
  explicit Marks(const Variable& stored)
      : available(stored.Available()),
        missing(!stored.Available()),
        toBeWritten(stored.ToBeWritten()),
        unitSource(stored.UnitSource().Key()) {}
  bool available = false;
  bool missing = false;
  bool toBeWritten = false;
  ZAFHartTypes::TextKey unitSource;
};

template <typename Change>
void CDDWorkerDB::Alter(Variable& stored, Change change) {
  const Marks before(stored);
  change(stored);
  AfterChange(stored, before);
}

}  // namespace ZAFHartLib
