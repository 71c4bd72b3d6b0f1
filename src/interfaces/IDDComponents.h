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
  // The kernel as seen through the error-trapping wrapper, or the kernel itself. Through the
  // wrapper a failure other than Cancelled and NotConnected is shown to the user as an evaluation
  // error, past the error handler, which is dropped; the call then answers nothing, false or an
  // empty list.
  virtual std::shared_ptr<IDDKernel> DDKernelExtension() const = 0;
  // What the DTM tells about itself; stays after tear-down.
  virtual std::shared_ptr<IKernelInformation> KernelInformation() const = 0;
  // A new builtin library for one run of a method, to be released when the method ends.
  // `currentObject` may be replaced. Raises CannotCreateObject without its class.
  virtual std::shared_ptr<IDDBuiltinLib> DDBuiltinLib(std::shared_ptr<DDObject>& currentObject,
                                                      const std::string& currentMethodName) = 0;
  virtual std::shared_ptr<IDDWorkerDB> DDWorkerDB() const = 0;
  virtual std::shared_ptr<IDDDTMGUI> DDGUI() const = 0;
  virtual std::shared_ptr<IDDCommWrapper> HARTComm() const = 0;
  // Operations on the whole data set; they run the message loop, with the GUI locked. Errors of
  // single variables do not end them: see IDDErrorHandler. Raise ObjectNotSet before Initialize and
  // after tear-down, Cancelled after the user's break, NotConnected for a write without connection,
  // and what methods of the DTM raise.
  // Each takes the definition of a menu; an empty one is replaced by the DTM's upload menu.
  //
  // Reads every variable of the menu from the device; without such a menu all readable ones that
  // are not dynamic. Pending changes are dropped, and no other value stays available.
  virtual void Upload(Definition& menu) = 0;
  // Writes every writable variable of the menu to the device; without such a menu does nothing.
  virtual void Download(Definition& menu) = 0;
  // Writes the variables that are to be written, each after those that it depends on. What was not
  // written stays marked.
  virtual void WriteChanges() = 0;
};

// Offered by a host object that hands out its component model. The library neither implements
// nor calls it: what CheckForSynchronizedData checks is the host's choice.
class ZAF_API IComponentProvider {
 public:
  virtual ~IComponentProvider() = default;
  virtual std::shared_ptr<IDDComponents> ComponentsObject() = 0;
  virtual std::shared_ptr<IKernelInformation> InformationObject() = 0;
  virtual bool CheckForSynchronizedData() = 0;
};

}  // namespace ZAFHartTypes
