// Files with the rights, links, locks and pipes of POSIX.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>

#include "app/durable_file.h"
#include "app/held_file.h"
#include "app/whole_file.h"
#include "files/recovery_copy.h"
#include "support/program.h"

namespace kelvo::app {
namespace {

namespace fs = std::filesystem;

TEST(WholeFile, DoesNotWaitForTheWriterOfAPipe) {
  const support::TempFolder folder;
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  EXPECT_THROW(ReadWholeFile(folder / "pipe", 10), FileError);
}

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
  for (const std::uint8_t byte : std::array<std::uint8_t, 2>{1, 2}) {
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
  for (const char* name : {".kelvo-1.tmp", ".kelvo-2.tmp", ".kelvo-6b.tmp", ".kelvo-settings", "kelvo-3.tmp"}) {
    support::WriteText(folder / name, "left");
  }
  for (const char* name : {".kelvo-4.tmp", ".kelvo-5.tmp"}) {
    fs::create_directory(folder / name);
    support::WriteText(folder / name / "made", "left");
  }
  const int writing = open((folder / ".kelvo-2.tmp").c_str(), O_WRONLY);
  flock(writing, LOCK_EX);
  const auto filling = HeldFile::Hold(folder / ".kelvo-5.tmp");
  SweepTemporaryFiles(folder.Path());
  close(writing);
  EXPECT_EQ(support::NamesIn(folder.Path()),
            (support::Lines{".kelvo-2.tmp", ".kelvo-5.tmp", ".kelvo-6b.tmp", ".kelvo-settings", "kelvo-3.tmp"}));
}

}  // namespace
}  // namespace kelvo::app
