#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "interfaces/IDDExternalTracer.h"
#include "interfaces/IDDWorkerDB.h"

namespace ZAFHartDebugger {

// Value, availability and state of an object as a watch shows them; without its kind and name.
std::string StateText(const ZAFHartTypes::DDObject& object);

// A copy of the stored object; nothing when there is none of that name. Changes nothing in the
// database.
std::shared_ptr<ZAFHartTypes::DDObject> Look(const ZAFHartTypes::IDDWorkerDB& database,
                                             const std::string& name);

// The objects that a tracer watches. The callback's ObjectsToBeWatched holds them as they were last
// seen.
class Watcher {
 public:
  using CallBack = std::shared_ptr<ZAFHartTypes::IDDExternalTracerCallBack>;
  // An object as it was and as it is.
  using OnChange = std::function<void(const std::shared_ptr<ZAFHartTypes::DDObject>& before,
                                      const std::shared_ptr<ZAFHartTypes::DDObject>& now)>;

  // Watches these objects from now on, as soon as the database has them.
  void Watch(const CallBack& callBack, const std::vector<std::string>& names);
  // Tells of those that differ from what was last seen.
  void Check(const CallBack& callBack, const ZAFHartTypes::IDDWorkerDB& database,
             const OnChange& onChange);
  // Names that the database has not had so far.
  const std::vector<std::string>& Missing() const { return missing_; }

 private:
  void FindMissing(ZAFHartTypes::ObjectList& list, const ZAFHartTypes::IDDWorkerDB& database);

  std::vector<std::string> missing_;
  std::int32_t searchedCount_ = 0;  // of the database's objects when they were looked for
};

}  // namespace ZAFHartDebugger
