#include "interfaces/ILink.h"

#include "ddobjects/Transaction.h"

namespace ZAFHartTypes {

const DataItemList* Exchange::RequestItems() const {
  return transaction_ ? &transaction_->Request() : nullptr;
}

const DataItemList* Exchange::ReplyItems() const {
  return transaction_ ? &transaction_->Reply() : nullptr;
}

void Exchange::Finish(ExchangeState state, ExchangeResult result) {
  if (state_ != ExchangeState::Created && !IsUnderWay(state_)) return;
  state_ = state;
  result_ = result;
  if (const auto callback = callback_.lock()) callback->CommCallback_Finisched(shared_from_this());
}

}  // namespace ZAFHartTypes
