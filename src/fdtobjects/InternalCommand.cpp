#include "fdtobjects/InternalCommand.h"

namespace ZAFHartLib {

using ZAFHartTypes::DataItem;
using ZAFHartTypes::Definition;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::ResponseCodeList;
using ZAFHartTypes::ResponseCodeType;

namespace {

constexpr std::int16_t kCommandNumber = 38;

// One list for all DTM instances.
const std::shared_ptr<const ResponseCodeList>& ResponseCodes() {
  static const auto codes = std::make_shared<const ResponseCodeList>(ResponseCodeList{
      {0, ResponseCodeType::Success,
       "No specific error|de|Kein spez.Fehler|fr|Pas d'erreur spécifique"
       "|kt|tokuteino era-ha arimasenn"},
      {6, ResponseCodeType::DataEntryWarning,
       "Field device specific error|de|Feldgeräte-spez.Fehler|fr|Erreur spécifique instrument"
       "|kt|fwi-rudodebaisu era-"},
      {7, ResponseCodeType::DataEntryWarning,
       "In write protect mode|de|Schreibschutz aktiv|fr|En mode protection d'écriture"
       "|kt|kakikomikinnsi mo-do"},
      {16, ResponseCodeType::DataEntryWarning,
       "Access restricted|de|Zugriff eingeschr|kt|siyouseigennsareteimasu"}});
  return codes;
}

DataItem VariableItem(std::string_view name) {
  return DataItem::Reference(Definition::Define(name, ObjectKind::Variable));
}

}  // namespace

void ComputeResetConfigurationChangeFlag(ZAFHartTypes::Command& command) {
  command.SetNumber(kCommandNumber);
  command.SetOperation(ZAFHartTypes::Operation::Command);
  command.SetResponseCodes(ResponseCodes());
  command.Transactions().Clear();
  command.Transactions().Add(0).Reply() = {VariableItem("response_code"),
                                           VariableItem("device_status")};
}

}  // namespace ZAFHartLib
