#pragma once

// What `browse` says, in the six languages.
namespace hartframe::browse::texts {

// --- frame ---
inline constexpr const char* kLanguageName =
    "English|de|Deutsch|fr|Français|it|Italiano|es|Español|kt|Nihongo";
inline constexpr const char* kStart = "Start|de|Start|fr|Accueil|it|Inizio|es|Inicio|kt|Sutaato";
inline constexpr const char* kKeys =
    "Enter:open Esc:back F1:help w:write u:load d:write all l:language q:quit"
    "|de|Enter:öffnen Esc:zurück F1:Hilfe w:schreiben u:laden d:alles l:Sprache q:Ende"
    "|fr|Entrée:ouvrir Esc:retour F1:aide w:écrire u:lire d:tout l:langue q:quitter"
    "|it|Invio:apri Esc:indietro F1:aiuto w:scrivi u:leggi d:tutto l:lingua q:esci"
    "|es|Intro:abrir Esc:atrás F1:ayuda w:escribir u:leer d:todo l:idioma q:salir"
    "|kt|Enter:hiraku Esc:modoru F1:herupu w:kaku u:yomu d:zenbu l:gengo q:owaru";
inline constexpr const char* kBusyKeys =
    " Busy ... Esc: cancel|de| Beschäftigt ... Esc: abbrechen|fr| Occupé ... Esc : annuler"
    "|it| Occupato ... Esc: annulla|es| Ocupado ... Esc: cancelar|kt| Sagyouchuu ... Esc: chuushi";
inline constexpr const char* kTooSmall =
    "This window is too small: it needs {0} x {1}."
    "|de|Dieses Fenster ist zu klein: es braucht {0} x {1}."
    "|fr|Cette fenêtre est trop petite : il faut {0} x {1}."
    "|it|Questa finestra è troppo piccola: servono {0} x {1}."
    "|es|Esta ventana es demasiado pequeña: necesita {0} x {1}."
    "|kt|Uindou ga chiisasugimasu: {0} x {1} ga hitsuyou desu.";
inline constexpr const char* kObserver =
    "read-only: observer|de|nur lesbar: Beobachter|fr|lecture seule : observateur"
    "|it|sola lettura: osservatore|es|solo lectura: observador|kt|yomitori nomi: kansatsusha";
inline constexpr const char* kDataSetLocked =
    "read-only: data set locked|de|nur lesbar: Datensatz gesperrt"
    "|fr|lecture seule : données verrouillées|it|sola lettura: dati bloccati"
    "|es|solo lectura: datos bloqueados|kt|yomitori nomi: deeta rokku";
inline constexpr const char* kPendingCount =
    "{0} to be written|de|{0} zu schreiben|fr|{0} à écrire|it|{0} da scrivere|es|{0} por escribir"
    "|kt|mi-kakikomi {0}";
inline constexpr const char* kQuitWithQ =
    "q ends the program.|de|q beendet das Programm.|fr|q termine le programme."
    "|it|q termina il programma.|es|q termina el programa.|kt|q de owarimasu.";

// --- dialogs ---
inline constexpr const char* kEnterOk =
    "Enter: OK|de|Enter: OK|fr|Entrée : OK|it|Invio: OK|es|Intro: OK|kt|Enter: OK";
inline constexpr const char* kEnterChooses =
    "Enter: choose|de|Enter: wählen|fr|Entrée : choisir|it|Invio: scegli|es|Intro: elegir"
    "|kt|Enter: erabu";
inline constexpr const char* kSpaceChecks =
    "Space: change|de|Leertaste: ändern|fr|Espace : changer|it|Spazio: cambia|es|Espacio: cambiar"
    "|kt|Space: kaeru";
inline constexpr const char* kEscCancels =
    "Esc: cancel|de|Esc: abbrechen|fr|Esc : annuler|it|Esc: annulla|es|Esc: cancelar"
    "|kt|Esc: chuushi";
inline constexpr const char* kF1Help =
    "F1: help|de|F1: Hilfe|fr|F1 : aide|it|F1: aiuto|es|F1: ayuda|kt|F1: herupu";
inline constexpr const char* kF1Back =
    "F1: back|de|F1: zurück|fr|F1 : retour|it|F1: indietro|es|F1: atrás|kt|F1: modoru";
inline constexpr const char* kSecondsLeft =
    "{0} s left|de|noch {0} s|fr|encore {0} s|it|ancora {0} s|es|quedan {0} s|kt|ato {0} byou";
inline constexpr const char* kNo = "No|de|Nein|fr|Non|it|No|es|No|kt|Iie";

// --- values ---
inline constexpr const char* kUnit =
    "Unit: {0}|de|Einheit: {0}|fr|Unité : {0}|it|Unità: {0}|es|Unidad: {0}|kt|Tan'i: {0}";
inline constexpr const char* kNotAccepted =
    "Not accepted. {0}|de|Nicht angenommen. {0}|fr|Non accepté. {0}|it|Non accettato. {0}"
    "|es|No aceptado. {0}|kt|Uketsukeraremasen. {0}";
inline constexpr const char* kRefused =
    "{0} was refused: {1}. It is {2}.|de|{0} wurde abgelehnt: {1}. Der Wert ist {2}."
    "|fr|{0} a été refusé : {1}. La valeur est {2}.|it|{0} è stato rifiutato: {1}. Il valore è {2}."
    "|es|{0} fue rechazado: {1}. El valor es {2}.|kt|{0} wa kyohi saremashita: {1}. Atai wa {2}.";
inline constexpr const char* kWillBeWritten =
    "{0} = {1}: to be written (w)|de|{0} = {1}: zu schreiben (w)|fr|{0} = {1} : à écrire (w)"
    "|it|{0} = {1}: da scrivere (w)|es|{0} = {1}: por escribir (w)|kt|{0} = {1}: mi-kakikomi (w)";
inline constexpr const char* kGivenUp =
    "{0}: the change is given up.|de|{0}: Änderung verworfen.|fr|{0} : changement abandonné."
    "|it|{0}: modifica annullata.|es|{0}: cambio descartado.|kt|{0}: henkou o torikeshimashita.";
inline constexpr const char* kGroup =
    "Written together|de|Gemeinsam zu schreiben|fr|Écrits ensemble|it|Scritti insieme"
    "|es|Se escriben juntos|kt|Issho ni kakikomi";
inline constexpr const char* kGroupQuestion =
    "Not every variable of the group was looked at. Its changes are written together or not at all."
    "|de|Noch nicht jede Variable der Gruppe wurde geprüft. Ihre Änderungen werden gemeinsam "
    "geschrieben oder gar nicht.|fr|Toutes les variables du groupe n'ont pas été vérifiées. Ses "
    "changements sont écrits ensemble ou pas du tout.|it|Non tutte le variabili del gruppo sono "
    "state controllate. Le modifiche si scrivono insieme o per nulla.|es|No se han revisado todas "
    "las variables del grupo. Sus cambios se escriben juntos o no se escriben.|kt|Guruupu no "
    "subete "
    "no hensuu o mite imasen. Henkou wa issho ni kakikomu ka, kakikomimasen.";
inline constexpr const char* kStay =
    "Stay here|de|Hier bleiben|fr|Rester ici|it|Restare qui|es|Quedarse aquí|kt|Koko ni nokoru";
inline constexpr const char* kGiveUp =
    "Give the group's changes up|de|Änderungen der Gruppe verwerfen|fr|Abandonner les changements "
    "du groupe|it|Annullare le modifiche del gruppo|es|Descartar los cambios del grupo|kt|Guruupu "
    "no henkou o torikesu";

// --- data set ---
inline constexpr const char* kUpload =
    "Load from the device|de|Aus dem Gerät laden|fr|Lire de l'appareil|it|Leggere dal dispositivo"
    "|es|Leer del dispositivo|kt|Kiki kara yomu";
inline constexpr const char* kDownload =
    "Write all to the device|de|Alles in das Gerät schreiben|fr|Tout écrire dans l'appareil"
    "|it|Scrivere tutto nel dispositivo|es|Escribir todo en el dispositivo|kt|Kiki ni zenbu kaku";
inline constexpr const char* kWrite =
    "Write changes to the device|de|Änderungen in das Gerät schreiben|fr|Écrire les changements "
    "dans l'appareil|it|Scrivere le modifiche nel dispositivo|es|Escribir los cambios en el "
    "dispositivo|kt|Kiki ni henkou o kaku";
inline constexpr const char* kPendingTitle =
    "Changes of an earlier run|de|Änderungen eines früheren Laufs|fr|Changements antérieurs"
    "|it|Modifiche precedenti|es|Cambios anteriores|kt|Mae no henkou";
inline constexpr const char* kUploadQuestion =
    "Loading gives up {0} changes that are not written yet."
    "|de|Das Laden verwirft {0} Änderungen, die noch nicht geschrieben sind."
    "|fr|La lecture abandonne {0} changements pas encore écrits."
    "|it|La lettura annulla {0} modifiche non ancora scritte."
    "|es|La lectura descarta {0} cambios aún no escritos."
    "|kt|Yomu to mi-kakikomi no henkou {0} ga kiemasu.";
inline constexpr const char* kLoad =
    "Load and give them up|de|Laden und verwerfen|fr|Lire et les abandonner|it|Leggere e annullarle"
    "|es|Leer y descartarlos|kt|Yonde torikesu";
inline constexpr const char* kDownloadQuestion =
    "The data set is loaded, then all of it is written, changes included."
    "|de|Der Datensatz wird geladen und dann ganz geschrieben, mit den Änderungen."
    "|fr|Les données sont lues, puis toutes écrites, changements compris."
    "|it|I dati vengono letti, poi scritti tutti, modifiche comprese."
    "|es|Los datos se leen y después se escriben todos, con los cambios."
    "|kt|Deeta o yonde kara, henkou to tomo ni zenbu kakimasu.";
inline constexpr const char* kWriteAll =
    "Write all|de|Alles schreiben|fr|Tout écrire|it|Scrivere tutto|es|Escribir todo|kt|Zenbu kaku";

inline constexpr const char* kSavedIn =
    "Saved in {0}.|de|In {0} gesichert.|fr|Gardé dans {0}.|it|Salvato in {0}.|es|Guardado en {0}."
    "|kt|{0} ni hozon shimashita.";
inline constexpr const char* kNoSaveFile =
    "There is no file to save in: --dataset or --device names one.|de|Es gibt keine Datei zum "
    "Sichern: --dataset oder --device nennt eine.|fr|Il n'y a pas de fichier pour garder : "
    "--dataset ou --device en nomme un.|it|Non c'è un file in cui salvare: --dataset o --device ne "
    "indica uno.|es|No hay archivo para guardar: --dataset o --device indica uno.|kt|Hozon suru "
    "fairu ga arimasen: --dataset ka --device de shitei shimasu.";
inline constexpr const char* kWritesAtOnce =
    "writes at once|de|schreibt sofort|fr|écrit aussitôt|it|scrive subito|es|escribe al instante"
    "|kt|sugu kaku";
inline constexpr const char* kImmediateOn =
    "Changes are written at once from now on, and what waits with the next one."
    "|de|Änderungen werden ab jetzt sofort geschrieben, was wartet mit der nächsten."
    "|fr|Désormais les changements sont écrits aussitôt, ceux qui attendent avec le prochain."
    "|it|D'ora in poi le modifiche si scrivono subito, quelle in attesa con la prossima."
    "|es|Desde ahora los cambios se escriben al instante, los que esperan con el próximo."
    "|kt|Kore kara henkou o sugu kakimasu. Mi-kakikomi no mono wa tsugi to issho desu.";
inline constexpr const char* kImmediateOff =
    "Changes wait for w from now on.|de|Änderungen warten ab jetzt auf w."
    "|fr|Désormais les changements attendent w.|it|D'ora in poi le modifiche attendono w."
    "|es|Desde ahora los cambios esperan w.|kt|Kore kara henkou wa w o machimasu.";
inline constexpr const char* kWrittenAtOnce =
    "{0} = {1}: written|de|{0} = {1}: geschrieben|fr|{0} = {1} : écrit|it|{0} = {1}: scritto"
    "|es|{0} = {1}: escrito|kt|{0} = {1}: kakimashita";

// --- leaving ---
inline constexpr const char* kQuit = "Quit|de|Beenden|fr|Quitter|it|Uscire|es|Salir|kt|Owaru";
inline constexpr const char* kQuitQuestion =
    "{0} changes are not written yet.|de|{0} Änderungen sind noch nicht geschrieben."
    "|fr|{0} changements ne sont pas encore écrits.|it|{0} modifiche non sono ancora scritte."
    "|es|{0} cambios no se han escrito aún.|kt|Henkou {0} ga mada kakikomarete imasen.";
inline constexpr const char* kWriteAndQuit =
    "Write them and quit|de|Schreiben und beenden|fr|Les écrire et quitter|it|Scriverle e uscire"
    "|es|Escribirlos y salir|kt|Kaite owaru";
inline constexpr const char* kKeepAndQuit =
    "Keep them in {0} and quit|de|In {0} aufbewahren und beenden|fr|Les garder dans {0} et quitter"
    "|it|Conservarle in {0} e uscire|es|Guardarlos en {0} y salir|kt|{0} ni hozon shite owaru";
inline constexpr const char* kQuitUnsaved =
    "Quit without saving|de|Beenden, ohne zu sichern|fr|Quitter sans garder|it|Uscire senza salvare"
    "|es|Salir sin guardar|kt|Hozon sezu ni owaru";
inline constexpr const char* kLoseAndQuit =
    "Lose them and quit|de|Verwerfen und beenden|fr|Les perdre et quitter|it|Perderle e uscire"
    "|es|Perderlos y salir|kt|Sutete owaru";

// --- other ---
inline constexpr const char* kNoTerminal =
    "browse needs a terminal; the other commands do without."
    "|de|browse braucht ein Terminal; die anderen Kommandos kommen ohne aus."
    "|fr|browse a besoin d'un terminal ; les autres commandes s'en passent."
    "|it|browse ha bisogno di un terminale; gli altri comandi ne fanno a meno."
    "|es|browse necesita un terminal; las otras órdenes no."
    "|kt|browse ni wa tanmatsu ga hitsuyou desu; hoka no komando ni wa irimasen.";
inline constexpr const char* kBadTerminal =
    "The terminal \"{0}\" (TERM) cannot show a screen."
    "|de|Das Terminal \"{0}\" (TERM) kann keinen Bildschirm anzeigen."
    "|fr|Le terminal \"{0}\" (TERM) ne peut pas afficher un écran."
    "|it|Il terminale \"{0}\" (TERM) non può mostrare uno schermo."
    "|es|El terminal \"{0}\" (TERM) no puede mostrar una pantalla."
    "|kt|Tanmatsu \"{0}\" (TERM) wa gamen o hyouji dekimasen.";
inline constexpr const char* kHelp = "Help|de|Hilfe|fr|Aide|it|Aiuto|es|Ayuda|kt|Herupu";
inline constexpr const char* kLanguage =
    "Language|de|Sprache|fr|Langue|it|Lingua|es|Idioma|kt|Gengo";
inline constexpr const char* kMessages =
    "Messages|de|Meldungen|fr|Messages|it|Messaggi|es|Mensajes|kt|Messeeji";
inline constexpr const char* kNoMessages =
    "There are none.|de|Es gibt keine.|fr|Il n'y en a pas.|it|Non ce ne sono.|es|No hay ninguno."
    "|kt|Arimasen.";
inline constexpr const char* kAllKeys =
    "Enter, →  open, edit or run the item\nEsc, ←  back\nF1, ?  this help\nw  write the changes\n"
    "u  load the data set from the device\nd  load it and write all of it\nr  read what is shown "
    "again\ni  write changes at once, or not\ns  save\nx, Del  give up the item's change\nl  "
    "language\nm  messages\nq  quit\nCtrl-C  cancel, "
    "or quit"
    "|de|Enter, →  öffnen, ändern oder ausführen\nEsc, ←  zurück\nF1, ?  diese Hilfe\nw  "
    "Änderungen "
    "schreiben\nu  Datensatz aus dem Gerät laden\nd  laden und alles schreiben\nr  Gezeigtes neu "
    "lesen\ni  Änderungen sofort schreiben oder nicht\ns  sichern\nx, Entf  Änderung verwerfen\nl  "
    "Sprache\nm  Meldungen\nq  beenden\nStrg-C  abbrechen "
    "oder beenden"
    "|fr|Entrée, →  ouvrir, modifier ou exécuter\nEsc, ←  retour\nF1, ?  cette aide\nw  écrire les "
    "changements\nu  lire les données de l'appareil\nd  lire puis tout écrire\nr  relire ce qui "
    "est "
    "affiché\ni  écrire les changements aussitôt, ou non\ns  garder\nx, Suppr  abandonner le "
    "changement\nl  langue\nm  messages\nq  quitter\nCtrl-C  "
    "annuler ou quitter"
    "|it|Invio, →  aprire, modificare o eseguire\nEsc, ←  indietro\nF1, ?  questo aiuto\nw  "
    "scrivere "
    "le modifiche\nu  leggere i dati dal dispositivo\nd  leggere e scrivere tutto\nr  rileggere "
    "ciò "
    "che è mostrato\ni  scrivere subito le modifiche, o no\ns  salvare\nx, Canc  annullare la "
    "modifica\nl  lingua\nm  messaggi\nq  uscire\nCtrl-C  "
    "annullare o uscire"
    "|es|Intro, →  abrir, editar o ejecutar\nEsc, ←  atrás\nF1, ?  esta ayuda\nw  escribir los "
    "cambios\nu  leer los datos del dispositivo\nd  leer y escribir todo\nr  leer de nuevo lo "
    "mostrado\ni  escribir los cambios al instante, o no\ns  guardar\nx, Supr  descartar el "
    "cambio\nl  idioma\nm  mensajes\nq  salir\nCtrl-C  cancelar o "
    "salir"
    "|kt|Enter, →  hiraku, henshuu, jikkou\nEsc, ←  modoru\nF1, ?  kono herupu\nw  henkou o kaku\n"
    "u  kiki kara deeta o yomu\nd  yonde zenbu kaku\nr  hyouji o yominaosu\ni  henkou o sugu kaku "
    "ka dou ka\ns  hozon suru\nx, Del  henkou o "
    "torikesu\nl  gengo\nm  messeeji\nq  owaru\nCtrl-C  chuushi, mata wa owaru";

}  // namespace hartframe::browse::texts
