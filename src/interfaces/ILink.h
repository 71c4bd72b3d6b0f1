#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ddobjects/DataItem.h"
#include "ddobjects/KeyedList.h"
#include "interfaces/Codes.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

// Completed and the states after it are ends.
enum class ExchangeState : std::int32_t {
  Created = 0,     // no link has it yet
  Queued = 1,      // by the link, behind others
  InProgress = 2,  // on the way
  Completed = 3,   // with a reply
  NoReply = 4,
  Cancelled = 5,
  NotSent = 6,  // there was no connection to send it on
};
// A link has it, and its end is to come.
constexpr bool IsUnderWay(ExchangeState state) {
  return state == ExchangeState::Queued || state == ExchangeState::InProgress;
}

// Whether an ended exchange has a reply: with an error status as well.
enum class ExchangeResult : std::int32_t { None = 0, ReplyPresent = 1 };
// How a link gives the reply: as bytes, or as values by name behind the two status bytes.
enum class ResponseType : std::int32_t { Bytes = 0, NamedValues = 1 };

class Exchange;

// Receives the end of an exchange: once, when its state tells how it ended; from within the link's
// Execute or Cancel, or from the message loop. What it raises reaches the link.
class ZAF_API ICommCallback {
 public:
  virtual ~ICommCallback() = default;
  virtual void CommCallback_Finisched(const std::shared_ptr<Exchange>& exchange) = 0;
};

// One request to a device and its reply. The wrapper fills in the address and the request, a link
// fills in the reply and finishes it. Data are texts of hexadecimal digits, two per byte ("0040").
class ZAF_API Exchange : public std::enable_shared_from_this<Exchange> {
 public:
  // HART command number. One that a link has replaced makes the reply that of another command,
  // which is dropped.
  std::int16_t CommandNumber() const { return commandNumber_; }
  void SetCommandNumber(std::int16_t number) { commandNumber_ = number; }
  // 0 to 63.
  std::int16_t PollAddress() const { return pollAddress_; }
  void SetPollAddress(std::int16_t address) { pollAddress_ = address; }
  // The tag of the data set, for links that look devices up by it; "" for none.
  const std::string& Tag() const { return tag_; }
  void SetTag(std::string tag) { tag_ = std::move(tag); }
  // Ten hexadecimal digits when the unique address of the device is known; zeros are the broadcast
  // address of commands 11 and 21. Two digits are a polling address. Otherwise the request goes to
  // PollAddress.
  const std::string& LongAddress() const { return longAddress_; }
  void SetLongAddress(std::string address) { longAddress_ = std::move(address); }
  // Data bytes of the request.
  const std::string& RequestData() const { return requestData_; }
  void SetRequestData(std::string hex) { requestData_ = std::move(hex); }
  // Before the exchange: the reply that the data set would give, for links that echo. After it: the
  // reply, from the response code byte on.
  const std::string& ReplyData() const { return replyData_; }
  void SetReplyData(std::string hex) { replyData_ = std::move(hex); }
  // The transaction whose items the data stand for; nothing for an empty exchange and for one that
  // the wrapper makes without the DD.
  const std::shared_ptr<Transaction>& ItemsOf() const { return transaction_; }
  void SetItemsOf(std::shared_ptr<Transaction> transaction) {
    transaction_ = std::move(transaction);
  }
  // Of that transaction; nullptr without one. Good as long as the exchange lives.
  const DataItemList* RequestItems() const;
  const DataItemList* ReplyItems() const;

  // Set by links on the way; Finish sets the end.
  ExchangeState State() const { return state_; }
  void SetState(ExchangeState state) { state_ = state; }
  ExchangeResult Result() const { return result_; }
  void SetResult(ExchangeResult result) { result_ = result; }
  // NamedValues: the link gives the values of the reply by variable name in ResponseInfo, and in
  // ReplyData only the two status bytes.
  ZAFHartTypes::ResponseType ResponseType() const { return responseType_; }
  void SetResponseType(ZAFHartTypes::ResponseType type) { responseType_ = type; }
  KeyedList<Variant>& ResponseInfo() { return responseInfo_; }
  const KeyedList<Variant>& ResponseInfo() const { return responseInfo_; }

  // Receives the end; not owned.
  void SetCallback(std::weak_ptr<ICommCallback> callback) { callback_ = std::move(callback); }
  // Carried unchanged to the callback.
  const std::shared_ptr<CommandRef>& UserData() const { return userData_; }
  void SetUserData(std::shared_ptr<CommandRef> data) { userData_ = std::move(data); }

  // For links: ends the exchange and tells the callback. A second end is ignored.
  void Finish(ExchangeState state, ExchangeResult result);

 private:
  std::int16_t commandNumber_ = 0;
  std::int16_t pollAddress_ = 0;
  std::string tag_;
  std::string longAddress_;
  std::string requestData_;
  std::string replyData_;
  std::shared_ptr<Transaction> transaction_;
  ExchangeState state_ = ExchangeState::Created;
  ExchangeResult result_ = ExchangeResult::None;
  ZAFHartTypes::ResponseType responseType_ = ZAFHartTypes::ResponseType::Bytes;
  KeyedList<Variant> responseInfo_;
  std::weak_ptr<ICommCallback> callback_;
  std::shared_ptr<CommandRef> userData_;
};

// The way to a device. Links are created by class name, or made by the host.
class ZAF_API ILink {
 public:
  virtual ~ILink() = default;
  // Starts the exchange and returns; its state changes arrive through the message loop. A link that
  // needs no time may have finished it before it returns. Raises when it cannot be driven at all.
  // The exchange is held until it ends; InvalidProcedureCall for one that is under way already.
  virtual void Execute(const std::shared_ptr<Exchange>& exchange) = 0;
  // Ends an exchange under way as Cancelled; one that is not under way is left alone.
  virtual void Cancel(const std::shared_ptr<Exchange>& exchange) = 0;
};

// Offered by links that can tell why an exchange had no reply.
class ZAF_API ILinkStatus {
 public:
  virtual ~ILinkStatus() = default;
  // What kept the last exchange from an answer ("cannot open /dev/ttyUSB0: …"), for users; "" when
  // it had one, and when a device simply did not answer.
  virtual std::string LastError() const = 0;
};

// Offered by links that ask a busy device again (response codes 32 to 36) instead of handing the
// first such reply over.
class ZAF_API IBusyRetrying {
 public:
  virtual ~IBusyRetrying() = default;
  // Off unless the host has switched it on.
  virtual bool RetriesBusy() const = 0;
  // Times that a command is asked again, at least 1; counts from the next exchange on. The wrapper
  // passes on "__ZAF__RETRYNO" while the policy is on.
  virtual void SetBusyAttempts(int attempts) = 0;
};

}  // namespace ZAFHartTypes
