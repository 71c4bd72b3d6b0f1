#include "generic/Revision.h"

#include <algorithm>

namespace generic {
namespace {

struct Form {
  Revision since;
  DataItemList request;
  DataItemList reply;
};

DataItemList ItemsOf(const std::vector<CommandItem>& items, DataItemList list) {
  for (const CommandItem& item : items) list.Add(item.Data());
  return list;
}

Form FormOf(const Layout& layout) {
  return {layout.since, ItemsOf(layout.request, {}),
          ItemsOf(layout.reply, {DataItem::Reference(VariableNamed(kResponseCode)),
                                 DataItem::Reference(VariableNamed(kDeviceStatus))})};
}

using Forms = std::shared_ptr<const std::vector<Form>>;

Forms FormsOf(const std::vector<Layout>& layouts) {
  std::vector<Form> forms;
  for (const Layout& layout : layouts) forms.push_back(FormOf(layout));
  return std::make_shared<const std::vector<Form>>(std::move(forms));
}

}  // namespace

Revision RevisionOf(Context& context) {
  static const Definition revision = VariableNamed("universal_revision");
  const std::int32_t told = context.Long(revision);
  if (told == 0) return Revision::Unknown;
  return static_cast<Revision>(std::clamp(told, 5, 7));
}

Condition Since(Revision revision) {
  return [revision](Context& context) { return RevisionOf(context) >= revision; };
}

void ValidSince(DeviceDescription& dd, Revision revision,
                std::initializer_list<std::string_view> variables) {
  for (const std::string_view variable : variables) dd.Known(variable).ValidWhen(Since(revision));
}

void ReadableSinceHart6(VariableBuilder variable) {
  variable.OnCompute([](Context& context, Variable& computed) {
    computed.SetHandling(RevisionOf(context) >= Revision::Hart6, true);
  });
}

void ByRevision(CommandBuilder command, std::int16_t transaction,
                const std::vector<Layout>& layouts) {
  command.Transaction(transaction)
      .Request(layouts.front().request)
      .Reply(layouts.front().reply)
      .OnCompute([transaction, forms = FormsOf(layouts)](Context& context, Command& computed) {
        const Revision revision = RevisionOf(context);
        const auto form =
            std::find_if(forms->rbegin(), forms->rend(),
                         [revision](const Form& each) { return each.since <= revision; });
        Transaction& present = *computed.Transactions().Item(transaction);
        present.Request() = form->request;
        present.Reply() = form->reply;
      });
}

void ReadsWhen(CommandBuilder command, Condition condition) {
  command.OnCompute([condition = std::move(condition)](Context& context, Command& computed) {
    computed.SetOperation(condition(context) ? Operation::Read : Operation::Command);
  });
}

}  // namespace generic
