#pragma once

// What `browse` says about a pair, in the six languages.
namespace hartframe::browse::texts {

// --- frame ---
inline constexpr const char* kPairKeys =
    "Enter:open Tab:side c:compare F1:help u:load d:to device s:save q:quit"
    "|de|Enter:öffnen Tab:Seite c:Vergleich F1:Hilfe u:laden d:ins Gerät s:sichern q:Ende"
    "|fr|Entrée:ouvrir Tab:côté c:comparer F1:aide u:lire d:écrire s:garder q:quitter"
    "|it|Invio:apri Tab:lato c:confronta F1:aiuto u:leggi d:scrivi s:salva q:esci"
    "|es|Intro:abrir Tab:lado c:comparar F1:ayuda u:leer d:escribir s:guardar q:salir"
    "|kt|Enter:hiraku Tab:gawa c:hikaku F1:herupu u:yomu d:kaku s:hozon q:owaru";
inline constexpr const char* kPairHelp =
    "\nTab  the other side\nc  compare all variables; again: only the differences\nd  write what "
    "differs in the data set\nR  read the device's side anew"
    "|de|\nTab  die andere Seite\nc  alle Variablen vergleichen; noch einmal: nur Unterschiede\nd  "
    "schreiben, was im Datensatz anders ist\nR  Geräteseite neu lesen"
    "|fr|\nTab  l'autre côté\nc  comparer toutes les variables ; encore : les différences seules\n"
    "d  écrire ce qui diffère dans le jeu de données\nR  relire le côté de l'appareil"
    "|it|\nTab  l'altro lato\nc  confrontare tutte le variabili; di nuovo: solo le differenze\nd  "
    "scrivere ciò che è diverso nel set di dati\nR  rileggere il lato del dispositivo"
    "|es|\nTab  el otro lado\nc  comparar todas las variables; otra vez: solo las diferencias\nd  "
    "escribir lo que difiere en el conjunto de datos\nR  leer de nuevo el lado del dispositivo"
    "|kt|\nTab  mou hitotsu no gawa\nc  subete no hensuu o hikaku; mou ichido: chigai dake\nd  "
    "deetasetto de chigau mono o kaku\nR  kiki no gawa o yominaosu";
inline constexpr const char* kComparison =
    "Comparison|de|Vergleich|fr|Comparaison|it|Confronto|es|Comparación|kt|Hikaku";
inline constexpr const char* kDifferences =
    "Differences|de|Unterschiede|fr|Différences|it|Differenze|es|Diferencias|kt|Chigai";
inline constexpr const char* kWaitsOnline =
    "waits online|de|wartet online|fr|attend en ligne|it|attende online|es|espera en línea|kt|"
    "onrain de taiki";
inline constexpr const char* kMethodOffline =
    "{0} needs the device: Tab changes to its side.|de|{0} braucht das Gerät: Tab wechselt auf "
    "dessen Seite.|fr|{0} a besoin de l'appareil : Tab passe à son côté.|it|{0} ha bisogno del "
    "dispositivo: Tab passa al suo lato.|es|{0} necesita el dispositivo: Tab pasa a su "
    "lado.|kt|{0} "
    "ni wa kiki ga irimasu: Tab de kiki no gawa ni kawarimasu.";
inline constexpr const char* kNeedsPair =
    "There is no other side: browse --pair opens one.|de|Es gibt keine andere Seite: browse --pair "
    "öffnet eine.|fr|Il n'y a pas d'autre côté : browse --pair en ouvre un.|it|Non c'è un altro "
    "lato: browse --pair ne apre uno.|es|No hay otro lado: browse --pair abre uno.|kt|Mou hitotsu "
    "no gawa wa arimasen: browse --pair de hirakimasu.";
inline constexpr const char* kNeedsOnline =
    "Only the device's side is written at once: Tab changes to it.|de|Nur die Geräteseite wird "
    "sofort geschrieben: Tab wechselt dorthin.|fr|Seul le côté de l'appareil est écrit aussitôt : "
    "Tab y passe.|it|Solo il lato del dispositivo si scrive subito: Tab vi passa.|es|Solo el lado "
    "del dispositivo se escribe al instante: Tab pasa a él.|kt|Sugu kaku no wa kiki no gawa dake "
    "desu: Tab de kawarimasu.";

// --- from one side to the other ---
inline constexpr const char* kPairUpload =
    "Load the device into the data set|de|Gerät in den Datensatz laden|fr|Lire l'appareil dans le "
    "jeu de données|it|Leggere il dispositivo nel set di dati|es|Leer el dispositivo en el "
    "conjunto "
    "de datos|kt|Kiki o deetasetto ni yomu";
inline constexpr const char* kPairDownload =
    "Write the data set to the device|de|Datensatz in das Gerät schreiben|fr|Écrire le jeu de "
    "données dans l'appareil|it|Scrivere il set di dati nel dispositivo|es|Escribir el conjunto de "
    "datos en el dispositivo|kt|Deetasetto o kiki ni kaku";
inline constexpr const char* kWillBeWrittenList =
    "To be written ({0}):|de|Zu schreiben ({0}):|fr|À écrire ({0}) :|it|Da scrivere ({0}):|es|Por "
    "escribir ({0}):|kt|Kaku mono ({0}):";
inline constexpr const char* kCannotBeWrittenList =
    "Different, but cannot be written ({0}):|de|Verschieden, aber nicht schreibbar ({0}):"
    "|fr|Différent, mais ne peut pas être écrit ({0}) :|it|Diverso, ma non scrivibile ({0}):"
    "|es|Distinto, pero no se puede escribir ({0}):|kt|Chigau ga, kakenai mono ({0}):";
inline constexpr const char* kNotValidYet =
    "not valid in the device yet|de|im Gerät noch nicht gültig|fr|pas encore valide dans "
    "l'appareil|it|non ancora valido nel dispositivo|es|aún no válido en el dispositivo|kt|kiki de "
    "wa mada mukou";
inline constexpr const char* kNoOfflineValue =
    "no value in the data set|de|kein Wert im Datensatz|fr|sans valeur dans le jeu de données"
    "|it|senza valore nel set di dati|es|sin valor en el conjunto de datos|kt|deetasetto ni atai "
    "nashi";
inline constexpr const char* kNotAcceptedNow =
    "not accepted now|de|jetzt nicht angenommen|fr|pas accepté maintenant|it|ora non accettato"
    "|es|no aceptado ahora|kt|ima wa uketsukeraremasen";
inline constexpr const char* kWriteThem =
    "Write|de|Schreiben|fr|Écrire|it|Scrivere|es|Escribir|kt|Kaku";
inline constexpr const char* kLosesOnline =
    "{0} changes on the device's side are not written yet. Reading the device gives them up."
    "|de|{0} Änderungen auf der Geräteseite sind noch nicht geschrieben. Das Lesen des Geräts "
    "verwirft sie.|fr|{0} changements du côté de l'appareil ne sont pas encore écrits. La lecture "
    "de l'appareil les abandonne.|it|{0} modifiche sul lato del dispositivo non sono ancora "
    "scritte. La lettura del dispositivo le annulla.|es|{0} cambios del lado del dispositivo no se "
    "han escrito aún. La lectura del dispositivo los descarta.|kt|Kiki no gawa no henkou {0} ga "
    "mada kakikomarete imasen. Kiki o yomu to kiemasu.";
inline constexpr const char* kGiveThemUp =
    "Give them up|de|Verwerfen|fr|Les abandonner|it|Annullarle|es|Descartarlos|kt|Torikesu";
inline constexpr const char* kRefreshed =
    "The device's side is read anew.|de|Die Geräteseite wird neu gelesen.|fr|Le côté de l'appareil "
    "est relu.|it|Il lato del dispositivo viene riletto.|es|El lado del dispositivo se lee de "
    "nuevo.|kt|Kiki no gawa o yominaoshimasu.";

// --- leaving ---
inline constexpr const char* kUnsavedQuestion =
    "The data set has changes that are not saved in {0}.|de|Der Datensatz hat Änderungen, die "
    "nicht "
    "in {0} gesichert sind.|fr|Le jeu de données a des changements qui ne sont pas gardés dans {0}."
    "|it|Il set di dati ha modifiche non salvate in {0}.|es|El conjunto de datos tiene cambios no "
    "guardados en {0}.|kt|Deetasetto ni {0} ni hozon sarete inai henkou ga arimasu.";
inline constexpr const char* kSaveAndQuit =
    "Save in {0} and quit|de|In {0} sichern und beenden|fr|Garder dans {0} et quitter|it|Salvare "
    "in "
    "{0} e uscire|es|Guardar en {0} y salir|kt|{0} ni hozon shite owaru";
inline constexpr const char* kWriteSaveAndQuit =
    "Write to the device, save and quit|de|In das Gerät schreiben, sichern und beenden|fr|Écrire "
    "dans l'appareil, garder et quitter|it|Scrivere nel dispositivo, salvare e uscire|es|Escribir "
    "en el dispositivo, guardar y salir|kt|Kiki ni kaite, hozon shite owaru";

}  // namespace hartframe::browse::texts
