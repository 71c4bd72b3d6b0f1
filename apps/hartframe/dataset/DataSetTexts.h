#pragma once

// What is said about data set files, in the six languages.
namespace hartframe::texts {

inline constexpr const char* kFileLine =
    "\"{0}\", line {1}: {2} {3}|de|\"{0}\", Zeile {1}: {2} {3}|fr|\"{0}\", ligne {1} : {2} {3}|it|"
    "\"{0}\", riga {1}: {2} {3}|es|\"{0}\", línea {1}: {2} {3}|kt|\"{0}\", {1} gyoume: {2} {3}";

// --- what is wrong ---
inline constexpr const char* kNotADataSet =
    "This is no data set file.|de|Das ist keine Datensatzdatei.|fr|Ce n'est pas un fichier de jeu "
    "de données.|it|Non è un file di set di dati.|es|No es un archivo de conjunto de datos.|kt|"
    "Deetasetto no fairu de wa arimasen.";
inline constexpr const char* kCutOff =
    "The file is cut off here.|de|Die Datei ist hier abgeschnitten.|fr|Le fichier est tronqué ici."
    "|it|Il file è troncato qui.|es|El archivo está cortado aquí.|kt|Fairu wa koko de kirete "
    "imasu.";
inline constexpr const char* kBrokenLine =
    "The line \"{0}\" is not what belongs here.|de|Die Zeile \"{0}\" gehört nicht hierher.|fr|La "
    "ligne \"{0}\" n'a pas sa place ici.|it|La riga \"{0}\" non è quella prevista qui.|es|La línea "
    "\"{0}\" no corresponde aquí.|kt|\"{0}\" no gyou wa koko ni au mono de wa arimasen.";
inline constexpr const char* kTwice =
    "\"{0}\" stands in line {1} already.|de|\"{0}\" steht schon in Zeile {1}.|fr|\"{0}\" figure "
    "déjà à la ligne {1}.|it|\"{0}\" è già alla riga {1}.|es|\"{0}\" ya está en la línea {1}.|kt|"
    "\"{0}\" wa sude ni {1} gyoume ni arimasu.";
inline constexpr const char* kNoValue =
    "{0} has no value that could be read: \"{1}\".|de|{0} hat keinen lesbaren Wert: \"{1}\".|fr|"
    "{0} n'a pas de valeur lisible : \"{1}\".|it|{0} non ha un valore leggibile: \"{1}\".|es|{0} "
    "no tiene un valor legible: \"{1}\".|kt|{0} no atai wa yomemasen: \"{1}\".";
inline constexpr const char* kDamaged =
    "The content does not fit the checksum: the file was damaged or edited.|de|Der Inhalt passt "
    "nicht zur Prüfsumme: Die Datei wurde beschädigt oder bearbeitet.|fr|Le contenu ne correspond "
    "pas à la somme de contrôle : le fichier a été endommagé ou modifié.|it|Il contenuto non "
    "corrisponde alla somma di controllo: il file è danneggiato o modificato.|es|El contenido no "
    "concuerda con la suma de control: el archivo está dañado o modificado.|kt|Naiyou ga "
    "chekkusamu to aimasen: fairu wa kowarete iru ka henshuu saremashita.";
inline constexpr const char* kNewerFormat =
    "The file has format {0}; this program knows formats up to {1}.|de|Die Datei hat Format {0}; "
    "dieses Programm kennt Formate bis {1}.|fr|Le fichier est au format {0} ; ce programme connaît "
    "les formats jusqu'à {1}.|it|Il file ha il formato {0}; questo programma conosce i formati "
    "fino a {1}.|es|El archivo tiene el formato {0}; este programa conoce formatos hasta {1}.|kt|"
    "Fairu no keishiki wa {0} desu; kono puroguramu wa {1} made wakarimasu.";
inline constexpr const char* kOtherDtm =
    "The data set is one of {0} ({1}), not of {2} ({3}).|de|Der Datensatz ist einer von {0} ({1}), "
    "nicht von {2} ({3}).|fr|Le jeu de données est de {0} ({1}), pas de {2} ({3}).|it|Il set di "
    "dati è di {0} ({1}), non di {2} ({3}).|es|El conjunto de datos es de {0} ({1}), no de {2} "
    "({3}).|kt|Deetasetto wa {0} ({1}) no mono de, {2} ({3}) no mono de wa arimasen.";
inline constexpr const char* kNewerModel =
    "The data set is of version {0} of the DTM's data model; this DTM has version {1}.|de|Der "
    "Datensatz hat Version {0} des Datenmodells des DTM; dieser DTM hat Version {1}.|fr|Le jeu de "
    "données est de la version {0} du modèle de données du DTM ; ce DTM a la version {1}.|it|Il "
    "set di dati è della versione {0} del modello di dati del DTM; questo DTM ha la versione "
    "{1}.|es|El conjunto de datos es de la versión {0} del modelo de datos del DTM; este DTM tiene "
    "la versión {1}.|kt|Deetasetto wa DTM no deetamoderu no baajon {0} no mono desu; kono DTM wa "
    "baajon {1} desu.";
inline constexpr const char* kNoSuchVariable =
    "The DTM has no variable \"{0}\".|de|Der DTM hat keine Variable \"{0}\".|fr|Le DTM n'a pas de "
    "variable \"{0}\".|it|Il DTM non ha la variabile \"{0}\".|es|El DTM no tiene la variable "
    "\"{0}\".|kt|DTM ni hensuu \"{0}\" wa arimasen.";
inline constexpr const char* kWrongType =
    "{0} is of type {1} here, and of type {2} in the DTM.|de|{0} hat hier den Typ {1} und im DTM "
    "den Typ {2}.|fr|{0} est de type {1} ici, et de type {2} dans le DTM.|it|{0} è di tipo {1} qui "
    "e di tipo {2} nel DTM.|es|{0} es de tipo {1} aquí y de tipo {2} en el DTM.|kt|{0} no kata wa "
    "koko de wa {1}, DTM de wa {2} desu.";
inline constexpr const char* kValueOfWrongType =
    "{0} cannot have a value of that type.|de|{0} kann keinen Wert dieses Typs haben.|fr|{0} ne "
    "peut pas avoir une valeur de ce type.|it|{0} non può avere un valore di quel tipo.|es|{0} no "
    "puede tener un valor de ese tipo.|kt|{0} wa sono kata no atai o motemasen.";

// --- what to do ---
inline constexpr const char* kChooseAnother =
    "Choose another file.|de|Eine andere Datei wählen.|fr|Choisissez un autre fichier.|it|"
    "Scegliere un altro file.|es|Elija otro archivo.|kt|Betsu no fairu o erande kudasai.";
inline constexpr const char* kTakeIntact =
    "Take an intact copy of it, or mend the line.|de|Eine heile Kopie nehmen oder die Zeile "
    "berichtigen.|fr|Prenez une copie intacte, ou corrigez la ligne.|it|Prendere una copia "
    "integra, o correggere la riga.|es|Use una copia intacta o corrija la línea.|kt|Kowarete inai "
    "kopii o tsukau ka, gyou o naoshite kudasai.";
inline constexpr const char* kMendLine =
    "Mend the line or delete it.|de|Die Zeile berichtigen oder löschen.|fr|Corrigez la ligne ou "
    "supprimez-la.|it|Correggere la riga o eliminarla.|es|Corrija la línea o bórrela.|kt|Gyou o "
    "naosu ka keshite kudasai.";
inline constexpr const char* kAcceptEdited =
    "Take an intact copy of it; to accept what was edited, write \"Checksum=none\" here.|de|Eine "
    "heile Kopie nehmen; um Bearbeitetes anzunehmen, hier \"Checksum=none\" schreiben.|fr|Prenez "
    "une copie intacte ; pour accepter les modifications, écrivez \"Checksum=none\" ici.|it|"
    "Prendere una copia integra; per accettare le modifiche, scrivere qui \"Checksum=none\".|es|"
    "Use una copia intacta; para aceptar lo modificado, escriba aquí \"Checksum=none\".|kt|"
    "Kowarete inai kopii o tsukatte kudasai; henshuu o mitomeru ni wa koko ni \"Checksum=none\" to "
    "kaite kudasai.";
inline constexpr const char* kTakeNewerProgram =
    "Use a newer hartframe.|de|Ein neueres hartframe verwenden.|fr|Utilisez une version plus "
    "récente de hartframe.|it|Usare una versione più recente di hartframe.|es|Use una versión más "
    "reciente de hartframe.|kt|Yori atarashii hartframe o tsukatte kudasai.";
inline constexpr const char* kTakeNewerDtm =
    "Use the newer DTM.|de|Den neueren DTM verwenden.|fr|Utilisez le DTM plus récent.|it|Usare il "
    "DTM più recente.|es|Use el DTM más reciente.|kt|Yori atarashii DTM o tsukatte kudasai.";
inline constexpr const char* kTakeThatDtm =
    "Choose that DTM with --dtm, or another file.|de|Diesen DTM mit --dtm wählen oder eine andere "
    "Datei.|fr|Choisissez ce DTM avec --dtm, ou un autre fichier.|it|Scegliere quel DTM con --dtm, "
    "o un altro file.|es|Elija ese DTM con --dtm, u otro archivo.|kt|--dtm de sono DTM o erabu ka, "
    "betsu no fairu o erande kudasai.";

// --- working with a data set ---
inline constexpr const char* kCannotSave =
    "{0}. The data set is not saved: make the file writable, or name another one.|de|{0}. Der "
    "Datensatz ist nicht gespeichert: die Datei beschreibbar machen oder eine andere nennen.|fr|"
    "{0}. Le jeu de données n'est pas enregistré : rendez le fichier accessible en écriture, ou "
    "nommez-en un autre.|it|{0}. Il set di dati non è salvato: rendere scrivibile il file, o "
    "indicarne un altro.|es|{0}. El conjunto de datos no está guardado: permita escribir el "
    "archivo o indique otro.|kt|{0}. Deetasetto wa hozon sarete imasen: fairu o kakikomi kanou ni "
    "suru ka, betsu no fairu o shitei shite kudasai.";
inline constexpr const char* kChangedMeanwhile =
    "\"{0}\" was changed by another program meanwhile and stays as it is. The data set of this one "
    "is saved in \"{1}\": take over what \"{0}\" lacks, then delete \"{1}\".|de|\"{0}\" wurde "
    "inzwischen von einem anderen Programm geändert und bleibt, wie es ist. Der Datensatz dieses "
    "Programms steht in \"{1}\": übernehmen, was in \"{0}\" fehlt, dann \"{1}\" löschen.|fr|"
    "\"{0}\" a été modifié entre-temps par un autre programme et reste tel quel. Le jeu de données "
    "de celui-ci est dans \"{1}\" : reprenez ce qui manque à \"{0}\", puis supprimez \"{1}\".|it|"
    "\"{0}\" è stato modificato intanto da un altro programma e resta com'è. Il set di dati di "
    "questo è in \"{1}\": riprendere ciò che manca in \"{0}\", poi eliminare \"{1}\".|es|Otro "
    "programa "
    "cambió \"{0}\" entretanto, y queda como está. El conjunto de datos de este está en \"{1}\": "
    "traslade lo que falte en \"{0}\" y después borre \"{1}\".|kt|\"{0}\" wa sono aida ni betsu no "
    "puroguramu ga henkou shita node, sono mama ni shimasu. Kono puroguramu no deetasetto wa "
    "\"{1}\" ni arimasu: \"{0}\" ni nai mono o utsushite kara \"{1}\" o keshite kudasai.";
inline constexpr const char* kHoldsChanges =
    "\"{0}\" holds changes that are not written yet and would be lost: {1}. Work on it with "
    "--dataset, save to another file, or give --discard.|de|\"{0}\" enthält Änderungen, die noch "
    "nicht geschrieben sind und verloren gingen: {1}. Mit --dataset daran arbeiten, in eine andere "
    "Datei speichern oder --discard angeben.|fr|\"{0}\" contient des changements qui ne sont pas "
    "encore écrits et seraient perdus : {1}. Travaillez dessus avec --dataset, enregistrez dans un "
    "autre fichier, ou donnez --discard.|it|\"{0}\" contiene modifiche non ancora scritte che "
    "andrebbero perse: {1}. Lavorarci con --dataset, salvare in un altro file, o dare --discard."
    "|es|\"{0}\" contiene cambios aún no escritos que se perderían: {1}. Trabaje en él con "
    "--dataset, guarde en otro archivo o dé --discard.|kt|\"{0}\" ni wa mi-kakikomi no henkou ga "
    "ari, ushinawaremasu: {1}. --dataset de sagyou suru ka, betsu no fairu ni hozon suru ka, "
    "--discard o tsukete kudasai.";
inline constexpr const char* kGivenTwice =
    "{0} is given twice, as \"{1}\" and as \"{2}\". Give it once.|de|{0} ist zweimal angegeben, "
    "als \"{1}\" und als \"{2}\". Einmal angeben.|fr|{0} est donnée deux fois, \"{1}\" et \"{2}\". "
    "Donnez-la une fois.|it|{0} è data due volte, \"{1}\" e \"{2}\". Darla una volta.|es|{0} se "
    "da dos veces, \"{1}\" y \"{2}\". Déla una vez.|kt|{0} ga ni-kai, \"{1}\" to \"{2}\" ga "
    "shitei sarete imasu. Ikkai dake shitei shite kudasai.";
inline constexpr const char* kNoFile =
    "There is no data set \"{0}\"; \"hartframe save\" makes one.|de|Es gibt keinen Datensatz "
    "\"{0}\"; \"hartframe save\" legt einen an.|fr|Il n'y a pas de jeu de données \"{0}\" ; "
    "\"hartframe save\" en crée un.|it|Non c'è un set di dati \"{0}\"; \"hartframe save\" ne crea "
    "uno.|es|No existe el conjunto de datos \"{0}\"; \"hartframe save\" crea uno.|kt|Deetasetto "
    "\"{0}\" wa arimasen; \"hartframe save\" de tsukuremasu.";
inline constexpr const char* kNewDataSet =
    "New data set \"{0}\", with the DTM's defaults.|de|Neuer Datensatz \"{0}\" mit den Vorgaben "
    "des "
    "DTM.|fr|Nouveau jeu de données \"{0}\", avec les valeurs par défaut du DTM.|it|Nuovo set di "
    "dati \"{0}\", con i valori predefiniti del DTM.|es|Nuevo conjunto de datos \"{0}\", con los "
    "valores predeterminados del DTM.|kt|Atarashii deetasetto \"{0}\", DTM no shokichi desu.";
inline constexpr const char* kSaved =
    "{0} {0:variable/variables} saved in \"{1}\".|de|{0} {0:Variable/Variablen} in \"{1}\" "
    "gespeichert.|fr|{0} {0:variable enregistrée/variables enregistrées} dans \"{1}\".|it|{0} "
    "{0:variabile salvata/variabili salvate} in \"{1}\".|es|{0} {0:variable guardada/variables "
    "guardadas} en \"{1}\".|kt|{0} no hensuu o \"{1}\" ni hozon shimashita.";
inline constexpr const char* kNotSaved =
    "The data set could not be loaded completely, so nothing was saved.|de|Der Datensatz konnte "
    "nicht vollständig geladen werden, daher wurde nichts gespeichert.|fr|Le jeu de données n'a "
    "pas "
    "pu être lu entièrement ; rien n'a été enregistré.|it|Il set di dati non è stato letto per "
    "intero, quindi nulla è stato salvato.|es|El conjunto de datos no se pudo leer por completo, "
    "así que no se guardó nada.|kt|Deetasetto o zenbu yomenakatta node, hozon shimasen deshita.";
inline constexpr const char* kIncompleteFile =
    "{0} variables of the data set have no value yet, so nothing was written; \"hartframe upload\" "
    "loads them.|de|{0} Variablen des Datensatzes haben noch keinen Wert, daher wurde nichts "
    "geschrieben; \"hartframe upload\" lädt sie.|fr|{0} variables du jeu de données n'ont pas "
    "encore de valeur ; rien n'a été écrit ; \"hartframe upload\" les lit.|it|{0} variabili del "
    "set "
    "di dati non hanno ancora un valore, quindi nulla è stato scritto; \"hartframe upload\" le "
    "legge.|es|{0} variables del conjunto de datos aún no tienen valor, así que no se escribió "
    "nada; "
    "\"hartframe upload\" las lee.|kt|Deetasetto no {0} no hensuu ni wa mada atai ga nai node, "
    "nani "
    "mo kakikomimasen deshita; \"hartframe upload\" de yomimasu.";
inline constexpr const char* kOtherDevice =
    "The data set \"{0}\" is one of manufacturer {1}, device type {2}; the connected device is of "
    "manufacturer {3}, device type {4}. Nothing was written; connect the right device or choose "
    "another data set.|de|Der Datensatz \"{0}\" gehört zu Hersteller {1}, Gerätetyp {2}; das "
    "verbundene Gerät ist von Hersteller {3}, Gerätetyp {4}. Nichts wurde geschrieben; das "
    "richtige "
    "Gerät anschließen oder einen anderen Datensatz wählen.|fr|Le jeu de données \"{0}\" est du "
    "fabricant {1}, type d'appareil {2} ; l'appareil connecté est du fabricant {3}, type {4}. Rien "
    "n'a été écrit ; connectez le bon appareil ou choisissez un autre jeu de données.|it|Il set di "
    "dati \"{0}\" è del costruttore {1}, tipo di dispositivo {2}; il dispositivo collegato è del "
    "costruttore {3}, tipo {4}. Nulla è stato scritto; collegare il dispositivo giusto o scegliere "
    "un altro set di dati.|es|El conjunto de datos \"{0}\" es del fabricante {1}, tipo de "
    "dispositivo {2}; el dispositivo conectado es del fabricante {3}, tipo {4}. No se escribió "
    "nada; conecte el dispositivo correcto o elija otro conjunto de datos.|kt|Deetasetto \"{0}\" "
    "wa seizousha {1}, kiki taipu {2} no mono desu; setsuzoku sareta kiki wa seizousha {3}, kiki "
    "taipu {4} desu. Nani mo kakikomimasen deshita; tadashii kiki o setsuzoku suru ka, betsu no "
    "deetasetto o erande kudasai.";
inline constexpr const char* kTwoChanges =
    "{0} is to be written as \"{1}\" by the data set and as \"{2}\" by \"{3}\". Delete its line in "
    "\"{3}\", or give {0}=VALUE to settle it.|de|{0} soll laut Datensatz als \"{1}\" und laut "
    "\"{3}\" als \"{2}\" geschrieben werden. Die Zeile in \"{3}\" löschen oder {0}=WERT "
    "angeben.|fr|{0} doit être écrite \"{1}\" selon le jeu de données et \"{2}\" selon \"{3}\". "
    "Supprimez sa ligne dans \"{3}\", ou donnez {0}=VALEUR.|it|{0} va scritta come \"{1}\" secondo "
    "il set di dati e come \"{2}\" secondo \"{3}\". Eliminare la riga in \"{3}\" o dare "
    "{0}=VALORE.|es|{0} debe escribirse como \"{1}\" según el conjunto de datos y como \"{2}\" "
    "según \"{3}\". Borre su línea en \"{3}\" o indique {0}=VALOR.|kt|{0} wa deetasetto de wa "
    "\"{1}\", \"{3}\" de wa \"{2}\" to kakikomu yotei desu. \"{3}\" no gyou o kesu ka, {0}=ATAI o "
    "shitei shite kudasai.";
inline constexpr const char* kDataSetTitle =
    "Data set|de|Datensatz|fr|Jeu de données|it|Set di dati|es|Conjunto de datos|kt|Deetasetto";
inline constexpr const char* kFactFile = "File|de|Datei|fr|Fichier|it|File|es|Archivo|kt|Fairu";
inline constexpr const char* kFactSaved =
    "Saved|de|Gespeichert|fr|Enregistré|it|Salvato|es|Guardado|kt|Hozon";
inline constexpr const char* kFactVariables =
    "Variables|de|Variablen|fr|Variables|it|Variabili|es|Variables|kt|Hensuu";

}  // namespace hartframe::texts
