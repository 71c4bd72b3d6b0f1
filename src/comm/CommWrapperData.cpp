#include "comm/CommWrapper.h"
#include "comm/ReplyDecoding.h"
#include "comm/ReplyStatus.h"
#include "ddobjects/Transaction.h"
#include "ddobjects/Variable.h"
#include "hart/StatusBytes.h"
#include "linksim/ItemCoding.h"
#include "types/Failure.h"

// What goes into an exchange and what is taken out of it.
namespace ZAFHartLib {

namespace hart = ZAFHartTypes::hart;
using HartLinkSim::Frame;
using ZAFHartTypes::DataItem;
using ZAFHartTypes::DataItemList;
using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::ExchangeResult;
using ZAFHartTypes::ExchangeState;
using ZAFHartTypes::Failure;
using ZAFHartTypes::IgnoreFailures;
using ZAFHartTypes::Variable;
using ZAFHartTypes::Variant;

namespace {

std::int16_t ShortAddress(std::int32_t pollingAddress, const std::string& source) {
  if (pollingAddress >= INT16_MIN && pollingAddress <= INT16_MAX) {
    return static_cast<std::int16_t>(pollingAddress);
  }
  throw Failure(ErrorNumber::Overflow, source,
                "The polling address " + std::to_string(pollingAddress) +
                    " is no address. HART polling addresses are 0 to 63.");
}

std::vector<Variant> PresentValues(const DataItemList& items) {
  std::vector<Variant> values;
  values.reserve(items.Count());
  for (const DataItem& item : items) values.push_back(item.Value());
  return values;
}

// What was sent has been taken; a reply item for the same variable follows.
void MarkWritten(Transaction& transaction) {
  for (const DataItem& sent : transaction.Request()) {
    if (!sent.IsVariable() || !sent.Variable() || sent.IsInfo()) continue;
    sent.Variable()->SetToBeWritten(false);
    for (const DataItem& answered : transaction.Reply()) {
      if (answered.IsVariable() && answered.Variable() &&
          answered.VariableDefinition().IsSameAs(sent.VariableDefinition())) {
        answered.Variable()->SetToBeWritten(false);
      }
    }
  }
}

}  // namespace

std::shared_ptr<Exchange> CommWrapper::BuildExchange(
    std::int16_t number, const std::shared_ptr<Transaction>& transaction) {
  PrepareExchange(number);
  auto exchange = std::make_shared<Exchange>();
  exchange->SetCommandNumber(number);
  exchange->SetPollAddress(ShortAddress(address_.PollingAddress(), Source("ExecuteCommand")));
  exchange->SetTag(address_.Tag());
  exchange->SetLongAddress(longAddress_);
  exchange->SetItemsOf(transaction);
  lastResult_ = 0;
  const DataItemList& request = transaction->Request();
  exchange->SetRequestData(HartLinkSim::EncodeItems(request, PresentValues(request)).HexText());
  exchange->SetReplyData(ReplyTemplate(*transaction));
  return exchange;
}

bool CommWrapper::ProcessReply(std::int16_t number, Exchange& exchange, Transaction& transaction) {
  SetErrors(transaction.Request(), 0, "");
  const bool isPresent = exchange.Result() == ExchangeResult::ReplyPresent;
  const bool isUsable = isPresent && TakeReply(number, exchange, transaction);
  if (!isUsable) TakeNoReply(exchange, transaction);
  return exchange.State() == ExchangeState::Completed && isUsable == isPresent;
}

// False for what is no reply to this command: that of another one, a broken text, or less than the
// status bytes. A longer reply than the items take is one of a later device revision.
bool CommWrapper::TakeReply(std::int16_t number, Exchange& exchange, Transaction& transaction) {
  Frame frame;
  if (!IgnoreFailures([&] { frame.SetHexText(exchange.ReplyData()); })) return false;
  if (frame.Length() < hart::kStatusSize || exchange.CommandNumber() != number) return false;
  replyBytes_ = frame.Bytes();
  status_ = SplitStatus(replyBytes_);
  lastResult_ = 0;
  TakeReplyOf(exchange, frame);
  const auto error = ErrorOf(status_, transaction.ResponseCodes());
  if (!error) MarkWritten(transaction);
  DecodeReply(exchange, frame, transaction.Reply());
  if (error) SetErrors(transaction.Reply(), error->number, error->text);
  hadErrors_ = hadErrors_ || error.has_value();
  return true;
}

void CommWrapper::TakeNoReply(Exchange& /*exchange*/, Transaction& transaction) {
  status_ = kNoReplyStatus;
  replyBytes_.assign(hart::kStatusSize, 0);
  lastResult_ = static_cast<std::int32_t>(ZAFHartTypes::CommResult::NoDevice);
  SetStatusItems(transaction.Reply(), kNoReplyStatus);
  hadErrors_ = true;
}

}  // namespace ZAFHartLib
