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
  explicit Transaction(std::int16_t number) : number_(number) {}

  std::int16_t Number() const { return number_; }
  const DataItemList& Request() const { return request_; }
  DataItemList& Request() { return request_; }
  const DataItemList& Reply() const { return reply_; }
  DataItemList& Reply() { return reply_; }
  // Codes of this transaction only; the command's own stand beside them.
  const ResponseCodeList& ResponseCodes() const;
  ResponseCodeList& EditResponseCodes();
  // The last execution of this transaction ended with a reply.
  bool Completed() const { return completed_; }
  void SetCompleted(bool completed) { completed_ = completed; }

  std::string Describe(std::int16_t infoLevel) const;
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
  TransactionList() = default;
  TransactionList(const TransactionList& other);
  TransactionList& operator=(const TransactionList& other);
  TransactionList(TransactionList&&) noexcept = default;
  TransactionList& operator=(TransactionList&&) noexcept = default;

  // Makes and adds a transaction.
  Transaction& Add(std::int16_t number);
  // Keeps `transaction` as the one of its number.
  void Put(std::shared_ptr<Transaction> transaction);
  // The transaction of that number; raises SubscriptOutOfRange for an unknown one.
  const std::shared_ptr<Transaction>& Item(std::int16_t number) const;
  // By position from 1; raises SubscriptOutOfRange.
  const std::shared_ptr<Transaction>& At(std::size_t position) const;
  std::size_t Count() const { return transactions_.size(); }
  void Clear() { transactions_.clear(); }
  auto begin() const { return transactions_.begin(); }
  auto end() const { return transactions_.end(); }

 private:
  std::vector<std::shared_ptr<Transaction>> transactions_;
};

}  // namespace ZAFHartTypes
