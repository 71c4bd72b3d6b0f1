// Commands by number, judged by the method's status masks.

#include "builtins/CDDBuiltinLib.h"
#include "ddobjects/Command.h"
#include "types/Failure.h"
#include "workerdb/CDDWorkerDB.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

constexpr std::size_t kStatusBytes = 3;
constexpr std::int16_t kReadAdditionalStatus = 48;   // HART command number
constexpr std::uint8_t kCommunicationError = 0x80;   // in the first reply byte
constexpr std::uint8_t kMoreStatusAvailable = 0x10;  // in the device status
constexpr auto kNotInDD = static_cast<std::int32_t>(CommResult::NotInDD);
constexpr auto kNoDevice = static_cast<std::int32_t>(CommResult::NoDevice);

// 0 for an item that the reply does not have.
std::uint8_t StatusItem(const Transaction& transaction, std::size_t position) {
  if (position > transaction.Reply().Count()) return 0;
  const Variant value = transaction.Reply().Item(position).Value();
  return static_cast<std::uint8_t>(value.ToLong() & 0xFF);
}

// The first reply byte is a communication status or a response code.
void TakeStatusBytes(const Transaction& transaction, ByteBuffer& status) {
  const std::uint8_t response = StatusItem(transaction, 1);
  const bool hasFailed = (response & kCommunicationError) != 0;
  status.SetItem(static_cast<std::size_t>(StatusByte::ResponseCode), hasFailed ? 0 : response);
  status.SetItem(static_cast<std::size_t>(StatusByte::Communication), hasFailed ? response : 0);
  status.SetItem(static_cast<std::size_t>(StatusByte::Device), StatusItem(transaction, 2));
}

void FillWithZero(ByteBuffer& bytes) {
  for (std::size_t i = 0; i < bytes.Count(); ++i) bytes.SetItem(i, 0);
}

ByteBuffer StatusBuffer() {
  ByteBuffer status;
  status.SetSize(kStatusBytes);
  return status;
}

std::shared_ptr<Transaction> Chosen(const Command& command, std::optional<std::int16_t>& number) {
  std::shared_ptr<Transaction> chosen;
  IgnoreFailures([&] {
    if (!number) number = command.Transactions().At(1)->Number();
    chosen = command.Transactions().Item(*number);
  });
  return chosen;
}

}  // namespace

// The first in database order. Numbers are computed attributes.
Definition CDDBuiltinLib::FindCommandByNumber(std::int16_t number) {
  const auto known = commands_.find(number);
  if (known != commands_.end()) return known->second;
  const auto database = Database();
  const auto kernel = model_.Kernel();
  for (const auto& [key, definition] : database->ListOfKind(ObjectKind::Command)) {
    const auto command = kernel->GetSafeCommand(definition);
    if (command && command->Number() == number) return commands_[number] = definition;
  }
  return {};
}

CDDBuiltinLib::Request CDDBuiltinLib::FindRequest(std::int16_t number,
                                                  std::optional<std::int16_t> transaction) {
  const Definition definition = FindCommandByNumber(number);
  if (!definition) {
    FailMethod(idErrCommand, {{"s", number}});
    return {};
  }
  Request request;
  IgnoreFailures([&] {
    request.command = model_.Kernel()->GetCommand(definition)->CommandCopy();
    request.transaction = Chosen(*request.command, transaction);
  });
  if (!request.transaction) {
    FailMethod(idErrCommand, {{"s", std::to_string(number) + ", Transaction " +
                                        std::to_string(transaction.value_or(0))}});
    return {};
  }
  return request;
}

template <typename TakeStatus>
void CDDBuiltinLib::Repeat(const Request& request, const StatusMasks& masks,
                           const ByteBuffer& status, TakeStatus takeStatus) {
  const auto kernel = model_.Kernel();
  std::int32_t attempts = 0;
  do {
    kernel->ExecuteCommand(request.command, request.transaction->Number());
    takeStatus();
    biRc_ = model_.Comm()->LastResult();
    EvaluateStatus(masks, status);
    ++attempts;
  } while (isRetry_ && !isAbort_ && attempts <= numberOfRetries_);
}

void CDDBuiltinLib::EvaluateStatus(const StatusMasks& masks, const ByteBuffer& status) {
  if (masks.Aborts(status)) isAbort_ = true;
  isRetry_ = masks.Retries(status);
  if (biRc_ != kNoDevice) return;
  if (noDevice_ == StatusHandling::Abort) isAbort_ = true;
  if (noDevice_ == StatusHandling::Retry) isRetry_ = true;
}

std::int32_t CDDBuiltinLib::SendRequest(const Request& request, ByteBuffer& status) {
  if (!request.transaction) return kNotInDD;
  if (status.Count() < kStatusBytes) status.SetSize(kStatusBytes);
  Repeat(request, masks_, status, [&] { TakeStatusBytes(*request.transaction, status); });
  return biRc_;
}

std::int32_t CDDBuiltinLib::Send(std::int16_t number, ByteBuffer& status) {
  return SendRequest(FindRequest(number, std::nullopt), status);
}

std::int32_t CDDBuiltinLib::SendTrans(std::int16_t number, std::int16_t transaction,
                                      ByteBuffer& status) {
  return SendRequest(FindRequest(number, transaction), status);
}

std::int32_t CDDBuiltinLib::SendCommand(std::int16_t number) {
  ByteBuffer status = StatusBuffer();
  return Send(number, status);
}

std::int32_t CDDBuiltinLib::SendCommandTrans(std::int16_t number, std::int16_t transaction) {
  ByteBuffer status = StatusBuffer();
  return SendTrans(number, transaction, status);
}

std::int32_t CDDBuiltinLib::ExtSendCommand(std::int16_t number, ByteBuffer& status,
                                           ByteBuffer& moreStatus, ByteBuffer& moreInfo) {
  return MoreStatusAfter(Send(number, status), status, moreStatus, moreInfo);
}

std::int32_t CDDBuiltinLib::ExtSendCommandTrans(std::int16_t number, std::int16_t transaction,
                                                ByteBuffer& status, ByteBuffer& moreStatus,
                                                ByteBuffer& moreInfo) {
  return MoreStatusAfter(SendTrans(number, transaction, status), status, moreStatus, moreInfo);
}

std::int32_t CDDBuiltinLib::MoreStatusAfter(std::int32_t result, const ByteBuffer& status,
                                            ByteBuffer& moreStatus, ByteBuffer& moreInfo) {
  if (result != 0) return result;
  const std::uint8_t device = status.Item(static_cast<std::size_t>(StatusByte::Device));
  if ((device & kMoreStatusAvailable) != 0) return GetMoreStatus(moreStatus, moreInfo);
  FillWithZero(moreStatus);
  FillWithZero(moreInfo);
  return 0;
}

std::int32_t CDDBuiltinLib::GetMoreStatus(ByteBuffer& moreStatus, ByteBuffer& moreInfo) {
  const Request request = FindRequest(kReadAdditionalStatus, std::nullopt);
  if (!request.transaction) return kNotInDD;
  Repeat(request, xmtrMasks_, moreStatus, [&] {
    const auto comm = model_.Comm();
    const CommandStatus last = comm->LastStatus();
    moreStatus.Assign(std::array{last.responseCode, last.communication, last.device});
    moreInfo.Assign(comm->LastData());
  });
  if (isRetry_ && !isAbort_) Abort();
  return biRc_;
}

}  // namespace ZAFHartLib
