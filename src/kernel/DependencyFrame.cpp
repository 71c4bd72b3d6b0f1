#include "kernel/DependencyFrame.h"

#include "workerdb/CDDWorkerDB.h"

namespace ZAFHartLib {

DependencyFrame::DependencyFrame(DependencyFrame*& innermost, std::shared_ptr<CDDWorkerDB> database,
                                 const Definition& object)
    : innermost_(innermost), outer_(innermost), database_(std::move(database)), object_(object) {
  if (database_ && database_->IsStaticAttributeObject(object_)) database_ = nullptr;
  if (database_ && Nesting(innermost, object_) == 0) database_->ClearDependencies(object_);
  innermost_ = this;
}

DependencyFrame::~DependencyFrame() {
  innermost_ = outer_;
}

void DependencyFrame::Note(const Definition& item, ReadSort sort) {
  if (item.IsSameAs(object_)) return NoteOwnValue();
  if (!database_) return;
  database_->AddDependent(object_, item);
  if (sort == ReadSort::Value) database_->AddDependency(object_, item);
  database_->InheritDependencies(object_, item);
}

void DependencyFrame::NoteOwnValue() {
  if (database_) database_->AddDependent(object_, object_);
}

int DependencyFrame::Nesting(const DependencyFrame* innermost, const Definition& object) {
  int count = 0;
  for (const DependencyFrame* frame = innermost; frame; frame = frame->outer_) {
    if (frame->object_.IsSameAs(object)) ++count;
  }
  return count;
}

void DependencyFrame::Outdate(DependencyFrame* innermost, const Definition& object) {
  for (DependencyFrame* frame = innermost; frame; frame = frame->outer_) {
    if (frame->object_.IsSameAs(object)) frame->outdated_ = true;
  }
}

}  // namespace ZAFHartLib
