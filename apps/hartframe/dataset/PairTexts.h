#pragma once

// What `pair` and `compare` say, in the six languages.
namespace hartframe::texts {

inline constexpr const char* kEqual = "equal|de|gleich|fr|égal|it|uguale|es|igual|kt|onaji";
inline constexpr const char* kDiffers =
    "differs|de|verschieden|fr|différent|it|diverso|es|distinto|kt|chigau";
inline constexpr const char* kOnlyOffline =
    "only in the data set|de|nur im Datensatz|fr|seulement dans le jeu de données|it|solo nel set "
    "di dati|es|solo en el conjunto de datos|kt|deetasetto dake";
inline constexpr const char* kOnlyOnline =
    "only in the device|de|nur im Gerät|fr|seulement dans l'appareil|it|solo nel dispositivo|es|"
    "solo en el dispositivo|kt|kiki dake";
inline constexpr const char* kNotValid =
    "not valid|de|nicht gültig|fr|non valide|it|non valido|es|no válido|kt|mukou";
inline constexpr const char* kNoValueYet =
    "no value|de|kein Wert|fr|sans valeur|it|senza valore|es|sin valor|kt|atai nashi";
inline constexpr const char* kDeviceNotRead =
    "device not read yet|de|Gerät noch nicht gelesen|fr|appareil pas encore lu|it|dispositivo non "
    "ancora letto|es|dispositivo aún no leído|kt|kiki wa mada yomarete imasen";
inline constexpr const char* kCompared =
    "{0} equal, {1} different, {2} only in the data set, {3} only in the device, {4} not valid.|de|"
    "{0} gleich, {1} verschieden, {2} nur im Datensatz, {3} nur im Gerät, {4} nicht gültig.|fr|{0} "
    "égales, {1} différentes, {2} seulement dans le jeu de données, {3} seulement dans l'appareil, "
    "{4} non valides.|it|{0} uguali, {1} diverse, {2} solo nel set di dati, {3} solo nel "
    "dispositivo, {4} non valide.|es|{0} iguales, {1} distintas, {2} solo en el conjunto de datos, "
    "{3} solo en el dispositivo, {4} no válidas.|kt|{0} onaji, {1} chigau, {2} deetasetto dake, "
    "{3} kiki dake, {4} mukou.";
inline constexpr const char* kTakenOver =
    "{0} variables of the device taken over into the data set.|de|{0} Variablen des Geräts in den "
    "Datensatz übernommen.|fr|{0} variables de l'appareil reprises dans le jeu de données.|it|{0} "
    "variabili del dispositivo riprese nel set di dati.|es|{0} variables del dispositivo pasadas "
    "al conjunto de datos.|kt|Kiki no {0} no hensuu o deetasetto ni utsushimashita.";
inline constexpr const char* kShared =
    "{0} is one value for the data set and the device's.|de|{0} ist ein gemeinsamer Wert von "
    "Datensatz und Gerätedaten.|fr|{0} est une valeur commune au jeu de données et aux données de "
    "l'appareil.|it|{0} è un valore comune al set di dati e ai dati del dispositivo.|es|{0} es un "
    "valor común al conjunto de datos y a los datos del dispositivo.|kt|{0} wa deetasetto to kiki "
    "no deeta ni kyoutsuu no atai desu.";

}  // namespace hartframe::texts
