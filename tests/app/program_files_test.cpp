// Where the program keeps its own, what it finds there, and files that are there whole, the old one or the new one,
// whatever happens while they are written.
#include <gtest/gtest.h>

#include "app/path_text.h"
#include "app/program_folders.h"
#include "app/settings_store.h"
#include "app/whole_file.h"
#include "support/program.h"

#ifndef _WIN32
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#endif

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
  ship("3");
  EXPECT_EQ(here("template.old"), "the user's");
  EXPECT_EQ(here("template.old.old"), "template 2");
}

TEST(ProgramFolders, LieBesideTheProgramOnlyWhereThatCanBeWritten) {
  const support::TempFolder folder;
  EXPECT_EQ(ChooseProgramFolder(folder.Path(), "user"), folder.Path());
  EXPECT_EQ(ChooseProgramFolder(folder / "gone", "user"), "user");
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
  for (const char* place : {"bin", "share/applications"}) std::filesystem::create_directories(folder / place);
  support::WriteText(folder / "share/applications/kelvo.desktop", "");
  EXPECT_EQ(ChooseProgramFolder(folder / "bin", "user"), "user");
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

TEST(WholeFile, RefusesWhatIsNoOrdinaryFile) {
  const support::TempFolder folder;
  EXPECT_THROW(ReadWholeFile(folder.Path(), 10), FileError);
  EXPECT_THROW(WriteWholeFile(folder.Path(), Bytes{1}), FileError);
  WriteWholeFile(folder / "long", Bytes(11));
  EXPECT_THROW(ReadWholeFile(folder / "long", 10), FileError);
  EXPECT_EQ(ReadWholeFile(folder / "long", 11).size(), 11U);
#ifndef _WIN32
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  EXPECT_THROW(ReadWholeFile(folder / "pipe", 10), FileError);  // and does not wait for a writer
#endif
}

#ifndef _WIN32
TEST(WholeFile, WritesThroughALinkAndKeepsRights) {
  const support::TempFolder folder;
  WriteWholeFile(folder / "real", Bytes{1});
  fs::permissions(folder / "real", fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink(folder / "real", folder / "link");
  WriteWholeFile(folder / "link", Bytes{2, 3});
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(support::ReadFile(folder / "real"), (Bytes{2, 3}));
  EXPECT_EQ(fs::status(folder / "real").permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST(WholeFile, AWriteThatFailsMidwayLeavesTheOldFile) {
  const support::TempFolder folder;
  WriteWholeFile(folder / "picture", Bytes(100, 7));
  const auto previous = std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  rlimit small = before;
  small.rlim_cur = 5000;  // the disk is full after 5000 bytes
  setrlimit(RLIMIT_FSIZE, &small);
  EXPECT_THROW(WriteWholeFile(folder / "picture", Bytes(10050, 8)), FileError);
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, previous);
  EXPECT_EQ(support::ReadFile(folder / "picture"), Bytes(100, 7));
  EXPECT_EQ(support::NamesIn(folder.Path()).size(), 1U);
}
#endif

}  // namespace
}  // namespace kelvo::app
