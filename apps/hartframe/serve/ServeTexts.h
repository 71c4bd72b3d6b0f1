#pragma once

// What serve says, in the six languages.
namespace hartframe::texts {

inline constexpr const char* kServing =
    "Device {0}, polling address {1}, until Ctrl-C:|de|Gerät {0}, Kurzadresse {1}, bis Strg-C:|fr|"
    "Appareil {0}, adresse d'interrogation {1}, jusqu'à Ctrl-C :|it|Dispositivo {0}, indirizzo di "
    "polling {1}, fino a Ctrl-C:|es|Dispositivo {0}, dirección de sondeo {1}, hasta "
    "Ctrl-C:|kt|Kiki "
    "{0}, pooringu adoresu {1}, Ctrl-C made:";
inline constexpr const char* kServed =
    "{0} {0:request/requests} answered.|de|{0} {0:Anfrage/Anfragen} beantwortet.|fr|{0} {0:requête "
    "traitée/requêtes traitées}.|it|{0} {0:richiesta/richieste} con risposta.|es|{0} {0:solicitud "
    "respondida/solicitudes respondidas}.|kt|{0} ken no youkyuu ni outou shimashita.";
inline constexpr const char* kCannotServe =
    "{0}. Choose another place.|de|{0}. Einen anderen Ort wählen.|fr|{0}. Choisissez un autre "
    "emplacement.|it|{0}. Scegliere un'altra posizione.|es|{0}. Elija otro lugar.|kt|{0}. Hoka no "
    "basho o erande kudasai.";

}  // namespace hartframe::texts
