#include <gtest/gtest.h>

#include "components/LibraryClasses.h"
#include "platform/ComponentClasses.h"
#include "resources/ResText.h"
#include "text/LangText.h"
#include "text/TextHelpers.h"
#include "text/Tools.h"
#include "types/Failure.h"

namespace ZAFHartLib {
namespace {

TEST(LangTextTest, ChoosesALanguage) {
  struct Case {
    std::string text;
    const char* lang;
    const char* expected;
  };
  const Case cases[] = {
      {"plain", "de", "plain"},
      {ResText(100), "de", "Vorgang abgebrochen"},
      {ResText(100), "",
       "Process AbortedVorgang abgebrochenProcessus abandonnéProcesso terminatoProceso anulado"},
      {"|049eins|001one", "en", "one"},
      {"|081zero|de|null", "081", "zero"},
      {"|081zero|de|null", "en", "zero"},  // neither: the first segment
      {"|de|eins", "fr", "eins"},
      {"one|de||fr|un", "fr", "one"},  // an empty segment ends the reading
      {"one|de|eins|de|zwei", "de", "einszwei"},
      {"|xen|odd", "en", "odd"},  // the code contains "en"
      {"|only", "de", "only"},    // no code
      {"|", "de", ""},
      {"|0\xC3\xA4|x", "en", "x"},  // "0ä|" counts as a code of three characters
      {"one|de|\xFF\xC3", "de", "\xFF\xC3"}};
  for (const Case& entry : cases) {
    EXPECT_EQ(LangText(entry.text, entry.lang), entry.expected) << entry.text << " " << entry.lang;
  }
}

TEST(TextHelpersTest, ReadsMenuEntries) {
  EXPECT_EQ(StripMenuName("  Basic Setup [Chart] "), "Basic Setup");
  EXPECT_EQ(StripMenuName(" Basic Setup "), "Basic Setup");
  EXPECT_EQ(StripMenuGuiClass("Basic [ Chart ] [Other]"), "Chart");
  EXPECT_EQ(StripMenuGuiClass("Basic", " Table "), "Table");
  try {
    StripMenuGuiClass("]Basic [Chart");
    FAIL();
  } catch (const ZAFHartTypes::Failure& failure) {
    EXPECT_EQ(failure.Number(), ZAFHartTypes::ErrorNumber::InvalidArgument);
    EXPECT_NE(failure.Description().find("]Basic [Chart"), std::string::npos);
  }
}

TEST(TextHelpersTest, FiltersControlCharacters) {
  struct Case {
    std::string text;
    const char* expected;
    const char* left;
  };
  const Case cases[] = {
      {"a\r\nb", "a b", ""},    {std::string("a\0b", 3), "a", "b"}, {"\ta", " a", ""},
      {"a \n\n b", "a  b", ""}, {"Größe\x7F", "Größe\x7F", ""},     {"", "", ""}};
  for (const Case& entry : cases) {
    std::string text = entry.text;
    EXPECT_EQ(FilterCtrlChars(text), entry.expected);
    EXPECT_EQ(text, entry.left);
  }
}

// What a component sees that creates its helper by class name.
TEST(ToolsTest, GivesTheTextFunctionsByClassName) {
  platform::ComponentClasses classes;
  RegisterLibraryClasses(classes);
  const auto tools = classes.CreateAs<Tools>("ZAFHartLib.Tools");
  ZAFHartTypes::PromptValues values;
  values.Set("0", "3.5");
  EXPECT_EQ(tools->FormatDDString("Output %{0}", values), "Output 3.5");
  EXPECT_EQ(tools->AccessStandardString(100).ToText(), ResText(100));
  EXPECT_EQ(tools->AccessStandardString(-1).ToText(), "");
  EXPECT_EQ(tools->LangText("|049eins|081zero", std::int16_t{81}), "zero");
  EXPECT_EQ(tools->LangText("one|de|eins", "de"), "eins");
  EXPECT_EQ(tools->GetDDErrorCode(1), ResText(1201));
  EXPECT_FALSE(tools->GetDDErrorCode(1).empty());
  std::string text("a\tb\0c", 5);
  EXPECT_EQ(tools->FilterCtrlChars(text), "a b");
  EXPECT_EQ(text, "c");
  EXPECT_EQ(tools->StripMenuName("Trend [Chart]"), "Trend");
  EXPECT_EQ(tools->StripMenuGuiClass("Trend [Chart]"), "Chart");
  EXPECT_EQ(tools->CFormatToVBFormat("2.4f"), "0.0000");
  ZAFHartTypes::TypeInfo type;
  type.SetTypeCode(ZAFHartTypes::TypeCode::Enumerated);
  type.SetEnumItems({{2, "off|de|aus"}});
  EXPECT_EQ(tools->GetValueDisplayString(2, type), "off|de|aus");
}

}  // namespace
}  // namespace ZAFHartLib
