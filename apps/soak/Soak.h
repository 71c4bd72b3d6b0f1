#pragma once

#include <random>
#include <vector>

#include "components/CDDComponents.h"
#include "platform/Platform.h"
#include "soak/DeviceModel.h"
#include "workerdb/CDDWorkerDB.h"

namespace soak {

// An instance of the sample DTM that is worked with at random, over a link that fails at random.
class Soak {
 public:
  explicit Soak(std::uint64_t seed);
  ~Soak();
  Soak(const Soak&) = delete;
  Soak& operator=(const Soak&) = delete;

  // Works until so many commands have been sent. False, with the reason in Problem(), as soon as a
  // value has lost its to-be-written mark for no reason, or the device holds another value than it
  // was sent.
  bool RunUntil(std::uint64_t commands);
  const std::string& Problem() const { return problem_; }
  std::uint64_t Commands() const { return model_->Commands(); }
  // What was done how often.
  std::string Account() const;

 private:
  using Definition = ZAFHartTypes::Definition;
  struct Operation {
    const char* name;
    int weight;
    void (Soak::*run)();
    std::uint64_t count = 0;
  };

  void Step();
  void ReadOne();
  void EditOne();
  void WriteChanges();
  void Upload();
  void RunMethod();
  void ChangeFaults();
  void LetTimePass();

  std::size_t Below(std::size_t count);
  bool Chance(double probability);
  const Definition& Any(const std::vector<Definition>& definitions);
  // A value that the variable accepts; empty when none was found.
  ZAFHartTypes::Variant AcceptableValue(const ZAFHartTypes::Variable& variable);
  Names Pending() const;
  void CheckMarks(const Names& before);
  bool IsRefused(const std::string& name) const;

  platform::ManualClock* clock_ = new platform::ManualClock;  // owned by the platform
  platform::Platform platform_{std::unique_ptr<platform::Clock>(clock_)};
  platform::PlatformScope scope_{platform_};
  std::mt19937_64 random_;
  std::shared_ptr<DeviceModel> model_;
  std::shared_ptr<ZAFHartLib::CDDComponents> components_ = ZAFHartLib::CDDComponents::Create();
  std::shared_ptr<ZAFHartLib::CDDWorkerDB> database_;
  std::vector<Definition> variables_;
  std::vector<Definition> methods_;
  std::vector<Operation> operations_;
  Names refused_;               // in this step
  bool mayClearMarks_ = false;  // an upload or a method has run in this step
  std::string problem_;
};

}  // namespace soak
