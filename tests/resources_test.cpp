#include <gtest/gtest.h>

#include "resources/ResText.h"
#include "resources/StringTable.h"
#include "resources/enumDDResourceIDs.h"
#include "text/LangText.h"
#include "types/Utf8.h"

namespace ZAFHartLib {
namespace {

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

TEST(ResTextTest, AllLanguagesTellOfTheConnection) {
  for (const StringResource& resource : StringTable()) {
    const bool isOfConnection = resource.id == idErrNoConnection ||
                                (resource.id >= idNotConnected && resource.id <= idWaiting);
    if (!isOfConnection) continue;
    std::string codes;
    std::string_view rest = resource.text;
    LanguageSegment segment;
    while (NextLanguageSegment(rest, segment)) codes += segment.code;
    EXPECT_EQ(codes, "endefriteskt") << resource.id;
    for (const std::string_view place : {"%{s1}", "%{s2}", "%{s3}"}) {
      const std::string english = LangText(resource.text, "en");
      for (const char* code : {"de", "fr", "it", "es", "kt"}) {
        EXPECT_EQ(LangText(resource.text, code).find(place) == std::string::npos,
                  english.find(place) == std::string::npos)
            << resource.id << code;
      }
    }
  }
}

}  // namespace
}  // namespace ZAFHartLib
