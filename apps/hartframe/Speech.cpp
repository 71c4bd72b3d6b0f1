#include "hartframe/Speech.h"

#include <array>

#include "text/LangText.h"
#include "types/Utf8.h"

namespace hartframe {

namespace {

// In the order of Text.
constexpr std::array<const char*, static_cast<std::size_t>(Text::Count)> kTexts{
    "Name|de|Name",
    "Label|de|Bezeichnung",
    "Value|de|Wert",
    "Unit|de|Einheit",
    "State|de|Zustand",
    "not valid|de|nicht gültig",
    "to be written|de|zu schreiben",
    "not read|de|nicht gelesen",
    "read-only|de|nur lesbar",
    "live|de|Messwert",
    "internal|de|intern",
    "{0} variables loaded from the device.|de|{0} Variablen aus dem Gerät geladen.",
    "{0} not loaded.|de|{0} nicht geladen.",
    "{0} not valid in this configuration.|de|{0} in dieser Konfiguration nicht gültig.",
    "{0} of {1} written to the device.|de|{0} von {1} in das Gerät geschrieben.",
    "Nothing to write.|de|Nichts zu schreiben.",
    "written|de|geschrieben",
    "written, changed by the device|de|geschrieben, vom Gerät geändert",
    "refused by the device|de|vom Gerät abgelehnt",
    "not written, the value is not accepted|de|nicht geschrieben, der Wert wird nicht angenommen",
    "not written, no proper answer|de|nicht geschrieben, keine brauchbare Antwort",
    "not written yet|de|noch nicht geschrieben",
    "the device has {0}|de|das Gerät hat {0}",
    "what the device has is not known|de|der Wert im Gerät ist nicht bekannt",
    "Still to be written:|de|Noch zu schreiben:",
    "Kept in {0}; \"hartframe write\" tries again.|de|"
    "Aufbewahrt in {0}; \"hartframe write\" versucht es erneut.",
    "Interrupted.|de|Abgebrochen.",
    "Interrupted; {0} not attempted.|de|Abgebrochen; {0} nicht bearbeitet.",
    "The device does not answer.|de|Das Gerät antwortet nicht.",
    "The communication with the device is disturbed.|de|Die Kommunikation mit dem Gerät ist "
    "gestört.",
    "The device has refused a request.|de|Das Gerät hat eine Anfrage abgelehnt.",
    "Changes are not written yet and an upload would lose them: {0}. Write them first (hartframe "
    "write), or give --discard.|de|Änderungen sind noch nicht geschrieben und gingen beim Laden "
    "verloren: {0}. Erst schreiben (hartframe write) oder --discard angeben.",
    "Changes are not written yet: {0}. Load from the device and lose them? (yes/no) |de|Änderungen "
    "sind "
    "noch nicht geschrieben: {0}. Aus dem Gerät laden und sie verlieren? (ja/nein) ",
    "yes|de|ja",
    "Nothing was loaded; the changes are kept.|de|Nichts geladen; die Änderungen bleiben.",
    "An observer cannot write. Choose another --user-level.|de|Ein Beobachter kann nicht "
    "schreiben. Mit --user-level eine andere Benutzerebene wählen.",
    "The data set could not be loaded completely, so nothing was written.|de|Der Datensatz konnte "
    "nicht vollständig geladen werden, daher wurde nichts geschrieben.",
    "The DTM has no variable \"{0}\"; \"hartframe list\" shows all.|de|Der DTM hat keine Variable "
    "\"{0}\"; \"hartframe list\" zeigt alle.",
    "No variable matches \"{0}\".|de|Keine Variable passt zu \"{0}\".",
    "\"{0}\" is not of the form NAME=VALUE.|de|\"{0}\" hat nicht die Form NAME=WERT.",
    "{0} cannot be written: it is read-only.|de|{0} kann nicht geschrieben werden: nur lesbar.",
    "{0} cannot be written: it is not valid in this configuration.|de|{0} kann nicht geschrieben "
    "werden: in dieser Konfiguration nicht gültig.",
    "{0} cannot be written: no device command writes it.|de|{0} kann nicht geschrieben werden: "
    "kein Gerätekommando schreibt sie.",
    "{0}: \"{1}\" is not accepted. {2}|de|{0}: \"{1}\" wird nicht angenommen. {2}",
    "Allowed: {0} to {1}.|de|Erlaubt: {0} bis {1}.",
    "Allowed: {0} or more.|de|Erlaubt: {0} oder mehr.",
    "Allowed: {0} or less.|de|Erlaubt: {0} oder weniger.",
    "Allowed: {0}.|de|Erlaubt: {0}.",
    "Allowed: at most {0} characters.|de|Erlaubt: höchstens {0} Zeichen.",
    "Allowed: a date like {0}, from 1900 to 2155.|de|Erlaubt: ein Datum wie {0}, von 1900 bis "
    "2155.",
    "Allowed: a number.|de|Erlaubt: eine Zahl.",
    "Allowed: a whole number of {0} bytes.|de|Erlaubt: eine ganze Zahl aus {0} Bytes.",
    "Allowed: at most {0} capital letters, digits and signs from blank to \"_\".|de|Erlaubt: "
    "höchstens {0} Großbuchstaben, Ziffern und Zeichen von Leerzeichen bis \"_\".",
    "The text has bytes that are not UTF-8.|de|Der Text hat Bytes, die kein UTF-8 sind.",
    "(shown {0} times: {1})|de|({0}-mal gemeldet: {1})",
    "DTM|de|DTM",
    "Device|de|Gerät",
    "States|de|Zustände",
    "Class|de|Klasse",
    "Component file|de|Komponentendatei",
    "Plug-in|de|Plug-in",
    "Variables|de|Variablen",
    "Commands|de|Kommandos",
    "Link|de|Verbindung",
    "Pending changes|de|Ausstehende Änderungen",
    "Tag|de|Messstelle",
    "Polling address|de|Kurzadresse",
    "Long address|de|Lange Adresse",
    "The device's identity could not be read.|de|Die Kennung des Geräts konnte nicht gelesen "
    "werden.",
    "Value: |de|Wert: ",
    "{0} cannot be watched: it is not valid now, or no device command reads it.|de|{0} kann nicht "
    "beobachtet werden: zurzeit nicht gültig, oder kein Gerätekommando liest sie.",
};

bool IsArgument(std::string_view text, std::size_t at) {
  return text[at] == '{' && at + 2 < text.size() && text[at + 2] == '}' && text[at + 1] >= '0' &&
         text[at + 1] <= '9';
}

}  // namespace

std::string Speech::operator()(Text text, std::initializer_list<std::string_view> arguments) const {
  return (*this)(kTexts.at(static_cast<std::size_t>(text)), arguments);
}

std::string Speech::operator()(std::string_view multilingual,
                               std::initializer_list<std::string_view> arguments) const {
  const std::string pattern = ZAFHartLib::LangText(multilingual, language_);
  std::string result;
  for (std::size_t at = 0; at < pattern.size(); ++at) {
    if (!IsArgument(pattern, at)) {
      result += pattern[at];
      continue;
    }
    result += std::data(arguments)[static_cast<std::size_t>(pattern[at + 1] - '0')];
    at += 2;
  }
  return result;
}

std::string Speech::Pick(std::string_view multilingual) const {
  return OneLine(ZAFHartLib::LangText(multilingual, language_));
}

std::string OneLine(std::string_view text) {
  std::string line;
  for (std::size_t at = 0; at < text.size();) {
    const char32_t c = ZAFHartTypes::utf8::Next(text, at);
    const bool control = c < 0x20 || (c >= 0x7F && c < 0xA0);
    ZAFHartTypes::utf8::Append(line, control ? U' ' : c);
  }
  return line;
}

}  // namespace hartframe
