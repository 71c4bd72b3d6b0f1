#include <gtest/gtest.h>

#include "platform/ProfileFile.h"
#include "platform/Registry.h"
#include "platform/TextFile.h"
#include "support/FailureOf.h"
#include "support/TempFolder.h"

namespace platform {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using support::FailureOf;

std::size_t FilesIn(const fs::path& folder) {
  return static_cast<std::size_t>(
      std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

TEST(TextReader, ReadsLinesOfBothKindsAndNamesTheFileThatItCannot) {
  const support::TempFolder folder;
  TextReader reader(folder.Write("a.txt", "\xEF\xBB\xBFone\r\n\ntwo"));
  EXPECT_EQ(reader.ReadLine(), "one");
  EXPECT_EQ(reader.ReadLine(), "");
  EXPECT_EQ(reader.ReadLine(), "two");
  EXPECT_EQ(reader.ReadLine(), std::nullopt);
  const Failure missing = FailureOf([&] { TextReader(folder / "none"); });
  EXPECT_EQ(missing.Number(), ErrorNumber::FileNotFound);
  EXPECT_NE(missing.Description().find((folder / "none").string()), std::string::npos);
  EXPECT_EQ(FailureOf([&] { TextReader(folder.Path()); }).Number(), ErrorNumber::PathFileAccess);
}

TEST(WriteFileAtomically, ReplacesAndKeepsPermissionsAndLinks) {
  const support::TempFolder folder;
  const fs::path file = folder.Write("a.txt", "old");
  fs::permissions(file, fs::perms{0640});
  fs::create_symlink("a.txt", folder / "link");
  WriteFileAtomically(folder / "link", "new");
  EXPECT_EQ(folder.Read(file), "new");
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(fs::status(file).permissions(), fs::perms{0640});
  EXPECT_EQ(FilesIn(folder.Path()), 2U);
}

TEST(WriteFileAtomically, LeavesEverythingAsItWasWhenItFails) {
  const support::TempFolder folder;
  fs::create_directories(folder / "taken/inside");
  const fs::path locked = folder.Write("locked", "old");
  fs::permissions(locked, fs::perms{0444});
  for (const char* name : {"taken", "locked", "missing/file"}) {
    const Failure failure = FailureOf([&] { WriteFileAtomically(folder / name, "new"); });
    EXPECT_EQ(failure.Number(), ErrorNumber::PathFileAccess);
    EXPECT_NE(failure.Description().find(name), std::string::npos);
  }
  EXPECT_EQ(FilesIn(folder.Path()), 2U);
  EXPECT_EQ(folder.Read(locked), "old");
}

constexpr const char* kProfile =
    "\xEF\xBB\xBF; device defaults\r\n"
    "Level.Value=outside\r\n"
    "[Default]\r\n"
    "  Level.TYPE = 3  \r\n"
    ";Level.TYPE=9\r\n"
    "no entry\r\n"
    "Level.Value=\"12\"\r\n"
    "Empty=\r\n"
    "level.value=second\r\n"
    "\r\n"
    "[ Other ]\r\n"
    "Text='it''s'\r\n"
    "[default]\r\n"
    "Level.Value=repeated section";

TEST(ProfileFile, Reads) {
  const support::TempFolder folder;
  const std::string file = folder.Write("Device.ini", kProfile);
  const struct {
    const char *section, *key, *expected;
  } table[] = {
      {"Default", "Level.TYPE", "3"}, {"DEFAULT", "LEVEL.VALUE", "12"},
      {"Default", "Empty", ""},       {"Default", "no entry", "absent"},
      {"Other", "Text", "it''s"},     {"Other", "Level.Value", "absent"},
      {"Nowhere", "Level", "absent"},
  };
  for (const auto& row : table) {
    EXPECT_EQ(profile::ReadKey(file, row.section, row.key, "absent  "), row.expected) << row.key;
  }
  EXPECT_EQ(profile::ReadSection(file, "default"),
            "Level.TYPE=3\0Level.Value=\"12\"\0Empty=\0level.value=second\0"s);
  EXPECT_EQ(profile::ReadSection(file, "Nowhere"), "");
  EXPECT_EQ(profile::ReadSection((folder / "none").string(), "Default"), "");
  EXPECT_EQ(profile::ReadKey(file, "Default", "Key", "12µ", 3), "12");
}

TEST(ProfileFile, WritesOneLineAndKeepsTheOthers) {
  const support::TempFolder folder;
  const std::string file = folder.Write("Device.ini", kProfile);
  const struct {
    const char *section, *key, *line, *replaced;
  } table[] = {
      {"default", "level.TYPE", "  Level.TYPE =5\r\n", "  Level.TYPE = 3  \r\n"},
      {"Default", "New", "level.value=second\r\nNew=5\r\n", "level.value=second\r\n"},
      {"Fresh", "New", "section\r\n[Fresh]\r\nNew=5\r\n", "section"},
  };
  for (const auto& row : table) {
    folder.Write("Device.ini", kProfile);
    std::string expected = kProfile;
    expected.replace(expected.rfind(row.replaced), std::string_view(row.replaced).size(), row.line);
    EXPECT_TRUE(profile::WriteKey(file, row.section, row.key, "5"));
    EXPECT_EQ(folder.Read(file), expected);
  }
}

TEST(ProfileFile, MakesTheFileAndMapsItsPath) {
  const support::TempFolder folder;
  fs::create_directory(folder / "sub");
  const std::string file = folder.Path().string() + "\\sub\\new.ini";
  EXPECT_TRUE(profile::WriteKey(file, "Default", "Level.TYPE", "8"));
  EXPECT_TRUE(profile::WriteKey(file, "Default", "Level.Value", "a=b; c"));
  EXPECT_EQ(folder.Read(folder / "sub/new.ini"), "[Default]\nLevel.TYPE=8\nLevel.Value=a=b; c\n");
  EXPECT_EQ(profile::ReadKey(file, "Default", "Level.Value", ""), "a=b; c");
}

TEST(ProfileFile, RefusesWhatCannotStandInIt) {
  const support::TempFolder folder;
  const std::string file = folder / "a.ini";
  const struct {
    const char *section, *key, *value;
  } table[] = {{"S", "", "v"},   {"S", "a=b", "v"}, {"S", ";a", "v"},    {"S", "[a", "v"},
               {"S]", "a", "v"}, {"S", "a\n", "v"}, {"S", "a", "1\r\n2"}};
  for (const auto& row : table)
    EXPECT_FALSE(profile::WriteKey(file, row.section, row.key, row.value));
  EXPECT_FALSE(profile::WriteKey((folder / "none\\a.ini").string(), "S", "a", "v"));
  EXPECT_FALSE(profile::WriteKey("", "S", "a", "v"));
  EXPECT_EQ(FilesIn(folder.Path()), 0U);
}

constexpr const char* kDtms = R"(\HKEY_LOCAL_MACHINE\SOFTWARE\Vendor\DTMs)";

TEST(Registry, KeysValuesAndOrder) {
  Registry registry;
  EXPECT_FALSE(registry.HasKey(kDtms));
  registry.SetValue(kDtms, "Show", "1");
  registry.SetValue(R"(hkey_local_machine\software\VENDOR\dtms\)", "SHOW", "2");
  registry.CreateKey(std::string(kDtms) + R"(\zeta\Device)");
  registry.CreateKey(std::string(kDtms) + R"(\Alpha)");
  EXPECT_EQ(registry.Value(kDtms, "show"), "2");
  EXPECT_EQ(registry.Value(kDtms, "Other"), std::nullopt);
  EXPECT_EQ(registry.Value(R"(\Nowhere)", "Show"), std::nullopt);
  EXPECT_EQ(registry.Subkeys(kDtms), (std::vector<std::string>{"zeta", "Alpha"}));
  EXPECT_TRUE(registry.HasKey(std::string(kDtms) + R"(\ZETA\device)"));
}

TEST(Registry, ComesBackFromAFileAsItWasSaved) {
  const support::TempFolder folder;
  const std::string texts[] = {"", "plain", " blanks ", "\"quoted\"", "a=b;c", "'", "°C"};
  Registry saved;
  saved.SetValue("\\", "Root", "r");
  saved.CreateKey(R"(\Z\Empty)");
  for (std::size_t i = 0; i < std::size(texts); ++i) {
    saved.SetValue(R"(\A\B)", "v" + std::to_string(i), texts[i]);
  }
  saved.Save(folder / "settings");
  Registry loaded;
  loaded.Load(folder / "settings");
  for (std::size_t i = 0; i < std::size(texts); ++i) {
    EXPECT_EQ(loaded.Value(R"(\A\B)", "v" + std::to_string(i)), texts[i]);
  }
  EXPECT_EQ(loaded.Subkeys("\\"), (std::vector<std::string>{"Z", "A"}));
  loaded.Save(folder / "again");
  EXPECT_EQ(folder.Read(folder / "again"), folder.Read(folder / "settings"));
}

TEST(Registry, ABadFileChangesNothing) {
  const support::TempFolder folder;
  Registry registry;
  for (const char* bad : {"early=1", "[\\A] more", "[\\A]\n=1", "[\\A]\nno entry"}) {
    const fs::path file = folder.Write("bad", "[\\Good]\n" + std::string(bad));
    if (std::string(bad) == "early=1") folder.Write("bad", bad);
    const Failure failure = FailureOf([&] { registry.Load(file); });
    EXPECT_EQ(failure.Number(), ErrorNumber::InvalidArgument) << bad;
    EXPECT_NE(failure.Description().find(file.string() + ", line "), std::string::npos);
    EXPECT_TRUE(registry.Subkeys("\\").empty());
  }
  EXPECT_EQ(FailureOf([&] { registry.Load(folder / "none"); }).Number(), ErrorNumber::FileNotFound);
}

TEST(Registry, RefusesWhatAFileCouldNotHold) {
  Registry registry;
  EXPECT_THROW(registry.SetValue("\\A", "", "v"), Failure);
  EXPECT_THROW(registry.SetValue("\\A", "a=b", "v"), Failure);
  EXPECT_THROW(registry.SetValue("\\A", "a", "two\nlines"), Failure);
  EXPECT_THROW(registry.CreateKey("\\A]"), Failure);
  EXPECT_FALSE(registry.HasKey("\\A"));
}

}  // namespace
}  // namespace platform
