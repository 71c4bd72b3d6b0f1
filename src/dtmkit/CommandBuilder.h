#pragma once

#include <initializer_list>

#include "dtmkit/CommandItem.h"
#include "dtmkit/ElementItems.h"
#include "dtmkit/ItemBuilder.h"
#include "platform/Export.h"

namespace ZAFHartTypes::dtmkit {

// Response codes that several commands share.
using SharedCodes = std::shared_ptr<const ResponseCodeList>;
// MakeCodes({{5, ResponseCodeType::MiscError, "Too few data bytes"}, …}).
inline SharedCodes MakeCodes(std::initializer_list<ResponseCode> codes) {
  return std::make_shared<const ResponseCodeList>(codes);
}

// Names of the two variables that every reply starts with.
inline constexpr const char* kResponseCode = "response_code";
inline constexpr const char* kDeviceStatus = "device_status";

// Writes a command. Request and Reply are those of transaction 0 until Transaction opens another;
// every transaction's reply starts with the response code and the device status by itself.
class ZAF_API CommandBuilder : public ItemBuilder<CommandBuilder, Command> {
 public:
  // `number` is the HART command number; one above 32767 is given as the negative number of the
  // same 16 bits.
  CommandBuilder(Catalogue& catalogue, Command& command, std::int16_t number, Operation operation);

  // Opens a new transaction: what follows belongs to it. Each number once.
  CommandBuilder& Transaction(std::int16_t number);
  // Appends items, in wire order. Arrays that they name have been described before, with their
  // first element and its member (InvalidArgument otherwise).
  CommandBuilder& Request(std::initializer_list<CommandItem> items);
  CommandBuilder& Reply(std::initializer_list<CommandItem> items);
  CommandBuilder& Request(const std::vector<CommandItem>& items);
  CommandBuilder& Reply(const std::vector<CommandItem>& items);
  // Response codes of the whole command, in place of earlier ones and shared, and further ones of
  // the present transaction, which come before the command's.
  CommandBuilder& Codes(SharedCodes codes);
  CommandBuilder& TransactionCodes(std::initializer_list<ResponseCode> codes);

 private:
  ZAFHartTypes::Transaction& Present();
  CommandBuilder& Append(bool toReply, const CommandItem* first, const CommandItem* last);
  void Append(bool toReply, const CommandItem& item);

  ZAFHartTypes::Transaction* present_ = nullptr;
  std::shared_ptr<ElementItems> elements_;
};

}  // namespace ZAFHartTypes::dtmkit
