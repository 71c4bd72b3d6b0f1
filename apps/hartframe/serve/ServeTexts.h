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
inline constexpr const char* kNewDevice =
    "New device file \"{0}\", with the DTM's defaults.|de|Neue Gerätedatei \"{0}\", mit den "
    "Vorgaben des DTM.|fr|Nouveau fichier d'appareil \"{0}\", avec les valeurs par défaut du DTM."
    "|it|Nuovo file del dispositivo \"{0}\", con i valori predefiniti del DTM.|es|Nuevo archivo de "
    "dispositivo \"{0}\", con los valores predeterminados del DTM.|kt|Atarashii kiki fairu "
    "\"{0}\", "
    "DTM no shokichi.";
inline constexpr const char* kCannotServe =
    "{0}. End the program that uses it, or choose another place with --hart-ip or --pty.|de|{0}. "
    "Das Programm beenden, das dort ist, oder mit --hart-ip oder --pty einen anderen Ort wählen."
    "|fr|{0}. Terminez le programme qui l'utilise, ou choisissez un autre emplacement avec "
    "--hart-ip ou --pty.|it|{0}. Terminare il programma che lo usa, o scegliere un'altra posizione "
    "con --hart-ip o --pty.|es|{0}. Termine el programa que lo usa, o elija otro lugar con "
    "--hart-ip o --pty.|kt|{0}. Tsukatte iru puroguramu o shuuryou suru ka, --hart-ip mata wa "
    "--pty "
    "de hoka no basho o erande kudasai.";

}  // namespace hartframe::texts
