#include "comm/CDDTestCommWrapper.h"
#include "comm/ReplyDecoding.h"
#include "comm/ReplyStatus.h"
#include "comm/ReplyTemplate.h"
#include "ddobjects/Transaction.h"
#include "ddobjects/Variable.h"
#include "hart/StatusBytes.h"
#include "linksim/ItemCoding.h"
#include "platform/Platform.h"
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

constexpr std::int16_t kReadUniqueIdentifier = 0;

// Positions in the reply to command 0, status bytes included, and in a long address.
constexpr std::size_t kExpansionAt = 2;
constexpr std::size_t kManufacturerAt = 3;
constexpr std::size_t kDeviceTypeAt = 4;
constexpr std::size_t kDeviceIdAt = 11;
constexpr std::size_t kDeviceIdSize = 3;
constexpr std::size_t kLongAddressSize = 5;
// Bits of the manufacturer that a long address has room for.
constexpr std::uint32_t kManufacturerMask = 63;

std::int16_t ShortAddress(std::int32_t pollingAddress) {
  if (pollingAddress >= INT16_MIN && pollingAddress <= INT16_MAX) {
    return static_cast<std::int16_t>(pollingAddress);
  }
  throw Failure(ErrorNumber::Overflow, "CDDTestCommWrapper.ExecuteCommand",
                "The polling address " + std::to_string(pollingAddress) +
                    " is no address. HART polling addresses are 0 to 63.");
}

std::vector<Variant> PresentValues(const DataItemList& items) {
  std::vector<Variant> values;
  values.reserve(items.Count());
  for (const DataItem& item : items) values.push_back(item.Value());
  return values;
}

std::string CodedText(const DataItemList& items, std::span<const Variant> values) {
  return HartLinkSim::EncodeItems(items, HartLinkSim::LayOut(items), values).HexText();
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

std::shared_ptr<Exchange> CDDTestCommWrapper::BuildExchange(
    std::int16_t number, const std::shared_ptr<Transaction>& transaction) {
  if (longAddress_.empty() && number != kReadUniqueIdentifier) {
    LearnLongAddress();
    if (longAddress_.empty()) ShowConnectionError(ErrorSeverity::Critical);
  }
  auto exchange = std::make_shared<Exchange>();
  exchange->SetCommandNumber(number);
  exchange->SetPollAddress(ShortAddress(address_.PollingAddress()));
  exchange->SetTag(address_.Tag());
  exchange->SetLongAddress(longAddress_);
  exchange->SetItemsOf(transaction);
  CodeData(*exchange, *transaction);
  return exchange;
}

void CDDTestCommWrapper::CodeData(Exchange& exchange, const Transaction& transaction) {
  lastResult_ = 0;
  exchange.SetRequestData(CodedText(transaction.Request(), PresentValues(transaction.Request())));
  const std::vector<Variant> answers = TemplateValues(
      transaction.Reply(), replyBytes_, model_.Gui()->LanguageID(), platform::Current().Random());
  exchange.SetReplyData(CodedText(transaction.Reply(), answers));
}

bool CDDTestCommWrapper::ProcessReply(std::int16_t number, Exchange& exchange,
                                      Transaction& transaction) {
  SetErrors(transaction.Request(), 0, "");
  const bool isPresent = exchange.Result() == ExchangeResult::ReplyPresent;
  const bool isUsable = isPresent && TakeReply(number, exchange, transaction);
  if (!isUsable) TakeNoReply(transaction);
  return exchange.State() == ExchangeState::Completed && isUsable == isPresent;
}

// False for what is no reply to this command: that of another one, a broken text, or less than the
// status bytes. A longer reply than the items take is one of a later device revision.
bool CDDTestCommWrapper::TakeReply(std::int16_t number, Exchange& exchange,
                                   Transaction& transaction) {
  Frame frame;
  if (!IgnoreFailures([&] { frame.SetHexText(exchange.ReplyData()); })) return false;
  if (frame.Length() < hart::kStatusSize || exchange.CommandNumber() != number) return false;
  replyBytes_ = frame.Bytes();
  status_ = SplitStatus(replyBytes_);
  lastResult_ = 0;
  if (number == kReadUniqueIdentifier && exchange.State() == ExchangeState::Completed) {
    LearnFrom(exchange, frame);
  }
  const auto error = ErrorOf(status_, transaction.ResponseCodes());
  if (!error) MarkWritten(transaction);
  DecodeReply(exchange, frame, transaction.Reply());
  if (error) SetErrors(transaction.Reply(), error->number, error->text);
  hadErrors_ = hadErrors_ || error.has_value();
  return true;
}

void CDDTestCommWrapper::TakeNoReply(Transaction& transaction) {
  status_ = kNoReplyStatus;
  replyBytes_.assign(hart::kStatusSize, 0);
  lastResult_ = static_cast<std::int32_t>(ZAFHartTypes::CommResult::NoDevice);
  SetStatusItems(transaction.Reply(), kNoReplyStatus);
  hadErrors_ = true;
}

// Takes the long address out of the reply to command 0. A reply that is too short for an identity
// leaves it as it is.
void CDDTestCommWrapper::LearnFrom(Exchange& exchange, const Frame& reply) {
  if (status_.communication != 0 || reply.Length() <= kExpansionAt) return;
  Frame address;
  if (reply.Unsigned(kExpansionAt, 1) != hart::kExpansionCode) {
    address.SetUnsigned(0, 1, static_cast<std::uint32_t>(address_.PollingAddress()));
  } else if (reply.Length() >= kDeviceIdAt + kDeviceIdSize) {
    address.SetUnsigned(0, 1, reply.Unsigned(kManufacturerAt, 1) & kManufacturerMask);
    address.SetUnsigned(1, 1, reply.Unsigned(kDeviceTypeAt, 1));
    address.SetUnsigned(2, kDeviceIdSize, reply.Unsigned(kDeviceIdAt, kDeviceIdSize));
  } else {
    return;
  }
  longAddress_ = address.HexText();
  exchange.SetLongAddress(longAddress_);
}

}  // namespace ZAFHartLib
