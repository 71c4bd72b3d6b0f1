#pragma once

#include <gmock/gmock.h>

#include "gui/CDDDTMGUI.h"
#include "kernel/CHARTKernel.h"
#include "support/DeviceComm.h"
#include "support/FailureOf.h"
#include "support/FakeDataModel.h"
#include "support/RecordingControl.h"
#include "support/RecordingTracer.h"
#include "support/TestPlatform.h"
#include "workerdb/CDDWorkerDB.h"

namespace test_support {

using support::FailureOf;

// Handles every error and keeps it: "<name> <item index>", "response <code>".
class RecordingHandler : public IDDErrorHandler {
 public:
  std::int32_t ObjectError(const std::shared_ptr<DDObject>& object, ItemIndex index) override {
    errors.push_back(object->ObjectDefinition().Name() + " " +
                     std::to_string(static_cast<std::int32_t>(index)));
    return 1;
  }
  std::int32_t ResponseCodeError(const CommandStatus& status,
                                 const std::shared_ptr<CommandRef>&) override {
    errors.push_back("response " + std::to_string(status.responseCode));
    return 1;
  }
  std::int32_t EvaluationError(const std::string& message) override {
    errors.push_back(message);
    return 1;
  }
  std::vector<std::string> errors;
};

// A kernel with the real worker database and GUI manager, and a device and a data model of the
// test's making. Fill `model`, then Start().
class KernelWorld : public TestPlatform {
 public:
  KernelWorld() {
    components->kernel = kernel;
    components->comm = comm;
    components->gui = gui;
    kernel->SetComponentModel(components);
    components->Use(database);
    gui->SetComponentModel(components);
    platform.Classes().Register("Test.Model", [this] { return model; });
  }
  ~KernelWorld() {
    gui->SetComponentModel(nullptr);
    kernel->SetComponentModel(nullptr);
  }
  KernelWorld(const KernelWorld&) = delete;
  KernelWorld& operator=(const KernelWorld&) = delete;
  void Start() {
    kernel->InitializeDB("Test.Model");
    Set("__ZAF__FDTUserLevel", std::int16_t{3});
    gui->SetErrorHandler(handler);
    comm->sent.clear();
    model->computed.clear();
    if (tracer) tracer->calls.clear();
  }

  static Definition Var(std::string_view name) { return Def(name, ObjectKind::Variable); }
  static Definition Cmd(std::string_view name) { return Def(name, ObjectKind::Command); }
  static Definition Def(std::string_view name, ObjectKind kind) {
    return Definition::Define(name, kind);
  }

  // An 8-bit integer variable of the device, 0 to 99.
  Variable& AddVariable(const char* name) {
    auto& variable = model->Add<Variable>(name);
    TypeInfo type;
    type.SetTypeCode(TypeCode::Unsigned);
    type.SetSize(1);
    type.SetMinValue(1, std::int16_t{0});
    type.SetMaxValue(1, std::int16_t{99});
    variable.SetTypeInfo(type);
    return variable;
  }
  // A command with transaction 0, whose reply begins with the two status items.
  Command& AddCommand(const char* name, std::int16_t number, Operation operation,
                      DataItemList request, std::initializer_list<DataItem> reply) {
    auto& command = model->Add<Command>(name);
    command.SetNumber(number);
    command.SetOperation(operation);
    AddTransaction(command, 0, std::move(request), reply);
    return command;
  }
  static void AddTransaction(Command& command, std::int16_t number, DataItemList request,
                             std::initializer_list<DataItem> reply) {
    Transaction& transaction = command.Transactions().Add(number);
    transaction.Request() = std::move(request);
    transaction.Reply() = {DataItem::Constant(0), DataItem::Constant(0)};
    for (const DataItem& item : reply) transaction.Reply().Add(item);
  }
  static DataItem Ref(std::string_view name) { return DataItem::Reference(Var(name)); }

  std::shared_ptr<Variable> Stored(std::string_view name) {
    return database->ReadObject(Var(name))->MakeVariable();
  }
  std::int32_t Value(std::string_view name) { return Stored(name)->Value().ToLong(); }
  void Set(std::string_view name, const Variant& value) { database->WriteValue(Var(name), value); }
  // A value that the device is known to have.
  void SetClean(std::string_view name, const Variant& value) {
    Set(name, value);
    database->SetVariableToBeWritten(Var(name), false);
  }
  std::string LastError() { return Stored("__ZAF__LastCommunicationError")->Value().ToText(); }
  std::vector<std::string> TakeErrors() { return std::exchange(handler->errors, {}); }
  // The tracer is shown all levels from now on.
  void TraceAll() {
    tracer->callBack->SetStackLevelFilter(99);
    tracer->callBack->SetTraceLevelFilter(2);
  }

  std::shared_ptr<RecordingTracer> tracer = RecordingTracer::Install(platform);
  std::shared_ptr<FakeDataModel> model = std::make_shared<FakeDataModel>();
  std::shared_ptr<DeviceComm> comm = std::make_shared<DeviceComm>();
  std::shared_ptr<RecordingHandler> handler = std::make_shared<RecordingHandler>();
  std::shared_ptr<ZAFHartLib::CDDDTMGUI> gui = std::make_shared<ZAFHartLib::CDDDTMGUI>();
  std::shared_ptr<ZAFHartLib::CDDWorkerDB> database = std::make_shared<ZAFHartLib::CDDWorkerDB>();
  std::shared_ptr<ZAFHartLib::CHARTKernel> kernel = std::make_shared<ZAFHartLib::CHARTKernel>();
  std::shared_ptr<StubComponents> components = StubComponents::Create();
};

class KernelTest : public testing::Test, public KernelWorld {};

// Command 3 reads a and b, command 6 writes both, commands 0 and 1 read c; d has no command, "own"
// is the library's.
class KernelReadWrite : public KernelTest {
 protected:
  KernelReadWrite() {
    for (const char* name : {"a", "b", "c", "d"}) AddVariable(name);
    AddVariable("own").EditAttributes().SetFlag(VariableFlag::LibraryHeld, true);
    AddCommand("identify", 0, Operation::Read, {}, {Ref("c")});
    AddCommand("read_c", 1, Operation::Read, {}, {Ref("c"), Ref("b")});
    AddCommand("read", 3, Operation::Read, {}, {Ref("a"), Ref("b")});
    AddCommand("write", 6, Operation::Write, {Ref("a"), Ref("b")}, {Ref("a")});
    comm->memory = {{"a", std::int16_t{11}}, {"b", std::int16_t{12}}, {"c", std::int16_t{13}}};
  }
};

}  // namespace test_support
