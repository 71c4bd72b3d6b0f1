// The action methods of variables around reads and writes, and methods themselves.

#include "kernel/KernelOperation.h"
#include "platform/ForeignCall.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

constexpr int kDone = 1;

}  // namespace

void CHARTKernel::ExecutePreReads(DataItemList& items) {
  RunItemActions("IDDKernel_ExecutePreReads", ActionList::PreRead, items);
}
void CHARTKernel::ExecutePostReads(DataItemList& items) {
  RunItemActions("IDDKernel_ExecutePostReads", ActionList::PostRead, items);
}
void CHARTKernel::ExecutePreWrites(DataItemList& items) {
  RunItemActions("IDDKernel_ExecutePreWrites", ActionList::PreWrite, items);
}
void CHARTKernel::ExecutePostWrites(DataItemList& items) {
  RunItemActions("IDDKernel_ExecutePostWrites", ActionList::PostWrite, items);
}

void CHARTKernel::RunItemActions(const char* name, ActionList list, DataItemList& items) {
  KernelOperation operation(*this, name, {{trace_tag::kReq, &items}});
  for (const DataItem& item : items) {
    const auto variable = item.Variable();
    if (!item.CarriesValue() || !variable) continue;
    if (variable->Actions(list).IsEmpty() && !operation.ShowsLevel()) continue;
    ExecuteActions(variable->Actions(list), variable);
  }
  operation.Release(kDone);
}

void CHARTKernel::ExecuteActions(const DefinitionList& methods,
                                 const std::shared_ptr<DDObject>& object) {
  const DefinitionList actions = methods;  // a method may have the list's owner computed anew
  KernelOperation operation(*this, "IDDKernel_ExecuteActions",
                            {{trace_tag::kReq, &actions}, {trace_tag::kObj, object}});
  for (const Definition& method : actions) ExecuteMethod(method, object, false);
  operation.Release(kDone);
}

void CHARTKernel::ExecuteMethod(const Definition& definition,
                                const std::shared_ptr<DDObject>& object, bool inAbort) {
  KernelOperation operation(*this, "IDDKernel_ExecuteMethod",
                            {{trace_tag::kMthd, definition},
                             {trace_tag::kContext, object},
                             {trace_tag::kInAbort, Variant(inAbort)}});
  const auto method = GetMethod(definition);
  if (method->IsValid()) {
    const auto components = model_.Model();
    const std::string& name = method->Definition().Name();
    for (const auto& model : {deviceModel_, internalModel_}) {
      if (!model) continue;
      platform::CallForeign("IDDDataModel", [&] {
        model->ExecuteMethodBody(*this, *components, name, object, inAbort);
      });
    }
  } else {
    Report(method, ItemIndex::MethodNotValid);
  }
  operation.Release(kDone);
}

}  // namespace ZAFHartLib
