#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "platform/ComponentClasses.h"
#include "platform/Plugin.h"
#include "plugins/Widget.h"
#include "support/FailureOf.h"
#include "support/TempFolder.h"

namespace platform {
namespace {

using support::FailureOf;
using support::NumberOfFailure;
using testing::AllOf;
using testing::HasSubstr;

class Plain : public Object {};

struct ComponentClassesTest : testing::Test {
  ComponentClasses classes;

  std::string WhyNot(std::string_view className) {
    const Failure failure = FailureOf([&] { classes.Create(className); });
    EXPECT_EQ(failure.Number(), ErrorNumber::CannotCreateObject) << failure.Description();
    return failure.Description();
  }
};

TEST_F(ComponentClassesTest, CreatesRegisteredClassesWithoutRegardToCase) {
  classes.Register("Lib.Plain", [] { return std::make_shared<Plain>(); });
  EXPECT_NE(classes.CreateAs<Plain>("LIB.plain"), nullptr);
  EXPECT_NE(classes.Create("Lib.Plain"), classes.Create("Lib.Plain"));
  EXPECT_EQ(NumberOfFailure([&] { classes.CreateAs<IWidget>("Lib.Plain"); }),
            ErrorNumber::TypeMismatch);
  EXPECT_THAT(WhyNot("Lib.Other"), AllOf(HasSubstr("Lib.Other"), HasSubstr("no such class")));
  EXPECT_EQ(classes.RegisteredNames(), std::vector<std::string>{"Lib.Plain"});
}

TEST_F(ComponentClassesTest, FactoryFailures) {
  classes.Register("Lib.Failing", []() -> std::shared_ptr<Object> {
    throw Failure(ErrorNumber::Unexpected, "Lib", "own failure");
  });
  classes.Register("Lib.Throwing", []() -> std::shared_ptr<Object> {
    throw std::runtime_error("foreign failure");
  });
  classes.Register("Lib.Empty", []() -> std::shared_ptr<Object> { return nullptr; });
  EXPECT_EQ(FailureOf([&] { classes.Create("Lib.Failing"); }).Description(), "own failure");
  EXPECT_EQ(WhyNot("Lib.Throwing"), "foreign failure");
  EXPECT_THAT(WhyNot("Lib.Empty"), HasSubstr("no object"));
}

TEST_F(ComponentClassesTest, RefusesNamesOfAnotherForm) {
  for (const char* name : {"", ".", "Lib", "Lib.", ".Class"}) {
    EXPECT_EQ(
        NumberOfFailure([&] { classes.Register(name, [] { return std::make_shared<Plain>(); }); }),
        ErrorNumber::InvalidArgument)
        << name;
  }
  classes.SetPluginPath({"/tmp"});
  for (const char* name : {"", "Lib", "../lib.Class", ".Class"}) {
    EXPECT_THAT(WhyNot(name), HasSubstr("not of the form")) << name;
  }
}

TEST_F(ComponentClassesTest, FindsThePluginOfAnUnknownProject) {
  const support::TempFolder empty;
  classes.SetPluginPath({empty.Path(), ZAF_TEST_PLUGINS});
  EXPECT_EQ(classes.CreateAs<IWidget>("good.WIDGET")->Answer(), 42);
  EXPECT_EQ(WhyNot("Good.Refusing"), "no licence");
  EXPECT_THAT(WhyNot("Good.Empty"), HasSubstr("no object"));
  EXPECT_THAT(WhyNot("Good.Other"), AllOf(HasSubstr("Good.Other"), HasSubstr("libgood.so")));
}

TEST_F(ComponentClassesTest, UnusablePluginsAreNamedWithTheReason) {
  classes.SetPluginPath({ZAF_TEST_PLUGINS});
  const std::pair<const char*, const char*> table[] = {
      {"WrongAbi", "interface version 99"}, {"WrongSize", "description of 8 bytes"},
      {"WrongTag", "an older compiler"},    {"WrongError", "the device catalogue is damaged"},
      {"Nothing", kPluginEntryName},
  };
  for (const auto& [project, reason] : table) {
    const std::string className = std::string(project) + ".Class";
    const std::string text = WhyNot(className);
    EXPECT_THAT(text,
                AllOf(HasSubstr('"' + className + '"'), HasSubstr('"' + std::string(project) + '"'),
                      HasSubstr(ZAF_TEST_PLUGINS "/lib"), HasSubstr(reason)));
    EXPECT_EQ(WhyNot(className), text) << "the second attempt";
  }
}

TEST_F(ComponentClassesTest, MissingAndDamagedPlugins) {
  EXPECT_THAT(WhyNot("Absent.Class"), HasSubstr("the plug-in path is empty"));
  const support::TempFolder folder;
  folder.Write("libtext.so", "this is no library");
  classes.SetPluginPath({folder.Path()});
  const std::string missing = WhyNot("Absent.Class");
  EXPECT_THAT(missing, AllOf(HasSubstr("Absent.Class"), HasSubstr("libabsent.so"),
                             HasSubstr(folder.Path().string())));
  EXPECT_EQ(WhyNot("Absent.Class"), missing);
  EXPECT_THAT(WhyNot("Text.Class"), HasSubstr((folder / "libtext.so").string()));
}

TEST_F(ComponentClassesTest, RelativePathsAreRefused) {
  EXPECT_EQ(NumberOfFailure([&] {
              classes.SetPluginPath({"/tmp", "plugins"});
            }),
            ErrorNumber::InvalidArgument);
  EXPECT_TRUE(classes.PluginPath().empty());
  EXPECT_EQ(NumberOfFailure([&] { classes.LoadPlugin("libgood.so"); }),
            ErrorNumber::InvalidArgument);
}

}  // namespace
}  // namespace platform
