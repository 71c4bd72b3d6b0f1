#include "debugger/Watcher.h"

#include <algorithm>

#include "ddobjects/Variable.h"
#include "types/Failure.h"
#include "types/TextKey.h"

namespace ZAFHartDebugger {

namespace {

using ZAFHartTypes::DDObject;
using ZAFHartTypes::IDDWorkerDB;
using ZAFHartTypes::ObjectList;
using ZAFHartTypes::SameKey;
using ZAFHartTypes::Variable;

constexpr std::int16_t kStateDetail = 1;

bool IsSame(const DDObject& before, const DDObject& now) {
  const auto* const first = dynamic_cast<const Variable*>(&before);
  const auto* const second = dynamic_cast<const Variable*>(&now);
  if (first && second && first->HasSameState(*second)) return true;
  return before.Describe(kStateDetail) == now.Describe(kStateDetail);
}

}  // namespace

std::string StateText(const DDObject& object) {
  std::string text = object.Describe(kStateDetail);
  const std::string name = object.ObjectDefinition().Describe(kStateDetail);
  if (text.starts_with(name + " ")) text.erase(0, name.size() + 1);
  return text;
}

std::shared_ptr<DDObject> Look(const IDDWorkerDB& database, const std::string& name) {
  std::shared_ptr<DDObject> object;
  ZAFHartTypes::IgnoreFailures([&] { object = database.Object(name); });
  return object;
}

void Watcher::Watch(const CallBack& callBack, const std::vector<std::string>& names) {
  ObjectList& list = callBack->ObjectsToBeWatched();
  std::vector<ZAFHartTypes::Definition> dropped;
  for (const auto& [key, object] : list) {
    const std::string& name = object->ObjectDefinition().Name();
    const bool isKept = std::ranges::any_of(
        names, [&](const std::string& wanted) { return SameKey(wanted, name); });
    if (!isKept) dropped.push_back(object->ObjectDefinition());
  }
  for (const auto& definition : dropped) list.Remove(definition);
  missing_.clear();
  searchedCount_ = 0;
  for (const std::string& name : names) {
    const bool isListed = std::ranges::any_of(list, [&](const auto& entry) {
      return SameKey(entry.second->ObjectDefinition().Name(), name);
    });
    if (!isListed) missing_.push_back(name);
  }
}

void Watcher::FindMissing(ObjectList& list, const IDDWorkerDB& database) {
  if (missing_.empty() || database.Count() == searchedCount_) return;
  searchedCount_ = database.Count();
  std::erase_if(missing_, [&](const std::string& name) {
    const auto object = Look(database, name);
    if (object) list.Add(object);
    return object != nullptr;
  });
}

void Watcher::Check(const CallBack& callBack, const IDDWorkerDB& database,
                    const OnChange& onChange) {
  ObjectList& list = callBack->ObjectsToBeWatched();
  FindMissing(list, database);
  std::vector<std::pair<std::shared_ptr<DDObject>, std::shared_ptr<DDObject>>> changes;
  for (const auto& [key, before] : list) {
    const auto now = Look(database, before->ObjectDefinition().Name());
    if (now && !IsSame(*before, *now)) changes.emplace_back(before, now);
  }
  for (const auto& [before, now] : changes) {
    list.Remove(before->ObjectDefinition());
    list.Add(now);
    onChange(before, now);
  }
}

}  // namespace ZAFHartDebugger
