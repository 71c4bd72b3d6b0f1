#include "fdtobjects/RefreshDataSet.h"

#include "interfaces/Codes.h"
#include "workerdb/CDDWorkerDB.h"

namespace ZAFHartLib {
namespace {

void DropValue(CDDWorkerDB& database, ZAFHartTypes::IDDDTMGUI& gui, const Definition& definition) {
  if (database.ReadObject(definition)->MakeVariable()->Attributes().IsLibraryHeld()) return;
  database.SetVariableAvailable(definition, false);
  database.SetVariableToBeWritten(definition, false);
  gui.ShowObject(database.ReadObject(definition));
}

}  // namespace

void RefreshDataSet(ZAFHartTypes::IDDComponents& components) {
  const auto database = std::dynamic_pointer_cast<CDDWorkerDB>(components.DDWorkerDB());
  const auto gui = components.DDGUI();
  if (!database || !gui || database->GetStorageMode() != ZAFHartTypes::StorageMode::Online) return;
  gui->StopCurrentEditing();
  for (const auto& [key, definition] : database->ListOfKind(ObjectKind::Variable)) {
    DropValue(*database, *gui, definition);
  }
  const auto view = std::dynamic_pointer_cast<ZAFHartTypes::IDDDTMGUIUpdateControl>(gui);
  if (view) view->RefreshView();
}

}  // namespace ZAFHartLib
