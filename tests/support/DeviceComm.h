#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "support/StubComponents.h"

namespace test_support {

// A communication wrapper with a device of its own: values by variable name. Read and echoed values
// come from there, the values of write commands go there. Replies begin with a response code and a
// device status item.
class DeviceComm : public StubComm {
 public:
  bool ExecuteCommand(std::int16_t number, const std::shared_ptr<Transaction>& t) override {
    sent.push_back(Line(number, *t));
    if (whileWaiting) std::exchange(whileWaiting, {})();
    if (failure) throw Failure(*failure, "DeviceComm");
    Exchange(*t);
    return lastResult == 0;
  }
  bool AsyncExecuteCommand(const std::shared_ptr<CommandRef>& reference) override {
    sent.push_back(Line(reference->Command()->Number(), *reference->ReferredTransaction()));
    started.push_back(reference);
    return false;
  }
  // Completes the exchange that was started first.
  void FinishAsync(IDDKernel& kernel) {
    const auto reference = started.front();
    started.erase(started.begin());
    Exchange(*reference->ReferredTransaction());
    kernel.AsyncExecuteCommandEnd(reference);
  }
  std::vector<std::string> TakeSent() { return std::exchange(sent, {}); }

  std::map<std::string, Variant> memory;
  std::vector<std::uint8_t> firstBytes;  // of the coming replies, then 0
  std::uint8_t deviceStatus = 0;
  bool replies = true;
  std::string recordedError;           // on every reply variable
  std::function<void()> whileWaiting;  // runs once
  std::optional<ErrorNumber> failure;
  std::vector<std::string> sent;  // "<number>(<request items>)"
  std::vector<std::shared_ptr<CommandRef>> started;

 private:
  static std::string Line(std::int16_t number, const Transaction& transaction) {
    return std::to_string(number) + transaction.Request().Describe(1);
  }

  void Exchange(Transaction& transaction) {
    lastResult = replies ? 0 : -3;
    lastStatus = replies ? CommandStatus{} : CommandStatus{0, 144, 0};
    if (!replies) return;
    lastStatus.device = deviceStatus;
    std::uint8_t first = 0;
    if (!firstBytes.empty()) {
      first = firstBytes.front();
      firstBytes.erase(firstBytes.begin());
    }
    ((first & 0x80) != 0 ? lastStatus.communication : lastStatus.responseCode) = first;
    if (first == 0) TakeRequest(transaction.Request());
    for (DataItem& item : transaction.Request()) {
      if (item.IsVariable() && !item.IsInfo()) item.Variable()->SetToBeWritten(false);
    }
    for (DataItem& item : transaction.Reply()) {
      if (item.IsVariable() && IsSent(transaction.Request(), item)) {
        item.Variable()->SetToBeWritten(false);
      }
    }
    std::size_t position = 0;
    for (DataItem& item : transaction.Reply()) FillReply(item, ++position, first);
  }
  static bool IsSent(const DataItemList& request, const DataItem& item) {
    return std::any_of(request.begin(), request.end(), [&](const DataItem& each) {
      return each.IsVariable() && each.VariableDefinition().IsSameAs(item.VariableDefinition());
    });
  }
  void TakeRequest(const DataItemList& request) {
    for (const DataItem& item : request) {
      if (item.IsVariable()) memory[item.VariableDefinition().Name()] = item.Value();
    }
  }
  void FillReply(DataItem& item, std::size_t position, std::uint8_t first) {
    if (position <= 2) {
      item.SetValue(position == 1 ? first : deviceStatus);
      return;
    }
    const auto found = memory.find(item.VariableDefinition().Name());
    if (!item.IsVariable() || item.IsInfo() || item.Variable()->ToBeWritten()) return;
    if (found != memory.end() && first == 0) item.Variable()->SetValue(found->second);
    item.Variable()->SetAvailable(true);
    item.Variable()->SetErrorIndex(recordedError.empty() ? 0 : 99);
    item.Variable()->SetErrorText(recordedError);
  }
};

}  // namespace test_support
