// Where the program keeps its own, what it finds there, and files that are there whole, the old one or the new one,
// whatever happens while they are written.
#include <gtest/gtest.h>

#include <array>

#include "app/durable_file.h"
#include "app/whole_file.h"
#include "files/recovery_copy.h"
#include "support/program.h"

namespace kelvo::app {
namespace {

namespace fs = std::filesystem;

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
  remove(folders.System() / "template");
  create_directory(folders.System() / "template");  // in the place of a file
  ship("2");
  ship("3");
  EXPECT_EQ(here("template"), "template 3");
  EXPECT_EQ(here("template.old"), "the user's");
  EXPECT_TRUE(is_directory(folders.System() / "template.old.old"));
}

TEST(ProgramFolders, LieBesideTheProgramOnlyWhereThatCanBeWritten) {
  const support::TempFolder folder;
  EXPECT_EQ(ChooseProgramFolder(folder.Path(), "user"), folder.Path());
  EXPECT_EQ(ChooseProgramFolder(folder / "gone", "user"), "user");
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
  for (const char* place : {"bin", "share/applications"}) std::filesystem::create_directories(folder / place);
  support::WriteText(folder / "share/applications/kelvo.desktop", "");
  EXPECT_EQ(ChooseProgramFolder(folder / "bin", "user"), "user");
  for (const char* kept : {"SYSTEM", "BACKUP"}) {  // of another user, say
    const support::TempFolder portable;
    ProgramFolders(portable.Path()).Create();
    EXPECT_EQ(ChooseProgramFolder(portable.Path(), "user"), portable.Path());
    EXPECT_EQ(ProgramFolders(portable.Path()).FindReadOnly(), std::nullopt);
    std::filesystem::remove(portable / kept);
    support::WriteText(portable / kept, "nothing can be made here");
    EXPECT_EQ(ChooseProgramFolder(portable.Path(), "user"), "user") << kept;
    EXPECT_EQ(ProgramFolders(portable.Path()).FindReadOnly(), portable / kept);
  }
}

TEST(Settings, NonsenseReadsAsTheDefault) {
  constexpr Setting kNumber{"Settings", "Number", "9"};
  support::MapSettings settings;
  for (const auto& [stored, read] : {std::pair{"16", 9}, {"-1", 9}, {"", 9}, {"5x", 9}, {"0", 0}, {"15", 15}}) {
    settings.Write(kNumber, stored);
    EXPECT_EQ(ReadNumber(settings, kNumber, 0, 15), read) << stored;
  }
}

TEST(WholeFile, RefusesWhatIsNoOrdinaryFile) {
  const support::TempFolder folder;
  EXPECT_THROW(ReadWholeFile(folder.Path(), 10), FileError);
  EXPECT_THROW(WriteWholeFile(folder.Path(), Bytes{1}), FileError);
  WriteWholeFile(folder / "long", Bytes(11));
  EXPECT_THROW(ReadWholeFile(folder / "long", 10), FileError);
  EXPECT_EQ(ReadWholeFile(folder / "long", 11).size(), 11U);
}

}  // namespace
}  // namespace kelvo::app
