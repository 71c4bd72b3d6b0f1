#pragma once

#include <memory>

#include "ddobjects/DDObject.h"
#include "interfaces/Codes.h"
#include "platform/Export.h"
#include "types/Variant.h"

namespace ZAFHartLib {

// What a worker database asks of the manager that pairs an offline and an online data set.
class ZAF_API ISingleStorage {
 public:
  virtual ~ISingleStorage() = default;
  // The item has one value for both data sets.
  virtual bool IsSingleStorageObject(const ZAFHartTypes::Definition& definition) const = 0;
  // `object`, an independent copy, has changed in the database of mode `source`. Failures of the
  // receiving database or its GUI manager pass.
  virtual void Update(ZAFHartTypes::StorageMode source,
                      const std::shared_ptr<ZAFHartTypes::DDObject>& object) = 0;
  // Gives a value that was uploaded into the online data set to the offline one.
  virtual void UploadVariableValue(const ZAFHartTypes::Definition& definition,
                                   const ZAFHartTypes::Variant& value) = 0;
};

}  // namespace ZAFHartLib
