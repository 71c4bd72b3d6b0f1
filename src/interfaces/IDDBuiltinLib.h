#pragma once

#include <memory>
#include <string>

#include "ddobjects/DDObject.h"

namespace ZAFHartTypes {

class IDDComponents;

// What a DD method's code calls, one object per run of a method.
class IDDBuiltinLib {
 public:
  virtual ~IDDBuiltinLib() = default;
  virtual void SetComponentModel(const std::shared_ptr<IDDComponents>& components) = 0;
  virtual std::shared_ptr<IDDComponents> ComponentModel() const = 0;
  // `currentObject` is the object that the method was started from; a variable is replaced by its
  // stored object.
  virtual void Initialize(std::shared_ptr<DDObject>& currentObject,
                          const std::string& currentMethodName) = 0;
};

}  // namespace ZAFHartTypes
