// What BACKUP keeps: whatever a save takes the place of, and work that is thrown away; and what of it goes with time.
#include "files/backups.h"

#include <gtest/gtest.h>

#include <set>

#include "files/backup_index.h"
#include "files/save_bitmap.h"
#include "support/program.h"

namespace kelvo::files {
namespace {

namespace fs = std::filesystem;
using support::Lines;

app::Bytes PictureOf(std::uint8_t byte) {
  return app::Bytes(10050, byte);
}

class BackupsTest : public testing::Test, protected support::Program {
 protected:
  void Draw(std::uint8_t byte) { document.picture.Bitmap[9] = byte; }
  Lines Names() const { return support::NamesIn(folders.Backup()); }
  bool IsKept(const app::Bytes& bytes) const {
    const Lines names = Names();
    return std::any_of(names.begin(), names.end(),
                       [&](const auto& name) { return support::ReadFile(folders.Backup() / name) == bytes; });
  }
  // No file can be written there any more.
  void SpoilBackup() {
    fs::remove_all(folders.Backup());
    support::WriteFile(folders.Backup(), {});
  }
};

TEST_F(BackupsTest, SavingKeepsTheStateBefore) {
  files.OpenPicture(support::WriteKoala(folder / "pic.koa"));
  Draw(1);
  EXPECT_TRUE(files.Save());
  EXPECT_EQ(document.file.CurrentFilePath, Text("pic.kvp"));
  EXPECT_EQ(prompt.lines.back(), "SAVE pic.koa");
  EXPECT_EQ(fs::file_size(folder / "pic.kvp"), 10050U);
  EXPECT_EQ(document.picture.ScreenMemory[1017], 11);  // the signature stays in memory
  EXPECT_FALSE(document.HasUnsavedWork());
  EXPECT_EQ(Names(), (Lines{"backups.txt", "pic.koa_2602030907.prg"}));
  EXPECT_EQ(support::ReadFile(folders.Snapshot()), support::ReadFile(folder / "pic.kvp"));
}

TEST_F(BackupsTest, WhatASaveReplacesIsKept) {
  const std::string path = Text("pic.kvp");
  support::WriteFile(path, PictureOf(1));
  files.OpenPicture(path);
  Document build_copy = document;  // a build saves the picture as it is, and makes it the snapshot
  build_copy.picture.Bitmap[7] = 99;
  SaveBitmap(build_copy, folders.System() / "temp.kvp", surroundings);
  EXPECT_TRUE(files.Save());  // in the same minute
  EXPECT_TRUE(IsKept(PictureOf(1)) && IsKept(Encode(build_copy.picture)));
  for (const BackupNote& note : ReadBackupIndex(folders.Backup() / "backups.txt")) {
    EXPECT_TRUE(note.picture == path || note.stamp.empty()) << note.file_name;
  }

  support::WriteFile(path, PictureOf(2));  // by another program
  EXPECT_FALSE(files.Save());
  EXPECT_EQ(messages.shown, Lines{path + " was changed by another program. Replace it?\n"
                                         "What that program wrote is kept in the BACKUP folder."});
  EXPECT_EQ(support::ReadFile(path), PictureOf(2));
  messages.yes = true;
  EXPECT_TRUE(files.Save());
  EXPECT_TRUE(IsKept(PictureOf(2)));

  support::WriteFile(folder / "other.kvp", PictureOf(3));
  dialogs.save = Text("other.kvp");
  EXPECT_TRUE(files.SaveAs());
  EXPECT_TRUE(IsKept(PictureOf(3)));
  files.New();  // no file is current, but the snapshot of the last one is there
  const app::Bytes last = support::ReadFile(folder / "other.kvp");
  EXPECT_TRUE(files.SaveAs());
  EXPECT_TRUE(IsKept(last));

  Draw(77);
  files.Recover(Document(document));
  support::WriteFile(folder / "other.kvp", PictureOf(4));
  messages.yes = false;
  EXPECT_FALSE(files.Save());
  messages.yes = true;
  SpoilBackup();
  EXPECT_FALSE(files.Save());  // what cannot be kept is not replaced
  EXPECT_EQ(support::ReadFile(folder / "other.kvp"), PictureOf(4));
}

TEST_F(BackupsTest, APictureIsNotBackedUpAsAnother) {
  const std::string own = support::WriteKoala(folder / "own.koa");
  files.OpenPicture(own);
  const Document own_document = document;
  support::WriteFile(folder / "b.kvp", PictureOf(9));
  files.OpenPicture(folder / "b.kvp");
  files.Return(own_document);  // as a step of the history does
  const app::ProgramFolders second_folders(folders.Root(), 2);
  Document second;
  PictureFiles second_files(
      second, {{second_folders, settings, clock, log, messages, prompt}, pointer, dialogs, display, views, status});
  second_files.OpenPicture(folder / "b.kvp");
  EXPECT_TRUE(files.Save());
  EXPECT_TRUE(IsKept(support::ReadFile(own)));
}

TEST_F(BackupsTest, NamesAsLongAsTheyMayBeAreKeptShorter) {
  std::string name;
  while (name.size() < 250) name += "\u00e4";
  ASSERT_TRUE(files.SaveTo(folder / app::PathFromText(name + "b.kvp")));
  Draw(1);
  ASSERT_TRUE(files.Save());
  Draw(2);
  files.New();
  EXPECT_TRUE(messages.shown.empty());
  const Lines kept = Names();
  ASSERT_EQ(kept.size(), 3U);  // with the index
  for (const std::string& file : {kept[1], kept[2]}) {
    EXPECT_LE(file.size(), 255U);
    EXPECT_EQ(file.find("\u00e4_2602030907"), file.rfind("\u00e4")) << file;
  }
}

TEST_F(BackupsTest, OldOnesAreThinnedToTheLastOfADayOfEachPicture) {
  for (const char* place : {"a", "b"}) fs::create_directory(folder / place);
  const auto on = [this](int month, int day) {
    clock.time.tm_mon = month - 1;
    clock.time.tm_mday = day;
  };
  const auto save = [this](const char* place, int value) {
    document.picture.Bitmap.fill(static_cast<std::uint8_t>(value));
    files.SaveTo(Text(place));
  };
  on(1, 1);
  for (const int value : {1, 2, 3}) save("a/pic.kvp", value);  // all in one minute
  for (const int value : {4, 5, 6}) save("b/pic.kvp", value);
  ++clock.time.tm_hour;
  save("b/pic.kvp", 7);
  files.New();
  support::WriteFile(folders.Backup() / "mine_2501010000.prg", {200});
  const auto kept_after = [this] {
    files.ThinBackups();
    std::set<int> values;
    for (const std::string& name : Names()) {
      if (name.ends_with(".prg")) values.insert(support::ReadFile(folders.Backup() / name).back());
    }
    return values;
  };
  on(1, 31);
  EXPECT_EQ(kept_after().size(), 7U);  // thirty days later all are there
  on(2, 1);
  settings.Write(kKeepBackupsDays, "0");
  EXPECT_EQ(kept_after().size(), 7U);
  settings.Write(kKeepBackupsDays, "30");
  for (const std::string& name : Names()) {  // the last of a/pic.kvp is taken elsewhere
    if (support::ReadFile(folders.Backup() / name).back() == 3) fs::remove(folders.Backup() / name);
  }
  for (int round = 0; round < 2; ++round) EXPECT_EQ(kept_after(), (std::set<int>{2, 6, 200}));
}

TEST_F(BackupsTest, UnsavedWorkIsKeptBeforeItIsThrownAway) {
  const std::string path = support::WriteKoala(folder / "pic.koa");
  files.OpenPicture(path);
  Draw(1);
  files.New();
  EXPECT_EQ(document.picture, (model::PictureImage{.BackgroundColour = document.picture.BackgroundColour}));
  EXPECT_EQ(display.title, "Kelvo v1.2 by the Kelvo developers [unnamed.kvp]");
  EXPECT_EQ(prompt.lines.back(), "NEW");
  EXPECT_FALSE(files.Reload());
  files.OpenPicture(path);
  Draw(2);
  EXPECT_TRUE(files.Reload());
  Draw(3);
  files.OpenPicture(support::WriteKoala(folder / "other.koa"));
  EXPECT_EQ(Names(), (Lines{"pic.koa_2602030907_unsaved.kvp", "pic.koa_2602030907_unsaved_2.kvp",
                            "pic.koa_2602030907_unsaved_3.kvp"}));
  EXPECT_EQ(support::ReadFile(folders.Backup() / "pic.koa_2602030907_unsaved_2.kvp").at(2050 + 8), 2);

  Draw(4);
  SpoilBackup();  // no rescue copy can be written
  files.New();
  EXPECT_EQ(document.picture.Bitmap[9], 4);
  messages.yes = true;
  files.New();
  EXPECT_EQ(document.picture.Bitmap[9], 0);
}

}  // namespace
}  // namespace kelvo::files
