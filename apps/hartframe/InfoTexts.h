#pragma once

// What is said about the DTM and its states, in the six languages.
namespace hartframe::texts {

inline constexpr const char* kNoIdentityCommand =
    "The DTM has no command 0, from whose reply the device's address is learnt; no connection can "
    "be established.|de|Der DTM hat kein Kommando 0, aus dessen Antwort die Adresse des Geräts "
    "hervorgeht; eine Verbindung kommt nicht zustande.|fr|Le DTM n'a pas de commande 0, dont la "
    "réponse donne l'adresse de l'appareil ; aucune connexion n'est possible.|it|Il DTM non ha il "
    "comando 0, la cui risposta dà l'indirizzo del dispositivo; non è possibile stabilire un "
    "collegamento.|es|El DTM no tiene el comando 0, cuya respuesta da la dirección del "
    "dispositivo; "
    "no se puede establecer la conexión.|kt|DTM ni komando 0 ga arimasen; sono outou de kiki no "
    "adoresu o shiru no de, setsuzoku dekimasen.";

inline constexpr const char* kStateOnlineMode =
    "Online mode|de|Betriebsart|fr|Mode en ligne|it|Modalità online|es|Modo en línea|kt|Onrain "
    "moodo";
inline constexpr const char* kStateConnection =
    "Connection|de|Verbindung|fr|Connexion|it|Connessione|es|Conexión|kt|Setsuzoku joutai";
inline constexpr const char* kStateDataSet =
    "Data set|de|Datensatz|fr|Jeu de données|it|Set di dati|es|Conjunto de datos|kt|Deeta setto";
inline constexpr const char* kStateStorage =
    "Storage|de|Speicherung|fr|Stockage|it|Memorizzazione|es|Almacenamiento|kt|Hozon";
inline constexpr const char* kStateLock =
    "Data set lock|de|Sperre des Datensatzes|fr|Verrouillage des données|it|Blocco dei dati|es|"
    "Bloqueo de datos|kt|Deeta setto no rokku";
inline constexpr const char* kStateUserLevel =
    "User level|de|Benutzerebene|fr|Niveau d'utilisateur|it|Livello utente|es|Nivel de usuario|kt|"
    "Yuuzaa reberu";
inline constexpr const char* kStateLastError =
    "Last communication error|de|Letzter Kommunikationsfehler|fr|Dernière erreur de communication|"
    "it|Ultimo errore di comunicazione|es|Último error de comunicación|kt|Saigo no tsuushin eraa";

}  // namespace hartframe::texts
