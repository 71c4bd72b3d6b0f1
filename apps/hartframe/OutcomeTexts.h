#pragma once

namespace hartframe::texts {

// What is said about the state of variables, and how loading and writing end; in the order of Text.
inline constexpr const char* kOfOutcomes[] = {
    "Name|de|Name|fr|Nom|it|Nome|es|Nombre|kt|Namae",
    "Label|de|Bezeichnung|fr|Libellé|it|Etichetta|es|Etiqueta|kt|Raberu",
    "Value|de|Wert|fr|Valeur|it|Valore|es|Valor|kt|Atai",
    "Unit|de|Einheit|fr|Unité|it|Unità|es|Unidad|kt|Tan'i",
    "State|de|Zustand|fr|État|it|Stato|es|Estado|kt|Joutai",
    "not valid|de|nicht gültig|fr|non valable|it|non valido|es|no válido|kt|mukou",
    "to be written|de|zu schreiben|fr|à écrire|it|da scrivere|es|por escribir|kt|mi-kakikomi",
    "not read|de|nicht gelesen|fr|non lu|it|non letto|es|no leído|kt|mi-yomitori",
    "read-only|de|nur lesbar|fr|lecture seule|it|sola lettura|es|solo lectura|kt|yomitori nomi",
    "live|de|Messwert|fr|mesure|it|misura|es|medida|kt|sokuteichi",
    "internal|de|intern|fr|interne|it|interno|es|interno|kt|naibu",
    "{0} {0:variable/variables} loaded from the device.|de|{0} {0:Variable/Variablen} aus dem "
    "Gerät "
    "geladen.|fr|{0} {0:variable lue/variables lues} de l'appareil.|it|{0} {0:variabile "
    "letta/variabili lette} dal dispositivo.|es|{0} {0:variable leída/variables leídas} del "
    "dispositivo.|kt|{0} hensuu o kiki kara yomimashita.",
    "{0} not loaded.|de|{0} nicht geladen.|fr|{0} non {0:lue/lues}.|it|{0} non {0:letta/lette}."
    "|es|{0} no {0:leída/leídas}.|kt|{0} wa yomemasen deshita.",
    "{0} not valid in this configuration.|de|{0} in dieser Konfiguration nicht gültig.|fr|{0} non "
    "{0:valable/valables} dans cette configuration.|it|{0} non {0:valida/valide} in questa "
    "configurazione.|es|{0} no {0:válida/válidas} en esta configuración.|kt|{0} wa kono kousei de "
    "wa mukou desu.",
    "{0} of {1} written to the device.|de|{0} von {1} in das Gerät geschrieben.|fr|{0} sur {1} "
    "{0:écrite/écrites} dans l'appareil.|it|{0} di {1} {0:scritta/scritte} nel dispositivo.|es|{0} "
    "de {1} {0:escrita/escritas} en el dispositivo.|kt|{1} no uchi {0} o kiki ni kakikomimashita.",
    "Nothing to write.|de|Nichts zu schreiben.|fr|Rien à écrire.|it|Niente da scrivere.|es|Nada "
    "que escribir.|kt|Kakikomu mono wa arimasen.",
    "written|de|geschrieben|fr|écrit|it|scritto|es|escrito|kt|kakikomi-zumi",
    "written, changed by the device|de|geschrieben, vom Gerät geändert|fr|écrit, modifié par "
    "l'appareil|it|scritto, modificato dal dispositivo|es|escrito, cambiado por el "
    "dispositivo|kt|kakikomi-zumi, kiki ga henkou",
    "refused by the device|de|vom Gerät abgelehnt|fr|refusé par l'appareil|it|rifiutato dal "
    "dispositivo|es|rechazado por el dispositivo|kt|kiki ga kyohi",
    "not written, the value is not accepted|de|nicht geschrieben, der Wert wird nicht "
    "angenommen|fr|non écrit, la valeur n'est pas acceptée|it|non scritto, il valore non è "
    "accettato|es|no escrito, el valor no se acepta|kt|kakikomazu, atai ga ukeireraremasen",
    "not written, no proper answer|de|nicht geschrieben, keine brauchbare Antwort|fr|non écrit, "
    "pas de réponse correcte|it|non scritto, nessuna risposta corretta|es|no escrito, sin "
    "respuesta correcta|kt|kakikomazu, tadashii outou nashi",
    "not written yet|de|noch nicht geschrieben|fr|pas encore écrit|it|non ancora scritto|es|aún no "
    "escrito|kt|mada kakikomarete imasen",
    "the device has {0}|de|das Gerät hat {0}|fr|l'appareil a {0}|it|il dispositivo ha {0}|es|el "
    "dispositivo tiene {0}|kt|kiki no atai wa {0}",
    "what the device has is not known|de|der Wert im Gerät ist nicht bekannt|fr|la valeur de "
    "l'appareil n'est pas connue|it|il valore del dispositivo non è noto|es|el valor del "
    "dispositivo no se conoce|kt|kiki no atai wa fumei",
    "Still to be written:|de|Noch zu schreiben:|fr|Encore à écrire :|it|Ancora da scrivere:|es|Aún "
    "por escribir:|kt|Mi-kakikomi:",
    "Kept in {0}; \"hartframe write\" tries again.|de|Aufbewahrt in {0}; \"hartframe write\" "
    "versucht es erneut.|fr|Conservé dans {0} ; \"hartframe write\" réessaie.|it|Conservato in "
    "{0}; \"hartframe write\" riprova.|es|Guardado en {0}; \"hartframe write\" lo intenta de "
    "nuevo.|kt|{0} ni hozon; \"hartframe write\" de mou ichido tameshimasu.",
    "Interrupted.|de|Abgebrochen.|fr|Interrompu.|it|Interrotto.|es|Interrumpido.|kt|Chuudan "
    "shimashita.",
    "Interrupted; {0} not attempted.|de|Abgebrochen; {0} nicht bearbeitet.|fr|Interrompu ; {0} non "
    "{0:traitée/traitées}.|it|Interrotto; {0} non {0:trattata/trattate}.|es|Interrumpido; {0} sin "
    "tratar.|kt|Chuudan; {0} wa mi-shori.",
    "Not read: {0}. Their commands cannot be carried out as the DTM describes them; --trace 1 "
    "tells where.|de|Nicht gelesen: {0}. Ihre Kommandos lassen sich nicht so ausführen, wie der "
    "DTM sie beschreibt; --trace 1 sagt, wo.|fr|Non lu : {0}. Leurs commandes ne peuvent pas être "
    "exécutées comme le DTM les décrit ; --trace 1 dit où.|it|Non letto: {0}. I loro comandi non "
    "si possono eseguire come il DTM li descrive; --trace 1 dice dove.|es|No leído: {0}. Sus "
    "comandos no se pueden ejecutar como los describe el DTM; --trace 1 dice "
    "dónde.|kt|Mi-yomitori: {0}. DTM no kijutsu no toori ni komando o jikkou dekimasen; basho wa "
    "--trace 1 de wakarimasu.",
    "The device does not answer.|de|Das Gerät antwortet nicht.|fr|L'appareil ne répond pas.|it|Il "
    "dispositivo non risponde.|es|El dispositivo no responde.|kt|Kiki ga outou shimasen.",
    "The communication with the device is disturbed.|de|Die Kommunikation mit dem Gerät ist "
    "gestört.|fr|La communication avec l'appareil est perturbée.|it|La comunicazione con il "
    "dispositivo è disturbata.|es|La comunicación con el dispositivo está perturbada.|kt|Kiki to "
    "no tsuushin ga midarete imasu.",
    "The device has refused a request.|de|Das Gerät hat eine Anfrage abgelehnt.|fr|L'appareil a "
    "refusé une demande.|it|Il dispositivo ha rifiutato una richiesta.|es|El dispositivo ha "
    "rechazado una petición.|kt|Kiki ga youkyuu o kyohi shimashita.",
    "Changes are not written yet and an upload would lose them: {0}. Write them first (hartframe "
    "write), or give --discard.|de|Änderungen sind noch nicht geschrieben und gingen beim Laden "
    "verloren: {0}. Erst schreiben (hartframe write) oder --discard angeben.|fr|Des changements ne "
    "sont pas encore écrits et une lecture les perdrait : {0}. Écrivez-les d'abord (hartframe "
    "write), ou donnez --discard.|it|Alcune modifiche non sono ancora scritte e una lettura le "
    "perderebbe: {0}. Scriverle prima (hartframe write), o dare --discard.|es|Hay cambios aún no "
    "escritos y una lectura los perdería: {0}. Escríbalos antes (hartframe write), o dé "
    "--discard.|kt|Mi-kakikomi no henkou ga ari, yomu to ushinawaremasu: {0}. Saki ni kakikomu "
    "(hartframe write) ka, --discard o tsukete kudasai.",
    "Changes are not written yet: {0}. Load from the device and lose them? (yes/no) |de|Änderungen "
    "sind noch nicht geschrieben: {0}. Aus dem Gerät laden und sie verlieren? (ja/nein) |fr|Des "
    "changements ne sont pas encore écrits : {0}. Lire de l'appareil et les perdre ? (oui/non) "
    "|it|Alcune modifiche non sono ancora scritte: {0}. Leggere dal dispositivo e perderle? "
    "(sì/no) |es|Hay cambios aún no escritos: {0}. ¿Leer del dispositivo y perderlos? (sí/no) "
    "|kt|Mi-kakikomi no henkou: {0}. Kiki kara yonde sutemasu ka? (hai/iie) ",
    "yes|de|ja|fr|oui|it|sì|es|sí|kt|hai",
    "Nothing was loaded; the changes are kept.|de|Nichts geladen; die Änderungen bleiben.|fr|Rien "
    "n'a été lu ; les changements restent.|it|Non è stato letto nulla; le modifiche restano.|es|No "
    "se ha leído nada; los cambios se conservan.|kt|Nani mo yomazu, henkou wa nokoshimashita.",
    "An observer cannot write. Choose another --user-level.|de|Ein Beobachter kann nicht "
    "schreiben. Mit --user-level eine andere Benutzerebene wählen.|fr|Un observateur ne peut pas "
    "écrire. Choisissez un autre --user-level.|it|Un osservatore non può scrivere. Scegliere un "
    "altro --user-level.|es|Un observador no puede escribir. Elija otro "
    "--user-level.|kt|Kansatsusha wa kakikomemasen. Hoka no --user-level o erande kudasai.",
    "The data set could not be loaded completely, so nothing was written.|de|Der Datensatz konnte "
    "nicht vollständig geladen werden, daher wurde nichts geschrieben.|fr|Les données n'ont pas pu "
    "être lues entièrement, donc rien n'a été écrit.|it|I dati non sono stati letti completamente, "
    "quindi non è stato scritto nulla.|es|Los datos no se pudieron leer por completo, así que no "
    "se ha escrito nada.|kt|Deeta o zenbu yomenakatta no de, nani mo kakikomimasen deshita.",
};

}  // namespace hartframe::texts
