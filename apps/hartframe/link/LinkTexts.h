#pragma once

// What `scan` and `raw` say, in the six languages.
namespace hartframe::texts {

inline constexpr const char* kScanning =
    "Looking for devices|de|Suche nach Geräten|fr|Recherche d'appareils|it|Ricerca di dispositivi|"
    "es|Búsqueda de dispositivos|kt|Kiki o sagashite imasu";
inline constexpr const char* kFound =
    "{0} {0:device/devices} found.|de|{0} {0:Gerät/Geräte} gefunden.|fr|{0} {0:appareil "
    "trouvé/appareils trouvés}.|it|{0} {0:dispositivo trovato/dispositivi trovati}.|es|{0} "
    "{0:dispositivo encontrado/dispositivos encontrados}.|kt|{0} dai no kiki ga mitsukarimashita.";
inline constexpr const char* kDisturbedAddress =
    "Polling address {0}: {1}|de|Kurzadresse {0}: {1}|fr|Adresse courte {0} : {1}|it|Indirizzo "
    "breve {0}: {1}|es|Dirección corta {0}: {1}|kt|Pooringu adoresu {0}: {1}";
inline constexpr const char* kNoIdentityInReply =
    "the answer does not say which device it is; are there several?|de|die Antwort sagt nicht, "
    "welches Gerät es ist; sind es mehrere?|fr|la réponse ne dit pas de quel appareil il s'agit ; "
    "y en a-t-il plusieurs ?|it|la risposta non dice quale dispositivo sia; ce ne sono più d'uno?|"
    "es|la respuesta no dice qué dispositivo es; ¿hay varios?|kt|outou kara kiki ga wakarimasen; "
    "fukusuu arimasu ka?";
inline constexpr const char* kObserverRaw =
    "An observer cannot send raw commands. Choose another --user-level.|de|Ein Beobachter kann "
    "keine rohen Kommandos senden. Mit --user-level eine andere Benutzerebene wählen.|fr|Un "
    "observateur ne peut pas envoyer de commandes brutes. Choisissez un autre --user-level.|it|Un "
    "osservatore non può inviare comandi grezzi. Scegliere un altro --user-level.|es|Un observador "
    "no puede enviar comandos en bruto. Elija otro --user-level.|kt|Kansatsusha wa nama no komando "
    "o okuremasen. Hoka no --user-level o erande kudasai.";

inline constexpr const char* kColumnAddress =
    "Address|de|Adresse|fr|Adresse|it|Indirizzo|es|Dirección|kt|Adoresu";
inline constexpr const char* kColumnLongAddress =
    "Long address|de|Langadresse|fr|Adresse longue|it|Indirizzo lungo|es|Dirección larga|kt|Rongu "
    "adoresu";
inline constexpr const char* kColumnManufacturer =
    "Manufacturer|de|Hersteller|fr|Fabricant|it|Produttore|es|Fabricante|kt|Seizousha";
inline constexpr const char* kColumnType =
    "Device type|de|Gerätetyp|fr|Type d'appareil|it|Tipo|es|Tipo|kt|Kiki taipu";
inline constexpr const char* kColumnRevision =
    "Revision|de|Revision|fr|Révision|it|Revisione|es|Revisión|kt|Ribijon";
inline constexpr const char* kColumnTag = "Tag|de|Tag|fr|Repère|it|Tag|es|Tag|kt|Tagu";
inline constexpr const char* kColumnLongTag =
    "Long tag|de|Langer Tag|fr|Repère long|it|Tag lungo|es|Tag largo|kt|Rongu tagu";

inline constexpr const char* kReplyTitle =
    "Command {0} to {1}|de|Kommando {0} an {1}|fr|Commande {0} à {1}|it|Comando {0} a {1}|es|"
    "Comando {0} a {1}|kt|{1} e no komando {0}";
inline constexpr const char* kReplyCode =
    "Response code|de|Antwortcode|fr|Code de réponse|it|Codice di risposta|es|Código de respuesta|"
    "kt|Outou koodo";
inline constexpr const char* kReplyCommunication =
    "Communication error|de|Kommunikationsfehler|fr|Erreur de communication|it|Errore di "
    "comunicazione|es|Error de comunicación|kt|Tsuushin eraa";
inline constexpr const char* kReplyStatus =
    "Device status|de|Gerätestatus|fr|État de l'appareil|it|Stato del dispositivo|es|Estado del "
    "dispositivo|kt|Kiki no joutai";
inline constexpr const char* kReplyMeaning =
    "Meaning|de|Bedeutung|fr|Signification|it|Significato|es|Significado|kt|Imi";
inline constexpr const char* kReplyData = "Data|de|Daten|fr|Données|it|Dati|es|Datos|kt|Deeta";

inline constexpr const char* kNotKept =
    "Give --dataset FILE or --pending FILE to keep what is still to be written.|de|Mit --dataset "
    "DATEI oder --pending DATEI bleibt aufbewahrt, was noch zu schreiben ist.|fr|Donnez --dataset "
    "FICHIER ou --pending FICHIER pour conserver ce qui reste à écrire.|it|Dare --dataset FILE o "
    "--pending FILE per conservare ciò che resta da scrivere.|es|Dé --dataset FICHERO o --pending "
    "FICHERO para guardar lo que queda por escribir.|kt|Mi-kakikomi o nokosu ni wa --dataset FILE "
    "ka --pending FILE o tsukete kudasai.";

inline constexpr const char* kPartnerUnread =
    "{0} is not written: its command also sends {1}, which cannot be read from the device. Try "
    "again, or give {1} a value as well.|de|{0} wird nicht geschrieben: Das Kommando sendet auch "
    "{1}, das nicht aus dem Gerät gelesen werden kann. Noch einmal versuchen oder auch {1} einen "
    "Wert geben.|fr|{0} n'est pas écrit : sa commande envoie aussi {1}, qui ne peut pas être lu "
    "dans l'appareil. Réessayez, ou donnez aussi une valeur à {1}.|it|{0} non viene scritto: il "
    "suo comando invia anche {1}, che non si può leggere dal dispositivo. Riprovare, o dare un "
    "valore anche a {1}.|es|{0} no se escribe: su comando envía también {1}, que no se puede leer "
    "del dispositivo. Inténtelo de nuevo o dé un valor también a {1}.|kt|{0} wa kakikomimasen: "
    "onaji komando de okurareru {1} o kiki kara yomemasen. Mou ichido tamesu ka, {1} ni mo atai o "
    "ataete kudasai.";

}  // namespace hartframe::texts
