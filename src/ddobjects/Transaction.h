#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ddobjects/DataItem.h"
#include "ddobjects/ResponseCode.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

// One layout of a command's request and reply. In a reply, item 1 is the response code byte and
// item 2 the field device status byte.
class ZAF_API Transaction {
 public:
  // Without items and codes. `number` is the DD's; a command with one layout has transaction 0.
  explicit Transaction(std::int16_t number) : number_(number) {}

  std::int16_t Number() const { return number_; }
  // Items in wire order; of a request the data bytes alone.
  const DataItemList& Request() const { return request_; }
  DataItemList& Request() { return request_; }
  const DataItemList& Reply() const { return reply_; }
  DataItemList& Reply() { return reply_; }
  // Codes of this transaction only; the command's own stand beside them, these come first. Empty
  // when there are none. Editing gives this object a list of its own with the same codes; the
  // reference is good until the next call.
  const ResponseCodeList& ResponseCodes() const;
  ResponseCodeList& EditResponseCodes();
  // The last asynchronous execution ended with a reply that could be used. Set by the communication
  // wrapper; synchronous executions leave it alone.
  bool Completed() const { return completed_; }
  void SetCompleted(bool completed) { completed_ = completed; }

  // Text for trace lines: the number, from level 1 on with request and reply.
  std::string Describe(std::int16_t infoLevel) const;
  // Unbinds the variables of all items.
  void DropBindings();

 private:
  std::int16_t number_;
  bool completed_ = false;
  DataItemList request_;
  DataItemList reply_;
  std::shared_ptr<const ResponseCodeList> responseCodes_;
};

// Transactions of one command. Copying copies the transactions.
class ZAF_API TransactionList {
 public:
  // Copies get transactions of their own, bound to the same variables; moving leaves them where
  // they are.
  TransactionList() = default;
  TransactionList(const TransactionList& other);
  TransactionList& operator=(const TransactionList& other);
  TransactionList(TransactionList&&) noexcept = default;
  TransactionList& operator=(TransactionList&&) noexcept = default;

  // Makes a transaction and appends it. A number that is there already is not found by Item.
  Transaction& Add(std::int16_t number);
  // Keeps `transaction` itself as the one of its number: in the place of the one it replaces, else
  // at the end. REQUIRES: a transaction.
  void Put(std::shared_ptr<Transaction> transaction);
  // The transaction of that number; raises SubscriptOutOfRange for an unknown one.
  const std::shared_ptr<Transaction>& Item(std::int16_t number) const;
  // By position from 1; raises SubscriptOutOfRange for one outside 1..Count().
  const std::shared_ptr<Transaction>& At(std::size_t position) const;
  std::size_t Count() const { return transactions_.size(); }
  void Clear() { transactions_.clear(); }
  auto begin() const { return transactions_.begin(); }
  auto end() const { return transactions_.end(); }

 private:
  std::vector<std::shared_ptr<Transaction>> transactions_;
};

}  // namespace ZAFHartTypes
