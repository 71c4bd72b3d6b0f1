#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>

#include "comm/CDDTestCommWrapper.h"
#include "hart/HexText.h"
#include "resources/ResText.h"
#include "support/CommItems.h"
#include "support/StubComponents.h"
#include "support/TestPlatform.h"
#include "workerdb/CDDWorkerDB.h"

namespace test_support {

using namespace ZAFHartLib;  // NOLINT(google-build-using-namespace)

// A link whose replies the test writes down; without one it answers with the reply template. "-" is
// no reply, a reply with a "@" before it that of another command.
class ScriptedLink : public ILink {
 public:
  void Execute(const std::shared_ptr<Exchange>& exchange) override {
    requests.push_back(std::to_string(exchange->CommandNumber()) + ":" + exchange->RequestData());
    last = exchange;
    if (onExecute) onExecute();
    exchange->SetState(ExchangeState::InProgress);
    if (latency.count() == 0) return Finish(exchange);
    timers.push_back(
        platform::Current().Loop().StartOnce(latency, [this, exchange] { Finish(exchange); }));
  }
  void Cancel(const std::shared_ptr<Exchange>& exchange) override {
    ++cancels;
    if (ignoresCancel) return;
    exchange->Finish(ExchangeState::Cancelled, ExchangeResult::None);
  }

  std::deque<std::string> replies;
  platform::Milliseconds latency{0};
  std::function<void()> onExecute;
  bool ignoresCancel = false;

  std::vector<std::string> requests;  // "number:request data"
  std::shared_ptr<Exchange> last;
  int cancels = 0;

 private:
  void Finish(const std::shared_ptr<Exchange>& exchange) {
    std::string reply = exchange->ReplyData();
    if (!replies.empty()) {
      reply = replies.front();
      replies.pop_front();
    }
    if (reply == "-") return exchange->Finish(ExchangeState::NoReply, ExchangeResult::None);
    if (reply[0] == '@') exchange->SetCommandNumber(77);
    exchange->SetReplyData(reply[0] == '@' ? reply.substr(1) : reply);
    exchange->Finish(ExchangeState::Completed, ExchangeResult::ReplyPresent);
  }
  std::vector<platform::Subscription> timers;
};

// A kernel that executes commands through the wrapper, as the real one does at its heart.
class CommKernel : public StubKernel {
 public:
  void ExecuteCommand(const std::shared_ptr<Command>& command, std::int16_t number) override {
    StubKernel::ExecuteCommand(command, number);
    const auto& transaction = command->Transactions().Item(number);
    for (DataItem& item : transaction->Reply()) item.SetVariable(Bound(item));
    components.lock()->HARTComm()->ExecuteCommand(command->Number(), transaction);
  }
  void AsyncExecuteCommandEnd(const std::shared_ptr<CommandRef>& reference) override {
    ended.push_back(reference);
    if (fails) throw Failure(ErrorNumber::Unexpected, "Kernel", "cannot end");
  }
  std::vector<std::shared_ptr<CommandRef>> ended;
  bool fails = false;

 private:
  std::shared_ptr<Variable> Bound(const DataItem& item) {
    return item.IsVariable() ? GetVariable(item.VariableDefinition()) : nullptr;
  }
};

// A wrapper with a real database, on a clock that the test moves, over a scripted link.
class CommTest : public testing::Test, public TestPlatform {
 protected:
  CommTest() {
    components->kernel = kernel;
    kernel->SetComponentModel(components);
    components->comm = comm;
    comm->SetComponentModel(components);
    comm->SetLink(link);
    NewDatabase();
    comm->SetAddressInformation(0, "", "26060000AB");
  }
  void NewDatabase() {
    database = std::make_shared<CDDWorkerDB>();
    components->Use(database);
    Add(MakeVariable("__ZAF__OnlineMode", TypeCode::Enumerated, 2));
    Add(MakeVariable("__ZAF__DTMOnlineState", TypeCode::Enumerated, 4));
  }
  StubGui& Gui() { return dynamic_cast<StubGui&>(*components->gui); }
  void Add(const std::shared_ptr<DDObject>& object) { database->AddObject(object); }
  Variant Stored(const char* name) {
    return database->ReadObject(Definition::Define(name, ObjectKind::Variable))
        ->MakeVariable()
        ->Value();
  }
  // A command with one transaction in the database.
  std::shared_ptr<Command> AddCommand(const char* name, std::int16_t number, DataItemList request,
                                      DataItemList reply) {
    auto command = MakeObject<Command>(name);
    command->SetNumber(number);
    Transaction& only = command->Transactions().Add(0);
    only.Request() = std::move(request);
    only.Reply() = std::move(reply);
    Add(command);
    return command;
  }
  // Executes a command whose reply has the status bytes and `data`.
  bool Execute(const DataItemList& request, const DataItemList& data, const char* reply = nullptr) {
    transaction = MakeTransaction(request, data);
    if (reply) link->replies.emplace_back(reply);
    return comm->ExecuteCommand(3, transaction);
  }
  std::string Status() const {
    const CommandStatus status = comm->LastStatus();
    return ZAFHartTypes::hart::ToHex(
        std::vector<std::uint8_t>{status.responseCode, status.communication, status.device});
  }

  std::shared_ptr<StubComponents> components = StubComponents::Create();
  std::shared_ptr<CommKernel> kernel = std::make_shared<CommKernel>();
  std::shared_ptr<CDDWorkerDB> database;
  std::shared_ptr<ScriptedLink> link = std::make_shared<ScriptedLink>();
  std::shared_ptr<CDDTestCommWrapper> comm = std::make_shared<CDDTestCommWrapper>();
  std::shared_ptr<Transaction> transaction;
};

}  // namespace test_support
