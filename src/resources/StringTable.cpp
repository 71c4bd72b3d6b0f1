#include "resources/StringTable.h"

#include <algorithm>
#include <array>

#include "resources/ConnectionStrings.h"
#include "resources/enumDDResourceIDs.h"

namespace ZAFHartLib {
namespace {

constexpr auto kTable = std::to_array<StringResource>({
    {idStrAbort,
     "Process Aborted|de|Vorgang abgebrochen|fr|Processus abandonné|it|Processo "
     "terminato|es|Proceso "
     "anulado"},

    {idErrVarNameNotDefined, "Variable \"%{s}\" not defined!"},
    {idErrWrongContext, "Wrong context!"},
    {idErrWrongVarType, "Variable \"%{s}\" has the wrong type!"},
    {idErrCommStatus, "Comm status \"%{s}\" not found!"},
    {idErrDeviceStatus, "Device status \"%{s}\" not found!"},
    {idErrCommand, "Command \"%{s}\" not found!"},
    {idErrCommandResp, "Response code \"%{s1}\" for command \"%{s2}\" not found!"},
    {idErrXmtrStatus, "Status \"%{s2}\" in status variable \"%{s1}\" not found!"},
    {idErrXmtrResp, "Response code \"%{s2}\" in status variable \"%{s1}\" not found!"},
    {idErrMethodNotInList, "Method \"%{s}\" not in list!"},
    {idErrNoConnection, strings::kNoConnection},

    {idCommStatusEntry, "Communication error|de|Kommunikationsfehler"},
    {idBufferOverflow, "Buffer overflow|de|Pufferüberlauf"},
    {idLongitudinalParityError, "Longitudinal parity error|de|Längsparitätsfehler"},
    {idFramingError, "Framing error|de|Formfehler"},
    {idOverrunError, "Overrun error|de|Ueberlauffehler"},
    {idVerticalParityError, "Vertical parity error|de|Vertikalparitätsfehl"},
    {idMessageTimeOutError, "Message Time-out|de|Nachr. Zeit-aus"},

    {idDeviceStatusEntry, "Hardware Device Status|de|Geräte Status"},
    {idPVOutOfLimits,
     "Process applied to the primary variable is outside the operating limits of the field "
     "device"
     "|de|Prozeß der Hauptvariablen ist außerhalb des Arbeitsbereiches des Feldgeräts"},
    {idNonPVOutOfLimits,
     "Process applied to the non-primary variable is outside the operating limits of the field "
     "device"
     "|de|Prozeß der Nebenvariablen ist außerhalb des Arbeitsbereiches des Feldgeräts"},
    {idPVAnalogOutputSaturated,
     "Analog output 1 and its digital representation are outside the operating range limits, "
     "and not responding to input"
     "|de|Analogausgang 1 und der digitale Wert sind außerhalb Meßbereich, keine Reaktion auf "
     "Eingangswert"},
    {idPVAnalogOutputFixed,
     "Analog output 1 and its digital representation are in fixed mode, and not responsive to "
     "input changes"
     "|de|Analogausgang 1 und der digitale Wert sind auf Festwert, keine Uebereinstimmung mit "
     "Eingangswert"},
    {idMoreStatusAvailable,
     "Field device has more status available|de|Feldgerät hat mehr Statusinformationen"},
    {idColdStart,
     "A reset or self test of the field device has occurred, or power has been removed and "
     "reapplied"
     "|de|Feldgerät Kaltstart oder Selbsttest erfolgt, bzw.Energiezufuhr war unterbrochen"},
    {idConfigurationChanged,
     "A modification has been made to the configuration of the field device"
     "|de|Feldgerät Konfiguration wurde verändert"},
    {idDeviceMalfunction,
     "Field device has malfunctioned due to a hardware error or failure"
     "|de|Fehlfunktion Feldgerät: Gerätefehler oder Ausfall"},

    {idErrCyclicCommand, "cyclic evaluation of command|de|zyklische Auswertung des Kommandos"},
    {idErrCyclicVariable, "cyclic evaluation of variable|de|zyklische Auswertung der Variable"},
    {idDDErrorCodes, "Object Error|de|Objekt Fehler"},
    {idErrCannotRead,
     "impossible to read variable from device"
     "|de|Variable konnte nicht vom Gerät gelesen werden"},
    {idErrNoCommunication,
     "impossibe to communicate with device|de|Kommunikation mit dem Gerät gescheitert"},
    {idErrReadNotValid, "variable is not valid|de|Variable ist nicht valid"},
    {idErrCannotWrite,
     "impossible to write variable to device"
     "|de|Variable konnte nicht in das Gerät geschrieben werden"},
    {idErrNotWritable, "variable cannot be written|de|Variable ist nicht schreibbar"},
    {idErrWriteNotValid, "variable is not valid|de|Variable ist nicht valid"},
    {idErrUnknownMenuItem, "unknown menu item|de|Unbekannter Menüeintrag"},
    {idErrDisplayItemNotVariable, "display item must be variable"},
    {idErrEditItemNotEditable, "edit item must be variable or write-as-one relation"},
    {idErrNotAnEditItem,
     "only edit items can be edited in Edit Displays"
     "|de|nur variablen können in einem Edit Display editiert werden"},
    {idErrNotAllChecked,
     "highlighted variables must be all checked|de|markierte variablen müssen alle editiert "
     "werden"},
    {idErrMethodNotValid, "method is not valid|de|Methode ist nicht valid"},
    {idErrNotCurrentlyEditable,
     "variable cannot be currently edited|de|Variable kann momentan nicht editiert werden"},

    {idSpecificError, "specific error|de|spezifischer Fehler"},
    {idTitleCommandError, "Command Error|de|Kommandofehler"},
    {idResponseCode, "Response Code|de|Antwort-Code"},
    {idCommunicationMenu,
     "Communication|de|Kommunikation|fr|Communication|it|Comunicazione|es|Comunicación"},

    {idDynamicRefresh, "Dynamic Parameter Refresh|de|Aktualisierung dynamischer Parameter"},
    {idDynamicRefreshHelp,
     "timer interval for refresh of dynamic parameters"
     "|de|Zeitintervall für die Aktualisierung dynamischer Parameter"},
    {idLoadFromDevice, "Load from Device|de|Laden aus dem Gerät"},
    {idSaveToDevice, "Save to Device|de|Speichern im Gerät"},
    {idWriteChanges, "Write Changes to Device|de|Änderungen in das Gerät schreiben"},
    {idDynamicRefreshNone, "No Refresh|de|Keine Aktualisierung"},
    {idDynamicRefresh5s, "after 5 sec|de|nach 5 Sek."},
    {idDynamicRefresh10s, "after 10 sec|de|nach 10 Sek."},
    {idDynamicRefresh20s, "after 20 sec|de|nach 20 Sek."},
    {idDynamicRefresh30s, "after 30 sec|de|nach 30 Sek."},
    {idDynamicRefresh60s, "after 60 sec|de|nach 60 Sek."},
    {idStaticRefresh, "Static Parameter Refresh|de|Aktualisierung statischer Parameter"},
    {idStaticRefreshHelp,
     "timer interval for refresh of static parameters"
     "|de|Zeitintervall für die Aktualisierung statischer Parameter"},
    {idStaticRefreshNone, "No Refresh|de|Keine Aktualisierung"},
    {idStaticRefresh2min, "after 2 min|de|nach 2 Min."},
    {idStaticRefresh5min, "after 5 min|de|nach 5 Min."},
    {idStaticRefresh10min, "after 10 min|de|nach 10 Min."},
    {idStaticRefresh20min, "after 20 min|de|nach 20 Min."},
    {idStaticRefresh30min, "after 30 min|de|nach 30 Min."},
    {idStaticRefresh60min, "after 60 min|de|nach 60 Min."},
    {idRefreshOnConnect, "Refresh on Connect|de|Aktualisierung beim Verbinden"},
    {idRefreshOnConnectHelp,
     "Sets the behavior for the connect.\r\n"
     "If refresh is switched off, data that was loaded from the device in a previous session is "
     "not loaded from the device again. Update of the data is then dependend only from the "
     "refresh intervalls.\r\n"
     "If refresh is switched on, all data will be loaded from the device."
     "|de|Legt das Verhalten beim Verbinden fest.\r\n"
     "Ist die Aktualisierung ausgeschaltet, werden Daten, die in einer früheren Sitzung aus dem "
     "Gerät geladen wurden, nicht erneut geladen. Sie werden dann nur nach den "
     "Aktualisierungsintervallen erneuert.\r\n"
     "Ist die Aktualisierung eingeschaltet, werden alle Daten aus dem Gerät geladen."},
    {idRefreshOnConnectNone, "No Refresh|de|Keine Aktualisierung"},
    {idRefreshOnConnectAll, "Refresh Data Set|de|Datensatz aktualisieren"},

    {idResponseCodeEntry, "Data Response Codes|de|Antwort-Codes"},
    {idInvalidSelection, "Invalid selection|de|Ungültige Auswahl"},
    {idValueTooHigh, "Value was too high|de|Wert war zu groß"},
    {idValueTooLow, "Value was too low|de|Wert war zu klein"},
    {idTooFewDataBytes, "Too few data bytes received|de|Zu wenige Datenbytes empfangen"},
    {idDeviceSpecificError,
     "Field device specific error|de|Feldgeräte-spez.Fehler|fr|Erreur spécifique "
     "instrument|kt|fwi-rudodebaisu era-"},
    {idWriteProtected,
     "In write protect mode|de|Schreibschutz aktiv|fr|En mode protection "
     "d'écriture|kt|kakikomikinnsi mo-do"},
    {idAccessRestricted, "Access restricted|de|Zugriff eingeschr|kt|siyouseigennsareteimasu"},
    {idInvalidDeviceVariable,
     "Invalid device variable index|de|Ungültiger Index der Gerätevariable"},
    {idInvalidUnitsCode, "Invalid units code|de|Ungültiger Einheitencode"},
    {idDeviceVariableNotAllowed,
     "Device variable index not allowed for this command"
     "|de|Index der Gerätevariable für dieses Kommando nicht erlaubt"},
    {idInvalidExtendedCommand,
     "Invalid extended command number|de|Ungültige erweiterte Kommandonummer"},
    {idDeviceBusy, "Device is busy|de|Gerät ist beschäftigt"},
    {idDelayedResponseInitiated, "Delayed response initiated|de|Verzögerte Antwort eingeleitet"},
    {idDelayedResponseRunning, "Delayed response running|de|Verzögerte Antwort läuft"},
    {idDelayedResponseDead, "Delayed response dead|de|Verzögerte Antwort verworfen"},
    {idDelayedResponseConflict, "Delayed response conflict|de|Konflikt mit verzögerter Antwort"},
    {idCommandNotImplemented, "Command not implemented|de|Kommando nicht implementiert"},

    {idProgress, "Progress|de|Fortschritt|fr|Progression|it|Avanzamento|es|Progreso"},
    {idAction, "Action|de|Aktion|fr|Action|it|Azione|es|Acción"},
    {idStep, "Step|de|Schritt|fr|Étape|it|Passo|es|Paso"},
    {idOfflineParameters, "Offline Parameters|de|Offline-Parameter"},
    {idProcessVariables, "Process variables|de|Prozessvariablen"},
    {idTransmitterStatus, "Transmitter Status|de|Transmitter-Status"},
    {idStatus, "Status|de|Status"},
    {idOnlineMode, "Online Mode|de|Online-Modus"},
    {idModeOffline, "Offline|de|Offline"},
    {idModeOnline, "Online|de|Online"},
    {idModeOnlineSynchronous, "Online Synchronous|de|Online synchron"},
    {idLastCommunicationError, "Last Communication Error|de|Letzter Kommunikationsfehler"},

    {idInternalError, "DTM Internal Error!|de|DTM interner Fehler!"},
    {idActionAborted, "Current action aborted.|de|Aktion abgebrochen."},

    {idNotConnected, strings::kNotConnected},
    {idNoDeviceFound, strings::kNoDeviceFound},
    {idWrongDevice, strings::kWrongDevice},
    {idConnecting, strings::kConnecting},
    {idCheckDeviceType, strings::kCheckDeviceType},
    {idPreparingDisconnect, strings::kPreparingDisconnect},
    {idDisconnecting, strings::kDisconnecting},
    {idConnected, strings::kConnected},
    {idErrNoDeviceAnswers, strings::kNoDeviceAnswers},
    {idErrNoDeviceReason, strings::kNoDeviceReason},
    {idErrWrongDevice, strings::kWrongDeviceConnected},
    {idErrOtherDevice, strings::kOtherDevice},
    {idErrDisconnected, strings::kDisconnected},
    {idErrIdentityRefused, strings::kIdentityRefused},
    {idErrIdentityDamaged, strings::kIdentityDamaged},
    {idWaiting, strings::kWaiting},

    {idTitleError, strings::kTitleError},
    {idHelpError, strings::kHelpError},
    {idTitleCriticalError, strings::kTitleCriticalError},
    {idHelpCriticalError, strings::kHelpCriticalError},
    {idTitleMessage, "Message|de|Nachricht|fr|Message|it|Messaggio|es|Mensaje"},
    {idTitleInputMessage, "Input Message|de|Eingabemeldung"},
});

static_assert(std::ranges::is_sorted(kTable, std::ranges::less_equal{}, &StringResource::id) &&
              std::ranges::adjacent_find(kTable, {}, &StringResource::id) == kTable.end());

}  // namespace

std::span<const StringResource> StringTable() {
  return kTable;
}

}  // namespace ZAFHartLib
