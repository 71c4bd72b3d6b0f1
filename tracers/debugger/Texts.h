#pragma once

// What a debugger says, in the six languages. The command language and the names of operations are
// English in all of them.
namespace ZAFHartDebugger::texts {

inline constexpr const char* kNoReply =
    "no reply|de|keine Antwort|fr|pas de réponse|it|nessuna risposta|es|sin respuesta|kt|outou "
    "nashi";
inline constexpr const char* kNotSent =
    "not sent: no connection|de|nicht gesendet: keine Verbindung|fr|non envoyée : pas de "
    "connexion|it|non inviato: nessuna connessione|es|no enviado: sin conexión|kt|misoushin: "
    "setsuzoku nashi";
inline constexpr const char* kCancelled =
    "cancelled|de|abgebrochen|fr|annulée|it|annullato|es|cancelado|kt|chuushi";
inline constexpr const char* kResponseCode =
    "response code|de|Antwortcode|fr|code de réponse|it|codice di risposta|es|código de "
    "respuesta|kt|outou koodo";
inline constexpr const char* kCommunicationError =
    "communication error|de|Kommunikationsfehler|fr|erreur de communication|it|errore di "
    "comunicazione|es|error de comunicación|kt|tsuushin eraa";

inline constexpr const char* kStopped =
    "Stopped|de|Angehalten|fr|Arrêt|it|Fermo|es|Parada|kt|Teishi";
inline constexpr const char* kNeverReached =
    "Never reached|de|Nie erreicht|fr|Jamais atteint|it|Mai raggiunto|es|Nunca alcanzado|kt|"
    "Toutatsu sezu";
inline constexpr const char* kNoSuchObject =
    "There is no object of this name|de|Es gibt kein Objekt dieses Namens|fr|Il n'y a pas d'objet "
    "de ce nom|it|Non c'è un oggetto con questo nome|es|No hay ningún objeto con este nombre|kt|"
    "Kono namae no obujekuto wa arimasen";

// --- the summary ---
inline constexpr const char* kCommands =
    "Commands|de|Kommandos|fr|Commandes|it|Comandi|es|Comandos|kt|Komando";
inline constexpr const char* kCount = "count|de|Anzahl|fr|nombre|it|numero|es|número|kt|kaisuu";
inline constexpr const char* kMean = "mean|de|Mittel|fr|moyenne|it|media|es|media|kt|heikin";
inline constexpr const char* kLongest =
    "longest|de|längste|fr|maximum|it|massimo|es|máximo|kt|saichou";
inline constexpr const char* kSent = "sent|de|gesendet|fr|émis|it|inviati|es|enviados|kt|soushin";
inline constexpr const char* kReceived =
    "received|de|empfangen|fr|reçus|it|ricevuti|es|recibidos|kt|jushin";
inline constexpr const char* kWithCode =
    "with code|de|mit Code|fr|avec code|it|con codice|es|con código|kt|koodo tsuki";
inline constexpr const char* kAll = "all|de|alle|fr|toutes|it|tutti|es|todos|kt|zenbu";
inline constexpr const char* kSlowest =
    "Slowest operations|de|Langsamste Operationen|fr|Opérations les plus lentes|it|Operazioni più "
    "lente|es|Operaciones más lentas|kt|Ichiban osoi sousa";
inline constexpr const char* kComputations =
    "Attributes computed|de|Berechnete Attribute|fr|Attributs calculés|it|Attributi calcolati|es|"
    "Atributos calculados|kt|Keisan shita zokusei";
inline constexpr const char* kMore = "more|de|weitere|fr|autres|it|altri|es|más|kt|sono hoka";

}  // namespace ZAFHartDebugger::texts
