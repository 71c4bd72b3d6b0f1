#pragma once

#include <memory>
#include <string>

#include "ddobjects/IDDDataModel.h"
#include "interfaces/IDDBuiltinLib.h"
#include "interfaces/IDDCommWrapper.h"
#include "interfaces/IDDDTMGUI.h"
#include "interfaces/IDDKernel.h"
#include "interfaces/IDDWorkerDB.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

// The components of one DTM instance. Getters return nothing after tear-down; hold the result
// through the call.
class ZAF_API IDDComponents {
 public:
  virtual ~IDDComponents() = default;
  virtual std::shared_ptr<IDDKernel> DDKernel() const = 0;
  // The kernel as seen through the error-trapping wrapper, or the kernel itself.
  virtual std::shared_ptr<IDDKernel> DDKernelExtension() const = 0;
  virtual std::shared_ptr<IKernelInformation> KernelInformation() const = 0;
  // A new builtin library for one run of a method. `currentObject` may be replaced.
  virtual std::shared_ptr<IDDBuiltinLib> DDBuiltinLib(std::shared_ptr<DDObject>& currentObject,
                                                      const std::string& currentMethodName) = 0;
  virtual std::shared_ptr<IDDWorkerDB> DDWorkerDB() const = 0;
  virtual std::shared_ptr<IDDDTMGUI> DDGUI() const = 0;
  virtual std::shared_ptr<IDDCommWrapper> HARTComm() const = 0;
  // Each takes the definition of a menu; an empty one is replaced by the DTM's upload menu.
  virtual void Upload(Definition& menu) = 0;
  virtual void Download(Definition& menu) = 0;
  virtual void WriteChanges() = 0;
};

// Offered by a host object that hands out its component model.
class ZAF_API IComponentProvider {
 public:
  virtual ~IComponentProvider() = default;
  virtual std::shared_ptr<IDDComponents> ComponentsObject() = 0;
  virtual std::shared_ptr<IKernelInformation> InformationObject() = 0;
  virtual bool CheckForSynchronizedData() = 0;
};

}  // namespace ZAFHartTypes
