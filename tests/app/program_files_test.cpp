// Where the program keeps its own, what it finds there, and files that are there whole, the old one or the new one,
// whatever happens while they are written.
#include <gtest/gtest.h>

#include "app/durable_file.h"
#include "app/path_text.h"
#include "app/program_folders.h"
#include "app/settings_store.h"
#include "app/whole_file.h"
#include "files/recovery_copy.h"
#include "support/program.h"

#ifndef _WIN32
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

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

TEST(PathText, PartsEndAtTheLastSeparator) {
  EXPECT_EQ(FolderPart("/a/b.c/d"), "/a/b.c");
  EXPECT_EQ(FolderPart("d"), "");
  EXPECT_EQ(LowerExtension("/a/b.c/d"), "");
#ifndef _WIN32
  EXPECT_EQ(FileNamePart("a\\b"), "a\\b");  // a backslash is part of a name here
#endif
}

TEST(Settings, NonsenseReadsAsTheDefault) {
  constexpr Setting kNumber{"Settings", "Number", "9"};
  support::MapSettings settings;
  for (const char* nonsense : {"16", "-1", "", "red", "5x", "99999999999999999999"}) {
    settings.Write(kNumber, nonsense);
    EXPECT_EQ(ReadNumber(settings, kNumber, 0, 15), 9) << nonsense;
  }
  settings.Write(kNumber, "15");
  EXPECT_EQ(ReadNumber(settings, kNumber, 0, 15), 15);
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
  fs::create_symlink("to come", folder / "dangling");
  WriteWholeFile(folder / "dangling", Bytes{4});
  EXPECT_TRUE(fs::is_symlink(folder / "dangling"));
  EXPECT_EQ(support::ReadFile(folder / "to come"), Bytes{4});
  EXPECT_EQ(fs::status(folder / "real").permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

// Whatever the program keeps for itself: whoever plants a link there, or may read the picture, gains nothing.
TEST(OwnFiles, AreMadeAnewAndForTheirOwnerAlone) {
  const support::TempFolder folder;
  const auto victim = folder / "victim";
  support::WriteText(victim, "untouched");
  support::Program program;
  const ProgramFolders& folders = program.folders;
  create_directories(folder / "shipped/SYSTEM");
  support::WriteText(folder / "shipped/SYSTEM/template", "shipped");
  fs::create_symlink(folder / "made", folders.System() / "template");
  const files::RecoveryFiles recovery(folders.Backup(), 1);
  for (const auto& planted : {folders.Snapshot(), recovery.picture, recovery.name, folders.ErrorLogFile(),
                              folders.Backup() / "pic.kvp_2602030907.prg", folders.Backup() / "backups.txt"}) {
    fs::create_symlink(victim, planted);
  }
  program.files.SaveTo(program.Text("pic.kvp"));
  fs::permissions(program.folder / "pic.kvp", fs::perms::all);
  for (std::uint8_t byte : {1, 2}) {
    program.document.picture.Bitmap[1] = byte;
    files::RecoveryCopy copy(program.document);
    copy.AddPlace(recovery);
    copy.KeepNow();
    files::KeepRescueCopy(program.document, folders, program.clock);
    program.files.Save();
  }
  program.log.Write("a line");
  folders.Seed(folder / "shipped");
  EXPECT_EQ(support::ReadText(victim), "untouched");
  EXPECT_FALSE(exists(folder / "made"));
  constexpr fs::perms kOthers = fs::perms::group_all | fs::perms::others_all;
  for (const fs::path& place : {folders.System(), folders.Backup()}) {
    EXPECT_EQ(fs::status(place).permissions() & kOthers, fs::perms::none) << place;
    for (const auto& entry : fs::directory_iterator(place)) {
      if (entry.is_symlink()) continue;
      EXPECT_EQ(entry.status().permissions() & kOthers, fs::perms::none) << entry.path();
    }
  }
  EXPECT_EQ(fs::status(program.folder / "pic.kvp").permissions() & kOthers, kOthers);
  EXPECT_GE(support::NamesIn(folders.Backup()).size(), 6U);
}

TEST(OwnFiles, WhatKilledWritersLeftIsSweptAndNothingElse) {
  const support::TempFolder folder;
  for (const char* name : {".kelvo-1.tmp", ".kelvo-2.tmp", ".kelvo-settings", "kelvo-3.tmp"}) {
    support::WriteText(folder / name, "left");
  }
  const int writing = open((folder / ".kelvo-2.tmp").c_str(), O_WRONLY);
  flock(writing, LOCK_EX);
  SweepTemporaryFiles(folder.Path());
  close(writing);
  EXPECT_EQ(support::NamesIn(folder.Path()), (support::Lines{".kelvo-2.tmp", ".kelvo-settings", "kelvo-3.tmp"}));
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
