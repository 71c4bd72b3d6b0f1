#pragma once

#include <initializer_list>

#include "kernel/CHARTKernel.h"
#include "kernel/DependencyFrame.h"
#include "kernel/TraceScope.h"

namespace ZAFHartLib {

// One running public operation of the kernel: its trace level, and the dependency frame of the
// computation that called it. What the operation itself reads is not noted there, only what it was
// asked for.
class KernelOperation : public TraceScope {
 public:
  KernelOperation(CHARTKernel& kernel, const char* operation, std::initializer_list<Input> inputs)
      : TraceScope(*kernel.Gui(), operation, inputs),
        kernel_(kernel),
        callersFrame_(std::exchange(kernel.context_.frame, nullptr)) {}
  ~KernelOperation() override {
    kernel_.context_.frame = callersFrame_;
    if (callersFrame_ && asked_) callersFrame_->Note(asked_, sort_);
  }
  KernelOperation(const KernelOperation&) = delete;
  KernelOperation& operator=(const KernelOperation&) = delete;

  // The operation hands out the item: a computation that called it depends on the item. Noted at
  // the end, when it is known what the item's own attributes depend on.
  void Reads(const ZAFHartTypes::Definition& definition, ReadSort sort) {
    asked_ = definition;
    sort_ = sort;
  }

  // Writes the result line, closes the level and hands the result on.
  template <typename Object>
  std::shared_ptr<Object> Return(std::shared_ptr<Object> result, int exit) {
    Result(result);
    Release(exit);
    return result;
  }

 private:
  CHARTKernel& kernel_;
  DependencyFrame* callersFrame_;
  ZAFHartTypes::Definition asked_;
  ReadSort sort_ = ReadSort::Attributes;
};

}  // namespace ZAFHartLib
