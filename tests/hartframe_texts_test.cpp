// How the frame application puts things: numbers in questions, words that follow their number, and
// traces in the user's language.
#include <gtest/gtest.h>

#include "debugger/TraceLanguage.h"
#include "hartframe/values/ValueText.h"

namespace {

using namespace ZAFHartTypes;
using hartframe::Speech;

TEST(HartframeTexts, TracesSpeakOneLanguage) {
  struct {
    const char* line;
    const char* german;
  } const rows[] = {
      {"<Result: VARIABLE tag Value= available Error(5)=Too short|de|Zu kurz",
       "<Result: VARIABLE tag Value= available Error(5)=Zu kurz"},
      {"VARIABLE e:VARIABLE e Value=Error|de|Fehler|fr|Erreur available to be written",
       "VARIABLE e:VARIABLE e Value=Fehler available to be written"},
      {"VARIABLE a Value=1.5 bar|de|Bar not available Error(6)=Bad|fr|Mal Type=1",
       "VARIABLE a Value=1.5 Bar not available Error(6)=Bad Type=1"},
      {"> Val: Busy|de|Beschäftigt", "> Val: Beschäftigt"},
      {"> Val: 1|2|de", "> Val: 1|2|de"}};
  for (const auto& row : rows) EXPECT_EQ(ZAFHartDebugger::InLanguage(row.line, "de"), row.german);
}

TEST(HartframeTexts, WordsFollowTheirNumber) {
  const char* const text = "{0} {0:row/rows} of {1}|fr|{0} {0:ligne/lignes}";
  EXPECT_EQ(Speech("en")(text, {"1", "2"}), "1 row of 2");
  EXPECT_EQ(Speech("en")(text, {"0", "1"}), "0 rows of 1");
  EXPECT_EQ(Speech("fr")(text, {"0", "1"}), "0 ligne");
}

TEST(HartframeTexts, QuestionsShowNoMoreDigitsThanTheyNeed) {
  Variable variable("input");
  const auto shown = [&](const Variant& value) {
    return hartframe::QuestionText(variable, value, Speech("en"));
  };
  variable.EditTypeInfo().SetTypeCode(TypeCode::Double);
  variable.EditTypeInfo().SetSize(8);
  EXPECT_EQ(shown(20.0), "20");
  EXPECT_EQ(shown(double{20.1F}), "20.1") << "widened";
  EXPECT_EQ(shown(0.1), "0.1");
  variable.EditTypeInfo().SetDisplayFormat(".2f");
  EXPECT_EQ(shown(20.0), "20.00");
  variable.EditTypeInfo().SetDisplayFormat({});
  variable.EditTypeInfo().SetTypeCode(TypeCode::Integer);
  variable.EditTypeInfo().SetSize(2);
  EXPECT_EQ(hartframe::AllowedText(variable, Speech("en")), "Allowed: -32768 to 32767.");
}

}  // namespace
