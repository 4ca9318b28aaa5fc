// Opening, saving, reloading, beginning and rescuing pictures, on real files.
#include "files/picture_files.h"

#include <gtest/gtest.h>

#include <set>

#include "app/whole_file.h"
#include "files/backup_index.h"
#include "files/backups.h"
#include "files/load_picture.h"
#include "files/recovery_copy.h"
#include "support/platform.h"
#include "support/program.h"

namespace kelvo::files {
namespace {

namespace fs = std::filesystem;
using std::chrono::seconds;
using support::Lines;

class PictureFilesTest : public testing::Test, protected support::Program {
 protected:
  std::string WriteKoala(const std::string& name) {
    support::WriteFile(folder / name, support::CountingBytes(10003));
    return Text(name);
  }
};

TEST_F(PictureFilesTest, OpeningByDialogTakesTheChosenTypeAndTellsEveryone) {
  const std::string path = WriteKoala("Castle.PRG");
  dialogs.open = ChosenFile{path, kKoaType};
  EXPECT_TRUE(files.Open());
  EXPECT_EQ(dialogs.folders, Lines{app::TextFromPath(folders.Gfx())});
  EXPECT_EQ(settings.values["Settings/FilePath"], app::TextFromPath(folder.Path()));
  EXPECT_EQ(document.file.CurrentFilePath, path);
  EXPECT_EQ(display.title, "Kelvo v1.2 by the Kelvo developers [Castle]");
  EXPECT_EQ(prompt.lines, Lines{"LOAD Castle"});
  EXPECT_EQ(views.pictures, 1);
  EXPECT_EQ(files.RecentPaths(), std::vector<fs::path>{path});
  EXPECT_EQ(support::ReadFile(folders.Snapshot()), support::ReadFile(folder / "Castle.PRG"));
  EXPECT_FALSE(document.HasUnsavedWork());
}

TEST_F(PictureFilesTest, AFileOfAnotherFormatThanTheFilterIsReadAsWhatItIs) {
  using Row = std::tuple<FormatType, const char*, std::size_t, FormatType>;
  for (const auto& [filter, name, size, as] :
       {Row{kOwnType, "a.koa", 10003, kKoaType}, Row{kOwnType, "a.prg", 10003, kKoaType},
        Row{kKlaType, "a.kvp", 10057, kOwnType}, Row{kKoaType, "a.vid", 10050, kVidcom64Type},
        Row{kVidcom64Type, "a.kvp", 10050, kVidcom64Type}}) {
    SCOPED_TRACE(name);
    const app::Bytes bytes = support::CountingBytes(size);
    support::WriteFile(folder / name, bytes);
    dialogs.open = ChosenFile{folder / name, filter};
    const auto expected = Decode(FormatOf(as), bytes, document.picture.BackgroundColour);
    EXPECT_TRUE(files.Open());
    EXPECT_EQ(document.picture, expected);
  }
  EXPECT_EQ(dialogs.filters, (std::vector<FormatType>{1, 1, 1, 4, 3}));  // the one before is remembered
  support::WriteFile(folder / "short.koa", support::CountingBytes(9000));
  dialogs.open = ChosenFile{folder / "short.koa", kOwnType};
  EXPECT_FALSE(files.Open());
  EXPECT_EQ(messages.shown, Lines{"Felaktig filstorlek."});
  EXPECT_EQ(messages.more, "A file of this type has 10050 or 10057 bytes, this one has 9000.");
}

TEST_F(PictureFilesTest, AFailedLoadChangesNothing) {
  files.OpenPicture(WriteKoala("good.koa"));
  const Document before = document;
  fs::create_directory(folder / "folder.kvp");
  support::WriteFile(folder / "short.koa", support::CountingBytes(10002));
  support::WriteFile(folder / "odd.prg", support::CountingBytes(77));
  support::WriteFile(folder / "huge.kvp", {});
  fs::resize_file(folder / "huge.kvp", std::uintmax_t{4} << 30);
  // With a message about the size alone, or with the failed line as well.
  for (const auto& [name, size_message] : {std::pair{"missing.kvp", false},
                                           {"folder.kvp", false},
                                           {"short.koa", true},
                                           {"odd.prg", false},
                                           {"huge.kvp", true}}) {
    SCOPED_TRACE(name);
    prompt.lines.clear();
    messages.shown.clear();
    EXPECT_FALSE(files.OpenPicture(Text(name)));
    EXPECT_EQ(document.picture, before.picture);
    EXPECT_EQ(document.file.CurrentFilePath, before.file.CurrentFilePath);
    EXPECT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(prompt.lines, size_message ? Lines{} : Lines{"LOAD " + NameOfPath(name) + " [err 902]"});
  }
  messages.shown.clear();
  files.OpenPicture(Text("missing.kvp"), OnFailure::kPromptOnly);
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(files.RecentPaths().size(), 1U);
  EXPECT_TRUE(support::ReadText(folders.ErrorLogFile()).starts_with("260203 09:07:05 MDIFormMenu_LoadPicture: "));
}

TEST_F(PictureFilesTest, ReadsExactlyOnRequestAndSaysWhereThatMatters) {
  const std::string koala = WriteKoala("pic.koa");
  const app::Bytes bytes = support::CountingBytes(10003);
  for (const auto& [exactly, last, background, word] :
       {std::tuple{"0", 255, 0, "with File > Read files exactly"},
        {"1", int{bytes[8001]}, bytes[10002] & 15, "without File > Read files exactly"}}) {
    SCOPED_TRACE(exactly);
    settings.Write(kReadFilesExactly, exactly);
    ASSERT_TRUE(files.OpenPicture(koala));
    EXPECT_EQ(document.picture.Bitmap[8000], last);
    EXPECT_EQ(document.picture.BackgroundColour.Number(), background);
    ASSERT_EQ(status.words.size(), 1U);
    EXPECT_TRUE(status.words.back().ends_with(word)) << status.words.back();
    status.words.clear();
  }
  document.picture.Bitmap[5] ^= 1;
  ASSERT_TRUE(files.Save());
  const app::Bytes saved = support::ReadFile(folder / "pic.kvp");
  ASSERT_TRUE(files.Reload());
  EXPECT_EQ(Encode(document.picture), saved);
  EXPECT_TRUE(status.words.back().ends_with("exactly")) << status.words.back();

  support::WriteText(folder / "pic.gg", "no picture");
  EXPECT_FALSE(files.OpenPicture(folder / "pic.gg"));
  EXPECT_TRUE(messages.shown.back().ends_with("it unpacks to less than a picture."));
  support::WriteFile(folder / "pic.gg", EncodeAs(FormatOf(kArtStudioType), document.picture));
  settings.Write(kReadFilesExactly, "0");
  for (const auto& [name, filter] : {std::pair{"pic.gg", kOwnType}, {"pic.koa", kByContentType}}) {
    files.New();
    dialogs.open = ChosenFile{folder / name, filter};
    EXPECT_TRUE(files.Open());
    EXPECT_EQ(document.picture.Bitmap[8000], bytes[8001]) << name;
  }
}

TEST_F(PictureFilesTest, SavingKeepsTheStateBeforeAsBackup) {
  files.OpenPicture(WriteKoala("pic.koa"));
  document.picture.Bitmap[5] ^= 1;
  EXPECT_TRUE(files.Save());
  EXPECT_EQ(document.file.CurrentFilePath, Text("pic.kvp"));
  EXPECT_EQ(prompt.lines.back(), "SAVE pic.koa");
  EXPECT_EQ(fs::file_size(folder / "pic.kvp"), 10050U);
  EXPECT_EQ(document.picture.ScreenMemory[1017], 11);  // the signature stays in memory
  EXPECT_FALSE(document.HasUnsavedWork());
  EXPECT_EQ(support::NamesIn(folders.Backup()), (Lines{"backups.txt", "pic.koa_2602030907.prg"}));
  EXPECT_EQ(support::ReadFile(folders.Snapshot()), support::ReadFile(folder / "pic.kvp"));
}

TEST_F(PictureFilesTest, SavingElsewhereMayBeRefusedAndThenNothingChanges) {
  files.OpenPicture(WriteKoala("pic.koa"));
  support::WriteFile(folder / "pic.kvp", {1, 2, 3});
  EXPECT_FALSE(files.Save());  // it would replace another picture, and the answer is no
  EXPECT_EQ(support::ReadFile(folder / "pic.kvp"), (app::Bytes{1, 2, 3}));

  document.picture.Bitmap[5] ^= 1;
  const Document before = document;
  for (const std::string& path :
       {Text("gone/pic.kvp"), std::string("abc"), app::TextFromPath(folders.Gfx()) + ".kvp/x.kvp"}) {
    messages.shown.clear();
    EXPECT_FALSE(files.SaveTo(path)) << path;
    EXPECT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(document.picture, before.picture);
    EXPECT_EQ(document.file.CurrentFilePath, before.file.CurrentFilePath);
    EXPECT_TRUE(document.HasUnsavedWork());
  }
}

// Whatever a save takes the place of, its bytes are in BACKUP afterwards.
TEST_F(PictureFilesTest, WhatASaveReplacesIsKept) {
  const std::string path = Text("pic.kvp");
  const auto picture = [](std::uint8_t byte) { return app::Bytes(10050, byte); };
  const auto is_kept = [&](const app::Bytes& bytes) {
    const Lines names = support::NamesIn(folders.Backup());
    return std::any_of(names.begin(), names.end(),
                       [&](const auto& name) { return support::ReadFile(folders.Backup() / name) == bytes; });
  };
  support::WriteFile(folder / "pic.kvp", picture(1));
  files.OpenPicture(path);
  Document build_copy = document;  // a build saves the picture as it is, and makes it the snapshot
  build_copy.picture.Bitmap[7] = 99;
  SaveBitmap(build_copy, app::TextFromPath(folders.System() / "temp.kvp"), surroundings);
  EXPECT_TRUE(files.Save());  // in the same minute
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_TRUE(is_kept(picture(1)));
  EXPECT_TRUE(is_kept(Encode(build_copy.picture)));
  for (const BackupNote& note : ReadBackupIndex(folders.Backup() / "backups.txt")) {
    EXPECT_TRUE(note.picture == path || note.stamp.empty()) << note.file_name;
  }

  support::WriteFile(folder / "pic.kvp", picture(2));  // by another program
  EXPECT_FALSE(files.Save());
  EXPECT_EQ(messages.shown, Lines{path + " was changed by another program. Replace it?\n"
                                         "What that program wrote is kept in the BACKUP folder."});
  EXPECT_EQ(support::ReadFile(folder / "pic.kvp"), picture(2));
  messages.yes = true;
  EXPECT_TRUE(files.Save());
  EXPECT_TRUE(is_kept(picture(2)));

  support::WriteFile(folder / "other.kvp", picture(3));
  dialogs.save = Text("other.kvp");
  EXPECT_TRUE(files.SaveAs());
  EXPECT_TRUE(is_kept(picture(3)));

  files.New();  // no file is current, but the snapshot of the last one is there
  const app::Bytes last = support::ReadFile(folder / "other.kvp");
  EXPECT_TRUE(files.SaveAs());
  EXPECT_TRUE(is_kept(last));

  document.picture.Bitmap[9] = 77;
  files.Recover(Document(document));
  support::WriteFile(folder / "other.kvp", picture(6));
  messages.yes = false;
  EXPECT_FALSE(files.Save());
  messages.yes = true;

  // What cannot be kept is not replaced.
  fs::remove_all(folders.Backup());
  support::WriteFile(folders.Backup(), {});
  support::WriteFile(folder / "other.kvp", picture(4));
  EXPECT_FALSE(files.Save());
  EXPECT_EQ(support::ReadFile(folder / "other.kvp"), picture(4));
}

TEST_F(PictureFilesTest, AFrameThatOnlyCaseTellsFromAnotherIsNotReplacedUnasked) {
  if (support::kIsWindows) GTEST_SKIP() << "case tells no files apart";
  support::WriteFile(folder / "walk0001.KVP", app::Bytes(10050));
  support::WriteFile(folder / "walk0001.kvp", app::Bytes(10050, 5));
  files.OpenPicture(Text("walk0001.KVP"));
  document.picture.Bitmap[9] = 1;
  EXPECT_FALSE(files.SaveChanges());
  EXPECT_EQ(messages.shown, Lines{Text("walk0001.kvp") + " exists already. Replace it?"});
  EXPECT_EQ(support::ReadFile(folder / "walk0001.kvp"), app::Bytes(10050, 5));
}

TEST_F(PictureFilesTest, ProgramsOnOneFolderBackUpTheirOwnPictures) {
  const std::string own = WriteKoala("own.koa");
  files.OpenPicture(own);
  const app::ProgramFolders second_folders(folders.Root(), 2);
  Document second;
  PictureFiles second_files(
      second, {{second_folders, settings, clock, log, messages, prompt}, pointer, dialogs, display, views, status});
  support::WriteFile(folder / "b.kvp", app::Bytes(10050, 9));
  second_files.OpenPicture(Text("b.kvp"));
  EXPECT_TRUE(files.Save());
  EXPECT_EQ(support::ReadFile(folders.Backup() / "own.koa_2602030907.prg"), support::ReadFile(own));
}

TEST_F(PictureFilesTest, NamesAsLongAsTheyMayBeAreKeptShorter) {
  std::string name;
  while (name.size() < 250) name += "\u00e4";
  name += "b.kvp";
  const fs::path path = folder / app::PathFromText(name);
  ASSERT_TRUE(files.SaveTo(path));
  document.picture.Bitmap[9] = 1;
  ASSERT_TRUE(files.Save());
  document.picture.Bitmap[9] = 2;
  files.New();
  EXPECT_TRUE(messages.shown.empty());
  const Lines kept = support::NamesIn(folders.Backup());
  ASSERT_EQ(kept.size(), 3U);  // with the index
  for (const std::string& file : {kept[1], kept[2]}) {
    EXPECT_LE(file.size(), 255U);
    EXPECT_EQ(file.find("\u00e4_2602030907"), file.rfind("\u00e4")) << file;
  }
}

// Days before 2026-02-03 at which two pictures of one name, of different folders, were saved, and what stays of them.
TEST_F(PictureFilesTest, OldBackupsAreThinnedToTheLastOfADayOfEachPicture) {
  const auto save = [&](const char* place, std::uint8_t value) {
    document.picture.Bitmap.fill(value);
    files.SaveTo(Text(place));
  };
  fs::create_directory(folder / "a");
  fs::create_directory(folder / "b");
  clock.time.tm_mday = 1;
  clock.time.tm_mon = 0;
  std::uint8_t value = 0;
  for (const char* place : {"a/pic.kvp", "b/pic.kvp"}) {
    for (int time = 0; time < 3; ++time) save(place, ++value);  // 1 to 6, all in one minute
  }
  ++clock.time.tm_hour;
  save("b/pic.kvp", 7);
  files.New();
  const auto kept = [&] {
    std::set<int> values;
    for (const std::string& name : support::NamesIn(folders.Backup())) {
      if (name.ends_with(".prg")) values.insert(support::ReadFile(folders.Backup() / name).back());
    }
    return values;
  };
  support::WriteFile(folders.Backup() / "mine_2501010000.prg", app::Bytes{200});
  clock.time.tm_mday = 31;
  files.ThinBackups();
  EXPECT_EQ(kept().size(), 7U);  // thirty days later all are there
  clock.time.tm_mon = 1;
  clock.time.tm_mday = 1;
  settings.Write(kKeepBackupsDays, "0");
  files.ThinBackups();
  EXPECT_EQ(kept().size(), 7U);
  settings.Write(kKeepBackupsDays, "30");
  for (const std::string& name : support::NamesIn(folders.Backup())) {  // the last of a/pic.kvp is taken elsewhere
    if (support::ReadFile(folders.Backup() / name).back() == 3) fs::remove(folders.Backup() / name);
  }
  for (int round = 0; round < 2; ++round) {
    files.ThinBackups();
    EXPECT_EQ(kept(), (std::set<int>{2, 6, 200}));
  }
}

TEST_F(PictureFilesTest, UnsavedWorkIsKeptBeforeItIsThrownAway) {
  const std::string path = WriteKoala("pic.koa");
  std::uint8_t& drawn = document.picture.Bitmap[9];
  files.OpenPicture(path);
  drawn = 1;
  files.New();
  EXPECT_EQ(document.picture, (model::PictureImage{.BackgroundColour = document.picture.BackgroundColour}));
  EXPECT_EQ(display.title, "Kelvo v1.2 by the Kelvo developers [unnamed.kvp]");
  EXPECT_EQ(prompt.lines.back(), "NEW");
  EXPECT_FALSE(files.Reload());
  files.OpenPicture(path);
  drawn = 2;
  EXPECT_TRUE(files.Reload());
  drawn = 3;
  files.OpenPicture(WriteKoala("other.koa"));
  EXPECT_EQ(support::NamesIn(folders.Backup()),
            (Lines{"pic.koa_2602030907_unsaved.kvp", "pic.koa_2602030907_unsaved_2.kvp",
                   "pic.koa_2602030907_unsaved_3.kvp"}));
  EXPECT_EQ(support::ReadFile(folders.Backup() / "pic.koa_2602030907_unsaved_2.kvp").at(2050 + 8), 2);

  drawn = 4;
  fs::remove_all(folders.Backup());
  support::WriteFile(folders.Backup(), {});  // a file in the folder's place: no rescue copy can be written
  files.New();
  EXPECT_EQ(drawn, 4);
  messages.yes = true;
  files.New();
  EXPECT_EQ(drawn, 0);
}

TEST_F(PictureFilesTest, ClosingAsksAboutUnsavedWorkAndSavesItByDialog) {
  EXPECT_TRUE(files.MayClose());
  document.picture.Bitmap[9] = 1;
  EXPECT_FALSE(files.MayClose());
  messages.unsaved = app::UnsavedAnswer::kSave;
  EXPECT_FALSE(files.MayClose());  // the save dialog was cancelled
  EXPECT_EQ(dialogs.proposals, Lines{app::TextFromPath(folders.Gfx() / "unnamed.kvp")});
  dialogs.save = Text("kept.kvp");
  EXPECT_TRUE(files.MayClose());
  EXPECT_TRUE(fs::exists(folder / "kept.kvp"));
  EXPECT_EQ(document.file.CurrentFileName, "kept.kvp");
  EXPECT_EQ(settings.values["Settings/FilePath"], app::TextFromPath(folder.Path()));
  EXPECT_TRUE(support::NamesIn(folders.Backup()).empty());
}

TEST(SavedName, ReplacesTheLastFourCharacters) {
  for (const char* path : {"pic.kvp", "pic.txt", "picture", "pic.KVP"}) EXPECT_EQ(SavedName(path), "pic.kvp");
  EXPECT_EQ(SavedName(app::PathFromText("b\u00e4\u00f6\u00fc\u00df")), "b.kvp");  // characters, not bytes
  EXPECT_THROW(SavedName("abc"), std::runtime_error);
  if (support::kIsWindows) return;
  EXPECT_EQ(SavedName("b\x84\x94\x81.koa"), "b\x84\x94\x81.kvp");  // a name in another encoding stays
  EXPECT_EQ(SavedName("b\x84\x94\x81\x84\x94"), "b\x84.kvp");
}

TEST(RecentFiles, KeepTheFiveLastInOrder) {
  support::MapSettings settings;
  RecentFiles recent(settings);
  settings.values["Recent/Recent2"] = "old";  // a gap before it closes
  for (const char* path : {"a", "b", "c", "d", "b", "e"}) recent.Add(path);
  EXPECT_EQ(recent.Paths(), (std::vector<fs::path>{"e", "d", "c", "b", "a"}));
  EXPECT_EQ(settings.values["Recent/Recent5"], "a");
}

class RecoveryCopyTest : public testing::Test, protected support::Program {
 protected:
  void Paint(std::uint8_t byte) { document.picture.Bitmap[1] = byte; }
  // The byte that Paint() writes, as the copy has it; -1 without a copy.
  int Kept() const {
    const auto kept = recovery.Read();
    return kept ? kept->picture.Bitmap[1] : -1;
  }

