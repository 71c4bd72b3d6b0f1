#include "kernel/StatusBytes.h"

#include "types/Failure.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

std::uint8_t ByteAt(const DataItemList& items, std::size_t position) {
  std::uint8_t byte = 0;
  if (position <= items.Count()) {
    IgnoreFailures([&] { byte = items.Item(position).Value().ToByte(); });
  }
  return byte;
}

}  // namespace

ReplyBytes ReplyBytesOf(const Transaction& transaction) {
  return {ByteAt(transaction.Reply(), 1), ByteAt(transaction.Reply(), 2)};
}

CommandStatus StatusFromReply(ReplyBytes bytes) {
  constexpr std::uint8_t kCommunicationError = 0x80;
  CommandStatus status;
  const bool isError = (bytes.first & kCommunicationError) != 0;
  (isError ? status.communication : status.responseCode) = bytes.first;
  status.device = bytes.second;
  return status;
}

}  // namespace ZAFHartLib
