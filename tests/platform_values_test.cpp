#include <gtest/gtest.h>

#include <clocale>
#include <regex>
#include <thread>

#include "platform/ForeignCall.h"
#include "platform/Guid.h"
#include "platform/Platform.h"

namespace platform {
namespace {

TEST(Failure, ForeignExceptionsBecomeFailuresAndOnlyFailuresAreIgnored) {
  const auto broken = [] { throw std::out_of_range("row 9"); };
  EXPECT_EQ(CallForeign("control", [] { return 7; }), 7);
  EXPECT_FALSE(IgnoreFailures([&] { CallForeign("control", broken); }));
  EXPECT_THROW(IgnoreFailures(broken), std::out_of_range);
}

TEST(Guid, RegistryFormOfARandomOne) {
  RandomSource random(1);
  const Guid guid = CreateGuid(random);
  EXPECT_TRUE(std::regex_match(
      RegistryForm(guid),
      std::regex(R"(\{[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}\})")));
  EXPECT_NE(guid, CreateGuid(random));
  const Guid counted{{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}};
  EXPECT_EQ(RegistryForm(counted), "{00010203-0405-0607-0809-0A0B0C0D0E0F}");
}

TEST(UserLocale, ShortDates) {
  const struct {
    const char *strftime, *format, *date;
  } table[] = {
      {"%d.%m.%Y", "dd.MM.yyyy", "03.07.2009"},
      {"%m/%d/%y", "MM/dd/yy", "07/03/09"},
      {"%-d.%-m.%Y", "d.M.yyyy", "3.7.2009"},
      {"%F", "yyyy-MM-dd", "2009-07-03"},
      {"%e/%m/%Ey", "d/MM/yy", "3/07/09"},
      {"%Y年%m月%d日", "yyyy年MM月dd日", "2009年07月03日"},
      {"%d %b %Y", "", ""},
      {"day %d", "", ""},
      {"%", "", ""},
  };
  for (const auto& row : table) {
    EXPECT_EQ(ShortDateFormatOf(row.strftime), row.format);
    EXPECT_EQ((UserLocale{".", row.format}.FormatShortDate(3, 7, 2009)), row.date);
  }
  EXPECT_EQ((UserLocale{".", "d-M-yy"}.FormatShortDate(255, 0, 2155)), "255-0-55");
}

TEST(UserLocale, EnvironmentIsReadWithoutTouchingTheProcess) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  const char* old = std::getenv("LC_ALL");
  const std::string saved = old ? old : "";
  for (const char* name : {"C", "C.UTF-8", "xx_NOWHERE"}) {
    setenv("LC_ALL", name, 1);
    const UserLocale locale = UserLocale::FromEnvironment();
    EXPECT_EQ(locale.decimalSeparator, ".");
    EXPECT_EQ(locale.shortDateFormat, "yyyy-MM-dd");
  }
  setenv("LC_ALL", "de_DE.UTF-8", 1);
  const UserLocale german = UserLocale::FromEnvironment();
  if (german.decimalSeparator == ",") {
    EXPECT_EQ(german.FormatShortDate(3, 7, 2009), "03.07.2009");
  }
  old ? setenv("LC_ALL", saved.c_str(), 1) : unsetenv("LC_ALL");
  EXPECT_EQ(std::setlocale(LC_ALL, nullptr), before);
}

TEST(Platform, OnePerThreadAndReplacedByScope) {
  Platform& own = Current();
  EXPECT_EQ(&Current(), &own);
  const std::uint64_t thread = ThreadId();
  std::thread([&] {
    EXPECT_NE(&Current(), &own);
    EXPECT_NE(ThreadId(), thread);
  }).join();
  Platform replacement(std::make_unique<ManualClock>());
  {
    const PlatformScope scope(replacement);
    EXPECT_EQ(&Current(), &replacement);
  }
  EXPECT_EQ(&Current(), &own);
}

TEST(Platform, PerThreadStateMayUseThePlatformWhileItGoes) {
  struct Background {
    Subscription timer;
    Clock* clock = nullptr;
    bool* gone = nullptr;
    ~Background() {
      clock->Sleep(Milliseconds{1});
      *gone = true;
    }
  };
  bool gone = false;
  {
    Platform platform(std::make_unique<ManualClock>());
    auto& state = platform.PerThread<Background>();
    state.clock = &platform.GetClock();
    state.gone = &gone;
    state.timer = platform.Loop().StartTimer(Milliseconds{1}, [] {});
    EXPECT_EQ(&platform.PerThread<Background>(), &state);
  }
  EXPECT_TRUE(gone);
}

}  // namespace
}  // namespace platform