  RecoveryCopyTest() { copy.AddPlace(recovery); }

  RecoveryFiles recovery{folders.Backup(), 3};
  RecoveryCopy copy{document};
  RecoveryCopy::Time now{seconds(1000)};
};

TEST_F(RecoveryCopyTest, IsWrittenAtMostOnceAMinuteWhileTheWorkChanges) {
  copy.Keep(now);
  EXPECT_EQ(Kept(), -1);
  Paint(1);
  copy.Keep(now += seconds(1));
  EXPECT_EQ(Kept(), 1);
  Paint(2);
  copy.Keep(now += seconds(59));
  EXPECT_EQ(Kept(), 1);
  copy.Keep(now += seconds(1));
  EXPECT_EQ(Kept(), 2);
  const auto written = last_write_time(recovery.picture);
  copy.Keep(now += seconds(100));
  EXPECT_EQ(last_write_time(recovery.picture), written);
  remove_all(folders.Root());
  Paint(3);
  EXPECT_THROW(copy.Keep(now), app::FileError);
  folders.Create();
  copy.Keep(now += seconds(59));  // a failed write is tried again a minute later
  EXPECT_EQ(Kept(), -1);
  copy.Keep(now += seconds(1));
  EXPECT_EQ(Kept(), 3);
}

TEST_F(RecoveryCopyTest, KnowsItsFileAndGoesWithTheWork) {
  document.file = SetFileParameters("/art/\u00e4 b.kvp");
  Paint(1);
  copy.Keep(now);
  EXPECT_EQ(recovery.Read()->file.CurrentFilePath, "/art/\u00e4 b.kvp");
  document.kept = document.picture;  // as a save does
  copy.Keep(now);
  EXPECT_FALSE(exists(recovery.picture) || exists(recovery.name));
  Paint(2);
  copy.Keep(now += seconds(1));  // new work is safe at once
  EXPECT_EQ(Kept(), 2);
  resize_file(recovery.picture, 10049);  // a damaged copy is none
  EXPECT_EQ(Kept(), -1);
  document.kept = document.picture;
  copy.KeepNow();
  EXPECT_FALSE(exists(recovery.picture) || exists(recovery.name));
}

}  // namespace
}  // namespace kelvo::files
