// Where the program keeps its own, and what it finds there.
#include "app/program_folders.h"

#include <gtest/gtest.h>

#include "app/path_text.h"
#include "app/settings_store.h"
#include "support/pictures.h"
#include "support/recorders.h"
#include "support/temp_folder.h"

namespace kelvo::app {
namespace {

TEST(ProgramFolders, AreSeededWithoutTouchingTheUsersFiles) {
  const support::TempFolder folder;
  std::filesystem::create_directories(folder / "shipped/GFX");
  support::WriteFile(folder / "shipped/GFX/a.kvp", {1});
  support::WriteFile(folder / "shipped/GFX/b.kvp", {2});
  const ProgramFolders folders(folder / "program");
  folders.Create();
  folders.Create();
  support::WriteFile(folders.Gfx() / "a.kvp", {9});
  folders.Seed(folder / "shipped");
  EXPECT_EQ(support::ReadFile(folders.Gfx() / "a.kvp"), Bytes{9});
  EXPECT_EQ(support::ReadFile(folders.Gfx() / "b.kvp"), Bytes{2});
  EXPECT_TRUE(std::filesystem::is_directory(folders.Backup()));
}

TEST(ProgramFolders, TakeAllNewToolsAndTemplatesAndKeepTheOldOnes) {
  const support::TempFolder folder;
  std::filesystem::create_directories(folder / "shipped/SYSTEM");
  const ProgramFolders folders(folder / "program");
  folders.Create();
  const auto ship = [&](std::string_view version) {
    support::WriteText(folder / "shipped/SYSTEM/shipped.txt", version);
    support::WriteText(folder / "shipped/SYSTEM/template", std::string("template ") + std::string(version));
    folders.Seed(folder / "shipped");
  };
  const auto here = [&](const char* name) { return support::ReadText(folders.System() / name); };
  ship("1");
  EXPECT_EQ(here("template"), "template 1");
  support::WriteText(folders.System() / "template", "the user's");
  ship("1");
  EXPECT_EQ(here("template"), "the user's");
  ship("2");
  EXPECT_EQ(here("template"), "template 2");
  EXPECT_EQ(here("template.old"), "the user's");
  EXPECT_EQ(here("shipped.txt"), "2");
}

TEST(ProgramFolders, LieBesideTheProgramOnlyWhereThatCanBeWritten) {
  const support::TempFolder folder;
  EXPECT_EQ(ChooseProgramFolder(folder.Path(), "user"), folder.Path());
  EXPECT_EQ(ChooseProgramFolder(folder / "gone", "user"), "user");
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

TEST(PathText, PartsEndAtTheLastSeparator) {
  EXPECT_EQ(FolderPart("/a/b.c/d"), "/a/b.c");
  EXPECT_EQ(FolderPart("d"), "");
  EXPECT_EQ(FileNamePart("/a/b.c/d.Kvp"), "d.Kvp");
  EXPECT_EQ(LowerExtension("/a/b.c/d"), "");
  EXPECT_EQ(LowerExtension("/a/b.c/d.Kvp"), ".kvp");
#ifndef _WIN32
  EXPECT_EQ(FileNamePart("a\\b"), "a\\b");  // a backslash is part of a name here
#endif
}

TEST(Settings, NonsenseReadsAsTheDefault) {
  support::MapSettings settings;
  EXPECT_EQ(ReadNumber(settings, kGridColor, 0, 15), 9);
  for (const char* nonsense : {"99", "-1", "", "red", "5x", "99999999999999999999"}) {
    settings.Write(kGridColor, nonsense);
    EXPECT_EQ(ReadNumber(settings, kGridColor, 0, 15), 9) << nonsense;
  }
  settings.Write(kGridColor, "15");
  EXPECT_EQ(ReadNumber(settings, kGridColor, 0, 15), 15);
}

}  // namespace
}  // namespace kelvo::app
