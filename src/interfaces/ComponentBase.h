#pragma once

#include <memory>

#include "interfaces/IDDComponents.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

// The back-reference that every component keeps to its component model. Fetch siblings through
// Model() after every wait: it raises ObjectNotSet once the instance has been torn down.
class ZAF_API ModelReference {
 public:
  // Held weakly; nothing at tear-down.
  void Set(const std::shared_ptr<IDDComponents>& components) { components_ = components; }
  // Nothing before Set and after tear-down.
  std::shared_ptr<IDDComponents> Get() const { return components_.lock(); }
  std::shared_ptr<IDDComponents> Model() const;

  // Each raises ObjectNotSet also when the model does not have that component.
  std::shared_ptr<IDDKernel> Kernel() const { return Require(Model()->DDKernel()); }
  std::shared_ptr<IDDWorkerDB> Database() const { return Require(Model()->DDWorkerDB()); }
  std::shared_ptr<IDDDTMGUI> Gui() const { return Require(Model()->DDGUI()); }
  std::shared_ptr<IDDCommWrapper> Comm() const { return Require(Model()->HARTComm()); }

 private:
  [[noreturn]] static void RaiseTornDown();
  template <typename T>
  static std::shared_ptr<T> Require(std::shared_ptr<T> component) {
    if (!component) RaiseTornDown();
    return component;
  }

  std::weak_ptr<IDDComponents> components_;
};

}  // namespace ZAFHartTypes
