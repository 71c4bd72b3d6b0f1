#include <gtest/gtest.h>

#include "resources/ResText.h"
#include "resources/StringTable.h"
#include "resources/enumDDResourceIDs.h"
#include "text/LangText.h"
#include "types/Utf8.h"

namespace ZAFHartLib {
namespace {

TEST(ResTextTest, GivesTheGivenTextsLetterForLetter) {
  struct Case {
    std::int32_t id;
    const char* english;
    const char* german;
  };
  const Case cases[] = {
      {100, "Process Aborted", "Vorgang abgebrochen"},
      {1000, "Variable \"%{s}\" not defined!", "Variable \"%{s}\" not defined!"},
      {1107, "Message Time-out", "Nachr. Zeit-aus"},
      {1202, "impossibe to communicate with device", "Kommunikation mit dem Gerät gescheitert"},
      {1209, "edit item must be variable or write-as-one relation",
       "edit item must be variable or write-as-one relation"},
      {1213, "variable cannot be currently edited", "Variable kann momentan nicht editiert werden"},
      {1707, "In write protect mode", "Schreibschutz aktiv"},
      {1900, "DTM Internal Error!", "DTM interner Fehler!"},
      {3100, "Waiting ...", "Warte ..."},
      {11005, "Message", "Nachricht"}};
  for (const Case& entry : cases) {
    EXPECT_EQ(LangText(ResText(entry.id), "en"), entry.english);
    EXPECT_EQ(LangText(ResText(entry.id), "de"), entry.german);
  }
}

TEST(ResTextTest, GivesNothingForUnknownNumbers) {
  for (const std::int32_t id : {-1, 0, 99, 1102, 1708, 12000, INT32_MAX}) {
    EXPECT_EQ(ResText(id), "") << id;
  }
}

// Every text that users see has a German segment; only failures of methods and two errors of DD
// authors do not.
TEST(ResTextTest, TableIsWellFormed) {
  for (const StringResource& resource : StringTable()) {
    EXPECT_EQ(ResText(resource.id), resource.text);
    EXPECT_TRUE(ZAFHartTypes::utf8::IsValid(resource.text)) << resource.id;
    const bool englishOnly =
        (resource.id >= idErrVarNameNotDefined && resource.id <= idErrMethodNotInList) ||
        resource.id == idErrDisplayItemNotVariable || resource.id == idErrEditItemNotEditable;
    EXPECT_EQ(resource.text.find("|de|") == std::string_view::npos, englishOnly) << resource.id;
    std::string_view rest = resource.text;
    LanguageSegment segment;
    while (NextLanguageSegment(rest, segment)) EXPECT_EQ(segment.code.size(), 2U) << resource.id;
    EXPECT_FALSE(segment.text.empty() && !rest.empty()) << resource.id;
  }
}

}  // namespace
}  // namespace ZAFHartLib
