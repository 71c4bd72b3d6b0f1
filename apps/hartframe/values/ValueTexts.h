#pragma once

namespace hartframe::texts {

// What is said about names, values and facts; in the order of Text, behind kOfOutcomes.
inline constexpr const char* kOfValues[] = {
    "The DTM has no variable \"{0}\"; \"hartframe list\" shows all.|de|Der DTM hat keine Variable "
    "\"{0}\"; \"hartframe list\" zeigt alle.|fr|Le DTM n'a pas de variable \"{0}\" ; \"hartframe "
    "list\" les montre toutes.|it|Il DTM non ha una variabile \"{0}\"; \"hartframe list\" le "
    "mostra tutte.|es|El DTM no tiene una variable \"{0}\"; \"hartframe list\" las muestra "
    "todas.|kt|DTM ni hensuu \"{0}\" wa arimasen; \"hartframe list\" de subete miraremasu.",
    "No variable matches \"{0}\".|de|Keine Variable passt zu \"{0}\".|fr|Aucune variable ne "
    "correspond à \"{0}\".|it|Nessuna variabile corrisponde a \"{0}\".|es|Ninguna variable "
    "coincide con \"{0}\".|kt|\"{0}\" ni au hensuu wa arimasen.",
    "\"{0}\" is not of the form NAME=VALUE.|de|\"{0}\" hat nicht die Form NAME=WERT.|fr|\"{0}\" "
    "n'est pas de la forme NOM=VALEUR.|it|\"{0}\" non è della forma NOME=VALORE.|es|\"{0}\" no "
    "tiene la forma NOMBRE=VALOR.|kt|\"{0}\" wa NAMAE=ATAI no katachi dewa arimasen.",
    "{0} cannot be written: it is read-only.|de|{0} kann nicht geschrieben werden: nur "
    "lesbar.|fr|{0} ne peut pas être écrite : lecture seule.|it|{0} non può essere scritta: sola "
    "lettura.|es|{0} no se puede escribir: solo lectura.|kt|{0} wa kakikomemasen: yomitori nomi.",
    "{0} cannot be written: it is not valid in this configuration.|de|{0} kann nicht geschrieben "
    "werden: in dieser Konfiguration nicht gültig.|fr|{0} ne peut pas être écrite : non valable "
    "dans cette configuration.|it|{0} non può essere scritta: non valida in questa "
    "configurazione.|es|{0} no se puede escribir: no válida en esta configuración.|kt|{0} wa "
    "kakikomemasen: kono kousei de wa mukou desu.",
    "{0} cannot be written: no device command writes it.|de|{0} kann nicht geschrieben werden: "
    "kein Gerätekommando schreibt sie.|fr|{0} ne peut pas être écrite : aucune commande de "
    "l'appareil ne l'écrit.|it|{0} non può essere scritta: nessun comando del dispositivo la "
    "scrive.|es|{0} no se puede escribir: ningún comando del dispositivo la escribe.|kt|{0} wa "
    "kakikomemasen: kakikomu komando ga arimasen.",
    "{0}: \"{1}\" is not accepted. {2}|de|{0}: \"{1}\" wird nicht angenommen. {2}|fr|{0} : \"{1}\" "
    "n'est pas accepté. {2}|it|{0}: \"{1}\" non è accettato. {2}|es|{0}: \"{1}\" no se acepta. "
    "{2}|kt|{0}: \"{1}\" wa ukeireraremasen. {2}",
    "Allowed: {0} to {1}.|de|Erlaubt: {0} bis {1}.|fr|Permis : {0} à {1}.|it|Consentito: da {0} a "
    "{1}.|es|Permitido: de {0} a {1}.|kt|Kyoka: {0} kara {1} made.",
    "Allowed: {0} or more.|de|Erlaubt: {0} oder mehr.|fr|Permis : {0} ou plus.|it|Consentito: {0} "
    "o più.|es|Permitido: {0} o más.|kt|Kyoka: {0} ijou.",
    "Allowed: {0} or less.|de|Erlaubt: {0} oder weniger.|fr|Permis : {0} ou moins.|it|Consentito: "
    "{0} o meno.|es|Permitido: {0} o menos.|kt|Kyoka: {0} ika.",
    "Allowed: {0}.|de|Erlaubt: {0}.|fr|Permis : {0}.|it|Consentito: {0}.|es|Permitido: "
    "{0}.|kt|Kyoka: {0}.",
    "Allowed: at most {0} characters.|de|Erlaubt: höchstens {0} Zeichen.|fr|Permis : {0} "
    "caractères au plus.|it|Consentito: al massimo {0} caratteri.|es|Permitido: como máximo {0} "
    "caracteres.|kt|Kyoka: {0} moji made.",
    "Allowed: a date like {0}, from 1900 to 2155.|de|Erlaubt: ein Datum wie {0}, von 1900 bis "
    "2155.|fr|Permis : une date comme {0}, de 1900 à 2155.|it|Consentito: una data come {0}, dal "
    "1900 al 2155.|es|Permitido: una fecha como {0}, de 1900 a 2155.|kt|Kyoka: {0} no you na "
    "hizuke, 1900 kara 2155 made.",
    "Allowed: a number.|de|Erlaubt: eine Zahl.|fr|Permis : un nombre.|it|Consentito: un "
    "numero.|es|Permitido: un número.|kt|Kyoka: suuji.",
    "Allowed: at most {0} capital letters, digits and signs from blank to \"_\".|de|Erlaubt: "
    "höchstens {0} Großbuchstaben, Ziffern und Zeichen von Leerzeichen bis \"_\".|fr|Permis : au "
    "plus {0} majuscules, chiffres et signes de l'espace à \"_\".|it|Consentito: al massimo {0} "
    "maiuscole, cifre e segni dallo spazio a \"_\".|es|Permitido: como máximo {0} mayúsculas, "
    "cifras y signos del espacio a \"_\".|kt|Kyoka: oomoji, suuji, kuuhaku kara \"_\" made no "
    "kigou, {0} moji made.",
    "The text has bytes that are not UTF-8.|de|Der Text hat Bytes, die kein UTF-8 sind.|fr|Le "
    "texte a des octets qui ne sont pas de l'UTF-8.|it|Il testo ha byte che non sono UTF-8.|es|El "
    "texto tiene bytes que no son UTF-8.|kt|Tekisuto ni UTF-8 dewa nai baito ga arimasu.",
    "(shown {0} times: {1})|de|({0}-mal gemeldet: {1})|fr|(affiché {0} fois : {1})|it|(mostrato "
    "{0} volte: {1})|es|(mostrado {0} veces: {1})|kt|({0} kai hyouji: {1})",
    "DTM|de|DTM|fr|DTM|it|DTM|es|DTM|kt|DTM",
    "Device|de|Gerät|fr|Appareil|it|Dispositivo|es|Dispositivo|kt|Kiki",
    "States|de|Zustände|fr|États|it|Stati|es|Estados|kt|Joutai",
    "Class|de|Klasse|fr|Classe|it|Classe|es|Clase|kt|Kurasu",
    "Component file|de|Komponentendatei|fr|Fichier du composant|it|File del componente|es|Archivo "
    "del componente|kt|Konponento fairu",
    "Plug-in|de|Plug-in|fr|Plug-in|it|Plug-in|es|Plug-in|kt|Puraguin",
    "Variables|de|Variablen|fr|Variables|it|Variabili|es|Variables|kt|Hensuu",
    "Commands|de|Kommandos|fr|Commandes|it|Comandi|es|Comandos|kt|Komando",
    "Link|de|Verbindung|fr|Liaison|it|Collegamento|es|Enlace|kt|Setsuzoku",
    "Pending changes|de|Ausstehende Änderungen|fr|Changements en attente|it|Modifiche in "
    "attesa|es|Cambios pendientes|kt|Mi-kakikomi no henkou",
    "Tag|de|Messstelle|fr|Repère|it|Sigla|es|Etiqueta de equipo|kt|Tagu",
    "Polling address|de|Kurzadresse|fr|Adresse d'interrogation|it|Indirizzo di "
    "polling|es|Dirección de sondeo|kt|Pooringu adoresu",
    "Long address|de|Lange Adresse|fr|Adresse longue|it|Indirizzo lungo|es|Dirección "
    "larga|kt|Nagai adoresu",
    "The device's identity could not be read.|de|Die Kennung des Geräts konnte nicht gelesen "
    "werden.|fr|L'identité de l'appareil n'a pas pu être lue.|it|L'identità del dispositivo non è "
    "stata letta.|es|No se pudo leer la identidad del dispositivo.|kt|Kiki no shikibetsu o "
    "yomemasen deshita.",
    "Value: |de|Wert: |fr|Valeur : |it|Valore: |es|Valor: |kt|Atai: ",
    "{0} cannot be watched: it is not valid now, or no device command reads it.|de|{0} kann nicht "
    "beobachtet werden: zurzeit nicht gültig, oder kein Gerätekommando liest sie.|fr|{0} ne peut "
    "pas être suivie : pas valable maintenant, ou aucune commande de l'appareil ne la lit.|it|{0} "
    "non può essere osservata: ora non valida, o nessun comando del dispositivo la legge.|es|{0} "
    "no se puede observar: no válida ahora, o ningún comando del dispositivo la lee.|kt|{0} wa "
    "kansatsu dekimasen: ima wa mukou ka, yomu komando ga arimasen.",
};

}  // namespace hartframe::texts
