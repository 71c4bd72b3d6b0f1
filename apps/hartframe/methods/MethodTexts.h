#pragma once

// What `run` says, in the six languages.
namespace hartframe::texts {

inline constexpr const char* kUnknownMethod =
    "The DTM has no method \"{0}\". There is: {1}.|de|Der DTM hat keine Methode \"{0}\". Es gibt: "
    "{1}.|fr|Le DTM n'a pas de méthode \"{0}\". Il y a : {1}.|it|Il DTM non ha un metodo \"{0}\". "
    "Ci sono: {1}.|es|El DTM no tiene un método \"{0}\". Hay: {1}.|kt|DTM ni mesoddo \"{0}\" wa "
    "arimasen. Aru mono: {1}.";
inline constexpr const char* kNoMethod =
    "\"{0}\" is no method.|de|\"{0}\" ist keine Methode.|fr|\"{0}\" n'est pas une méthode.|it|"
    "\"{0}\" non è un metodo.|es|\"{0}\" no es un método.|kt|\"{0}\" wa mesoddo de wa arimasen.";
inline constexpr const char* kMethodNotValid =
    "\"{0}\" was not run: it is not valid in this configuration.|de|\"{0}\" wurde nicht "
    "ausgeführt: in dieser Konfiguration nicht gültig.|fr|\"{0}\" n'a pas été exécutée : non "
    "valable dans cette configuration.|it|\"{0}\" non è stato eseguito: non valido in questa "
    "configurazione.|es|\"{0}\" no se ha ejecutado: no es válido en esta configuración.|kt|\"{0}\" "
    "wa jikkou saremasen deshita: kono settei de wa yuukou de wa arimasen.";
inline constexpr const char* kValidityUnknown =
    "\"{0}\" was not run: whether it is valid is not known, since {1} could not be read with "
    "command {2}: {3}.|de|\"{0}\" wurde nicht ausgeführt: ob gültig, ist nicht bekannt, denn {1} "
    "war mit Kommando {2} nicht lesbar: {3}.|fr|\"{0}\" n'a pas été exécutée : on ne sait pas si "
    "elle est valable, car {1} n'a pas pu être lue avec la commande {2} : {3}.|it|\"{0}\" non è "
    "stato eseguito: non si sa se è valido, perché {1} non è stata letta con il comando {2}: {3}."
    "|es|\"{0}\" no se ha ejecutado: no se sabe si es válido, pues {1} no se pudo leer con el "
    "comando {2}: {3}.|kt|\"{0}\" wa jikkou saremasen deshita: {1} o komando {2} de yomenai no de, "
    "yuukou ka dou ka wakarimasen: {3}.";
inline constexpr const char* kResponseCode =
    "response code {0}, {1}|de|Antwortcode {0}, {1}|fr|code de réponse {0}, {1}|it|codice di "
    "risposta {0}, {1}|es|código de respuesta {0}, {1}|kt|outou koodo {0}, {1}";
inline constexpr const char* kObserverCannotRun =
    "An observer cannot run methods. Choose another --user-level.|de|Ein Beobachter kann keine "
    "Methoden ausführen. Mit --user-level eine andere Benutzerebene wählen.|fr|Un observateur ne "
    "peut pas exécuter de méthodes. Choisissez un autre --user-level.|it|Un osservatore non può "
    "eseguire metodi. Scegliere un altro --user-level.|es|Un observador no puede ejecutar métodos. "
    "Elija otro --user-level.|kt|Obuzaabaa wa mesoddo o jikkou dekimasen. Betsu no --user-level o "
    "erande kudasai.";

inline constexpr const char* kMethodFinished =
    "\"{0}\" has run to its end.|de|\"{0}\" ist bis zum Ende gelaufen.|fr|\"{0}\" s'est déroulée "
    "jusqu'à la fin.|it|\"{0}\" è stato eseguito fino alla fine.|es|\"{0}\" se ha ejecutado hasta "
    "el final.|kt|\"{0}\" wa saigo made jikkou saremashita.";
inline constexpr const char* kMethodAborted =
    "\"{0}\" was aborted: {1}.|de|\"{0}\" wurde abgebrochen: {1}.|fr|\"{0}\" a été interrompue : "
    "{1}.|it|\"{0}\" è stato interrotto: {1}.|es|\"{0}\" se ha anulado: {1}.|kt|\"{0}\" wa chuushi "
    "saremashita: {1}.";
inline constexpr const char* kMethodFailed =
    "\"{0}\" has failed: {1}|de|\"{0}\" ist gescheitert: {1}|fr|\"{0}\" a échoué : {1}|it|\"{0}\" "
    "è fallito: {1}|es|\"{0}\" ha fallado: {1}|kt|\"{0}\" wa shippai shimashita: {1}";
inline constexpr const char* kReasonUser =
    "cancelled by the user|de|vom Benutzer abgebrochen|fr|par l'utilisateur|it|annullato "
    "dall'utente|es|cancelado por el usuario|kt|yuuzaa ga torikeshimashita";
inline constexpr const char* kReasonInterrupted =
    "interrupted by Ctrl-C|de|mit Strg-C unterbrochen|fr|interrompue par Ctrl-C|it|interrotto con "
    "Ctrl-C|es|interrumpido con Ctrl-C|kt|Ctrl-C de chuudan";
inline constexpr const char* kReasonAnswer =
    "an answer was missing or not accepted|de|eine Antwort fehlte oder wurde nicht angenommen|fr|"
    "une réponse manquait ou n'a pas été acceptée|it|una risposta mancava o non è stata "
    "accettata|es|faltaba una respuesta o no se ha aceptado|kt|kotae ga nai ka, ukeireraremasen "
    "deshita";
inline constexpr const char* kReasonNoDevice =
    "the device does not answer|de|das Gerät antwortet nicht|fr|l'appareil ne répond pas|it|il "
    "dispositivo non risponde|es|el dispositivo no responde|kt|kiki ga outou shimasen";
inline constexpr const char* kReasonStatus =
    "the status that the device answered|de|der Status, den das Gerät meldet|fr|l'état signalé par "
    "l'appareil|it|lo stato segnalato dal dispositivo|es|el estado que indica el dispositivo|kt|"
    "kiki no suteetasu";
inline constexpr const char* kReasonMethod =
    "the method itself decided so|de|die Methode hat es selbst entschieden|fr|la méthode en a "
    "décidé ainsi|it|lo ha deciso il metodo stesso|es|lo ha decidido el propio método|kt|mesoddo "
    "ga jibun de kimemashita";

inline constexpr const char* kKeptValues =
    "Kept by the method:|de|Von der Methode übernommen:|fr|Conservé par la méthode :|it|Conservati "
    "dal metodo:|es|Conservado por el método:|kt|Mesoddo ga hozon shita mono:";
inline constexpr const char* kAnswersLeft =
    "Answers that were not needed: {0}.|de|Nicht gebrauchte Antworten: {0}.|fr|Réponses inutiles : "
    "{0}.|it|Risposte non necessarie: {0}.|es|Respuestas que no hicieron falta: {0}.|kt|Iranakatta "
    "kotae: {0}.";
inline constexpr const char* kAnswerMissing =
    "\"{0}\" waits for an answer, and there is none; give it with --answer. {1}|de|\"{0}\" wartet "
    "auf eine Antwort, und es gibt keine; mit --answer angeben. {1}|fr|\"{0}\" attend une réponse, "
    "et il n'y en a pas ; donnez-la avec --answer. {1}|it|\"{0}\" attende una risposta, e non c'è; "
    "darla con --answer. {1}|es|\"{0}\" espera una respuesta y no hay ninguna; indíquela con "
    "--answer. {1}|kt|\"{0}\" wa kotae o matte imasu ga, arimasen; --answer de ataete kudasai. {1}";
inline constexpr const char* kAnswerRefused =
    "\"{0}\": the answer \"{1}\" is not accepted. {2}|de|\"{0}\": Die Antwort \"{1}\" wird nicht "
    "angenommen. {2}|fr|\"{0}\" : la réponse \"{1}\" n'est pas acceptée. {2}|it|\"{0}\": la "
    "risposta \"{1}\" non è accettata. {2}|es|\"{0}\": la respuesta \"{1}\" no se acepta. {2}|kt|"
    "\"{0}\": kotae \"{1}\" wa ukeireraremasen. {2}";
inline constexpr const char* kAllowedToAcknowledge =
    "Allowed: \"ok\" or \"cancel\".|de|Erlaubt: \"ok\" oder \"cancel\".|fr|Permis : \"ok\" ou "
    "\"cancel\".|it|Consentito: \"ok\" o \"cancel\".|es|Permitido: \"ok\" o "
    "\"cancel\".|kt|Yurusareru "
    "mono: \"ok\" matawa \"cancel\".";
inline constexpr const char* kAllowedAnyText =
    "Allowed: any text.|de|Erlaubt: jeder Text.|fr|Permis : tout texte.|it|Consentito: qualsiasi "
    "testo.|es|Permitido: cualquier texto.|kt|Yurusareru mono: dono tekisuto mo.";
inline constexpr const char* kPressEnter =
    "Enter to go on, Ctrl-D to cancel: |de|Weiter mit Enter, abbrechen mit Strg-D: |fr|Entrée pour "
    "continuer, Ctrl-D pour annuler : |it|Invio per continuare, Ctrl-D per annullare: |es|Intro "
    "para continuar, Ctrl-D para cancelar: |kt|Enter de tsuzuku, Ctrl-D de torikeshi: ";
inline constexpr const char* kEnterChoice =
    "Number or text: |de|Nummer oder Text: |fr|Numéro ou texte : |it|Numero o testo: |es|Número o "
    "texto: |kt|Bangou matawa tekisuto: ";
inline constexpr const char* kSecondsLeft =
    "{0} s left|de|noch {0} s|fr|encore {0} s|it|ancora {0} s|es|quedan {0} s|kt|ato {0} byou";

}  // namespace hartframe::texts
