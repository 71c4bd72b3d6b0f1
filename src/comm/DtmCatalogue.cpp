#include "comm/DtmCatalogue.h"

#include "comm/ReplyTemplate.h"
#include "linksim/ItemCoding.h"
#include "platform/Platform.h"

namespace ZAFHartLib {

namespace hart = ZAFHartTypes::hart;
using HartLinkSim::Frame;
using HartLinkSim::ItemLayout;
using ZAFHartTypes::Command;
using ZAFHartTypes::DataItem;
using ZAFHartTypes::DataItemList;
using ZAFHartTypes::Definition;
using ZAFHartTypes::IDDKernel;
using ZAFHartTypes::Transaction;
using ZAFHartTypes::Variant;

namespace {

void Bind(DataItemList& items, IDDKernel& kernel) {
  for (DataItem& item : items) {
    if (item.IsVariable()) item.SetVariable(kernel.GetVariable(item.VariableDefinition()));
  }
}

// Calls visit(item, value) for each variable that was sent.
template <typename Visit>
void VisitSent(const Transaction& transaction, hart::Bytes request, Visit visit) {
  const ItemLayout layout = HartLinkSim::LayOut(transaction.Request());
  Frame frame;
  frame.SetBytes({request.begin(), request.end()});
  std::size_t index = 0;
  for (const DataItem& item : transaction.Request()) {
    const auto& place = layout[index++];
    if (!item.IsVariable()) continue;
    if (const auto sent = HartLinkSim::ReadItem(frame, item, place)) visit(item, *sent);
  }
}

// Each index is one of its array.
bool SelectsWhatThereIs(const Transaction& transaction, hart::Bytes request) {
  bool isThere = true;
  VisitSent(transaction, request, [&](const DataItem& item, const Variant& sent) {
    isThere = isThere && (!item.IsIndex() || item.Variable()->CheckValue(sent, true));
  });
  return isThere;
}

}  // namespace

DtmCatalogue::DtmCatalogue(const std::shared_ptr<ZAFHartTypes::IDDComponents>& components) {
  model_.Set(components);
  const auto kernel = model_.Kernel();
  for (const Definition& definition : kernel->Commands()) {
    const auto command = kernel->GetSafeCommand(definition);
    if (command) commands_.emplace(static_cast<std::uint16_t>(command->Number()), definition);
  }
}

HartLinkSim::FoundCommand DtmCatalogue::Find(std::uint16_t number, hart::Bytes request) {
  const auto found = commands_.find(number);
  if (found == commands_.end()) return {};
  auto command = Bound(found->second);
  if (!command) return {};
  auto transaction = HartLinkSim::ChooseTransaction(command->Transactions(), request);
  if (transaction && !SelectsWhatThereIs(*transaction, request)) return {true, nullptr, ""};
  if (transaction && Store(*transaction, request, Part::Selectors)) {
    command = Bound(found->second);
    if (!command) return {};
    transaction = HartLinkSim::ChooseTransaction(command->Transactions(), request);
  }
  return {true, transaction, transaction ? DataSetReply(*transaction) : ""};
}

std::shared_ptr<Command> DtmCatalogue::Bound(const Definition& definition) const {
  const auto kernel = model_.Kernel();
  const auto computed = kernel->GetSafeCommand(definition);
  if (!computed) return nullptr;
  auto command = computed->CommandCopy();
  for (const auto& transaction : command->Transactions()) {
    Bind(transaction->Request(), *kernel);
    Bind(transaction->Reply(), *kernel);
  }
  return command;
}

void DtmCatalogue::OnCarriedOut(const Transaction& transaction, hart::Bytes request) {
  Store(transaction, request, Part::All);
}

bool DtmCatalogue::Store(const Transaction& transaction, hart::Bytes request, Part part) const {
  bool changed = false;
  VisitSent(transaction, request, [&](const DataItem& item, const Variant& sent) {
    const bool selects = item.IsIndex() || item.IsInfo();
    if ((part == Part::Selectors && !selects) || sent == item.Value()) return;
    StoreValue(item.VariableDefinition(), sent);
    changed = true;
  });
  return changed;
}

// The device has the value: it is not one to be written.
void DtmCatalogue::StoreValue(const Definition& variable, const Variant& value) const {
  const auto database = model_.Database();
  database->WriteValue(variable, value);
  database->SetVariableToBeWritten(variable, false);
}

std::string DtmCatalogue::DataSetReply(const Transaction& transaction) const {
  const DataItemList& reply = transaction.Reply();
  const std::vector<Variant> values =
      TemplateValues(reply, {}, model_.Gui()->LanguageID(), platform::Current().Random());
  std::size_t index = 0;
  for (const DataItem& item : reply) {
    const Variant& value = values[index++];
    if (item.Variable() && item.Variable()->Attributes().IsDynamic()) {
      StoreValue(item.VariableDefinition(), value);
    }
  }
  return HartLinkSim::EncodeItems(reply, HartLinkSim::LayOut(reply), values).HexText();
}

}  // namespace ZAFHartLib
