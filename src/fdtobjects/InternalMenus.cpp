#include "fdtobjects/InternalMenus.h"

#include <algorithm>

#include "fdtobjects/MenuVariables.h"
#include "interfaces/InternalNames.h"
#include "resources/ResText.h"
#include "resources/enumDDResourceIDs.h"
#include "types/Failure.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::AccessMode;
using ZAFHartTypes::Definition;
using ZAFHartTypes::IDDComponents;
using ZAFHartTypes::IDDKernel;
using ZAFHartTypes::Menu;
using ZAFHartTypes::MenuItems;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::StandardName;
namespace names = ZAFHartTypes::internal_names;

Definition VariableNamed(std::string_view name) {
  return Definition::Define(name, ObjectKind::Variable);
}
Definition MenuNamed(std::string_view name) {
  return Definition::Define(name, ObjectKind::Menu);
}

// The menu that the DTM names for `index`, else the one of the default name; empty for none.
Definition StandardMenu(IDDComponents& components, StandardName index,
                        std::string_view defaultName) {
  std::string name;
  if (const auto information = components.KernelInformation()) {
    ZAFHartTypes::IgnoreFailures([&] { name = information->StandardName(index); });
  }
  return MenuNamed(name.empty() ? defaultName : std::string_view(name));
}

enum class ItemSelection { All, FirstOnly };

// Read-only items for the variables in the reply of a command's first transaction, from the reply
// item at position `first` on. A command that the device does not have gives none.
MenuItems ReplyVariables(IDDKernel& kernel, IDDComponents& components, std::string_view commandName,
                         std::size_t first, ItemSelection selection = ItemSelection::All) {
  MenuItems items;
  const auto definition = Definition::Define(commandName, ObjectKind::Command);
  if (!IsStored(components, definition)) return items;
  const auto command = kernel.GetCommand(definition);
  const auto& transactions = command->Transactions();
  if (transactions.Count() == 0) return items;
  const auto& reply = transactions.At(1)->Reply();
  const std::size_t last = selection == ItemSelection::All ? reply.Count() : first;
  for (std::size_t i = first; i <= std::min(last, reply.Count()); ++i) {
    if (reply.Item(i).IsVariable()) items.Add(ShownItem(reply.Item(i).VariableDefinition(), true));
  }
  return items;
}

// Keeps the two items that the communication wrapper put in front.
void BuildConnectionMenu(IDDKernel&, IDDComponents&, Menu& menu) {
  constexpr std::size_t kKept = 2;
  MenuItems items;
  for (std::size_t i = 1; menu.Items().Count() >= kKept && i <= kKept; ++i) {
    items.Add(menu.Items().Item(i));
  }
  for (const auto name :
       {names::kDynAvailTime, names::kStaticAvailTime, names::kRefreshOnConnect}) {
    items.Add(ShownItem(VariableNamed(name)));
  }
  menu.SetItems(std::move(items));
}

void BuildUploadVariables(IDDKernel& kernel, IDDComponents& components, Menu& menu) {
  menu.SetLabel(ResText(idOfflineParameters));
  MenuItems items;
  for (const auto& object : components.DDWorkerDB()->NewEnum()) {
    if (object->Kind() != ObjectKind::Variable) continue;
    const auto variable = kernel.GetVariable(object->ObjectDefinition());
    const auto& flags = variable->Attributes();
    if (!variable->CheckHandling(AccessMode::Read) || flags.IsLibraryHeld() || flags.IsDynamic()) {
      continue;
    }
    items.Add(ShownItem(variable->Definition(), !variable->CheckHandling(AccessMode::Write)));
  }
  menu.SetItems(std::move(items));
}

// The live values: what the standard menus of process variables and status show.
void CollectLiveVariables(IDDComponents& components, MenuVariables& variables) {
  variables.CollectFrom(
      StandardMenu(components, StandardName::ProcessVariables, names::kProcessVariables));
  variables.CollectFrom(
      StandardMenu(components, StandardName::StatusDisplay, names::kStatusDisplay));
}

void BuildUploadVariablesExt(IDDKernel& kernel, IDDComponents& components, Menu& menu) {
  menu.SetLabel(ResText(idOfflineParameters));
  MenuVariables variables(kernel, components);
  variables.AddItemsOf(MenuNamed("upload_variables"));
  variables.CollectFrom(StandardMenu(components, StandardName::OnlineParameters, {}));
  CollectLiveVariables(components, variables);
  menu.SetItems(variables.Take());
}

void BuildUploadVariablesDyn(IDDKernel& kernel, IDDComponents& components, Menu& menu) {
  menu.SetLabel(ResText(idOfflineParameters));
  MenuVariables variables(kernel, components);
  CollectLiveVariables(components, variables);
  menu.SetItems(variables.Take());
}

// Behind the two status bytes.
void BuildProcessVariables(IDDKernel& kernel, IDDComponents& components, Menu& menu) {
  menu.SetLabel(ResText(idProcessVariables));
  menu.SetItems(ReplyVariables(kernel, components, "read_dynamic_variables_and_pv_current", 3));
}

// The field device status byte, then the additional status.
void BuildTransmitterStatus(IDDKernel& kernel, IDDComponents& components, Menu& menu) {
  menu.SetLabel(ResText(idTransmitterStatus));
  menu.SetItems(ReplyVariables(kernel, components, "read_additional_transmitter_status", 2));
}

void BuildStatusDisplay(IDDKernel& kernel, IDDComponents& components, Menu& menu) {
  menu.SetLabel(ResText(idStatus));
  MenuItems items =
      ReplyVariables(kernel, components, "read_unique_identifier", 2, ItemSelection::FirstOnly);
  for (const auto name : {names::kResetCcfMethod, names::kEepromCtrlMethod}) {
    const auto method = Definition::Define(name, ObjectKind::Method);
    if (IsStored(components, method)) items.Add(ShownItem(method));
  }
  const auto status = MenuNamed(names::kTransmitterStatus);
  if (IsStored(components, status) && kernel.GetMenu(status)->Items().Count() > 0) {
    items.Add(ShownItem(status));
  }
  menu.SetItems(std::move(items));
}

constexpr InternalMenu kMenus[] = {{names::kConnectionMenu, BuildConnectionMenu},
                                   {names::kUploadVariables, BuildUploadVariables},
                                   {names::kUploadVariablesExt, BuildUploadVariablesExt},
                                   {names::kUploadVariablesDyn, BuildUploadVariablesDyn},
                                   {names::kProcessVariables, BuildProcessVariables},
                                   {names::kTransmitterStatus, BuildTransmitterStatus},
                                   {names::kStatusDisplay, BuildStatusDisplay}};

}  // namespace

std::span<const InternalMenu> InternalMenus() {
  return kMenus;
}

}  // namespace ZAFHartLib
