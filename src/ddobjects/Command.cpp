#include "ddobjects/Command.h"

#include "types/Failure.h"

namespace ZAFHartTypes {
namespace {

const ResponseCodeList kNoCodes;

}  // namespace

const ResponseCodeList& Command::ResponseCodes() const {
  return responseCodes_ ? *responseCodes_ : kNoCodes;
}

ResponseCodeList& Command::EditResponseCodes() {
  responseCodes_ = std::make_shared<ResponseCodeList>(ResponseCodes());
  return const_cast<ResponseCodeList&>(*responseCodes_);
}

void Command::Assign(const DDObject& other) {
  if (&other == this) return;
  RequireSameKind(other);
  const auto& from = static_cast<const Command&>(other);
  TakeStampsFrom(from);
  number_ = from.number_;
  operation_ = from.operation_;
  transactions_ = from.transactions_;
  responseCodes_ = from.responseCodes_;
}

void Command::DropBindings() {
  DDObject::DropBindings();
  for (const auto& transaction : transactions_) transaction->DropBindings();
}

std::string Command::Describe(std::int16_t infoLevel) const {
  std::string text = Definition().Describe(infoLevel);
  if (infoLevel <= 0) return text;
  text.append(" Number=").append(std::to_string(number_));
  text.append(" Operation=").append(std::to_string(static_cast<std::int32_t>(operation_)));
  if (infoLevel <= 1) return text;
  for (const auto& transaction : transactions_) {
    text.append(" ").append(transaction->Describe(static_cast<std::int16_t>(infoLevel - 1)));
  }
  return text;
}

const std::shared_ptr<Transaction>& CommandRef::ReferredTransaction() const {
  if (!command_) throw Failure(ErrorNumber::ObjectNotSet, "CommandRef");
  return command_->Transactions().Item(transactionNumber_);
}

std::shared_ptr<CommandRef> CommandRef::GetCopy() const {
  return std::make_shared<CommandRef>(command_ ? command_->CommandCopy() : nullptr,
                                      transactionNumber_);
}

std::string CommandRef::Describe(std::int16_t infoLevel) const {
  if (!command_) return "Nothing";
  return command_->Describe(infoLevel)
      .append(" Transaction=")
      .append(std::to_string(transactionNumber_));
}

}  // namespace ZAFHartTypes
