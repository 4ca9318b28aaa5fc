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

TEST(ProgramFolders, AreSeededWithAllNewToolsAndNoneOfTheUsersFilesIsLost) {
  const support::TempFolder folder;
  for (const char* place : {"shipped/SYSTEM", "shipped/GFX"}) std::filesystem::create_directories(folder / place);
  support::WriteText(folder / "shipped/GFX/a.kvp", "shipped");
  const ProgramFolders folders(folder / "program");
  folders.Create();
  support::WriteText(folders.Gfx() / "a.kvp", "the user's");
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
  support::WriteText(folder / "shipped/GFX/b.kvp", "shipped");
  ship("2");
  EXPECT_EQ(here("template"), "template 2");
  EXPECT_EQ(here("template.old"), "the user's");
  EXPECT_EQ(here("shipped.txt"), "2");
  EXPECT_EQ(here("../GFX/a.kvp"), "the user's");
  EXPECT_EQ(here("../GFX/b.kvp"), "shipped");
  EXPECT_TRUE(std::filesystem::is_directory(folders.Backup()));
  EXPECT_FALSE(exists(folders.System() / "shipped.txt.old"));
  ship("3");
  EXPECT_EQ(here("template.old"), "the user's");
  EXPECT_EQ(here("template.old.old"), "template 2");
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
  EXPECT_EQ(LowerExtension("/a/b.c/d"), "");
#ifndef _WIN32
  EXPECT_EQ(FileNamePart("a\\b"), "a\\b");  // a backslash is part of a name here
#endif
}

TEST(Settings, NonsenseReadsAsTheDefault) {
  support::MapSettings settings;
  for (const char* nonsense : {"16", "-1", "", "red", "5x", "99999999999999999999"}) {
    settings.Write(kGridColor, nonsense);
    EXPECT_EQ(ReadNumber(settings, kGridColor, 0, 15), 9) << nonsense;
  }
  settings.Write(kGridColor, "15");
  EXPECT_EQ(ReadNumber(settings, kGridColor, 0, 15), 15);
}

}  // namespace
}  // namespace kelvo::app
