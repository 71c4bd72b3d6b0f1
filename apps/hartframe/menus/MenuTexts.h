#pragma once

// What `menu` and `run` say about menus, in the six languages.
namespace hartframe::texts {

inline constexpr const char* kColumnKind = "Kind|de|Art|fr|Type|it|Tipo|es|Tipo|kt|Shurui";
inline constexpr const char* kKindMenu = "menu|de|Menü|fr|menu|it|menu|es|menú|kt|menyuu";
inline constexpr const char* kKindMethod =
    "method|de|Methode|fr|méthode|it|metodo|es|método|kt|mesoddo";
inline constexpr const char* kKindEditDisplay =
    "edit display|de|Eingabefenster|fr|fenêtre de saisie|it|finestra di modifica|es|"
    "ventana de edición|kt|henshuu gamen";
inline constexpr const char* kKindGroup =
    "written together|de|gemeinsam zu schreiben|fr|écrits ensemble|it|scritti insieme|es|"
    "se escriben juntos|kt|issho ni kakikomi";
inline constexpr const char* kGroup = "Group|de|Gruppe|fr|Groupe|it|Gruppo|es|Grupo|kt|Guruupu";
inline constexpr const char* kShownItems =
    "Shown:|de|Angezeigt:|fr|Affiché :|it|Visualizzati:|es|Se muestra:|kt|Hyouji:";
inline constexpr const char* kEditedItems =
    "To be edited:|de|Zu bearbeiten:|fr|À modifier :|it|Da modificare:|es|Para editar:|kt|"
    "Henshuu:";
inline constexpr const char* kEmptyMenu =
    "The menu is empty.|de|Das Menü ist leer.|fr|Le menu est vide.|it|Il menu è vuoto.|es|"
    "El menú está vacío.|kt|Menyuu wa kara desu.";
inline constexpr const char* kUnknownMenu =
    "The DTM has no menu \"{0}\". There is: {1}.|de|Der DTM hat kein Menü \"{0}\". Es gibt: {1}."
    "|fr|Le DTM n'a pas de menu \"{0}\". Il y a : {1}.|it|Il DTM non ha un menu \"{0}\". Ci sono: "
    "{1}.|es|El DTM no tiene un menú \"{0}\". Hay: {1}.|kt|DTM ni menyuu \"{0}\" wa arimasen. Aru "
    "mono: {1}.";
inline constexpr const char* kUnknownItem =
    "\"{0}\" is not in the menu \"{1}\". There is: {2}.|de|\"{0}\" steht nicht im Menü \"{1}\". Es "
    "gibt: {2}.|fr|\"{0}\" n'est pas dans le menu \"{1}\". Il y a : {2}.|it|\"{0}\" non è nel menu "
    "\"{1}\". Ci sono: {2}.|es|\"{0}\" no está en el menú \"{1}\". Hay: {2}.|kt|\"{0}\" wa menyuu "
    "\"{1}\" ni arimasen. Aru mono: {2}.";
inline constexpr const char* kAmbiguousItem =
    "\"{0}\" may be any of {1}; give more of the name.|de|\"{0}\" kann jedes von {1} sein; bitte "
    "mehr vom Namen angeben.|fr|\"{0}\" peut être l'un de {1} ; précisez le nom.|it|\"{0}\" può "
    "essere uno di {1}; indicare di più del nome.|es|\"{0}\" puede ser cualquiera de {1}; indique "
    "más del nombre.|kt|\"{0}\" wa {1} no dore ka desu; namae o motto shitei shite kudasai.";
inline constexpr const char* kNoMenu =
    "\"{0}\" is no menu, so nothing is below it.|de|\"{0}\" ist kein Menü, darunter ist nichts."
    "|fr|\"{0}\" n'est pas un menu ; il n'y a rien dessous.|it|\"{0}\" non è un menu; sotto non "
    "c'è nulla.|es|\"{0}\" no es un menú; no hay nada debajo.|kt|\"{0}\" wa menyuu de wa nai no "
    "de, shita ni nani mo arimasen.";
inline constexpr const char* kIsVariable =
    "\"{0}\" is a variable; \"hartframe read {1}\" reads it.|de|\"{0}\" ist eine Variable; "
    "\"hartframe read {1}\" liest sie.|fr|\"{0}\" est une variable ; \"hartframe read {1}\" la "
    "lit.|it|\"{0}\" è una variabile; \"hartframe read {1}\" la legge.|es|\"{0}\" es una variable; "
    "\"hartframe read {1}\" la lee.|kt|\"{0}\" wa hensuu desu; \"hartframe read {1}\" de yomimasu.";
inline constexpr const char* kIsMethod =
    "\"{0}\" is a method; \"hartframe run {1}\" runs it.|de|\"{0}\" ist eine Methode; \"hartframe "
    "run {1}\" führt sie aus.|fr|\"{0}\" est une méthode ; \"hartframe run {1}\" l'exécute.|it|"
    "\"{0}\" è un metodo; \"hartframe run {1}\" lo esegue.|es|\"{0}\" es un método; \"hartframe "
    "run {1}\" lo ejecuta.|kt|\"{0}\" wa mesoddo desu; \"hartframe run {1}\" de jikkou shimasu.";

}  // namespace hartframe::texts
