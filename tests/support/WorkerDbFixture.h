#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

#include "support/FailureOf.h"
#include "support/StubComponents.h"
#include "support/TestPlatform.h"
#include "workerdb/CDDWorkerDB.h"

namespace test_support {

using support::NumberOfFailure;

inline Definition VariableNamed(std::string_view name) {
  return Definition::Define(name, ObjectKind::Variable);
}

// A worker database with stubs around it and a clock that stands still.
class WorkerDbFixture : public testing::Test, public TestPlatform {
 protected:
  WorkerDbFixture() { components->Use(database); }

  // A float variable with the flags.
  void AddVariable(std::string_view name, std::initializer_list<VariableFlag> flags = {}) {
    auto variable = std::make_shared<Variable>(name);
    variable->EditTypeInfo().SetTypeCode(TypeCode::Float);
    for (const VariableFlag flag : flags) variable->EditAttributes().SetFlag(flag, true);
    database->AddObject(variable);
  }
  std::shared_ptr<Variable> Read(std::string_view name) {
    return database->ReadObject(VariableNamed(name))->MakeVariable();
  }
  void Write(std::string_view name, const Variant& value) {
    database->WriteValue(VariableNamed(name), value);
  }
  void SetAvailable(std::string_view name, bool available) {
    database->SetVariableAvailable(VariableNamed(name), available);
  }

  std::shared_ptr<StubComponents> components = StubComponents::Create();
  std::shared_ptr<StubGui> gui = std::static_pointer_cast<StubGui>(components->gui);
  std::shared_ptr<StubKernel> kernel = std::static_pointer_cast<StubKernel>(components->kernel);
  std::shared_ptr<StubComm> comm = std::static_pointer_cast<StubComm>(components->comm);
  std::shared_ptr<ZAFHartLib::CDDWorkerDB> database = std::make_shared<ZAFHartLib::CDDWorkerDB>();
};

}  // namespace test_support
