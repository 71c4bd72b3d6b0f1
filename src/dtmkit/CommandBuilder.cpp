#include "dtmkit/CommandBuilder.h"

namespace ZAFHartTypes::dtmkit {

CommandBuilder::CommandBuilder(Catalogue& catalogue, Command& command, std::int16_t number,
                               Operation operation)
    : ItemBuilder(catalogue, command) {
  command.SetNumber(number);
  command.SetOperation(operation);
}

CommandBuilder& CommandBuilder::Transaction(std::int16_t number) {
  present_ = &Prototype().Transactions().Add(number);
  present_->Reply() = DataItemList{DataItem::Reference(VariableNamed(kResponseCode)),
                                   DataItem::Reference(VariableNamed(kDeviceStatus))};
  return *this;
}

ZAFHartTypes::Transaction& CommandBuilder::Present() {
  if (!present_) Transaction(0);
  return *present_;
}

CommandBuilder& CommandBuilder::Request(std::initializer_list<CommandItem> items) {
  return Append(false, items.begin(), items.end());
}
CommandBuilder& CommandBuilder::Reply(std::initializer_list<CommandItem> items) {
  return Append(true, items.begin(), items.end());
}
CommandBuilder& CommandBuilder::Request(const std::vector<CommandItem>& items) {
  return Append(false, items.data(), items.data() + items.size());
}
CommandBuilder& CommandBuilder::Reply(const std::vector<CommandItem>& items) {
  return Append(true, items.data(), items.data() + items.size());
}

CommandBuilder& CommandBuilder::Append(bool toReply, const CommandItem* first,
                                       const CommandItem* last) {
  Present();
  for (; first != last; ++first) Append(toReply, *first);
  return *this;
}

void CommandBuilder::Append(bool toReply, const CommandItem& item) {
  DataItemList& list = toReply ? Present().Reply() : Present().Request();
  if (!item.Path()) {
    list.Add(item.Data());
    return;
  }
  list.Add(DataItem::Reference(FirstElement(TheCatalogue(), *item.Path()), item.Data().Mask()));
  if (!elements_) {
    elements_ = std::make_shared<ElementItems>();
    OnCompute([elements = elements_](Context& context, Command& command) {
      elements->Resolve(context, command);
    });
  }
  elements_->Add(Present().Number(), toReply, list.Count(), *item.Path());
}

CommandBuilder& CommandBuilder::Codes(SharedCodes codes) {
  Prototype().SetResponseCodes(std::move(codes));
  return *this;
}

CommandBuilder& CommandBuilder::TransactionCodes(std::initializer_list<ResponseCode> codes) {
  ResponseCodeList& list = Present().EditResponseCodes();
  for (const ResponseCode& code : codes) list.Add(code);
  return *this;
}

}  // namespace ZAFHartTypes::dtmkit
