#include "ddobjects/Transaction.h"

#include <algorithm>

#include "types/Failure.h"

namespace ZAFHartTypes {
namespace {

const ResponseCodeList kNoCodes;

}  // namespace

const ResponseCodeList& Transaction::ResponseCodes() const {
  return responseCodes_ ? *responseCodes_ : kNoCodes;
}

ResponseCodeList& Transaction::EditResponseCodes() {
  responseCodes_ = std::make_shared<ResponseCodeList>(ResponseCodes());
  return const_cast<ResponseCodeList&>(*responseCodes_);
}

std::string Transaction::Describe(std::int16_t infoLevel) const {
  std::string text = "TRANSACTION " + std::to_string(number_);
  if (infoLevel <= 0) return text;
  text.append(" REQUEST").append(request_.Describe(infoLevel));
  text.append(" REPLY").append(reply_.Describe(infoLevel));
  return text;
}

void Transaction::DropBindings() {
  for (DataItem& item : request_) item.SetVariable(nullptr);
  for (DataItem& item : reply_) item.SetVariable(nullptr);
}

TransactionList::TransactionList(const TransactionList& other) {
  transactions_.reserve(other.Count());
  for (const auto& transaction : other)
    transactions_.push_back(std::make_shared<Transaction>(*transaction));
}

TransactionList& TransactionList::operator=(const TransactionList& other) {
  if (this != &other) *this = TransactionList(other);
  return *this;
}

Transaction& TransactionList::Add(std::int16_t number) {
  return *transactions_.emplace_back(std::make_shared<Transaction>(number));
}

void TransactionList::Put(std::shared_ptr<Transaction> transaction) {
  for (auto& each : transactions_) {
    if (each->Number() != transaction->Number()) continue;
    each = std::move(transaction);
    return;
  }
  transactions_.push_back(std::move(transaction));
}

const std::shared_ptr<Transaction>& TransactionList::Item(std::int16_t number) const {
  const auto found =
      std::find_if(begin(), end(), [number](const auto& each) { return each->Number() == number; });
  if (found != end()) return *found;
  throw Failure(ErrorNumber::SubscriptOutOfRange, "TransactionList.Item",
                "Transaction " + std::to_string(number) + " is not defined.");
}

const std::shared_ptr<Transaction>& TransactionList::At(std::size_t position) const {
  if (position < 1 || position > Count())
    throw Failure(ErrorNumber::SubscriptOutOfRange, "TransactionList.At");
  return transactions_[position - 1];
}

}  // namespace ZAFHartTypes
