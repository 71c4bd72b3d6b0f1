#pragma once

#include <memory>

#include "ddobjects/Definition.h"

namespace ZAFHartLib {

class CDDWorkerDB;

// What a computation took from an item that it read.
enum class ReadSort : bool {
  Attributes,  // its attributes, or its value as it stands: stale once the value is written
  Value,       // its value from the device: stale as well while the value is not available
};

// Keeps note of what is read while the attributes of one object are computed, in a worker database
// that tracks dependencies. Notes are made as things are read, so that a change during the
// computation is not missed.
//
// Frames form a stack: a computation that reads another object, or that a timer interrupts in a
// wait, has its own. Each lives on the call stack of its computation.
class DependencyFrame {
 public:
  // `innermost` is the head of the stack of frames. A frame without a database, or for an object
  // whose attributes never go stale, notes nothing. What an enclosing computation of the same
  // object has noted stays.
  DependencyFrame(DependencyFrame*& innermost, std::shared_ptr<CDDWorkerDB> database,
                  const ZAFHartTypes::Definition& object);
  ~DependencyFrame();
  DependencyFrame(const DependencyFrame&) = delete;
  DependencyFrame& operator=(const DependencyFrame&) = delete;

  bool IsNoting() const { return database_ != nullptr; }
  // The object depends on the item, and on all that the item's own attributes were computed from;
  // where the item is the object itself, on its own value.
  void Note(const ZAFHartTypes::Definition& item, ReadSort sort);
  // The object depends on its own value.
  void NoteOwnValue();
  // Something that was read has changed since: the result is stale as it is finished.
  bool IsOutdated() const { return outdated_; }

  // How many computations of the object are under way.
  static int Nesting(const DependencyFrame* innermost, const ZAFHartTypes::Definition& object);
  // Marks all frames of the object from `innermost` outwards as outdated.
  static void Outdate(DependencyFrame* innermost, const ZAFHartTypes::Definition& object);

 private:
  DependencyFrame*& innermost_;
  DependencyFrame* outer_;
  std::shared_ptr<CDDWorkerDB> database_;
  ZAFHartTypes::Definition object_;
  bool outdated_ = false;
};

}  // namespace ZAFHartLib
