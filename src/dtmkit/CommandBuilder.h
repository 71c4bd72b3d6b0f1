#pragma once

#include <initializer_list>

#include "dtmkit/CommandItem.h"
#include "dtmkit/ElementItems.h"
#include "dtmkit/ItemBuilder.h"
#include "platform/Export.h"

namespace ZAFHartTypes::dtmkit {

// Response codes that several commands share.
using SharedCodes = std::shared_ptr<const ResponseCodeList>;
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
  // `number` is the HART command number.
  CommandBuilder(Catalogue& catalogue, Command& command, std::int16_t number, Operation operation);

  CommandBuilder& Transaction(std::int16_t number);
  // Items in wire order. Arrays that they name have been described before (InvalidArgument
  // otherwise).
  CommandBuilder& Request(std::initializer_list<CommandItem> items);
  CommandBuilder& Reply(std::initializer_list<CommandItem> items);
  CommandBuilder& Request(const std::vector<CommandItem>& items);
  CommandBuilder& Reply(const std::vector<CommandItem>& items);
  // Response codes of the whole command, and of the present transaction.
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
